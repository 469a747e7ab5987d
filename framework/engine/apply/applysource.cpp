// What a layer shows.

#include "framework/engine/layers.h"

#include "framework/engine/limits/bandwidth.h"
#include "menu/itemindex.h"

namespace VASK
{
namespace
{
/// The home screen tells whether the input has a signal, and which.
void showSignal(ParaChange &change, const LayerItems &layer)
{
    const InputRecord input = DeviceView(change.engine).input(change.value.toInt());
    change.home().showSignal(layer.number, input, input.rateCentiHz());
}

bool hasSignal(const ParaChange &change)
{
    return DeviceView(change.engine).input(change.value.toInt()).signalState == stableSignal;
}

void showSourceName(ParaChange &change, const LayerItems &layer)
{
    // An input that the device has not as its own, such as the mosaic, is named as in the list.
    QString name = change.engine.GetInputNameByIndex(change.value);
    if (name.isEmpty())
        name = change.chosenOption(layer.source);
    change.home().showLayerName(layer.number, name);
}

/// The mosaic leaves no room for the fixed layouts, which need all layers.
void makeRoomForMosaic(ParaChange &change)
{
    const bool mosaic = mainShowsMosaic(change);
    constexpr int fixedLayouts = 2;
    for (int row = 0; row < fixedLayouts; ++row)
        change.enableRow(MENU_Layout, row, !mosaic);
    if (mosaic)
        lockTransition(change);
    else if (bothPipsOff(change) && stereoIsOff(change))
        freeTransition(change);
}

/// The output of a sending card follows the input.
void followInput(ParaChange &change)
{
    const DeviceView device(change.engine);
    int rate = 0;
    if (device.syncOn())
        rate = change.engine.OutputFrameAdj(device.input(device.syncInput()).rateCentiHz(),
                                            change.number(PARA_OutputRate));
    else
        rate = device.input(change.value.toInt()).rateCentiHz();
    rate = FrameRateAdj(uint16_t(rate ? rate : unknownRate));
    change.redoResolution(rate);
    change.set(PARA_OutputRate, QString::number(rate));
}

void applyMainSource(ParaChange &change)
{
    const LayerItems &layer = layers[0];
    const bool sender = isSendingCard(change);
    if (!sender)
        setEnabled(change, layer.cropPage, hasSignal(change));
    makeRoomForMosaic(change);
    showSignal(change, layer);
    showSourceName(change, layer);
    if (sender)
        followInput(change);
    change.tail();
}

void applyPipSource(ParaChange &change)
{
    const LayerItems &layer = layerOf(change);
    const bool sender = isSendingCard(change);
    setEnabled(change, layer.cropPage, hasSignal(change));
    if (!sender || !hasSignal(change))
        showSignal(change, layer);
    if (!sender)
        showSourceName(change, layer);
    change.tail();
}

constexpr ApplyCase cases[] = {
    {MENU_MainLayer_InputSource, applyMainSource},
    {each(FAMILY_Pip, MENU_PIP1_InputSource), applyPipSource},
};
} // namespace

Table<ApplyCase> sourceCases()
{
    return cases;
}
} // namespace VASK
