// What the output engine and one Ethernet port carry, and how odd frame rates are snapped. Pure arithmetic;
// any thread.
#pragma once

#include <cstdint>

namespace VASK
{
/// Pixels a second, blanking included, that the output engine carries; to be tested with blanking.
constexpr uint32_t wholeOutputPixelRate = 246528000;
/// Active pixels a second that one Ethernet port carries; to be tested without blanking.
constexpr uint32_t portPixelRate = 39583333;

/// True when a mode exceeds the limit. rate in hundredths of a hertz, limit in pixels a second.
bool VideoBandwidthConstrain(uint16_t w, uint16_t h, uint16_t rate, uint32_t limit, uint8_t blanking);

/// Snaps a rate to the fractional rates, or rounds it to whole hertz. Hundredths of a hertz.
uint16_t FrameRateAdj(uint16_t rate);
} // namespace VASK
