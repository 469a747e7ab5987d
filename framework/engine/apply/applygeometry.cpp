// How a layer is scaled, and where it stands.

#include "framework/engine/layers.h"
#include "menu/itemindex.h"

namespace VASK
{
namespace
{
void scaleToPixels(ParaChange &change, const LayerItems &layer)
{
    change.enable(layer.width, false);
    change.enable(layer.height, false);
    takeSize(change, layer, pictureSize(change, layer));
    setEnabled(change, layer.x, true);
    setEnabled(change, layer.y, true);
    if (change.changed())
        leaveFixedLayout(change);
}

void scaleToFullScreen(ParaChange &change, const LayerItems &layer)
{
    const PictureSize output = outputSize(change);
    for (ENUM_MenuIndex item : layer.geometry())
        change.enable(item, false);
    change.show(layer.width, QString::number(output.width));
    change.show(layer.height, QString::number(output.height));
    change.show(layer.x, "0");
    showAndSend(change, layer.y, "0");
}

void scaleToCustom(ParaChange &change, const LayerItems &layer)
{
    if (!change.changed())
        return;
    const bool sizeToo = !isSendingCard(change);
    for (ENUM_MenuIndex item : layer.geometry()) {
        if (!sizeToo && (item == layer.width || item == layer.height))
            continue;
        change.enable(item, true);
        change.show(item, change.item(layer.customOf(item)));
    }
    change.send(layer.y, change.item(layer.y));
}

void applyScaling(ParaChange &change)
{
    const LayerItems &layer = layerOf(change);
    if (!change.fromUser())
        freeGeometry(change, layer);
    else if (change.value == pixelToPixel)
        scaleToPixels(change, layer);
    else if (change.value == fullScreen)
        scaleToFullScreen(change, layer);
    else if (change.value == customScaling)
        scaleToCustom(change, layer);
    change.lowLayerUpdate();
    change.tail();
}

/// The device has moved the layer: it is no longer scaled by a rule.
void leaveScalingRule(ParaChange &change, const LayerItems &layer)
{
    const QString scaling = change.item(layer.scaling);
    const bool start = change.index == layer.x || change.index == layer.y;
    if (start ? scaling != fullScreen : scaling == customScaling)
        return;
    change.show(layer.scaling, customScaling);
    freeGeometry(change, layer);
}

/// What depends on the main layer alone: the spliced picture, and the register of a sending card.
void followMainGeometry(ParaChange &change)
{
    const LayerItems &layer = layers[0];
    if (change.isOn(MENU_ImageMosaic_Status)) {
        change.show(MENU_ImageMosaic_TotalHPixels, change.item(layer.width));
        change.show(MENU_ImageMosaic_TotalVPixels, change.item(layer.height));
    }
    if (!isSendingCard(change))
        return;
    if (change.index == layer.x)
        change.send(EVENT_SendingCardX, QString());
    else if (change.index == layer.y)
        change.send(EVENT_SendingCardY, QString());
}

void applyGeometry(ParaChange &change)
{
    const LayerItems &layer = layerOf(change);
    if (change.fromDevice())
        leaveScalingRule(change, layer);
    if (change.item(layer.scaling) == customScaling)
        change.set(layer.customOf(change.index), change.value);
    leaveFixedLayout(change);
    if (layer.isMain())
        followMainGeometry(change);
    change.tail();
}

constexpr ApplyCase cases[] = {
    {each(FAMILY_Layer, MENU_MainLayer_ScalingMode), applyScaling},
    {each(FAMILY_Layer, MENU_MainLayer_HorWidth, MENU_MainLayer_InitialY), applyGeometry},
};
} // namespace

Table<ApplyCase> geometryCases()
{
    return cases;
}
} // namespace VASK
