// What the spy in the panel and the benchmark outside share: a file of counters, one a ticker.
#pragma once

#include <cstdint>

namespace tickspy
{
constexpr int mostTickers = 32;
constexpr const char *file = "/ticks"; ///< below the state folder

struct Ticker {
    char name[32];
    uint64_t ticks;
    uint64_t cpuNs; ///< of the work that its ticks have called
};
} // namespace tickspy
