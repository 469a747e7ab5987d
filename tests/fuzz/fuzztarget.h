// The one shape of a fuzz target: a name, and what it does with an input that libFuzzer invents. All targets
// are one program; the name by which it is called says which of them runs. To add one is a file with such a
// line, and a folder of seeds (seeds/NAME); a dictionary (dict/NAME.dict) where it helps.
#pragma once

#include <QByteArray>
#include <cstdio>
#include <cstdlib>
#include <random>

namespace fuzz
{
struct Target {
    const char *name;
    void (*feed)(const QByteArray &input);
    int longest;               ///< bytes of an input
    void (*setUp)() = nullptr; ///< once, before the first input; an application runs then
    /// Changes an input so that it keeps its form.
    QByteArray (*mutate)(const QByteArray &input, std::mt19937 &random) = nullptr;
};

int add(const Target &target);

/// What must hold, or the input is a finding.
inline void require(bool holds, const char *what)
{
    if (holds)
        return;
    std::fprintf(stderr, "does not hold: %s\n", what);
    std::abort();
}

/// The bytes changed as libFuzzer does it without knowing their form.
QByteArray mutateBytes(const QByteArray &bytes, int longest);
} // namespace fuzz

#define FPD_FUZZ_TARGET(name, ...) static const int registered_##name = fuzz::add({#name, __VA_ARGS__});
#define REQUIRE(condition) fuzz::require(bool(condition), #condition)
