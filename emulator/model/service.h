// What the device does as a whole: its name, its services, self test, reset and soft calibration.
#pragma once

#include "emulator/model/subject.h"

namespace service
{
/// Gives the device a name, or takes it away if it is empty. At most 32 characters are kept.
Reports rename(Registers &registers, const QString &name);
QString nameOf(const FlashImage &flash);
/// The flash's bytes of a name.
QByteArray nameRecord(const QString &name);
/// A PC's software starts or ends the calibration of the wall.
Reports calibrate(Registers &registers, bool on);
} // namespace service
