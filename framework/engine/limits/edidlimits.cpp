// Limits of a custom EDID: width, height and rate of a mode that the input's pixel clock carries.

#include "framework/engine/limits/limits.h"
#include "framework/engine/limits/videotiming.h"
#include "framework/engine/paraprocess.h"
#include "framework/store/menuanalysis.h"
#include "menu/itemindex.h"
#include "menu/objectindex.h"

namespace VASK
{
namespace
{
constexpr uint32_t highClock = 165000000; ///< hertz
constexpr uint32_t lowClock = 25000000;   ///< hertz
constexpr int maxRateCentiHz = 12000;
constexpr int minRateCentiHz = 2300;
constexpr int maxSize = 4092; ///< pixels or lines
constexpr int minWidth = 800;
constexpr int minHeight = 600;
constexpr int maxTotalLines = 4096;
constexpr uint64_t frameStoreBits = 0x10000000;

/// The three items of one input's custom EDID.
struct CustomEdid {
    explicit CustomEdid(const ParaLimit &asked) : engine(asked.engine), input(asked.member) {}
    ENUM_MenuIndex of(ENUM_MenuIndex ofHdmi1) const { return nth(ofHdmi1, input, STRIDE_InputPicture); }
    int width() const { return uint16_t(engine.GetParaFromIndex(of(MENU_HDMI1_EDIDWidth)).toInt()); }
    int height() const { return uint16_t(engine.GetParaFromIndex(of(MENU_HDMI1_EDIDHeight)).toInt()); }
    /// 0 for an option that is no rate.
    int rateCentiHz() const
    {
        constexpr float centi = 100.f;
        ST_ItemInfo item;
        engine.GetInfoFromIndex(of(MENU_HDMI1_EDIDCustomRate), item);
        const float rate = item.params.value(item.value).toFloat() * centi;
        return rate > 0 && rate <= UINT16_MAX ? int(rate) : 0;
    }

    const ParaProcess &engine;
    int input; ///< from 0
};

/// A 24-bit frame, whose lines take whole units of 64 bytes, has to fit the frame store.
bool fitsFrameStore(int width, int height)
{
    const uint64_t units = (uint64_t(width) * 3 + 63) / 64;
    return units * uint64_t(height) * 512 <= frameStoreBits;
}

QString limitWidth(const ParaLimit &asked)
{
    const CustomEdid edid(asked);
    const int height = edid.height();
    const int rate = edid.rateCentiHz();
    if (rate == 0)
        return asked.value;
    int max = _CVT_GetWidthMaxValue(highClock, height, rate);
    max = max > maxSize ? maxSize : max & ~1;
    const int min = qMax(_CVT_GetWidthMinValue(lowClock, height, rate), minWidth);
    int width = qMin(int(uint16_t(asked.value.toInt())), max);
    while (width > 0 && !fitsFrameStore(width, height))
        width -= 2;
    return QString::number(qMax(width, min));
}

bool hasTooManyLines(int width, int height, int rateCentiHz)
{
    VideoMode mode;
    vert_refresh(width, height, float(rateCentiHz) / 100.f, &mode);
    return mode.totalLines >= maxTotalLines;
}

QString limitHeight(const ParaLimit &asked)
{
    const CustomEdid edid(asked);
    const int width = edid.width();
    const int rate = edid.rateCentiHz();
    if (rate == 0)
        return asked.value;
    const int max = qMin(_CVT_GetHeightMaxValue(highClock, width, rate), maxSize);
    const int min = qMax(_CVT_GetHeightMinValue(lowClock, width, rate), minHeight);
    int height = qMin(int(uint16_t(asked.value.toInt())), max);
    while (height > 0 && !fitsFrameStore(width, height))
        --height;
    while (height > 0 && hasTooManyLines(width, height, rate))
        --height;
    return QString::number(height < min ? min : height);
}

/// The value stays; rates outside what the clocks allow are switched off in the list.
QString limitRate(const ParaLimit &asked)
{
    const CustomEdid edid(asked);
    auto *store = poolObject<MenuAnalysis>(ENUM_MENUANALYSIS);
    if (!store)
        return asked.value;
    const float highest =
        float(qMin(_CVT_GetframeRateMaxValue(highClock, edid.width(), edid.height()), maxRateCentiHz)) /
        100.f;
    const int lowestCenti = _CVT_GetframeRateMinValue(lowClock, edid.width(), edid.height());
    const float lowest = lowestCenti >= minRateCentiHz ? float(lowestCenti) / 100.f : 23.f;
    store->changeItem(asked.index, [lowest, highest](ST_ItemInfo &item) {
        for (auto option = item.params.cbegin(); option != item.params.cend(); ++option) {
            const float rate = option.value().toFloat();
            item.params1[option.key()] = rate >= lowest && rate <= highest ? optionEnable : optionDisable;
        }
    });
    constexpr int stride = ENUM_ROW_HDMI2_EDIDCustomRate - ENUM_ROW_HDMI1_EDIDCustomRate;
    repaintList(nth(ENUM_ROW_HDMI1_EDIDCustomRate, asked.member, stride), asked.index);
    return asked.value;
}

constexpr LimitCase cases[] = {
    {each(FAMILY_InputPicture, MENU_HDMI1_EDIDWidth), limitWidth},
    {each(FAMILY_InputPicture, MENU_HDMI1_EDIDHeight), limitHeight},
    {each(FAMILY_InputPicture, MENU_HDMI1_EDIDCustomRate), limitRate},
};
} // namespace

Table<LimitCase> edidLimits()
{
    return cases;
}
} // namespace VASK
