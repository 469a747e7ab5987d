// An entry: the way to a sub-page, or a row that only acts. Shows no value. GUI thread.
#pragma once

#include "menu/itemindex.h"
#include "menu/objectindex.h"
#include "widget/row/framedrow.h"

namespace VASK
{
class typemainbutton : public FramedRow
{
    Q_OBJECT
public:
    using FramedRow::FramedRow;

    OkKind okKind() const override { return OkKind::OpensPage; }
    using VaskUiObject::EnterEntry;
    void EnterEntry(ENUM_MenuIndex index) override { act(index); }

protected:
    void CreatEntry() override;
};
} // namespace VASK
