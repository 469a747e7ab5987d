// Video timing with reduced blanking, and the searches for the sizes and rates that a pixel clock carries.
// Pure arithmetic in single precision; any thread.
#pragma once

#include <cstdint>

namespace VASK
{
/// One computed mode: pixels and lines as counted from the start of the active picture.
struct VideoMode {
    int width;       ///< active pixels
    int syncStart;   ///< pixels
    int syncEnd;     ///< pixels
    int totalPixels; ///< active and blanking
    int height;      ///< active lines
    int vSyncStart;  ///< lines
    int vSyncEnd;    ///< lines
    int totalLines;  ///< active and blanking
    float clockMHz;
    float lineRateKHz;
    float fieldRateHz; ///< as asked for
    int computedRateHz;
    int reduced;
    int interlaced;
};

/// Fills the mode of a progressive picture with reduced blanking and without margins.
/// freq in hertz, below 2173 (the blanking alone takes 460 microseconds).
void vert_refresh(int h_pixels, int v_lines, float freq, VideoMode *mode);

/// Pixels a second that a mode takes, blanking included. rateHz in hertz.
uint32_t clockDemand(int width, int height, float rateHz);

// The searches. clock in pixels a second, rates in hundredths of a hertz, sizes in pixels and lines.
// Max: the largest value whose demand is at most the clock. Min: the smallest whose demand is at least the
// clock.
int _CVT_GetWidthMaxValue(uint32_t clock, int height, int rateCentiHz);
int _CVT_GetWidthMinValue(uint32_t clock, int height, int rateCentiHz);
int _CVT_GetHeightMaxValue(uint32_t clock, int width, int rateCentiHz);
int _CVT_GetHeightMinValue(uint32_t clock, int width, int rateCentiHz);
int _CVT_GetframeRateMaxValue(uint32_t clock, int width, int height);
int _CVT_GetframeRateMinValue(uint32_t clock, int width, int height);
} // namespace VASK
