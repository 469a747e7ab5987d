// The drop-down of a list row: opened over the page by OK, moved by the knob, closed by OK or ESC. The row
// owns it through this holder. GUI thread.
#pragma once

#include "framework/object/vaskobject.h"
#include "menu/itemindex.h"
#include "widget/elidinglabel.h"

#include <QPointer>
#include <memory>

namespace VASK
{
template <class Table> class DropDown
{
public:
    DropDown() = default;
    DropDown(const DropDown &) = delete;
    DropDown &operator=(const DropDown &) = delete;
    ~DropDown() { close(); }

    bool isOpen() const { return m_table != nullptr; }
    Table *table() const { return m_table; }

    /// Shows a table at its place over the page.
    void open(std::unique_ptr<Table> table, QWidget *page)
    {
        close();
        m_table = table.release();
        m_table->setParent(page);
        m_table->show();
        m_table->setGeometry(QRect(QPoint(130, 24), QPoint(319, 239)));
        ElidingLabel::cover(*page, m_table->x());
    }
    void close()
    {
        if (!m_table)
            return;
        ElidingLabel::uncover(*m_table->parentWidget());
        delete m_table;
    }

    void up(ENUM_MenuIndex index)
    {
        if (m_table) {
            m_table->UpEntry(index);
            m_table->show();
        }
    }
    void down(ENUM_MenuIndex index)
    {
        if (m_table) {
            m_table->DownEntry(index);
            m_table->show();
        }
    }
    bool currentEnabled() const { return m_table && m_table->CurrentItemEnabled(); }

private:
    /// Null once the page, its parent, has taken it along.
    QPointer<Table> m_table;
};

/// The lists of frame rates, whose options depend on what else is set: they are brought up to date before
/// they open.
inline bool isRateList(ENUM_MenuIndex index)
{
    return index == MENU_OutputFrameRate || index == MENU_HDMI1_EDIDCustomRate ||
           index == MENU_HDMI2_EDIDCustomRate || index == MENU_DVI_EDIDCustomRate ||
           index == MENU_DVI2_EDIDCustomRate;
}
} // namespace VASK
