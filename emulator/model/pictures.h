// Picture quality of the inputs. A single value is written by the number of its input in the device's list;
// the records lie in an order of their own. Main thread.
#pragma once

#include "emulator/model/subject.h"

namespace pictures
{
constexpr int count = 5;

struct Picture {
    int brightness = 50, contrast = 50, saturation = 50;
    int hue = 0; ///< degrees, may be negative
    bool fullRange = false;
};

/// The input whose picture a record holds.
int inputOf(int record);
Picture read(const Registers &registers, int record);
QByteArray bytes(int record, const Picture &picture);
Reports reportAll(const Registers &registers);
} // namespace pictures
