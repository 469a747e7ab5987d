// What the rows with a drop-down list share, whatever their frame and their table: OK opens the list and
// takes from it, the knob moves in it, ESC closes it. GUI thread.
#pragma once

#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "widget/row/dropdown.h"
#include "widget/row/menurow.h"

#include <utility>

namespace VASK
{
template <class Frame, class Table> class ListRow : public Frame
{
public:
    using Frame::Frame;

    OkKind okKind() const override { return OkKind::ChoosesFromList; }
    bool CurrentItemEnabled() override { return m_dropDown.currentEnabled(); }
    using VaskUiObject::DownEntry;
    using VaskUiObject::EnterEntry;
    using VaskUiObject::EscEntry;
    using VaskUiObject::UpEntry;
    void EscEntry(ENUM_MenuIndex) override { m_dropDown.close(); }
    void UpEntry(ENUM_MenuIndex index) override { m_dropDown.up(index); }
    void DownEntry(ENUM_MenuIndex index) override { m_dropDown.down(index); }

protected:
    void takeValue(ENUM_MenuIndex index, const QString &value, ENUM_MODE_SET_XML mode) override
    {
        if (!value.isEmpty())
            this->takeOption(index, value, mode, m_dropDown.table());
        this->redraw();
    }

    DropDown<Table> m_dropDown;
};
} // namespace VASK
