// What the device finds out about itself. Main thread.
#pragma once

#include "emulator/model/subject.h"

namespace selftest
{
/// The register that asks for a self test.
RegisterRow row();
} // namespace selftest
