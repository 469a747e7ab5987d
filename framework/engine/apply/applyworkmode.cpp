// The device's work mode: video controller, fiber converter or sending card. Two rows of a radio group give
// way to the third, and with them most of the menu.

#include "framework/engine/workmode.h"

#include "framework/input/keyevent.h"
#include "menu/itemindex.h"
#include "menu/itemvalue.h"

namespace VASK
{
namespace
{
WorkMode currentMode(const ParaChange &change)
{
    return DeviceView(change.engine).workMode();
}

/// Entries of the main menu that a fiber converter has no use for.
void enableMainMenu(ParaChange &change, bool on)
{
    enableAll(change,
              {MENU_ScreenBrightness, MENU_ScreenSetting, MENU_LayerSettings, MENU_InputSettings,
               MENU_PresetSettings, MENU_ImageMosaic, MENU_DisplayControl, MENU_AdvancedSetting,
               MENU_FactoryReset},
              on);
}

/// The mode counts before anything is given back: its rules hold for the rate of the output.
void enterMode(ParaChange &change, WorkMode mode)
{
    change.set(MENU_WorkMode, QString::number(mode));
}

void unmark(ParaChange &change, ENUM_MenuIndex mode)
{
    change.choice(mode, false);
    change.refresh(mode);
}

void leaveMode(ParaChange &change, ENUM_MenuIndex mode)
{
    unmark(change, mode);
    change.send(mode, "0");
}

void sendToOrigin(ParaChange &change)
{
    change.send(MENU_MainLayer_InitialX, "0");
    change.send(MENU_MainLayer_InitialY, "0");
}

/// The synchronisation sources that the device has; the first is there in every mode.
void enableSyncSources(ParaChange &change)
{
    enableRowsFrom(change, MENU_Sync_Source, 1, true);
    if (!ParaProcess::bHaveSDI)
        change.enableRowsWithText(MENU_Sync_Source, "SDI", false);
    change.refresh(MENU_Sync_Source);
}

void showLayers(ParaChange &change)
{
    for (int layer = 1; layer < layerCount; ++layer) {
        if (change.isOff(nth(MENU_MainLayer_Status, layer, STRIDE_Layer)))
            change.home().closeWindow(layer);
        else
            change.engine.SetLayerSrc_Res(layer);
    }
    change.engine.ChangeLayerSrc();
}

void applyController(ParaChange &change)
{
    const WorkMode last = currentMode(change);
    if (last == WORK_CONTROLLER) {
        change.tail();
        return;
    }
    enterMode(change, WORK_CONTROLLER);
    if (last == WORK_FIBER) {
        enableMainMenu(change, true);
        leaveFiberMode(change);
    } else {
        giveBackVideoPath(change, WORK_CONTROLLER);
    }
    enableSyncSources(change);
    change.choice(MENU_VideoController, true);
    leaveMode(change, MENU_FiberConverter);
    leaveMode(change, MENU_SendingCard);
    change.send(EVENT_SendingCardMode, "0");
    enableAll(change, {MENU_PIP1_Status, MENU_PIP2}, true);
    sendToOrigin(change);
    for (int row : {2, 3})
        change.enableRow(MENU_Audio_AudioOutput, row, true);
    change.home().showMakerSign(change.isOn(MENU_MakerSign));
    showLayers(change);
    change.tail();
}

void applyFiber(ParaChange &change)
{
    const WorkMode last = currentMode(change);
    if (last == WORK_FIBER)
        return;
    KeyEvent::LightFiber(true);
    enterMode(change, WORK_FIBER);
    if (last == WORK_SENDER)
        giveBackVideoPath(change, WORK_FIBER);
    enableMainMenu(change, false);
    unmark(change, MENU_VideoController);
    change.choice(MENU_FiberConverter, true);
    change.send(MENU_FiberConverter, "1");
    unmark(change, MENU_SendingCard);
    change.send(EVENT_SendingCardMode, "0");
    sendToOrigin(change);
}

void applySender(ParaChange &change)
{
    const WorkMode last = currentMode(change);
    if (last == WORK_SENDER) {
        change.tail();
        return;
    }
    if (last == WORK_FIBER)
        leaveFiberMode(change);
    enterMode(change, WORK_SENDER);
    if (change.isOn(MENU_OutputMode)) {
        change.send(MENU_OutputFrameRate, change.chosenOption(MENU_OutputFrameRate));
        change.set(MENU_OutputMode, switchOff);
    }
    change.send(MENU_SendingCard, "1");
    change.send(EVENT_SendingCardMode, "1");
    // The presets and the splicing, the rest of the menu, go with the video path.
    enableAll(change,
              {MENU_ScreenBrightness, MENU_ScreenSetting, MENU_LayerSettings, MENU_InputSettings,
               MENU_DisplayControl, MENU_AdvancedSetting, MENU_FactoryReset},
              true);
    takeVideoPath(change);
    unmark(change, MENU_VideoController);
    leaveMode(change, MENU_FiberConverter);
    change.choice(MENU_SendingCard, true);
    change.tail();
}

constexpr ApplyCase cases[] = {
    {MENU_VideoController, applyController},
    {MENU_FiberConverter, applyFiber},
    {MENU_SendingCard, applySender},
};
} // namespace

Table<ApplyCase> workModeCases()
{
    return cases;
}
} // namespace VASK
