// The device tells the size of its output: the layers that fill it follow, and what fits into it can be
// chosen.

#include "framework/engine/layers.h"

#include "framework/engine/limits/bandwidth.h"
#include "framework/store/menuanalysis.h"
#include "menu/itemindex.h"

namespace VASK
{
namespace
{
int wholeRate(int rateCentiHz)
{
    return FrameRateAdj(uint16_t(rateCentiHz));
}

/// The narrowest outputs, pixels, in which three and four columns can stand side by side.
constexpr int threeColumns = 192;
constexpr int fourColumns = 256;

void offerLayouts(ParaChange &change, int width)
{
    change.store.changeItem(MENU_Layout, [width](ST_ItemInfo &layout) {
        layout.params1["0"] = width >= threeColumns ? optionEnable : optionDisable;
        layout.params1["1"] = width >= fourColumns ? optionEnable : optionDisable;
        layout.value = customLayout;
    });
    change.show(MENU_Layout, customLayout);
}

/// Splicing takes the full screen from the PIP layers; without it they may have it back.
void offerFullScreen(ParaChange &change, ENUM_MenuIndex scaling)
{
    if (change.isOff(MENU_ImageMosaic_Status) &&
        change.info(scaling).params1.value(fullScreen) != optionEnable)
        change.enableRow(scaling, fullScreenRow, true);
}

void applyOutputSize(ParaChange &change)
{
    const QString width = change.item(PARA_ReportedWidth);
    const QString height = change.item(PARA_ReportedHeight);
    change.set(PARA_OutputWidth, width);
    change.set(PARA_OutputHeight, height);
    if (DeviceView(change.engine).workMode() != WORK_SENDER)
        change.redoResolution(wholeRate(change.number(PARA_OutputRate)));
    offerLayouts(change, width.toInt());
    for (const LayerItems &layer : layers) {
        if (change.item(layer.scaling) == fullScreen)
            takeSize(change, layer, outputSize(change));
        else if (!layer.isMain())
            offerFullScreen(change, layer.scaling);
    }
    change.lowLayerUpdate();
}

/// A sending card's output runs at the rate of what it shows, once that is known.
void applySenderOutput(ParaChange &change)
{
    const DeviceView device(change.engine);
    if (device.workMode() != WORK_SENDER)
        return;
    const InputRecord shown = device.input(change.number(MENU_MainLayer_InputSource));
    int rate = 0;
    if (shown.signalState != 0 && shown.framePeriodUs != 0)
        rate = wholeRate(shown.measuredRateCentiHz());
    else
        rate = wholeRate(change.number(PARA_ReportedRate)) * (device.doublesRate() ? 2 : 1);
    change.home().showResolution(DeviceView::sizeText(change.number(PARA_ReportedWidthAlias),
                                                      change.number(PARA_ReportedHeightAlias), false, rate));
}

constexpr ApplyCase cases[] = {
    {PARA_ReportedHeight, applyOutputSize},
    {PARA_ReportedHeightAlias, applySenderOutput},
};
} // namespace

Table<ApplyCase> outputReportCases()
{
    return cases;
}
} // namespace VASK
