// The part of its input that a layer shows.

#include "framework/engine/layers.h"
#include "menu/itemindex.h"

namespace VASK
{
namespace
{
/// Pixel for pixel, the window has the size of what it shows.
void followCrop(ParaChange &change, const LayerItems &layer)
{
    if (change.item(layer.scaling) == pixelToPixel)
        takeSize(change, layer, pictureSize(change, layer));
}

void applyCropStatus(ParaChange &change)
{
    const LayerItems &layer = layerOf(change);
    followCrop(change, layer);
    offerPixelToPixel(change, layer);
    change.tail();
}

void applyCropSize(ParaChange &change)
{
    const LayerItems &layer = layerOf(change);
    if (change.fromUser() && change.item(layer.scaling) == pixelToPixel && change.isOn(layer.cropStatus))
        showAndSend(change, change.index == layer.cropWidth ? layer.width : layer.height, change.value);
    offerPixelToPixel(change, layer);
    change.tail();
}

/// The last number of a crop that the device tells.
void applyCropY(ParaChange &change)
{
    const LayerItems &layer = layerOf(change);
    if (change.fromDevice()) {
        followCrop(change, layer);
        offerPixelToPixel(change, layer);
    }
    change.tail();
}

void applyCropReset(ParaChange &change)
{
    const LayerItems &layer = layerOf(change);
    const PictureSize input = inputSize(change, layer);
    const QString height = QString::number(input.height);
    change.show(layer.cropX, "0");
    change.show(layer.cropY, "0");
    change.show(layer.cropWidth, QString::number(input.width));
    change.show(layer.cropHeight, height);
    change.send(layer.cropHeight, height);
    if (change.item(layer.scaling) == pixelToPixel)
        takeSize(change, layer, input);
    offerPixelToPixel(change, layer);
}

constexpr ApplyCase cases[] = {
    {each(FAMILY_Crop, MENU_MainLayerCrop_Status), applyCropStatus},
    {each(FAMILY_Crop, MENU_MainLayerCrop_HorWidth, MENU_MainLayerCrop_VerHeight), applyCropSize},
    {each(FAMILY_Crop, MENU_MainLayerCrop_InitialY), applyCropY},
    {each(FAMILY_Crop, MENU_MainLayerCrop_Reset), applyCropReset},
};
} // namespace

Table<ApplyCase> cropCases()
{
    return cases;
}
} // namespace VASK
