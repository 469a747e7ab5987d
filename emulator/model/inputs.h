// The inputs of the device: what is plugged in and what the device tells about it. They stand in the order in
// which the device lists them, the synchronisation reference last. Main thread.
#pragma once

#include "emulator/model/subject.h"
#include "emulator/model/videomode.h"

namespace inputs
{
enum Input {
    hdmi1,
    hdmi2,
    dvi,
    sdi,
    dvi2,
    opt1,
    opt2,
    mosaic,
    reference,
    count,
};

enum class Sampling : quint8 { rgb444, ycc422, ycc444 };

struct Signal {
    bool stable = false;
    VideoMode mode;
    Sampling sampling = Sampling::rgb444;

    /// In hundredths of a hertz, as its period tells it.
    int rateCentiHz() const { return mode.rateCentiHz; }
};

/// The input of that name, -1 if there is none.
int byName(const QString &name);
/// The input that the device knows by that code, -1 if there is none.
int byCode(int sourceCode);
const char *nameOf(int input);
int codeOf(int input);
/// The sampling of that name, such as "ycc422"; nothing if there is none.
std::optional<Sampling> samplingByName(const QString &name);

Signal signalOf(const Registers &registers, int input);
/// What was plugged in before the input was last without a signal: not live, 1920x1080@60 if there was
/// nothing.
Signal lastSignal(const Registers &registers, int input);
/// What happens when a source is plugged in, pulled or changed: the input's record and what follows from it.
Reports setSignal(Registers &registers, int input, const Signal &signal);
/// The record of an input as the flash and the reports hold it.
QByteArray record(int input, const Signal &signal);
quint32 recordAddress(int input);
constexpr int recordLength = 32;
} // namespace inputs
