// How long one step of the knob may take: the worst case of every search behind a limit, in microseconds on
// this machine, with the input on which it was met. Run it on the device to see what the device makes of it.

#include "framework/engine/limits/bandwidth.h"
#include "framework/engine/limits/videotiming.h"

#include <benchmark/benchmark.h>
#include <cstdio>
#include <map>

using namespace VASK;

namespace
{
constexpr uint32_t highClock = 165000000;
constexpr uint32_t lowClock = 25000000;
const std::vector<int64_t> rates{2300, 2398, 6000, 8500, 12000};

/// Keeps of all inputs of a search the one that took longest.
class WorstReporter : public benchmark::BenchmarkReporter
{
public:
    bool ReportContext(const Context &) override { return true; }

    void ReportRuns(const std::vector<Run> &runs) override
    {
        for (const Run &run : runs) {
            Worst &worst = m_worst[run.run_name.function_name];
            if (run.GetAdjustedRealTime() > worst.us)
                worst = {run.GetAdjustedRealTime(), run.run_name.args};
        }
    }

    void Finalize() override
    {
        for (const auto &[search, worst] : m_worst)
            std::printf("%-44s %10.1f us   at %s\n", search.c_str(), worst.us, worst.input.c_str());
    }

private:
    struct Worst {
        double us = 0;
        std::string input;
    };
    std::map<std::string, Worst> m_worst;
};

void search(benchmark::State &state, int (*find)(uint32_t, int, int), uint32_t clock)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(find(clock, int(state.range(0)), int(state.range(1))));
}

/// A count that goes down one by one from the largest that 16 bits hold.
void screenSearch(benchmark::State &state)
{
    const auto cabinet = uint16_t(state.range(0));
    const auto rate = uint16_t(state.range(1));
    for (auto _ : state) {
        int count = 65535;
        while (count > 1 &&
               (count * cabinet > 8192 ||
                VideoBandwidthConstrain(uint16_t(count * cabinet), 65535, rate, wholeOutputPixelRate, 1)))
            --count;
        benchmark::DoNotOptimize(count);
    }
}

void briefly(benchmark::internal::Benchmark *family)
{
    family->Unit(benchmark::kMicrosecond)->MinTime(0.001);
}

/// The other size and the rate.
void bySize(benchmark::internal::Benchmark *family)
{
    briefly(family);
    family->ArgNames({"size", "rate"})->ArgsProduct({benchmark::CreateDenseRange(0, 4092, 62), rates});
}

void byBothSizes(benchmark::internal::Benchmark *family)
{
    briefly(family);
    const auto sizes = benchmark::CreateDenseRange(0, 4092, 186);
    family->ArgNames({"width", "height"})->ArgsProduct({sizes, sizes});
}

void byCabinet(benchmark::internal::Benchmark *family)
{
    briefly(family);
    family->ArgNames({"cabinet", "rate"})->ArgsProduct({{0, 1, 16, 64, 480}, rates});
}
} // namespace

BENCHMARK_CAPTURE(search, _CVT_GetWidthMaxValue, _CVT_GetWidthMaxValue, highClock)->Apply(bySize);
BENCHMARK_CAPTURE(search, _CVT_GetWidthMinValue, _CVT_GetWidthMinValue, lowClock)->Apply(bySize);
BENCHMARK_CAPTURE(search, _CVT_GetHeightMaxValue, _CVT_GetHeightMaxValue, highClock)->Apply(bySize);
BENCHMARK_CAPTURE(search, _CVT_GetHeightMinValue, _CVT_GetHeightMinValue, lowClock)->Apply(bySize);
BENCHMARK_CAPTURE(search, _CVT_GetframeRateMaxValue, _CVT_GetframeRateMaxValue, highClock)
    ->Apply(byBothSizes);
BENCHMARK_CAPTURE(search, _CVT_GetframeRateMinValue, _CVT_GetframeRateMinValue, lowClock)->Apply(byBothSizes);
BENCHMARK(screenSearch)->Apply(byCabinet);

int main(int argc, char **argv)
{
    benchmark::Initialize(&argc, argv);
    WorstReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
}
