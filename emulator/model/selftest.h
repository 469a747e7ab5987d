// What the device finds out about itself. All is well until it is told otherwise. Main thread.
#pragma once

#include "emulator/model/subject.h"

namespace selftest
{
/// The register that asks for a self test.
RegisterRow row();

/// The value of that name is at fault and reads so from the next self test on. False for a name that the
/// device does not have or a text that its records cannot carry.
bool setFault(Registers &registers, const QString &name, const QString &text);
/// The value of that name is as it should be again; all of them without a name. False for an unknown name.
bool heal(Registers &registers, const QString &name = QString());
/// The values at fault in plain text.
QString describe(const Registers &registers);
} // namespace selftest
