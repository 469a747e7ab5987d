// The part of an input that a layer shows; every layer keeps one for every input. Main thread.
#pragma once

#include "emulator/model/subject.h"

namespace crops
{
struct Crop {
    bool on = false;
    int x = 0, y = 0, width = 0, height = 0;
};

constexpr int recordLength = 11;
constexpr quint32 firstRegister = 0x13024000; ///< of the block that holds all records
quint32 recordAddress(int layer, int input);
Crop read(const Registers &registers, int layer, int input);
/// The crops of the inputs that the layers show now.
Reports reportShown(const Registers &registers);
} // namespace crops
