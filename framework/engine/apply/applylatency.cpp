// Low latency, and whether the screen allows it.

#include "framework/engine/screenform.h"

#include "framework/engine/advancedports.h"
#include "framework/engine/layers.h"
#include "framework/ui/homestates.h"
#include "menu/itemindex.h"
#include "menu/itemvalue.h"

namespace VASK
{
bool quickFormSuitsLowLatency(const ParaChange &change)
{
    if (change.number(MENU_Quick_FlowWay) % 2 != 0)
        return true;
    const int columns = qMax(1, change.number(MENU_Quick_CabinetCol));
    const int cabinets = change.number(MENU_Quick_PortOneCab);
    return change.number(MENU_Quick_CabinetRow) == (columns + cabinets - 1) / columns;
}

bool advancedFormSuitsLowLatency(const ParaChange &change)
{
    const AdvancedPorts ports(change.engine);
    for (int port = 0; port < AdvancedPorts::count; ++port)
        if (ports.startLinesDiffer(port))
            return false;
    return true;
}

void keepLowLatencyIf(ParaChange &change, bool suits)
{
    if (suits || !change.isOn(MENU_LowLatency))
        return;
    change.set(MENU_LowLatency, switchOff);
    change.refresh(MENU_LowLatency);
    change.send(MENU_LowLatency, switchOff);
    change.dialog(MSG_FlowWayClosesLowLatency);
}

namespace
{
void stayOff(ParaChange &change)
{
    change.set(MENU_LowLatency, switchOff);
    change.refresh(MENU_LowLatency);
}

/// A sending card has either synchronisation or low latency. True when the user gives the former up.
bool syncGivesWay(ParaChange &change)
{
    if (!change.confirmed(MSG_OpenLowLatencyNeedsSyncOff))
        return false;
    change.show(MENU_Sync_Status, switchOff);
    change.send(MENU_Sync_Status, switchOff);
    const int rate = DeviceView(change.engine).outputRate();
    change.redoResolution(rate);
    change.syncState(SYN_OFF);
    change.set(PARA_OutputRate, QString::number(rate));
    return true;
}

/// What software on a computer has configured is its own matter.
bool screenSuits(const ParaChange &change)
{
    if (!change.isOff(MENU_SoftwareConfigured))
        return true;
    return change.isOff(MENU_ScreenConfigKind) ? advancedFormSuitsLowLatency(change)
                                               : quickFormSuitsLowLatency(change);
}

void applyLowLatency(ParaChange &change)
{
    if (!change.fromUser() || !change.turnsOn()) {
        change.tail();
        return;
    }
    if (isSendingCard(change) && change.isOn(MENU_Sync_Status) && !syncGivesWay(change)) {
        stayOff(change);
        return;
    }
    if (!screenSuits(change)) {
        stayOff(change);
        change.dialog(MSG_CantOpenLowLatencyTip);
        return;
    }
    change.dialog(MSG_OpenLowLatencyTip);
    change.tail();
}

constexpr ApplyCase cases[] = {
    {MENU_LowLatency, applyLowLatency},
};
} // namespace

Table<ApplyCase> latencyCases()
{
    return cases;
}
} // namespace VASK
