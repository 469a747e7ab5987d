// A row with parts side by side that the cursor walks through before it leaves the row: the page and the row
// share the movement, and the row takes off the speed what it used inside. GUI thread.
#pragma once

#include "menu/itemindex.h"
#include "widget/row/menurow.h"

#include <QList>

namespace VASK
{
class PartsRow : public MenuRow
{
    Q_OBJECT
public:
    using MenuRow::MenuRow;

    bool hasParts() const override { return true; }
    bool needsSheet() const override { return true; }
    using VaskUiObject::DownEntry;
    using VaskUiObject::UpEntry;
    void UpEntry(ENUM_MenuIndex index, unsigned char &speed, bool first) override;
    void DownEntry(ENUM_MenuIndex index, unsigned char &speed, bool last) override;

protected:
    bool event(QEvent *event) override;
    /// Disabled parts lose the focus: the one that OK acts on gets it back.
    void changeEvent(QEvent *event) override;

    /// The parts from left to right. Only the cursor gives them the focus, never the opening of the page.
    void setParts(const QList<QWidget *> &parts);
    /// Gives the focus to a part, from 1; 0 takes it from all.
    bool setfocus(int part);
    int partCount() const { return m_parts.size(); }
    /// The item that a part stands for.
    ENUM_MenuIndex itemOfPart(ENUM_MenuIndex index) const { return nth(index, m_currentItem - 1); }
    /// Logs that OK was pressed, and on what; false while no part has the focus.
    bool logEnter(ENUM_MenuIndex index) const;
    /// How the row calls itself in the log.
    virtual const char *className() const { return "typeapplyreset"; }

    /// The part that has the focus, from 1; 0 for none.
    int m_currentItem = 0;

private:
    void focus(int part);

    QList<QWidget *> m_parts;
};
} // namespace VASK
