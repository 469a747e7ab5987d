// The device's presets: ten records of the flash, obeyed by four registers. Main thread.
#pragma once

#include "emulator/bus/flashimage.h"

namespace presets
{
constexpr quint32 inUseAddress = 0x2F10;
constexpr int count = 10;

/// Where the record of a preset stands, the first being 0.
quint32 recordAddress(int preset);
/// A stored record with that name.
QByteArray record(const QString &name);

/// Saves, loads, deletes or copies if the register is one of those.
void handleWrite(FlashImage &flash, quint32 address, const QByteArray &bytes);
} // namespace presets
