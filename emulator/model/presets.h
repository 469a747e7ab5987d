// The device's presets: ten records of the flash that keep layers, crops and pictures, obeyed by four
// registers.
#pragma once

#include "emulator/model/subject.h"

namespace presets
{
constexpr int count = 10;
constexpr quint32 inUseAddress = 0x2F10;
constexpr char noneInUse = char(255);
constexpr int recordLength = 0x1200;

struct Preset {
    bool stored = false;
    bool inUse = false;
    QString name; ///< may be empty
};

Preset read(const FlashImage &flash, int preset);
/// Where the record of a preset stands, the first being 0.
quint32 recordAddress(int preset);
/// Where the record of what is on the wall now stands, laid out as theirs.
quint32 liveAddress();
/// A record of that content, stored under that name.
QByteArray record(const QByteArray &live, const QString &name);
/// One line a preset.
QStringList list(const FlashImage &flash);
} // namespace presets
