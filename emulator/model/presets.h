// The device's presets: ten records of the flash that keep layers, crops and pictures, obeyed by four
// registers. Main thread.
#pragma once

#include "emulator/bus/flashmap.h"
#include "emulator/model/subject.h"

namespace presets
{
constexpr int count = flashmap::presetCount;
constexpr char noneInUse = char(255);
constexpr int recordLength = flashmap::presetLength;

struct Preset {
    bool stored = false;
    bool inUse = false;
    QString name; ///< may be empty
};

Preset read(const FlashImage &flash, int preset);
/// Where the record of a preset stands, the first being 0.
quint32 recordAddress(int preset);
/// A record of that content, stored under that name.
QByteArray record(const QByteArray &live, const QString &name);
/// One line a preset.
QStringList list(const FlashImage &flash);
} // namespace presets
