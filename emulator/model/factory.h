// Back to what the device was at delivery.
#pragma once

#include "emulator/model/registers.h"

namespace factory
{
/// What a reset spares; cables stay plugged in all of them.
enum Kind { keepAddress = 0, everything = 1, keepUserData = 2 };

/// False if there is no such kind.
bool reset(Registers &registers, int kind);
} // namespace factory
