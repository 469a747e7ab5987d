// The picture output: HDMI output, its resolution and rate lists, synchronisation and the genlock report.

#include "framework/engine/layers.h"
#include "framework/engine/start/servicestart.h"

#include "framework/store/menuanalysis.h"
#include "menu/itemindex.h"
#include "menu/itemvalue.h"

namespace VASK
{
namespace
{
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
    change.home().showSyncSource(source.params.value(change.value));
    change.tail();
}

/// The list of rates follows the resolution that was chosen.
void applyResolution(ParaChange &change)
{
    const bool ofInput = change.index != MENU_Output_Resolution;
    const ENUM_MenuIndex rateList =
        ofInput ? nth(MENU_HDMI1_EDIDFrameRate, change.member, STRIDE_InputPicture) : MENU_Output_FrameRate;
    const ST_ItemInfo allowed = change.info(nth(MENU_Rates_1024x768, change.value.toInt()));
    change.store.changeItem(rateList, [&allowed](ST_ItemInfo &rates) {
        rates.params = allowed.params;
        rates.params1 = allowed.params1;
        if (!rates.params.contains(rates.value))
            rates.value = allowed.value;
    });
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
    const bool sender = device.workMode() == WORK_SENDER;
    const int rate = sender ? device.input(change.number(MENU_MainLayer_InputSource)).rateCentiHz()
                            : device.outputRowRate();
    change.set(PARA_OutputRate, QString::number(rate));
    if (change.changed() && change.fromUser())
        change.send(MENU_Sync_Status, change.value);
    if (change.changed() && !sender) {
        if (device.followsSoftware())
            change.send(MENU_Output_Apply, ChosenOutput(change).text());
        else
            change.send(MENU_OutputFrameRate, change.chosenOption(MENU_OutputFrameRate));
    }
    change.redoResolution(rate);
    change.syncState(SYN_OFF);
    change.tail();
}

/// Row of the synchronisation reference in the list of sources.
const QString referenceRow = QStringLiteral("0");

/// Rate at which the output follows a source, hundredths of a hertz.
int followedRate(const ParaChange &change, const InputRecord &source)
{
    const int rate =
        change.engine.OutputFrameAdj(source.measuredRateCentiHz(), change.number(PARA_OutputRate));
    return rate ? rate : unknownRate;
}

void syncOn(ParaChange &change)
{
    const DeviceView device(change.engine);
    if (device.workMode() == WORK_SENDER && change.isOn(MENU_LowLatency) &&
        g_dialogConfig.contains(MSG_SyncNeedsLowLatencyOff)) {
        if (!change.confirmed(MSG_SyncNeedsLowLatencyOff)) {
            change.set(MENU_Sync_Status, switchOff);
            change.refresh(MENU_Sync_Status);
            return;
        }
        change.set(MENU_LowLatency, switchOff);
        change.refresh(MENU_LowLatency);
        change.send(MENU_LowLatency, switchOff);
    }
    const QString source = change.item(MENU_Sync_Source);
    const int input = source == referenceRow ? device.inputOfCode(INPUT_SyncReference) : source.toInt();
    const int rate = followedRate(change, device.input(input));
    change.set(PARA_OutputRate, QString::number(rate));
    change.redoResolution(rate);
    change.tail();
}

void applySync(ParaChange &change)
{
    if (change.turnsOn())
        syncOn(change);
    else
        syncOff(change);
}

/// Work that the whole output has to follow the chosen mode.
void followChosenMode(ParaChange &change, const ChosenOutput &output)
{
    change.set(MENU_OutputMode, switchOn);
    change.set(PARA_OutputWidth, QString::number(output.width));
    change.set(PARA_OutputHeight, QString::number(output.height));
    change.home().showResolution(
        DeviceView::sizeText(output.width, output.height, false, centiHz(output.rate)));
    change.set(PARA_OutputRate, QString::number(centiHz(output.rate)));
    change.enable(MENU_Mode3D, false);
    change.refresh(MENU_Mode3D);
    if (change.isOn(MENU_Mode3D_Status)) {
        change.show(MENU_Mode3D_Status, switchOff);
        change.send(MENU_Mode3D_Status, switchOff);
    }
    for (const LayerItems &layer : layers)
        if (change.item(layer.scaling) == fullScreen)
            takeSize(change, layer, {output.width, output.height});
    change.send(MENU_Output_Mode, switchOn);
    if (change.isOn(MENU_ImageMosaic_Status))
        for (ENUM_MenuIndex scaling : {MENU_PIP1_ScalingMode, MENU_PIP2_ScalingMode})
            if (change.info(scaling).params1.value("0") != optionEnable)
                change.enableRow(scaling, 0, true);
}

void applyOutput(ParaChange &change)
{
    if (change.fromUser() || !ParaProcess::init_20m_flg)
        change.dialog(MSG_Waiting);
    else if (change.engine.services().videoRuns())
        emit change.engine.signal_createdialog();
    const ChosenOutput output(change);
    change.value = output.text();
    if (change.isOn(MENU_Output_Mode)) {
        followChosenMode(change, output);
    } else {
        change.set(MENU_OutputMode, switchOff);
        change.send(MENU_Output_Mode, switchOff);
    }
    change.tail();
}

void applyGenlock(ParaChange &change)
{
    const DeviceView device(change.engine);
    if (!device.syncOn())
        return;
    /// Of the home screen, by the reported state.
    static constexpr ENUM_MainWindowSynState states[] = {SYN_OFF, SYN_OFF, SYN_ON, SYN_WAITING, SYN_FAILED};
    const int reported = change.value.toInt();
    if (reported < 0 || reported >= int(std::size(states)))
        return;
    emit change.engine.signal_sync_state(qint32(states[reported]));
    const InputRecord source = device.input(device.syncInput());
    change.redoResolution(followedRate(change, source));
    emit change.engine.signal_sync_state(qint8(source.signalState), change.value);
}

/// The device takes the rate itself, not its row; what it makes of it comes back as a report.
void applyOutputRate(ParaChange &change)
{
    if (change.fromUser())
        change.send(change.index, change.chosenOption(change.index));
    else
        change.tail();
}

constexpr ApplyCase cases[] = {
    {MENU_OutputFrameRate, applyOutputRate},
    {MENU_Sync_Status, applySync},
    {MENU_Sync_Source, applySyncSource},
    {MENU_Output_Mode, applyOutputMode},
    {MENU_Output_Resolution, applyResolution},
    {each(FAMILY_InputPicture, MENU_HDMI1_EDIDResolution), applyResolution},
    {MENU_Output_Apply, applyOutput},
    {PARA_GenlockState, applyGenlock},
};
} // namespace

Table<ApplyCase> outputCases()
{
    return cases;
}
} // namespace VASK
