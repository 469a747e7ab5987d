// Where things lie in the parameter flash. Main thread, as all of the device.
#pragma once

#include <QtGlobal>

namespace flashmap
{
// What the panel reads at start.
constexpr quint32 device = 0x2000;
constexpr quint32 stereo = 0x2400;
constexpr quint32 emitter = 0x2407;
constexpr quint32 outputMode = 0x2F00;
constexpr quint32 presetInUse = 0x2F10;
constexpr quint32 firstPreset = 0x3000;
constexpr quint32 output = 0xF600;
constexpr quint32 inputBackup = 0x10600;
constexpr quint32 loadArea = 0x12600;
constexpr quint32 inputs = 0x15600;
constexpr quint32 inputSwitches = inputs + 48; ///< HDCP, then sound: two bytes an input
constexpr quint32 renamed = 0xD14000;
constexpr quint32 name = 0xD14100;

// Lengths of blocks.
constexpr int deviceLength = 161;
constexpr int outputLength = 16;
constexpr int inputsLength = 64;
constexpr int nameLength = 64;
constexpr int smallBlocksLength = 0x1000; ///< all from the device's to the first preset

// Presets; behind them, laid out in the same way, the live record: what is on the wall now.
constexpr int presetCount = 10;
constexpr int presetLength = 0x1200;
constexpr quint32 live = firstPreset + presetCount * presetLength;
constexpr int windowsOffset = 0x400;
constexpr int picturesOffset = 0x600;
constexpr int cropsOffset = 0xA00;
constexpr int windowsLength = 160;
constexpr int picturesLength = 160;
constexpr int cropsLength = 412;

/// Says that the image is of this device.
constexpr quint32 mark = 0xDFFF00;

/// What the device keeps for itself.
constexpr quint32 own = 0xE00000;
constexpr int ownLength = 0x2000;
} // namespace flashmap
