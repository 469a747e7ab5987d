// A row that acts when OK is pressed and shows a text as its state. GUI thread.
#pragma once

#include "menu/itemindex.h"
#include "menu/objectindex.h"
#include "widget/row/framedrow.h"

namespace VASK
{
class typebutton : public FramedRow
{
    Q_OBJECT
public:
    using FramedRow::FramedRow;

    OkKind okKind() const override { return OkKind::Acts; }
    using VaskUiObject::EnterEntry;
    void EnterEntry(ENUM_MenuIndex index) override { act(index); }

protected:
    void CreatEntry() override;
    QString iconPath() const override;
    QString valueText() const override;
};
} // namespace VASK
