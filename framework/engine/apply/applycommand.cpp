// Brightness, and the items that are commands to the device rather than values.

#include "framework/engine/parachange.h"

#include "menu/itemindex.h"
#include "netstatus.h"

namespace VASK
{
namespace
{
void applyBrightness(ParaChange &change)
{
    change.home().showBrightness(change.value + "%");
    change.tail();
}

void saveToReceivingCard(ParaChange &change)
{
    if (!change.engine.GetPortLinkStatus()) {
        change.dialog(MSG_CheckReceiveCard);
        return;
    }
    change.send(MENU_SavetoRVCard, change.value);
    change.dialog(MSG_SavingHardwareInformation);
    change.dialog(MSG_SaveHardwareInformationSucceed);
}

void startSelfTest(ParaChange &change)
{
    change.send(MENU_SelfTest, change.value);
    if (change.fromUser())
        change.dialog(MSG_SelfTesting);
}

void applyCommunicationMode(ParaChange &change)
{
    const bool usbFirst = change.turnsOff();
    set_pc_connect_priority(usbFirst ? 1 : 0);
}

constexpr ApplyCase cases[] = {
    {MENU_ScreenBrightness, applyBrightness},
    {MENU_SavetoRVCard, saveToReceivingCard},
    {MENU_SelfTest, startSelfTest},
    {MENU_CommunicationMode, applyCommunicationMode},
};
} // namespace

Table<ApplyCase> commandCases()
{
    return cases;
}
} // namespace VASK
