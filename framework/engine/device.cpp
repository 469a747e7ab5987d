#include "framework/engine/device.h"

#include "framework/engine/limits/bandwidth.h"
#include "framework/engine/paraprocess.h"
#include "menu/itemindex.h"
#include "menu/itemvalue.h"
#include "menuconfig_k2860.h"

namespace VASK
{
WorkMode DeviceView::workMode() const
{
    return WorkMode(m_engine.GetParaFromIndex(MENU_WorkMode).toInt());
}

bool DeviceView::followsSoftware() const
{
    return isOn(m_engine.GetParaFromIndex(MENU_OutputMode));
}

bool DeviceView::syncOn() const
{
    return isOn(m_engine.GetParaFromIndex(MENU_Sync_Status));
}

bool DeviceView::doublesRate() const
{
    return isOn(m_engine.GetParaFromIndex(MENU_Mode3D_Status)) &&
           m_engine.GetParaFromIndex(MENU_Mode3D_Format).toInt() != FrameSequential;
}

InputRecord DeviceView::input(int number) const
{
    return m_engine.processData().input(number);
}

int DeviceView::inputOfCode(int code) const
{
    const int listed = listedInputs();
    for (int wanted : {code, otherCode(code)})
        for (int number = 0; number < listed; ++number)
            if (input(number).sourceCode == wanted)
                return number;
    return noInput;
}

int DeviceView::listedInputs() const
{
    // The code 0 is an input's, too: what stands behind the last record that came is none.
    int number = ProcessData::inputCount;
    while (number > 0 && input(number - 1).sourceCode == 0)
        --number;
    return number;
}

int DeviceView::syncInput() const
{
    if (workMode() == WORK_SENDER)
        return inputOfCode(INPUT_SyncReference);
    return m_engine.GetParaFromIndex(MENU_Sync_Source).toInt();
}

int DeviceView::followedInput() const
{
    return syncOn() ? syncInput() : m_engine.GetParaFromIndex(MENU_MainLayer_InputSource).toInt();
}

int DeviceView::outputRowRate() const
{
    constexpr float centi = 100.f;
    const ENUM_MenuIndex list = followsSoftware() ? MENU_Output_FrameRate : MENU_OutputFrameRate;
    ST_ItemInfo item;
    m_engine.GetInfoFromIndex(list, item);
    return qRound(item.params.value(item.value).toFloat() * centi);
}

int DeviceView::outputRate() const
{
    if (workMode() == WORK_SENDER) {
        const int rate = followedRate(input(followedInput()).rateCentiHz(), syncReference());
        return FrameRateAdj(uint16_t(rate ? rate : unknownRate));
    }
    const int row = outputRowRate();
    return syncOn() ? followedRate(input(syncInput()).measuredRateCentiHz(), row) : row;
}

int DeviceView::followedRate(int rate, int outputRate) const
{
    constexpr double lower = 0.995;
    constexpr double upper = 1.005;
    const bool inReach = rate >= int(outputRate * lower) && rate <= int(outputRate * upper);
    if (workMode() != WORK_SENDER && !inReach)
        return outputRate;
    const uint16_t shown = uint16_t(doublesRate() ? rate * 2 : rate);
    const ProcessData &data = m_engine.processData();
    const bool overload =
        VideoBandwidthConstrain(uint16_t(data.value(PARA_OutputWidth)),
                                uint16_t(data.value(PARA_OutputHeight)), shown, wholeOutputPixelRate, 1);
    return overload ? outputRate : rate;
}

int DeviceView::syncReference() const
{
    return workMode() == WORK_SENDER ? m_engine.processData().value(PARA_OutputRate) : outputRowRate();
}

bool DeviceView::syncAgrees() const
{
    if (!syncOn())
        return true;
    const int rate = input(syncInput()).measuredRateCentiHz();
    return rate != 0 && followedRate(rate, syncReference()) == rate;
}

QString DeviceView::sizeText(int width, int height, bool interlaced, int rateCentiHz)
{
    constexpr int centi = 100;
    constexpr int digits = 6;
    const QString rate = rateCentiHz % centi == 0 ? QString::number(rateCentiHz / centi)
                                                  : QString::number(double(rateCentiHz) / centi, 'g', digits);
    return QString("%1x%2%3@%4").arg(width).arg(height).arg(QLatin1String(interlaced ? "i" : ""), rate);
}

QString DeviceView::resolutionText(int rateCentiHz) const
{
    const bool sender = workMode() == WORK_SENDER;
    const bool interlaced = sender && input(followedInput()).interlaced;
    // A sending card shows the rate that its source is meant to have, whoever asks.
    const int rate = sender          ? FrameRateAdj(uint16_t(rateCentiHz))
                     : doublesRate() ? rateCentiHz * 2
                                     : rateCentiHz;
    return sizeText(m_engine.processData().value(PARA_OutputWidth),
                    m_engine.processData().value(PARA_OutputHeight), interlaced, rate);
}
} // namespace VASK
