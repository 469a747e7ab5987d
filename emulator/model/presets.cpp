#include "emulator/model/presets.h"

#include "emulator/model/crops.h"
#include "emulator/model/layers.h"
#include "emulator/model/pictures.h"

#include <QTextCodec>

namespace presets
{
namespace
{
constexpr quint32 loadRegister = 0x13510100;
constexpr quint32 saveRegister = 0x13510102;
constexpr quint32 deleteRegister = 0x13510104; ///< 0, preset
constexpr quint32 copyRegister = 0x13510106;   ///< 0, from, 0, to

constexpr int storedOffset = 10;
constexpr int nameOffset = 512;
constexpr int nameLength = 19;
constexpr int contentOffset = flashmap::windowsOffset;
constexpr char storedMark = char(168);

QTextCodec *nameCodec()
{
    return QTextCodec::codecForName("GB2312");
}

bool isPreset(int number)
{
    return number >= 0 && number < count;
}

int numberAt(const Write &write, int offset)
{
    return offset < write.bytes.size() ? quint8(write.bytes[offset]) : -1;
}

/// A record that is written anew counts as stored, not as loaded.
void endUse(FlashImage &flash, int preset)
{
    if (read(flash, preset).inUse)
        flash.write(flashmap::presetInUse, QByteArray(1, noneInUse));
}

Reports save(Registers &registers, const RegisterRow &, int, const Write &write)
{
    const int preset = numberAt(write, 0);
    if (!isPreset(preset))
        return {};
    FlashImage &flash = registers.flash();
    endUse(flash, preset);
    QByteArray bytes = flash.read(flashmap::live, recordLength);
    bytes[storedOffset] = storedMark;
    bytes.replace(nameOffset, nameLength, flash.read(recordAddress(preset) + nameOffset, nameLength));
    flash.write(recordAddress(preset), bytes);
    return {};
}

Reports load(Registers &registers, const RegisterRow &, int, const Write &write)
{
    const int preset = numberAt(write, 0);
    FlashImage &flash = registers.flash();
    if (!isPreset(preset) || !read(flash, preset).stored)
        return {};
    flash.write(flashmap::live + contentOffset,
                flash.read(recordAddress(preset) + contentOffset, recordLength - contentOffset));
    flash.write(flashmap::presetInUse, QByteArray(1, char(preset)));
    return layers::reportUnknown(registers) + crops::reportShown(registers) + pictures::reportAll(registers);
}

Reports clear(Registers &registers, const RegisterRow &, int, const Write &write)
{
    const int preset = numberAt(write, 1);
    if (!isPreset(preset))
        return {};
    endUse(registers.flash(), preset);
    registers.flash().write(recordAddress(preset), QByteArray(recordLength, 0));
    return {};
}

Reports copy(Registers &registers, const RegisterRow &, int, const Write &write)
{
    const int from = numberAt(write, 1), to = numberAt(write, 3);
    FlashImage &flash = registers.flash();
    if (!isPreset(from) || !isPreset(to) || !read(flash, from).stored)
        return {};
    endUse(flash, to);
    flash.write(recordAddress(to), flash.read(recordAddress(from), recordLength));
    return {};
}

Reports noReports(const Registers &)
{
    return {}; // there is no register that tells them
}

QStringList describe(const Registers &registers)
{
    return list(registers.flash());
}
} // namespace

Preset read(const FlashImage &flash, int preset)
{
    const QByteArray bytes = flash.read(recordAddress(preset), recordLength);
    const QByteArray name = bytes.mid(nameOffset, nameLength);
    Preset result;
    result.stored = bytes.at(storedOffset) == storedMark;
    result.inUse = flash.byte(flashmap::presetInUse) == char(preset);
    result.name = nameCodec()->toUnicode(name.left(qstrnlen(name.constData(), nameLength)));
    return result;
}

quint32 recordAddress(int preset)
{
    return flashmap::firstPreset + quint32(preset * recordLength);
}

QByteArray record(const QByteArray &live, const QString &name)
{
    QByteArray bytes = live;
    bytes[storedOffset] = storedMark;
    const QByteArray text = nameCodec()->fromUnicode(name).left(nameLength - 1);
    return bytes.replace(nameOffset, text.size(), text);
}

QStringList list(const FlashImage &flash)
{
    QStringList lines;
    for (int number = 0; number < count; ++number) {
        const Preset preset = read(flash, number);
        const QString state = !preset.stored ? "blank" : preset.inUse ? "used" : "saved";
        lines.append(QString("preset %1: %2 %3").arg(number + 1).arg(state, preset.name).trimmed());
    }
    return lines;
}
} // namespace presets

Subject presetsSubject()
{
    return {"presets",
            {{presets::loadRegister, 1, 1, 0, presets::load},
             {presets::saveRegister, 1, 1, 0, presets::save},
             {presets::deleteRegister, 2, 1, 0, presets::clear},
             {presets::copyRegister, 4, 1, 0, presets::copy}},
            presets::noReports,
            presets::describe};
}
