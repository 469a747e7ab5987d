// The timing model against modes worked out by hand and against the standard's own, and the searches against
// the plain walk that defines them.

#include "framework/engine/limits/bandwidth.h"
#include "framework/engine/limits/videotiming.h"
#include "tests/testprogram.h"

#include <QRandomGenerator>
#include <QtTest>
#include <algorithm>
#include <libxcvt/libxcvt.h>
#include <memory>

using namespace VASK;

namespace
{
constexpr uint32_t highClock = 165000000;
constexpr uint32_t lowClock = 25000000;

// The searches as they are defined: one step at a time.
struct PlainWalk {
    uint32_t clock;
    std::function<uint32_t(int)> demand;

    int largest(int start) const
    {
        int size = std::max(0, start);
        if (demand(size) > clock) {
            while (size > 0 && demand(size) > clock)
                --size;
            return size;
        }
        while (demand(size + 1) <= clock)
            ++size;
        return size;
    }
    int smallest(int start) const
    {
        int size = std::max(0, start);
        if (demand(size) < clock) {
            while (demand(size) < clock)
                ++size;
            return size;
        }
        while (size > 0 && demand(size - 1) >= clock)
            --size;
        return size;
    }
};

int startOf(uint32_t clock, int other, int rateCentiHz)
{
    return int(float(clock) / float(other + 160) / (float(rateCentiHz) / 100.f)) - 62;
}

void compareSearches(uint32_t clock, int other, int rate)
{
    const float hertz = float(rate) / 100.f;
    const int start = startOf(clock, other, rate);
    const PlainWalk widths{clock, [=](int size) { return clockDemand(size, other, hertz); }};
    const PlainWalk heights{clock, [=](int size) { return clockDemand(other, size, hertz); }};
    const QByteArray what =
        QString("clock %1, other size %2, rate %3").arg(clock).arg(other).arg(rate).toUtf8();
    QVERIFY2(_CVT_GetWidthMaxValue(clock, other, rate) == widths.largest(start), what);
    QVERIFY2(_CVT_GetWidthMinValue(clock, other, rate) == widths.smallest(start), what);
    QVERIFY2(_CVT_GetHeightMaxValue(clock, other, rate) == heights.largest(start), what);
    QVERIFY2(_CVT_GetHeightMinValue(clock, other, rate) == heights.smallest(start), what);
}
} // namespace

class TestVideoTiming : public QObject
{
    Q_OBJECT
private slots:
    void computesAMode()
    {
        struct Mode {
            int width, height, sync, totalLines, clockKHz;
        };
        // At 60 Hz, of the ratios 16:9, 16:10, 4:3, 5:4, 15:9 and of none that is known. Blanking lines: at
        // least sync + 23 + 6, else floor(460 / line period) + 1. The clock is the product of rate, total
        // lines and width + 160, in whole kilohertz.
        for (const Mode &row : {Mode{1920, 1080, 5, 1114, 139027}, Mode{1920, 1200, 6, 1235, 154128},
                                Mode{800, 600, 4, 633, 36460}, Mode{1280, 1024, 7, 1060, 91584},
                                Mode{1280, 768, 7, 804, 69465}, Mode{1922, 1080, 10, 1119, 139785}}) {
            VideoMode mode;
            vert_refresh(row.width, row.height, 60, &mode);
            const QByteArray what = QString("%1x%2").arg(row.width).arg(row.height).toUtf8();
            QVERIFY2(mode.vSyncEnd - mode.vSyncStart == row.sync && mode.vSyncStart == row.height + 23, what);
            QVERIFY2(mode.totalLines == row.totalLines && mode.totalPixels == row.width + 160, what);
            QVERIFY2(mode.syncStart == row.width + 48 && mode.syncEnd == row.width + 80, what);
            QVERIFY2(std::abs(mode.clockMHz * 1000 - float(row.clockKHz)) <= 1.5f, what);
            QVERIFY2(std::abs(mode.computedRateHz - 60) <= 1 && qFuzzyCompare(mode.fieldRateHz, 60.f), what);
        }
    }

    /// But for the place of the vertical pulse and the clock, which the standard rounds, where the least
    /// blanking time decides on the lines.
    void isTheReducedModeOfTheStandard()
    {
        QRandomGenerator random(22);
        int compared = 0;
        for (int i = 0; i < 2000; ++i) {
            const int width = 8 * random.bounded(80, 512);
            const int height = random.bounded(600, 2401);
            const int rate = random.bounded(60, 241);
            VideoMode mode;
            vert_refresh(width, height, float(rate), &mode);
            const int sync = mode.vSyncEnd - mode.vSyncStart;
            if (mode.totalLines - height <= sync + 23 + 6)
                continue;
            const std::unique_ptr<libxcvt_mode_info, decltype(&free)> standard(
                libxcvt_gen_mode_info(width, height, float(rate), true, false), free);
            const QByteArray what = QString("%1x%2 at %3").arg(width).arg(height).arg(rate).toUtf8();
            QVERIFY2(mode.totalLines == standard->vtotal &&
                         sync == standard->vsync_end - standard->vsync_start,
                     what);
            QVERIFY2(mode.syncStart == standard->hsync_start && mode.syncEnd == standard->hsync_end &&
                         mode.totalPixels == standard->htotal,
                     what);
            ++compared;
        }
        QVERIFY(compared > 500);
    }

    void searchesAsThePlainWalk()
    {
        // Around a known aspect ratio the demand does not rise evenly: there the clocks are put.
        static constexpr struct {
            int width, height;
        } ratios[] = {{4, 3}, {16, 9}, {16, 10}, {5, 4}, {15, 9}};
        // Sizes of the menu, small ones, which lie far from the start, and those beyond the menu.
        static constexpr struct {
            int from, to, rounds;
        } spans[] = {{600, 4092, 1000}, {0, 600, 100}, {4093, 20000, 100}};
        constexpr uint32_t farClock = 600000000; // beyond what a mode of 32 bits can take
        QRandomGenerator random(20);
        for (const auto &span : spans)
            for (int i = 0; i < span.rounds; ++i) {
                const int other = random.bounded(span.from, span.to + 1);
                const int rate = random.bounded(500, 24001);
                const float hertz = float(rate) / 100.f;
                const auto &ratio = ratios[i % 5];
                const int nearWidth = std::max(0, other * ratio.width / ratio.height + random.bounded(-3, 4));
                const int nearHeight =
                    std::max(0, other * ratio.height / ratio.width + random.bounded(-3, 4));
                for (uint32_t clock : {highClock, lowClock, clockDemand(nearWidth, other, hertz),
                                       clockDemand(other, nearHeight, hertz)})
                    if (clock < farClock)
                        compareSearches(clock, other, rate);
            }
    }

    /// A damaged store may ask for any rate.
    void searchesEnd()
    {
        for (int rate : {-100000, -50, 0, 1, 3, 1000000})
            for (uint32_t clock : {highClock, lowClock})
                for (int other : {0, 600, 65535}) {
                    for (const auto search : {_CVT_GetWidthMaxValue, _CVT_GetWidthMinValue,
                                              _CVT_GetHeightMaxValue, _CVT_GetHeightMinValue})
                        QVERIFY(search(clock, other, rate) >= 0);
                    for (const auto search : {_CVT_GetframeRateMaxValue, _CVT_GetframeRateMinValue})
                        QVERIFY(search(clock, other, 65535) >= 0);
                }
    }

    void rateIsTheLastThatFits()
    {
        QRandomGenerator random(21);
        for (int i = 0; i < 500; ++i) {
            const int width = random.bounded(800, 4093);
            const int height = random.bounded(600, 4093);
            // Both results are whole hundredths: the highest goes down to one, the lowest up.
            const int highest = _CVT_GetframeRateMaxValue(highClock, width, height);
            QVERIFY(clockDemand(width, height, float(highest) / 100.f) <= highClock);
            QVERIFY(clockDemand(width, height, float(highest + 1) / 100.f) > highClock);
            const int lowest = _CVT_GetframeRateMinValue(lowClock, width, height);
            QVERIFY(clockDemand(width, height, float(lowest) / 100.f) >= lowClock);
            QVERIFY(clockDemand(width, height, float(lowest - 1) / 100.f) < lowClock);
        }
    }

    void outputBandwidth()
    {
        const struct {
            const char *name;
            int width, height, rate;
            uint limit;
            bool blanking, overload;
        } rows[] = {
            // (1080 + 20) * (3841 | 1 + 31) * 60 = 255,552,000; one line and one pixel pair less and so on
            {"3840x1080 at 60", 3840, 1080, 6000, wholeOutputPixelRate, true, true},
            {"1920x2000 at 60", 1920, 2000, 6000, wholeOutputPixelRate, true, false},
            // an even and the following odd width weigh the same: ((w + 1) | 1) is 1921 and 1923 for 1920,
            // 1921
            {"at the limit", 100, 80, 10000, 100u * 100u * 132u, true, false},
            {"above by one", 100, 80, 10000, 100u * 100u * 132u - 1, true, true},
            {"odd width counts two more", 101, 80, 10000, 100u * 100u * 132u, true, true},
            {"port at the limit", 1000, 600, 6000, 36000000u, false, false},
            {"port above", 1000, 600, 6001, 36000000u, false, true},
            {"nothing", 0, 0, 6000, portPixelRate, false, false},
            {"more than 32 bits", 65535, 65535, 65535, 0xFFFFFFFFu, true, true},
        };
        for (const auto &row : rows)
            QVERIFY2(VideoBandwidthConstrain(uint16_t(row.width), uint16_t(row.height), uint16_t(row.rate),
                                             row.limit, row.blanking) == row.overload,
                     row.name);
    }

    void snapsRates()
    {
        const QMap<int, int> snapped{{2396, 2398},   {2395, 2400}, {2399, 2398}, {2400, 2400}, {2401, 2400},
                                     {2995, 2997},   {2999, 2997}, {3000, 3000}, {4793, 4795}, {4797, 4795},
                                     {4798, 4800},   {5992, 5994}, {5996, 5994}, {5997, 6000}, {6000, 6000},
                                     {6049, 6000},   {6050, 6100}, {7195, 7193}, {7196, 7200}, {11990, 11988},
                                     {11991, 12000}, {49, 0}};
        for (int rate : snapped.keys())
            QVERIFY2(FrameRateAdj(uint16_t(rate)) == snapped[rate], QByteArray::number(rate));
    }
};

FPD_TEST(TestVideoTiming)
#include "tst_videotiming.moc"
