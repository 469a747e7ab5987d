// The state of the device as the engine reads it off items and process data: inputs, rates, the resolution
// text. Any thread: each read takes its own short lock.
#pragma once

#include "framework/engine/layeritems.h"
#include "framework/engine/modes.h"
#include "framework/engine/processdata.h"
#include "framework/protocol/inputcodes.h"
#include "menu/itemindex.h"

#include <QString>

namespace VASK
{
class ParaProcess;

constexpr int noInput = 255;

class DeviceView
{
public:
    explicit DeviceView(const ParaProcess &engine) : m_engine(engine) {}

    WorkMode workMode() const;
    bool followsSoftware() const; ///< output mode: the output follows the software configuration
    bool syncOn() const;
    /// 3D is on in a format that doubles the frame rate.
    bool doublesRate() const;

    /// The input with a source code of either family, noInput if there is none.
    int inputOfCode(int code) const;
    /// The input that the output is synchronised to.
    int syncInput() const;
    InputRecord input(int number) const;

    /// Rate of the chosen output row, hundredths of a hertz.
    int outputRowRate() const;
    /// Rate that the output really has, without the doubling of 3D, hundredths of a hertz.
    int outputRate() const;
    /// The output follows the source of synchronisation, or runs free.
    bool syncAgrees() const;
    /// Rate to which the source of synchronisation is held, hundredths of a hertz.
    int syncReference() const;
    /// The rate that the output takes for a source: the source's where it can follow, else its own.
    /// Hundredths of a hertz.
    int followedRate(int rate, int outputRate) const;
    /// What the home screen shows of the output, such as "1920x1080@59.94". The rate goes in without the
    /// doubling of 3D, hundredths of a hertz.
    QString resolutionText(int rateCentiHz) const;

    /// A size and a rate in hundredths of a hertz as text.
    static QString sizeText(int width, int height, bool interlaced, int rateCentiHz);

private:
    int followedInput() const;
    /// How many input records have come, as far as their codes tell.
    int listedInputs() const;
    const ParaProcess &m_engine;
};
} // namespace VASK
