// What the device does as a whole: its services, loading of cabinets, soft calibration, low latency. Main
// thread.
#pragma once

#include "emulator/model/subject.h"

namespace service
{
/// Tells which service has come up.
constexpr quint32 upRegister = 0x14000000;

/// A PC's software starts or ends the calibration of the wall.
Reports calibrate(Registers &registers, bool on);
} // namespace service
