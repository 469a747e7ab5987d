// The quick screen configuration: its page, the page of the advanced one, and its form of rows, columns,
// cabinets on the first port and flow way.

#include "framework/engine/screenform.h"

#include "framework/engine/layers.h"
#include "framework/engine/limits/limits.h"
#include "framework/thread/handover.h"
#include "menu/itemindex.h"
#include "menu/itemvalue.h"

namespace VASK
{
void askBeforeOpening(ParaChange &change, ENUM_MenuIndex page)
{
    runOnGui(&change.engine, [page] {
        for (ENUM_MenuIndex form : {MENU_QuickConfiguration, MENU_AdvancedCfg})
            g_dialogConfig[form].enabled = form == page;
    });
}

void freeStereo(ParaChange &change)
{
    if (!isSendingCard(change))
        setEnabled(change, MENU_Mode3D, true);
}

void configureByHand(ParaChange &change)
{
    change.set(MENU_SoftwareConfigured, switchOff);
    change.set(MENU_OutputMode, switchOff);
    freeStereo(change);
}

namespace
{
void checkLink(ParaChange &change)
{
    if (!change.engine.GetPortLinkStatus())
        change.dialog(MSG_ScreenConfigFailWarning);
}

/// The flow way makes the device take the quick form over.
void returnToQuickForm(ParaChange &change)
{
    const bool quick = change.isOn(MENU_ScreenConfigKind);
    askBeforeOpening(change, MENU_AdvancedCfg);
    change.set(MENU_ScreenConfigKind, switchOff);
    change.send(MENU_Quick_FlowWay, change.item(MENU_Quick_FlowWay));
    change.show(MENU_Advanced_Status, switchOff);
    enableAdvancedForm(change, false);
    configureByHand(change);
    keepLowLatencyIf(change, !quick || quickFormSuitsLowLatency(change));
}

void openQuickConfiguration(ParaChange &change)
{
    if (change.isOn(MENU_ScreenConfigKind) || change.isOn(MENU_OutputMode))
        returnToQuickForm(change);
    checkLink(change);
}

void applyForm(ParaChange &change)
{
    // Rows and columns move the limits of the cabinets on the first port.
    if (change.fromUser() && change.index != MENU_Quick_PortOneCab)
        change.show(MENU_Quick_PortOneCab, change.item(MENU_Quick_PortOneCab));
    configureByHand(change);
    if (change.fromUser())
        keepLowLatencyIf(change, quickFormSuitsLowLatency(change));
    change.tail();
}

void applyFlowWay(ParaChange &change)
{
    configureByHand(change);
    if (firstPortOverloads(change.engine, change.number(MENU_Quick_PortOneCab)))
        change.dialog(MSG_OverLoad);
    if (change.fromUser())
        keepLowLatencyIf(change, quickFormSuitsLowLatency(change));
    change.tail();
}

constexpr ApplyCase cases[] = {
    {MENU_QuickConfiguration, openQuickConfiguration},
    {MENU_AdvancedCfg, checkLink},
    {range(MENU_Quick_CabinetRow, MENU_Quick_PortOneCab), applyForm},
    {MENU_Quick_FlowWay, applyFlowWay},
};
} // namespace

Table<ApplyCase> configurationCases()
{
    return cases;
}
} // namespace VASK
