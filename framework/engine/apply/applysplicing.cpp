// Splicing: several devices show one picture, of which each loads its own area. The main layer carries the
// picture alone, over twice the output.

#include "framework/engine/layers.h"
#include "menu/itemindex.h"

#include "menu/itemvalue.h"
namespace VASK
{
namespace
{
constexpr int scalingRules = 2; ///< rows of a scaling list before "Custom"
constexpr int totalPerOutput = 2;

void offerScalingRules(ParaChange &change, const LayerItems &layer, bool on)
{
    for (int row = 0; row < scalingRules; ++row)
        change.enableRow(layer.scaling, row, on);
}

/// This device loads what its output shows.
void loadWholeOutput(ParaChange &change)
{
    const PictureSize output = outputSize(change);
    showAndSend(change, MENU_ImageMosaic_LoadAreaWidth, QString::number(output.width));
    showAndSend(change, MENU_ImageMosaic_LoadAreaHeight, QString::number(output.height));
}

/// The main layer spreads over the whole spliced picture.
void spreadMainLayer(ParaChange &change)
{
    const LayerItems &main = layers[0];
    const PictureSize output = outputSize(change);
    const QString width = QString::number(totalPerOutput * output.width);
    const QString height = QString::number(totalPerOutput * output.height);
    change.set(MENU_ImageMosaic_TotalHPixels, width);
    change.set(MENU_ImageMosaic_TotalVPixels, height);
    change.set(main.customOf(main.width), width);
    change.set(main.customOf(main.height), height);
    freeGeometry(change, main);
    const bool sizeToo = !isSendingCard(change);
    if (sizeToo) {
        change.show(main.width, width);
        change.show(main.height, height);
    } else {
        change.set(main.height, height);
    }
    change.show(main.x, "0");
    change.show(main.y, "0");
    if (sizeToo) {
        change.send(main.width, width);
        change.send(main.height, height);
    }
    change.send(main.x, "0");
    change.send(main.y, "0");
}

/// No layer stands over a spliced picture, and none is scaled by a rule.
void putPipAside(ParaChange &change, const LayerItems &pip)
{
    switchLayer(change, pip, false);
    offerScalingRules(change, pip, false);
    change.show(pip.scaling, customScaling);
    for (ENUM_MenuIndex item : pip.geometry()) {
        setEnabled(change, item, true);
        change.set(pip.customOf(item), change.item(item));
    }
}

/// A spliced picture has to run in step on all devices.
void requireSync(ParaChange &change)
{
    if (!change.isOn(MENU_Sync_Status))
        showAndSend(change, MENU_Sync_Status, switchOn);
}

void splice(ParaChange &change)
{
    switchLayer(change, layers[0], true);
    offerMosaic(change, true);
    loadWholeOutput(change);
    spreadMainLayer(change);
    putPipAside(change, layers[1]);
    putPipAside(change, layers[2]);
    if (stereoIsOff(change) && !mainShowsMosaic(change) && !isSendingCard(change))
        freeTransition(change);
    requireSync(change);
    leaveFixedLayout(change);
    change.lowLayerUpdate();
}

void unsplice(ParaChange &change)
{
    const bool outputFits = outputSize(change).fitsPip();
    for (const LayerItems &pip : {layers[1], layers[2]}) {
        change.enableRow(pip.scaling, fullScreenRow, outputFits);
        change.enableRow(pip.scaling, pixelToPixelRow, pictureSize(change, pip).fitsPip());
    }
    change.lowLayerUpdate();
}

void applySplicing(ParaChange &change)
{
    const bool on = change.turnsOn();
    if (change.fromUser()) {
        if (on)
            splice(change);
        else
            unsplice(change);
    }
    offerScalingRules(change, layers[0], !on);
    if (on)
        change.show(layers[0].scaling, customScaling);
    if (on && change.fromUser())
        change.send(change.index, change.value);
    for (int item = MENU_ImageMosaic_TotalHPixels; item <= MENU_ImageMosaic_Reset; ++item)
        setEnabled(change, ENUM_MenuIndex(item), on);
    if (on)
        for (ENUM_MenuIndex item : {MENU_ImageMosaic_TotalHPixels, MENU_ImageMosaic_TotalVPixels,
                                    MENU_ImageMosaic_LoadAreaInitialY})
            change.send(item, change.item(item));
    change.tail();
}

/// The main layer has the size of the spliced picture.
void applyTotal(ParaChange &change)
{
    const LayerItems &main = layers[0];
    const ENUM_MenuIndex size = change.index == MENU_ImageMosaic_TotalHPixels ? main.width : main.height;
    if (change.fromUser()) {
        showAndSend(change, size, change.value);
        change.set(main.customOf(size), change.value);
    }
    change.tail();
}

/// A larger area may reach beyond what a start allows.
void applyLoadAreaSize(ParaChange &change)
{
    for (ENUM_MenuIndex start : {MENU_ImageMosaic_LoadAreaInitialX, MENU_ImageMosaic_LoadAreaInitialY})
        change.show(start, change.engine.CalParaLimit(change.item(start), start));
    change.tail();
}

void applySplicingReset(ParaChange &change)
{
    const bool spliced = change.isOn(MENU_ImageMosaic_Status);
    const PictureSize output = outputSize(change);
    change.show(MENU_ImageMosaic_LoadAreaWidth, QString::number(output.width));
    change.show(MENU_ImageMosaic_LoadAreaHeight, QString::number(output.height));
    change.show(MENU_ImageMosaic_LoadAreaInitialX, "0");
    change.show(MENU_ImageMosaic_LoadAreaInitialY, "0");
    if (spliced)
        change.send(MENU_ImageMosaic_LoadAreaInitialY, "0");
    const PictureSize total{totalPerOutput * output.width, totalPerOutput * output.height};
    change.show(MENU_ImageMosaic_TotalHPixels, QString::number(total.width));
    change.show(MENU_ImageMosaic_TotalVPixels, QString::number(total.height));
    if (!spliced)
        return;
    const LayerItems &main = layers[0];
    takeSize(change, main, total);
    change.set(main.customOf(main.width), QString::number(total.width));
    change.set(main.customOf(main.height), QString::number(total.height));
}

constexpr ApplyCase cases[] = {
    {MENU_ImageMosaic_Status, applySplicing},
    {range(MENU_ImageMosaic_TotalHPixels, MENU_ImageMosaic_TotalVPixels), applyTotal},
    {range(MENU_ImageMosaic_LoadAreaWidth, MENU_ImageMosaic_LoadAreaHeight), applyLoadAreaSize},
    {MENU_ImageMosaic_Reset, applySplicingReset},
};
} // namespace

Table<ApplyCase> splicingCases()
{
    return cases;
}
} // namespace VASK
