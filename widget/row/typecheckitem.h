// A row with a tick: one choice of several, or a switch. Which ticks go when one comes is the engine's
// matter. GUI thread.
#pragma once

#include "menu/itemindex.h"
#include "menu/objectindex.h"
#include "widget/row/framedrow.h"

namespace VASK
{
class typecheckitem : public FramedRow
{
    Q_OBJECT
public:
    using FramedRow::FramedRow;

    OkKind okKind() const override { return OkKind::Acts; }
    using VaskUiObject::EnterEntry;
    void EnterEntry(ENUM_MenuIndex index) override;

protected:
    void CreatEntry() override;
    void draw() override;

private:
    void showTick();

    QLabel *m_tick = nullptr;
};
} // namespace VASK
