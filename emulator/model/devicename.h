// The name that a PC has given the device. Main thread.
#pragma once

#include "emulator/model/subject.h"

namespace devicename
{
/// Gives the device a name, or takes it away if it is empty. At most 32 characters are kept.
Reports rename(Registers &registers, const QString &name);
/// Empty if it has none.
QString nameOf(const FlashImage &flash);
/// The flash's bytes of a name, and of whether there is one.
QByteArray record(const QString &name);
QByteArray mark(const QString &name);
} // namespace devicename
