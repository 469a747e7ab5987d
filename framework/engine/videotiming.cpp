#include "framework/engine/videotiming.h"

#include <cmath>

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

/// Width of the vertical sync by aspect ratio, in lines.
int verticalSync(float width, float lines)
{
    struct Ratio {
        float width, height;
        int sync;
    };
    static constexpr Ratio ratios[] = {{4, 3, 4}, {16, 9, 5}, {16, 10, 6}, {5, 4, 7}, {15, 9, 7}};
    for (const Ratio &ratio : ratios)
        if (width == std::floor(lines * ratio.width / ratio.height))
            return ratio.sync;
    return 10;
}

int startSize(uint32_t clock, int other, float rateHz)
{
    return int(float(clock) / float(other + horizontalBlank) / rateHz) - verticalBlankEstimate;
}

/// The largest size that still fits, walking from the start. demand(size) in pixels a second.
template <class Demand> int largestFitting(uint32_t clock, int size, Demand demand)
{
    if (size < 0)
        size = 0;
    if (demand(size) > clock) {
        while (size > 0 && demand(size) > clock)
            --size;
        return size;
    }
    while (demand(size + 1) <= clock)
        ++size;
    return size;
}

/// The smallest size that takes at least the clock, walking from the start.
template <class Demand> int smallestReaching(uint32_t clock, int size, Demand demand)
{
    if (size < 0)
        size = 0;
    if (demand(size) >= clock) {
        while (size > 0 && demand(size - 1) >= clock)
            --size;
        return size;
    }
    while (demand(size) < clock)
        ++size;
    return size;
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
    if (lines > 0) {
        const float linePeriodUs = (1000000.f / freq - minVerticalBlankUs) / lines;
        const int needed = int(std::floor(minVerticalBlankUs / linePeriodUs)) + 1;
        if (needed > blanking)
            blanking = needed;
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
    return uint32_t(float(mode.totalPixels) * float(mode.totalLines) * rateHz);
}

int _CVT_GetWidthMaxValue(uint32_t clock, int height, int rateCentiHz)
{
    const float rateHz = float(rateCentiHz) / 100.f;
    return largestFitting(clock, startSize(clock, height, rateHz),
                          [=](int width) { return clockDemand(width, height, rateHz); });
}

int _CVT_GetWidthMinValue(uint32_t clock, int height, int rateCentiHz)
{
    const float rateHz = float(rateCentiHz) / 100.f;
    return smallestReaching(clock, startSize(clock, height, rateHz),
                            [=](int width) { return clockDemand(width, height, rateHz); });
}

int _CVT_GetHeightMaxValue(uint32_t clock, int width, int rateCentiHz)
{
    const float rateHz = float(rateCentiHz) / 100.f;
    return largestFitting(clock, startSize(clock, width, rateHz),
                          [=](int height) { return clockDemand(width, height, rateHz); });
}

int _CVT_GetHeightMinValue(uint32_t clock, int width, int rateCentiHz)
{
    const float rateHz = float(rateCentiHz) / 100.f;
    return smallestReaching(clock, startSize(clock, width, rateHz),
                            [=](int height) { return clockDemand(width, height, rateHz); });
}

int _CVT_GetframeRateMaxValue(uint32_t clock, int width, int height)
{
    auto demand = [=](int milliHz) { return clockDemand(width, height, float(milliHz) / 1000.f); };
    int rate = startRateMilliHz(clock, width, height);
    for (int step : rateStepsMilliHz) {
        if (rate > 0 && demand(rate) <= clock) {
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
        if (rate > 0 && demand(rate) >= clock) {
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
