// What the device works as. Main thread.
#pragma once

#include "emulator/model/registers.h"

namespace workmode
{
constexpr quint32 modeRegister = 0x1300002C;

/// One window, and the output follows the reference alone.
bool isSendingCard(const Registers &registers);
QString text(const Registers &registers);
} // namespace workmode
