// The cursor of a page: which row it is on, and where a turn of the knob takes it. GUI thread.
#pragma once

#include "widget/page/pagetable.h"

namespace VASK
{
class PageCursor
{
public:
    explicit PageCursor(PageTable &table) : m_table(table) {}

    int row() const { return m_row; }
    ShownRow shownRow() const { return m_table.row(m_row); }
    /// A row outside the page changes nothing.
    void put(int row);
    /// The page has fewer rows than before.
    void stayInside();
    /// Shows it where it is.
    void show() { select(m_row); }
    /// One click of the knob, so many rows at once.
    void turn(unsigned char speed, bool left);

private:
    bool moveInsideRow(const ShownRow &row, unsigned char &speed, bool left) const;
    int landingRow(int speed, bool left) const;
    int lastFileRow(int row) const;
    void land(int row, bool left, bool blocked);
    void select(int row);
    void unmarkApply();

    static constexpr int noApply = 255;

    PageTable &m_table;
    unsigned char m_row = 0;
    /// Row of the apply button that is drawn selected.
    int m_markedApply = noApply;
};
} // namespace VASK
