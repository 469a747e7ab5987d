#include "framework/engine/layers.h"
#include "menu/itemindex.h"

namespace VASK
{
PictureSize outputSize(const ParaChange &change)
{
    return {change.number(PARA_OutputWidth), change.number(PARA_OutputHeight)};
}

PictureSize inputSize(const ParaChange &change, const LayerItems &layer)
{
    const InputRecord input = DeviceView(change.engine).input(change.number(layer.source));
    constexpr PictureSize untold{1920, 1080};
    if (input.width == 0 || input.height == 0)
        return untold;
    return {input.width, input.height};
}

PictureSize pictureSize(const ParaChange &change, const LayerItems &layer)
{
    if (change.isOn(layer.cropStatus))
        return {change.number(layer.cropWidth), change.number(layer.cropHeight)};
    return inputSize(change, layer);
}

bool mainShowsMosaic(const ParaChange &change)
{
    return change.chosenOption(MENU_MainLayer_InputSource) == mosaicOption;
}

bool isSendingCard(const ParaChange &change)
{
    return DeviceView(change.engine).workMode() == WORK_SENDER;
}

bool bothPipsOff(const ParaChange &change)
{
    return change.isOff(MENU_PIP1_Status) && change.isOff(MENU_PIP2_Status);
}

bool stereoIsOff(const ParaChange &change)
{
    return change.isOff(MENU_Mode3D_Status);
}

void offerMosaic(ParaChange &change, bool on)
{
    change.enableRowsWithText(MENU_MainLayer_InputSource, mosaicOption, on);
    change.refresh(MENU_MainLayer_InputSource);
}

void offerPixelToPixel(ParaChange &change, const LayerItems &layer)
{
    if (layer.isMain())
        return;
    if (change.isOn(layer.cropStatus) && !pictureSize(change, layer).fitsPip())
        change.enableRow(layer.scaling, pixelToPixelRow, false);
    else if (!change.isOn(MENU_ImageMosaic_Status))
        change.enableRow(layer.scaling, pixelToPixelRow, true);
}

void setEnabled(ParaChange &change, ENUM_MenuIndex item, bool on)
{
    change.enable(item, on);
    change.refresh(item);
}

void showAndSend(ParaChange &change, ENUM_MenuIndex item, const QString &value)
{
    change.show(item, value);
    change.send(item, value);
}

void switchLayer(ParaChange &change, const LayerItems &layer, bool on)
{
    if (change.isOn(layer.status) == on)
        return;
    change.enable(layer.status, true);
    showAndSend(change, layer.status, on ? "1" : "0");
    change.windowState(layer.number, on);
}

void lockTransition(ParaChange &change)
{
    change.enable(MENU_MainLayerTransition, false);
    showAndSend(change, MENU_MainLayerTransition, "1");
    setEnabled(change, MENU_TransitionDuration, false);
}

void freeTransition(ParaChange &change)
{
    setEnabled(change, MENU_MainLayerTransition, true);
    setEnabled(change, MENU_TransitionDuration, true);
}

void leaveFixedLayout(ParaChange &change)
{
    if (change.item(MENU_Layout) != customLayout)
        change.show(MENU_Layout, customLayout);
}

void freeGeometry(ParaChange &change, const LayerItems &layer)
{
    const bool sizeToo = !isSendingCard(change);
    for (ENUM_MenuIndex item : layer.geometry())
        if (sizeToo || item == layer.x || item == layer.y)
            setEnabled(change, item, true);
}

void takeSize(ParaChange &change, const LayerItems &layer, PictureSize size)
{
    change.show(layer.width, QString::number(size.width));
    const QString height = QString::number(size.height);
    change.show(layer.height, height);
    change.send(layer.height, height);
}
} // namespace VASK
