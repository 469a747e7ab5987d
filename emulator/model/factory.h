// Back to what the device was at delivery. Main thread.
#pragma once

#include "emulator/model/subject.h"

namespace factory
{
/// The register that asks for a reset, by its kind.
RegisterRow resetRow();
} // namespace factory
