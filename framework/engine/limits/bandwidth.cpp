#include "framework/engine/limits/bandwidth.h"

namespace VASK
{
namespace
{
constexpr int verticalBlank = 20;   ///< lines
constexpr int horizontalBlank = 31; ///< pixels, beside rounding the width up to an odd number
constexpr uint16_t cinemaRate = 2400;
constexpr uint16_t fractionalRates[] = {2398, 2997, 4795, 5994, 7193, 11988};
constexpr int snapRange = 2;
} // namespace

bool VideoBandwidthConstrain(uint16_t w, uint16_t h, uint16_t rate, uint32_t limit, uint8_t blanking)
{
    const float rateHz = float(rate) / 100.f;
    const float lines = blanking ? float(h + verticalBlank) : float(h);
    const float pixels = blanking ? float(((w + 1) | 1) + horizontalBlank) : float(w);
    const float pixelRate = lines * pixels * rateHz;
    constexpr float outOfRange = 4294967296.f;
    return pixelRate >= outOfRange || uint32_t(pixelRate) > limit;
}

uint16_t FrameRateAdj(uint16_t rate)
{
    if (rate != cinemaRate)
        for (uint16_t fractional : fractionalRates)
            if (rate >= fractional - snapRange && rate <= fractional + snapRange)
                return fractional;
    return uint16_t((rate + 50) / 100 * 100);
}
} // namespace VASK
