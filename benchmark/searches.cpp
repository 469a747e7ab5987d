// How long one step of the knob may take: the worst case of every search behind a limit, in microseconds on
// this machine, with the input on which it was met. Run it on the device to see what the device makes of it.

#include "framework/engine/limits/bandwidth.h"
#include "framework/engine/limits/videotiming.h"

#include <chrono>
#include <cstdio>
#include <functional>

using namespace VASK;

namespace
{
constexpr uint32_t highClock = 165000000;
constexpr uint32_t lowClock = 25000000;
constexpr int rates[] = {2300, 2398, 6000, 8500, 12000};

volatile int keptResult; ///< so that no call is left out

struct Worst {
    double us = 0;
    int first = 0;
    int second = 0;
};

void measure(Worst &worst, int first, int second, const std::function<int()> &search)
{
    using Clock = std::chrono::steady_clock;
    constexpr int tries = 3; // the best of a few: what the machine does beside is not the search's
    double best = 1e9;
    for (int i = 0; i < tries; ++i) {
        const auto start = Clock::now();
        keptResult = search();
        best = std::min(best, std::chrono::duration<double, std::micro>(Clock::now() - start).count());
    }
    if (best > worst.us)
        worst = {best, first, second};
}

void report(const char *name, const Worst &worst)
{
    std::printf("%-28s %10.1f us   at %d, %d\n", name, worst.us, worst.first, worst.second);
}

void sizeSearch(const char *name, int (*search)(uint32_t, int, int), uint32_t clock)
{
    Worst worst;
    for (int other = 0; other <= 4092; other += 31)
        for (int rate : rates)
            measure(worst, other, rate, [=] { return search(clock, other, rate); });
    report(name, worst);
}

void rateSearch(const char *name, int (*search)(uint32_t, int, int), uint32_t clock)
{
    Worst worst;
    for (int width = 0; width <= 4092; width += 124)
        for (int height = 0; height <= 4092; height += 124)
            measure(worst, width, height, [=] { return search(clock, width, height); });
    report(name, worst);
}

/// A count that goes down one by one from the largest that 16 bits hold.
void screenSearch()
{
    Worst worst;
    for (uint16_t cabinet : {0, 1, 16, 64, 480})
        for (int rate : rates)
            measure(worst, cabinet, rate, [=] {
                int count = 65535;
                while (count > 1 && (count * cabinet > 8192 ||
                                     VideoBandwidthConstrain(uint16_t(count * cabinet), 65535, uint16_t(rate),
                                                             wholeOutputPixelRate, 1)))
                    --count;
                return count;
            });
    report("screen counts, one by one", worst);
}
} // namespace

int main()
{
    sizeSearch("_CVT_GetWidthMaxValue", _CVT_GetWidthMaxValue, highClock);
    sizeSearch("_CVT_GetWidthMinValue", _CVT_GetWidthMinValue, lowClock);
    sizeSearch("_CVT_GetHeightMaxValue", _CVT_GetHeightMaxValue, highClock);
    sizeSearch("_CVT_GetHeightMinValue", _CVT_GetHeightMinValue, lowClock);
    rateSearch("_CVT_GetframeRateMaxValue", _CVT_GetframeRateMaxValue, highClock);
    rateSearch("_CVT_GetframeRateMinValue", _CVT_GetframeRateMinValue, lowClock);
    screenSearch();
}
