// The advanced screen configuration: a page that shows the record of one port at a time, and the records.

#include "framework/engine/screenform.h"

#include "framework/engine/advancedports.h"
#include "framework/engine/layers.h"
#include "menu/itemindex.h"

namespace VASK
{
void enableAdvancedForm(ParaChange &change, bool on)
{
    for (int item = MENU_Advanced_EthernetPort; item <= MENU_Advanced_Apply; ++item)
        setEnabled(change, ENUM_MenuIndex(item), on);
}

namespace
{
/// Port on the page, counted from 0.
int portOnPage(const ParaChange &change)
{
    return change.number(MENU_Advanced_EthernetPort) - 1;
}

/// What a row of the page shows of a port.
ENUM_MenuIndex recordItem(ENUM_MenuIndex pageRow, int port)
{
    return nth(nth(MENU_AdvancedPort1_Rows, pageRow - MENU_Advanced_CabinetRow), port, STRIDE_AdvancedPort);
}

void showPort(ParaChange &change, int port)
{
    if (port < 0 || port >= AdvancedPorts::count)
        return;
    for (int item = MENU_Advanced_CabinetRow; item <= MENU_Advanced_FlowWay; ++item) {
        const auto row = ENUM_MenuIndex(item);
        change.set(row, change.item(recordItem(row, port)));
        change.refresh(row);
    }
}

void applyStatus(ParaChange &change)
{
    const bool on = change.turnsOn();
    askBeforeOpening(change, on ? MENU_QuickConfiguration : MENU_AdvancedCfg);
    change.set(MENU_ScreenConfigKind, on ? "1" : "0");
    freeStereo(change);
    enableAdvancedForm(change, on);
    change.tail();
}

void applyPort(ParaChange &change)
{
    if (change.fromUser())
        showPort(change, portOnPage(change));
}

/// False if no port is on the page.
bool keepInRecord(ParaChange &change)
{
    const int port = portOnPage(change);
    if (port < 0 || port >= AdvancedPorts::count)
        return false;
    change.set(recordItem(change.index, port), change.value);
    return true;
}

void checkStartLines(ParaChange &change)
{
    keepLowLatencyIf(change, !GetAdvCfgPortAdjust(change.engine, portOnPage(change)));
}

void applyCount(ParaChange &change)
{
    if (!keepInRecord(change) || !change.fromUser())
        return;
    // The limits of both starts move, that of the same axis first.
    const bool rows = change.index == MENU_Advanced_CabinetRow;
    for (ENUM_MenuIndex start : {rows ? MENU_Advanced_VerOffset : MENU_Advanced_HorOffset,
                                 rows ? MENU_Advanced_HorOffset : MENU_Advanced_VerOffset})
        change.show(start, change.item(start));
    checkStartLines(change);
}

void applyStart(ParaChange &change)
{
    if (keepInRecord(change) && change.fromUser())
        checkStartLines(change);
}

void applyFlowWay(ParaChange &change)
{
    keepInRecord(change);
}

void applyForm(ParaChange &change)
{
    configureByHand(change);
    change.dialog(MSG_Waiting);
    keepLowLatencyIf(change, advancedFormSuitsLowLatency(change));
    change.tail();
}

void resetForm(ParaChange &change)
{
    /// Rows, columns, start and flow way, as they stand on the page.
    static constexpr const char *defaults[STRIDE_AdvancedPort] = {"1", "1", "0", "0", "0"};
    if (!change.confirmed(MENU_Advanced_Reset))
        return;
    for (int port = 0; port < AdvancedPorts::count; ++port)
        for (int field = 0; field < STRIDE_AdvancedPort; ++field)
            change.set(recordItem(nth(MENU_Advanced_CabinetRow, field), port), defaults[field]);
    change.set(MENU_Advanced_EthernetPort, "1");
    change.refresh(MENU_Advanced_EthernetPort);
    showPort(change, 0);
}

/// The flow way is the last of a record: with it the record is complete.
void applyRecord(ParaChange &change)
{
    if (portOnPage(change) == change.member)
        showPort(change, change.member);
}

constexpr ApplyCase cases[] = {
    {MENU_Advanced_Status, applyStatus},
    {MENU_Advanced_EthernetPort, applyPort},
    {range(MENU_Advanced_CabinetRow, MENU_Advanced_CabinetCol), applyCount},
    {range(MENU_Advanced_HorOffset, MENU_Advanced_VerOffset), applyStart},
    {MENU_Advanced_FlowWay, applyFlowWay},
    {MENU_Advanced_Apply, applyForm},
    {MENU_Advanced_Reset, resetForm},
    {each(FAMILY_AdvancedPort, MENU_AdvancedPort1_FlowWay), applyRecord},
};
} // namespace

Table<ApplyCase> advancedCases()
{
    return cases;
}
} // namespace VASK
