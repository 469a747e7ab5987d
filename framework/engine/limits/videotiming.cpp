#include "framework/engine/limits/videotiming.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <utility>
#include <vector>

namespace VASK
{
namespace
{
constexpr float clockStepMHz = 0.001f;
constexpr int verticalFrontPorch = 23; ///< lines
constexpr float minVerticalBlankUs = 460.f;
constexpr int linesBehindSync = 6;
constexpr int horizontalBlank = 160;      ///< pixels
constexpr int horizontalFrontPorch = 48;  ///< pixels
constexpr int horizontalSync = 32;        ///< pixels
constexpr int verticalBlankEstimate = 62; ///< lines; where the searches start from
constexpr int largestSize =
    1 << 20; ///< pixels or lines, beyond all that fits 16 bits; where the searches end

/// Aspect ratios that have a width of vertical sync of their own, in lines.
struct Ratio {
    float width, height;
    int sync;
};
constexpr Ratio ratios[] = {{4, 3, 4}, {16, 9, 5}, {16, 10, 6}, {5, 4, 7}, {15, 9, 7}};
constexpr int plainSync = 10;

int verticalSync(float width, float lines)
{
    for (const Ratio &ratio : ratios)
        if (width == std::floor(lines * ratio.width / ratio.height))
            return ratio.sync;
    return plainSync;
}

int startSize(uint32_t clock, int other, float rateHz)
{
    const float size = float(clock) / float(other + horizontalBlank) / rateHz;
    return std::max(0, int(std::clamp(size, 0.f, float(largestSize))) - verticalBlankEstimate);
}

/// Walks the sizes on one axis. The demand of a mode rises with its size, but for the few sizes that make a
/// well-known aspect ratio, whose vertical sync is shorter: between those it is enough to halve.
class SizeWalk
{
public:
    using Exceeds = std::function<bool(int size)>;

    SizeWalk(std::vector<int> oddSizes, Exceeds exceeds)
        : m_odd(std::move(oddSizes)), m_exceeds(std::move(exceeds))
    {
        std::sort(m_odd.begin(), m_odd.end());
    }

    bool exceeds(int size) const { return m_exceeds(size); }
    /// The first size above the start that exceeds; beyond the largest one if none does.
    int firstAbove(int start) const;
    /// The last size below the start that does not exceed, -1 if all do.
    int lastBelow(int start) const;

private:
    int firstIn(int low, int high) const;

    std::vector<int> m_odd;
    Exceeds m_exceeds;
};

/// The first size that exceeds in a range whose end does and that has no odd size.
int SizeWalk::firstIn(int low, int high) const
{
    while (low < high) {
        const int middle = low + (high - low) / 2;
        if (m_exceeds(middle))
            high = middle;
        else
            low = middle + 1;
    }
    return low;
}

int SizeWalk::firstAbove(int start) const
{
    int low = start + 1;
    for (int odd : m_odd) {
        if (odd < low)
            continue;
        if (odd > low && m_exceeds(odd - 1))
            return firstIn(low, odd - 1);
        if (m_exceeds(odd))
            return odd;
        low = odd + 1;
    }
    return low > largestSize ? low : firstIn(low, largestSize + 1);
}

int SizeWalk::lastBelow(int start) const
{
    int high = start - 1;
    for (auto odd = m_odd.rbegin(); odd != m_odd.rend(); ++odd) {
        if (*odd > high)
            continue;
        if (*odd < high && !m_exceeds(*odd + 1))
            return firstIn(*odd + 1, high + 1) - 1;
        if (!m_exceeds(*odd))
            return *odd;
        high = *odd - 1;
    }
    return high >= 0 && !m_exceeds(0) ? firstIn(0, high + 1) - 1 : -1;
}

/// The largest size whose demand is at most the clock; 0 if there is none. exceeds: more than the clock.
int largestFitting(int start, const SizeWalk &walk)
{
    return walk.exceeds(start) ? std::max(0, walk.lastBelow(start)) : walk.firstAbove(start) - 1;
}

/// The smallest size whose demand is at least the clock. exceeds: the clock or more.
int smallestReaching(int start, const SizeWalk &walk)
{
    return walk.exceeds(start) ? walk.lastBelow(start) + 1 : walk.firstAbove(start);
}

std::vector<int> oddWidths(int height)
{
    std::vector<int> widths;
    for (const Ratio &ratio : ratios)
        widths.push_back(int(std::floor(float(height) * ratio.width / ratio.height)));
    return widths;
}

std::vector<int> oddHeights(int width)
{
    constexpr int reach = 2; // of rounding
    std::vector<int> heights;
    for (const Ratio &ratio : ratios) {
        const int near = int(float(width) * ratio.height / ratio.width);
        for (int height = std::max(0, near - reach); height <= near + reach; ++height)
            if (verticalSync(float(width), float(height)) != plainSync)
                heights.push_back(height);
    }
    return heights;
}

constexpr int rateStepsMilliHz[] = {1000, 100, 10, 1};

int startRateMilliHz(uint32_t clock, int width, int height)
{
    return int(clock / uint32_t(width + horizontalBlank) / uint32_t(height + verticalBlankEstimate)) * 1000;
}
} // namespace

void vert_refresh(int h_pixels, int v_lines, float freq, VideoMode *mode)
{
    const float width = std::floor(float(h_pixels));
    const float lines = std::floor(float(v_lines));
    const int sync = verticalSync(width, lines);

    int blanking = sync + verticalFrontPorch + linesBehindSync;
    const float linePeriodUs = (1000000.f / freq - minVerticalBlankUs) / lines;
    if (linePeriodUs > 0) {
        constexpr float manyLines = 1000000.f;
        const float needed = std::floor(minVerticalBlankUs / linePeriodUs) + 1;
        blanking = std::max(blanking, int(std::min(needed, manyLines)));
    }
    const float totalLines = lines + float(blanking);
    const float totalPixels = width + float(horizontalBlank);
    const float clockMHz =
        clockStepMHz * std::floor(freq * totalLines * totalPixels / 1000000.f / clockStepMHz);
    const float lineRateKHz = clockMHz * 1000.f / totalPixels;

    mode->width = int(width);
    mode->syncStart = int(width) + horizontalFrontPorch;
    mode->syncEnd = int(width) + horizontalFrontPorch + horizontalSync;
    mode->totalPixels = int(totalPixels);
    mode->height = int(lines);
    mode->vSyncStart = int(lines) + verticalFrontPorch;
    mode->vSyncEnd = int(lines) + verticalFrontPorch + sync;
    mode->totalLines = int(totalLines);
    mode->clockMHz = clockMHz;
    mode->lineRateKHz = lineRateKHz;
    mode->fieldRateHz = freq;
    mode->computedRateHz = int(lineRateKHz * 1000.f / totalLines);
    mode->reduced = 1;
    mode->interlaced = 0;
}

uint32_t clockDemand(int width, int height, float rateHz)
{
    VideoMode mode;
    vert_refresh(width, height, rateHz, &mode);
    const float demand = float(mode.totalPixels) * float(mode.totalLines) * rateHz;
    constexpr float outOfRange = 4294967296.f;
    return demand >= outOfRange ? UINT32_MAX : demand > 0 ? uint32_t(demand) : 0;
}

namespace
{
using Exceeds = bool (*)(uint32_t demand, uint32_t clock);

bool isMore(uint32_t demand, uint32_t clock)
{
    return demand > clock;
}

bool isEnough(uint32_t demand, uint32_t clock)
{
    return demand >= clock;
}

SizeWalk alongWidth(uint32_t clock, int height, float rateHz, Exceeds exceeds)
{
    return SizeWalk(oddWidths(height),
                    [=](int width) { return exceeds(clockDemand(width, height, rateHz), clock); });
}

SizeWalk alongHeight(uint32_t clock, int width, float rateHz, Exceeds exceeds)
{
    return SizeWalk(oddHeights(width),
                    [=](int height) { return exceeds(clockDemand(width, height, rateHz), clock); });
}

float inHertz(int rateCentiHz)
{
    return float(rateCentiHz) / 100.f;
}
} // namespace

int _CVT_GetWidthMaxValue(uint32_t clock, int height, int rateCentiHz)
{
    const float rateHz = inHertz(rateCentiHz);
    return largestFitting(startSize(clock, height, rateHz), alongWidth(clock, height, rateHz, isMore));
}

int _CVT_GetWidthMinValue(uint32_t clock, int height, int rateCentiHz)
{
    const float rateHz = inHertz(rateCentiHz);
    return smallestReaching(startSize(clock, height, rateHz), alongWidth(clock, height, rateHz, isEnough));
}

int _CVT_GetHeightMaxValue(uint32_t clock, int width, int rateCentiHz)
{
    const float rateHz = inHertz(rateCentiHz);
    return largestFitting(startSize(clock, width, rateHz), alongHeight(clock, width, rateHz, isMore));
}

int _CVT_GetHeightMinValue(uint32_t clock, int width, int rateCentiHz)
{
    const float rateHz = inHertz(rateCentiHz);
    return smallestReaching(startSize(clock, width, rateHz), alongHeight(clock, width, rateHz, isEnough));
}

int _CVT_GetframeRateMaxValue(uint32_t clock, int width, int height)
{
    auto demand = [=](int milliHz) { return clockDemand(width, height, float(milliHz) / 1000.f); };
    int rate = startRateMilliHz(clock, width, height);
    for (int step : rateStepsMilliHz) {
        if (demand(rate) <= clock) {
            while (demand(rate + step) <= clock)
                rate += step;
        } else {
            while (rate > step && demand(rate) > clock)
                rate -= step;
        }
    }
    return rate / 10;
}

int _CVT_GetframeRateMinValue(uint32_t clock, int width, int height)
{
    auto demand = [=](int milliHz) { return clockDemand(width, height, float(milliHz) / 1000.f); };
    int rate = startRateMilliHz(clock, width, height);
    for (int step : rateStepsMilliHz) {
        if (demand(rate) >= clock) {
            while (rate > step && demand(rate - step) >= clock)
                rate -= step;
        } else {
            do
                rate += step;
            while (demand(rate) < clock);
        }
    }
    return (rate + 9) / 10;
}
} // namespace VASK
