// The video path between the user and the sending card.

#include "framework/engine/workmode.h"

#include "framework/engine/limits/bandwidth.h"
#include "framework/input/keyevent.h"
#include "menu/itemindex.h"
#include "menu/itemvalue.h"
#include "menu/ledindex.h"
#include "menu/objectindex.h"

namespace VASK
{
namespace
{
/// Geometry of the main layer at the start of its own scaling, with the memory of that scaling.
struct StartGeometry {
    ENUM_MenuIndex item;
    ENUM_MenuIndex memory;
    const char *value; ///< pixels
    bool dimmed;       ///< while the path is the sending card's
};
constexpr StartGeometry startGeometry[] = {
    {MENU_MainLayer_HorWidth, MENU_MainLayer_CustomWidth, "800", true},
    {MENU_MainLayer_VerHeight, MENU_MainLayer_CustomHeight, "600", true},
    {MENU_MainLayer_InitialX, MENU_MainLayer_CustomX, "0", false},
    {MENU_MainLayer_InitialY, MENU_MainLayer_CustomY, "0", false},
};

constexpr ENUM_MenuIndex pipEntries[] = {MENU_PIP1, MENU_PIP2};

bool pipIsOn(const ParaChange &change, int layer)
{
    return change.isOn(nth(MENU_MainLayer_Status, layer, STRIDE_Layer));
}

void giveBackMainLayer(ParaChange &change, WorkMode nextMode)
{
    enableAll(change, {MENU_OutputFrameRate, MENU_MainLayer_Status}, true);
    change.enableRowsWithText(MENU_MainLayer_InputSource, mosaicOption,
                              !pipIsOn(change, 1) && !pipIsOn(change, 2));
    selectFallbackInput(change);
    change.enable(MENU_MainLayer_ScalingMode, true);
    change.show(MENU_MainLayer_ScalingMode, customScaling);
    for (const StartGeometry &start : startGeometry) {
        if (start.dimmed)
            change.enable(start.item, true);
        showAndSend(change, start.item, start.value);
        change.set(start.memory, start.value);
    }
    enableAll(change, {MENU_MainLayer_Priority}, true);
    const int source = change.number(MENU_MainLayer_InputSource);
    if (nextMode == WORK_FIBER || DeviceView(change.engine).input(source).signalState == stableSignal)
        enableAll(change, {MENU_MainLayer_InputCrop}, true);
    enableAll(change, {MENU_MainLayer_Opacity}, true);
}

/// The rate of the output's own list, or the source's while the output follows one.
void giveBackRate(ParaChange &change)
{
    constexpr float centi = 100.f;
    const DeviceView device(change.engine);
    int rate = qRound(change.chosenOption(MENU_OutputFrameRate).toFloat() * centi);
    if (device.syncOn()) {
        const InputRecord source = device.input(change.number(MENU_Sync_Source));
        rate = change.engine.OutputFrameAdj(source.measuredRateCentiHz(), rate);
        if (rate == 0)
            rate = unknownRate;
    }
    change.set(PARA_OutputRate, QString::number(rate));
    change.redoResolution(rate);
}

void dimMainLayer(ParaChange &change)
{
    const InputRecord input = DeviceView(change.engine).input(fallbackInput);
    change.enable(MENU_MainLayer_ScalingMode, false);
    change.show(MENU_MainLayer_ScalingMode, pixelToPixel);
    enableAll(change, {MENU_MainLayer_InitialX, MENU_MainLayer_InitialY}, true);
    change.enable(MENU_MainLayer_HorWidth, false);
    showAndSend(change, MENU_MainLayer_HorWidth, QString::number(input.width));
    change.enable(MENU_MainLayer_VerHeight, false);
    showAndSend(change, MENU_MainLayer_VerHeight, QString::number(input.height));
    showAndSend(change, MENU_MainLayer_InitialX, "0");
    showAndSend(change, MENU_MainLayer_InitialY, "0");
}

/// The main layer goes to the bottom; what lay below it moves up by one.
void lowerMainLayer(ParaChange &change)
{
    const int lowered = change.number(MENU_MainLayer_Priority);
    change.enable(MENU_MainLayer_Priority, false);
    if (lowered != 0) {
        for (int layer = 1; layer < layerCount; ++layer) {
            const ENUM_MenuIndex item = nth(MENU_MainLayer_Priority, layer, STRIDE_Layer);
            const int priority = change.number(item);
            showAndSend(change, item, QString::number(priority < lowered ? priority + 1 : priority));
        }
        change.show(MENU_MainLayer_Priority, "0");
        // The device counts a sending card's only layer from one.
        change.send(MENU_MainLayer_Priority, "1");
    } else {
        change.refresh(MENU_MainLayer_Priority);
    }
    change.lowLayerUpdate();
    KeyEvent::SendLedCommand(LED_SCALE, LED_OFF);
}

void closePips(ParaChange &change)
{
    for (int layer = 1; layer < layerCount; ++layer) {
        const ENUM_MenuIndex status = nth(MENU_MainLayer_Status, layer, STRIDE_Layer);
        change.enable(status, true);
        showAndSend(change, status, switchOff);
    }
    emit change.engine.signal_Update_LedState();
}

void dimLayerPages(ParaChange &change)
{
    enableAll(change, {MENU_MainLayer_InputCrop}, false);
    change.enable(MENU_MainLayer_Opacity, false);
    showAndSend(change, MENU_MainLayer_Opacity, "100");
    for (int pip = 0; pip < int(std::size(pipEntries)); ++pip) {
        enableAll(change, {pipEntries[pip]}, false);
        change.windowState(pip + 1, false);
    }
    change.enable(MENU_Layout, false);
    change.show(MENU_Layout, customLayout);
    enableAll(change, {MENU_MosaicInput, MENU_PresetSettings, MENU_ImageMosaic}, false);
    change.enable(MENU_MainLayerTransition, false);
    showAndSend(change, MENU_MainLayerTransition, "1");
    enableAll(change, {MENU_TransitionDuration, MENU_AudioInput_Mosaic}, false);
}

/// The HDMI output is no function of the Fn key without the video path; the key falls back to
/// synchronisation.
void dimFnOutput(ParaChange &change)
{
    const bool wasChosen = change.number(MENU_FnMode) == FN_Output;
    if (wasChosen)
        change.choice(MENU_Fn_HDMIOutput, false);
    enableAll(change, {MENU_Fn_HDMIOutput}, false);
    if (!wasChosen)
        return;
    change.choice(MENU_Fn_Synchronization, true);
    change.refresh(MENU_Fn_Synchronization);
    change.set(MENU_FnMode, QString::number(FN_Synchronization));
    change.choice(MENU_Fn_FTB, false);
    change.refresh(MENU_Fn_FTB);
}

void dimSynchronization(ParaChange &change)
{
    enableRowsFrom(change, MENU_Sync_Source, 1, false);
    change.home().showSyncSource(change.info(MENU_Sync_Source).params.value("0"));
    change.syncState(SYN_OFF);
    showAndSend(change, MENU_Sync_Source, "0");
    showAndSend(change, MENU_Sync_Status, switchOff);
    enableAll(change, {MENU_HDMIOutput}, false);
}

void dimStereo(ParaChange &change)
{
    if (change.isOn(MENU_Mode3D_Status))
        showAndSend(change, MENU_Mode3D_Status, switchOff);
    enableAll(change, {MENU_Mode3D}, false);
}

void enableMosaicBackup(bool on)
{
    if (auto *row = poolObject<VaskUiObject>(ENUM_ROW_InputBackup_Mosaic))
        row->SetRightTextEnable(on);
}

void followFallbackInput(ParaChange &change)
{
    const int rate = FrameRateAdj(uint16_t(DeviceView(change.engine).input(fallbackInput).rateCentiHz()));
    change.redoResolution(rate);
    change.set(PARA_OutputRate, QString::number(rate));
}
} // namespace

void giveBackVideoPath(ParaChange &change, WorkMode nextMode)
{
    giveBackMainLayer(change, nextMode);
    for (int pip = 0; pip < int(std::size(pipEntries)); ++pip) {
        enableAll(change, {pipEntries[pip]}, true);
        if (pipIsOn(change, pip + 1))
            change.windowState(pip + 1, true);
    }
    enableAll(change, {MENU_Layout, MENU_MosaicInput, MENU_PresetSettings, MENU_ImageMosaic}, true);
    if (!pipIsOn(change, 1) && !pipIsOn(change, 2))
        enableAll(change, {MENU_MainLayerTransition, MENU_TransitionDuration}, true);
    enableAll(change,
              {MENU_Fn_HDMIOutput, MENU_Sync_Source, MENU_HDMIOutput, MENU_Mode3D, MENU_InputBackup_Mosaic},
              true);
    enableMosaicBackup(true);
    if (nextMode == WORK_CONTROLLER)
        enableAll(change, {MENU_AudioInput_Mosaic}, true);
    giveBackRate(change);
}

void takeVideoPath(ParaChange &change)
{
    enableAll(change, {MENU_OutputFrameRate}, false);
    change.enable(MENU_MainLayer_Status, false);
    showAndSend(change, MENU_MainLayer_Status, switchOn);
    change.windowState(0, true);
    closePips(change);
    showAndSend(change, MENU_Audio_AudioOutput, "1");
    for (int row : {2, 3})
        change.enableRow(MENU_Audio_AudioOutput, row, false);
    change.enableRowsWithText(MENU_MainLayer_InputSource, mosaicOption, false);
    selectFallbackInput(change);
    dimMainLayer(change);
    lowerMainLayer(change);
    dimLayerPages(change);
    dimFnOutput(change);
    dimSynchronization(change);
    dimStereo(change);
    change.enable(MENU_InputBackup_Mosaic, false);
    showAndSend(change, MENU_InputBackup_Mosaic, switchOff);
    enableMosaicBackup(false);
    followFallbackInput(change);
}
} // namespace VASK
