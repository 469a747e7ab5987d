// The picture output: HDMI output, its resolution and rate lists, synchronisation and the genlock report.

#include "framework/engine/change.h"

#include "framework/menuanalysis.h"
#include "widget/mainwindow_k2860.h"

namespace VASK
{
namespace
{
constexpr int layerCount = 3;
constexpr int unknownRate = 6000; ///< hundredths of a hertz

/// An output mode as the user chose it: size from the resolution list, rate from its own.
struct ChosenOutput {
    int width = 0;
    int height = 0;
    QString rate;

    explicit ChosenOutput(const ParaChange &change)
    {
        const QStringList size = change.chosenOption(MENU_Output_Resolution).split('*');
        width = size.value(0).toInt();
        height = size.value(1).toInt();
        rate = change.chosenOption(MENU_Output_FrameRate);
    }
    QString text() const { return QString("%1x%2x%3").arg(width).arg(height).arg(rate); }
};

int centiHz(const QString &rate)
{
    constexpr float centi = 100.f;
    return qRound(rate.toFloat() * centi);
}

void applySyncSource(ParaChange &change)
{
    const ST_ItemInfo source = change.info(MENU_Sync_Source);
    change.home()->SetSynMode(source.params.value(change.value));
    change.tail();
}

/// The list of rates follows the resolution that was chosen.
void applyResolution(ParaChange &change)
{
    ENUM_MenuIndex rateList = MENU_Output_FrameRate;
    if (change.index != MENU_Output_Resolution)
        rateList = ENUM_MenuIndex(change.index + MENU_HDMI1_EDIDFrameRate - MENU_HDMI1_EDIDResolution);
    const ST_ItemInfo allowed = change.info(ENUM_MenuIndex(MENU_Rates_1024x768 + change.value.toInt()));
    ST_ItemInfo rates = change.info(rateList);
    const QString current = rates.params.value(rates.value);
    rates.params = allowed.params;
    rates.params1 = allowed.params1;
    // The rate that was chosen keeps its place where the new list has it, else the list's own default counts.
    rates.value = allowed.params.key(current, allowed.value);
    change.store.updataMenuItem(rateList, rates);
    change.refresh(rateList);
    change.tail();
}

/// The mode shows only what the device says after start-up; it is applied with the apply row.
void applyOutputMode(ParaChange &change)
{
    if (change.fromDevice() && ParaProcess::init_20m_flg)
        change.tail();
}

void syncOff(ParaChange &change)
{
    const DeviceView device(change.engine);
    int rate = 0;
    if (device.workMode() == WORK_SENDER)
        rate = device.input(change.number(MENU_MainLayer_InputSource)).rateCentiHz();
    else
        rate = device.outputRowRate();
    change.set(PARA_OutputRate, QString::number(rate));
    if (change.changed()) {
        if (change.fromUser())
            change.send(MENU_Sync_Status, change.value);
        if (device.followsSoftware())
            change.send(MENU_Output_Apply, ChosenOutput(change).text());
        else
            change.send(MENU_OutputFrameRate, change.item(MENU_OutputFrameRate));
    }
    change.redoResolution();
    change.syncState(1);
    change.tail();
}

void syncOn(ParaChange &change)
{
    const DeviceView device(change.engine);
    if (device.workMode() == WORK_SENDER && change.isOn(MENU_LowLatency) &&
        g_dialogConfig.contains(MSG_SyncNeedsLowLatencyOff)) {
        if (change.dialog(MSG_SyncNeedsLowLatencyOff) != 1) {
            change.set(MENU_Sync_Status, "0");
            change.refresh(MENU_Sync_Status);
            return;
        }
        change.set(MENU_LowLatency, "0");
        change.refresh(MENU_LowLatency);
        change.send(MENU_LowLatency, "0");
    }
    const QString source = change.item(MENU_Sync_Source);
    const int input =
        source == QLatin1String("0") ? device.inputOfCode(SOURCE_SYNC_REFERENCE) : source.toInt();
    const int rate =
        change.engine.OutputFrameAdj(device.input(input).rateCentiHz(), change.number(PARA_OutputRate));
    change.set(PARA_OutputRate, QString::number(rate ? rate : unknownRate));
    change.redoResolution();
    change.tail();
}

void applySync(ParaChange &change)
{
    if (change.value == QLatin1String("1"))
        syncOn(change);
    else
        syncOff(change);
}

/// Work that the whole output has to follow the chosen mode.
void followChosenMode(ParaChange &change, const ChosenOutput &output)
{
    change.set(MENU_OutputMode, "1");
    change.set(PARA_OutputWidth, QString::number(output.width));
    change.set(PARA_OutputHeight, QString::number(output.height));
    change.home()->SetScreenRes(
        DeviceView::sizeText(output.width, output.height, false, centiHz(output.rate)));
    change.set(PARA_OutputRate, QString::number(centiHz(output.rate)));
    change.enable(MENU_Mode3D, false);
    change.refresh(MENU_Mode3D);
    if (change.isOn(MENU_Mode3D_Status)) {
        change.show(MENU_Mode3D_Status, "0");
        change.send(MENU_Mode3D_Status, "0");
    }
    for (int layer = 0; layer < layerCount; ++layer) {
        auto of = [layer](ENUM_MenuIndex main) { return ENUM_MenuIndex(main + layer * STRIDE_Layer); };
        if (change.item(of(MENU_MainLayer_ScalingMode)) != QLatin1String("0"))
            continue;
        change.show(of(MENU_MainLayer_HorWidth), QString::number(output.width));
        change.show(of(MENU_MainLayer_VerHeight), QString::number(output.height));
        change.send(of(MENU_MainLayer_VerHeight), QString::number(output.height));
    }
    change.send(MENU_Output_Mode, "1");
    if (change.isOn(MENU_ImageMosaic_Status))
        for (ENUM_MenuIndex scaling : {MENU_PIP1_ScalingMode, MENU_PIP2_ScalingMode})
            if (change.info(scaling).params1.value("0") != optionEnable)
                change.enableRow(scaling, 0, true);
}

void applyOutput(ParaChange &change)
{
    if (change.fromUser() || !ParaProcess::init_20m_flg)
        change.dialog(MSG_Waiting);
    else if (change.engine.videoServiceStarted())
        change.engine.raiseCreateDialog();
    const ChosenOutput output(change);
    change.value = output.text();
    if (change.isOn(MENU_Output_Mode)) {
        followChosenMode(change, output);
    } else {
        change.set(MENU_OutputMode, "0");
        change.send(MENU_Output_Mode, "0");
    }
    change.tail();
}

void applyGenlock(ParaChange &change)
{
    const DeviceView device(change.engine);
    if (!device.syncOn())
        return;
    static const int states[] = {1, 1, 0, 2, 3}; // of the home screen, by the reported state
    const int reported = change.value.toInt();
    if (reported < 0 || reported >= int(std::size(states)))
        return;
    change.engine.raiseSyncState(states[reported]);
    const InputRecord source = device.input(device.syncInput());
    const int rate = change.engine.OutputFrameAdj(source.rateCentiHz(), change.number(PARA_OutputRate));
    change.set(PARA_OutputRate, QString::number(rate ? rate : unknownRate));
    change.redoResolution();
    change.engine.raiseSyncProblem(source.signalState, change.value);
}

constexpr ApplyCase cases[] = {
    {MENU_Sync_Status, MENU_Sync_Status, applySync},
    {MENU_Sync_Source, MENU_Sync_Source, applySyncSource},
    {MENU_Output_Mode, MENU_Output_Mode, applyOutputMode},
    {MENU_Output_Resolution, MENU_Output_Resolution, applyResolution},
    {MENU_HDMI1_EDIDResolution, MENU_HDMI1_EDIDResolution, applyResolution},
    {MENU_HDMI2_EDIDResolution, MENU_HDMI2_EDIDResolution, applyResolution},
    {MENU_DVI_EDIDResolution, MENU_DVI_EDIDResolution, applyResolution},
    {MENU_DVI2_EDIDResolution, MENU_DVI2_EDIDResolution, applyResolution},
    {MENU_Output_Apply, MENU_Output_Apply, applyOutput},
    {PARA_GenlockState, PARA_GenlockState, applyGenlock},
};
} // namespace

ApplyFamily outputFamily()
{
    return {cases, int(std::size(cases))};
}
} // namespace VASK
