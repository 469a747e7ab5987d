// The backup of inputs by inputs: which pairs stand by, and whether their signals let them.

#include "framework/engine/layers.h"
#include "menu/itemindex.h"
#include "menu/objectindex.h"

#include "menu/itemvalue.h"
#include <QVector>

namespace VASK
{
namespace
{
/// The inputs of a row; all must have a signal for one to take over from the other.
QVector<int> inputsOf(ENUM_MenuIndex row)
{
    switch (row) {
    case MENU_InputBackup_HDMI1:
        return {INPUT_HDMI1, INPUT_HDMI2};
    case MENU_InputBackup_DVI1:
        return {INPUT_DVI1, INPUT_DVI2};
    default:
        return {INPUT_HDMI1, INPUT_HDMI2, INPUT_DVI1, INPUT_DVI2};
    }
}

bool allStable(const ParaChange &change)
{
    const DeviceView device(change.engine);
    for (int code : inputsOf(change.index)) {
        const int input = device.inputOfCode(code);
        if (input == noInput || device.input(input).signalState != stableSignal)
            return false;
    }
    return true;
}

/// No page holds these rows at present: they are looked up by the number that is theirs.
void showArrows(ENUM_MenuIndex row, bool both)
{
    const auto object = nth(ENUM_ROW_InputBackup_HDMI1, row - MENU_InputBackup_HDMI1);
    if (auto *widget = dynamic_cast<VaskUiObject *>(ObjectPool::getInstance()->GetObject(object)))
        widget->setTwoArrow(both);
}

void applyPair(ParaChange &change)
{
    showArrows(change.index, change.turnsOn() && allStable(change));
    change.tail();
}

void resetBackup(ParaChange &change)
{
    for (ENUM_MenuIndex item : {MENU_InputBackup_Status, MENU_InputBackup_HDMI1}) {
        change.set(item, switchOff);
        change.eachWidget(item, [item](VaskUiObject &widget) { widget.UpdateALLUI(item); });
        change.send(item, switchOff);
    }
    showArrows(MENU_InputBackup_HDMI1, false);
}

constexpr ApplyCase cases[] = {
    {range(MENU_InputBackup_HDMI1, MENU_InputBackup_Mosaic), applyPair},
    {MENU_InputBackup_Reset, resetBackup},
};
} // namespace

Table<ApplyCase> backupCases()
{
    return cases;
}
} // namespace VASK
