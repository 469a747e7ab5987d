// The device tells what its inputs carry: layers, output rate, LEDs and the production test follow.

#include "framework/engine/keyleds.h"
#include "framework/engine/layers.h"

#include "framework/engine/limits/bandwidth.h"
#include "framework/productiontest/productiontest.h"
#include "framework/store/menuanalysis.h"
#include "menu/itemindex.h"

namespace VASK
{
namespace
{
/// One report of an input on its way through the cases below.
struct InputReport {
    int number;
    InputRecord record;
    int width; ///< what a layer takes from it; a usual size while there is no signal
    int height;

    bool stable() const { return record.signalState == stableSignal; }
    int rate() const { return record.measuredRateCentiHz(); }
    int snappedRate() const { return FrameRateAdj(uint16_t(rate())); }
};

InputReport reportOf(const ParaChange &change)
{
    constexpr int usualWidth = 1920;
    constexpr int usualHeight = 1080;
    const InputRecord record = DeviceView(change.engine).input(change.member);
    const bool stable = record.signalState == stableSignal;
    return {change.member, record, stable ? record.width : usualWidth, stable ? record.height : usualHeight};
}

bool isShownBy(const ParaChange &change, const InputReport &input, int layer)
{
    return change.number(nth(MENU_MainLayer_InputSource, layer, STRIDE_Layer)) == input.number;
}

bool isCropped(const ParaChange &change, int layer)
{
    return !change.isOff(layers[size_t(layer)].cropStatus);
}

bool isPixelToPixel(const ParaChange &change, int layer)
{
    return change.item(nth(MENU_MainLayer_ScalingMode, layer, STRIDE_Layer)) == pixelToPixel;
}

void offerCrop(ParaChange &change, int layer, bool on)
{
    setEnabled(change, nth(MENU_MainLayer_InputCrop, layer, STRIDE_Layer), on);
}

void showSignal(ParaChange &change, const InputReport &input, int layer)
{
    if (input.stable())
        qDebug() << "----------------- Set Sres Res -----------------";
    else
        qDebug() << "input_num+" << input.number << "input_stable+ ==" << input.record.signalState;
    change.home().showSignal(layer, input.record, input.rate());
}

void followWithMainLayer(ParaChange &change, const InputReport &input, WorkMode mode)
{
    if (mode != WORK_SENDER)
        offerCrop(change, 0, input.stable());
    if (!isCropped(change, 0) && isPixelToPixel(change, 0))
        takeSize(change, layers[0], {input.width, input.height});
    showSignal(change, input, 0);
}

/// A PIP layer carries no picture beyond its limit: it keeps its size then.
void followWithPip(ParaChange &change, const InputReport &input, int layer, WorkMode mode)
{
    constexpr int pipPixels = 3250000;
    offerCrop(change, layer, input.stable());
    if (!isCropped(change, layer) && input.width * input.height <= pipPixels) {
        const ENUM_MenuIndex scaling = nth(MENU_MainLayer_ScalingMode, layer, STRIDE_Layer);
        if (isPixelToPixel(change, layer))
            takeSize(change, layers[size_t(layer)], {input.width, input.height});
        else if (change.isOff(MENU_ImageMosaic_Status) &&
                 change.info(scaling).params1.value(QString::number(pixelToPixelRow)) != optionEnable)
            change.enableRow(scaling, pixelToPixelRow, true);
    }
    if (input.stable() || mode != WORK_SENDER)
        showSignal(change, input, layer);
}

void takeOutputRate(ParaChange &change, int rateCentiHz)
{
    change.set(PARA_OutputRate, QString::number(rateCentiHz));
    change.redoResolution(rateCentiHz);
}

/// The output of a sending card runs at the rate of the reference or of the main layer's input.
void followWithSenderOutput(ParaChange &change, const InputReport &input)
{
    const DeviceView device(change.engine);
    const bool sync = device.syncOn();
    if (sync ? input.record.sourceCode != INPUT_SyncReference : !isShownBy(change, input, 0))
        return;
    if (input.stable())
        takeOutputRate(change, input.snappedRate());
    else if (!sync)
        change.redoResolution(unknownRate);
}

/// The output of a controller follows its source of synchronisation as far as it can.
void followWithOutput(ParaChange &change, const InputReport &input)
{
    if (!change.isOn(MENU_Sync_Status) || change.number(MENU_Sync_Source) != input.number ||
        input.record.framePeriodUs == 0)
        return;
    const int rate = change.engine.OutputFrameAdj(input.rate(), change.number(PARA_OutputRate));
    takeOutputRate(change, rate ? rate : unknownRate);
}

/// The input under test fails when it loses its signal; how it stands before is kept for every input.
void followWithTest(const ParaChange &change, const InputReport &input)
{
    static std::atomic<int> lastSignal[ProcessData::inputCount];
    const int last = lastSignal[input.number].exchange(input.record.signalState);
    if (ProductionTest::m_cur_step != FACTORY_STEP_IN_OUT || ProductionTest::InputTestNumCur != input.number)
        return;
    if (input.stable())
        emit change.engine.signal_Source_Stable();
    else if (last == stableSignal)
        emit change.engine.signal_update_menuitem(en_inout_test_index(input.number), ITEM_FAILED);
}

void applyInput(ParaChange &change)
{
    const InputReport input = reportOf(change);
    const WorkMode mode = DeviceView(change.engine).workMode();
    qDebug() << "input_num" << input.number << "input_stable ==" << input.record.signalState;
    if (isShownBy(change, input, 0))
        followWithMainLayer(change, input, mode);
    for (int layer = 1; layer < layerCount; ++layer)
        if (isShownBy(change, input, layer))
            followWithPip(change, input, layer, mode);
    if (mode == WORK_SENDER)
        followWithSenderOutput(change, input);
    else
        followWithOutput(change, input);
    showSourceLeds();
    followWithTest(change, input);
}

/// Which page shows the colour sampling of an input, by its source code of either family.
struct SamplingRow {
    int code;
    ENUM_MenuIndex item;
};
constexpr SamplingRow samplingRows[] = {
    {INPUT_HDMI1, MENU_HDMI1_ColorSample},  {INPUT_HDMI1AliasTwin, MENU_HDMI1_ColorSample},
    {INPUT_HDMI2, MENU_HDMI2_ColorSample},  {INPUT_DVI1, MENU_DVI_ColorSample},
    {INPUT_DVI1Twin, MENU_DVI_ColorSample}, {INPUT_DVI1AliasTwin, MENU_DVI_ColorSample},
    {INPUT_DVI2, MENU_DVI2_ColorSample},    {INPUT_DVI2Twin, MENU_DVI2_ColorSample},
    {INPUT_SDI, MENU_SDI_ColorSample},
};
constexpr const char *samplings[] = {"RGB 4:4:4", "YCbCr 4:2:2", "YCbCr 4:4:4"};

void applySampling(ParaChange &change)
{
    qDebug() << "CSC para ==" << change.value;
    const int sampling = change.number(change.index);
    const QString text = sampling < int(std::size(samplings)) ? samplings[sampling] : "";
    const int code = DeviceView(change.engine).input(change.member).sourceCode;
    for (const SamplingRow &row : samplingRows)
        if (row.code == code || otherCode(row.code) == code)
            change.show(row.item, text);
}

/// Those of which the sampling is shown.
constexpr Family sampledInputs{STRIDE_InputRecord, 5};

/// The device tells a record in the order of its fields, so that its period stands for the whole.
constexpr ApplyCase cases[] = {
    {each(FAMILY_InputRecord, inputItem(0, FIELD_FramePeriod)), applyInput},
    {each(sampledInputs, inputItem(0, FIELD_ColourSampling)), applySampling},
};
} // namespace

Table<ApplyCase> inputCases()
{
    return cases;
}
} // namespace VASK
