#include "emulator/bus/presets.h"

#include <QTextCodec>

namespace presets
{
namespace
{
constexpr quint32 firstRecord = 0x3000;
constexpr int recordLength = 0x1200;
constexpr quint32 liveRecord = firstRecord + count * recordLength;
constexpr int storedOffset = 10;
constexpr int nameOffset = 512;
constexpr int nameLength = 19;
constexpr char storedMark = char(168);
constexpr char noneInUse = char(255);

void save(FlashImage &flash, int preset)
{
    const QByteArray old = flash.read(recordAddress(preset), recordLength);
    QByteArray bytes = flash.read(liveRecord, recordLength);
    bytes[storedOffset] = storedMark;
    bytes.replace(nameOffset, nameLength, old.mid(nameOffset, nameLength));
    flash.write(recordAddress(preset), bytes);
}

/// The live record takes what the preset holds of it, where it holds anything.
void load(FlashImage &flash, int preset)
{
    const QByteArray bytes = flash.read(recordAddress(preset), recordLength);
    constexpr int liveStart = 0x400;
    const QByteArray live = bytes.mid(liveStart);
    if (live.count('\0') != live.size())
        flash.write(liveRecord + liveStart, live);
    flash.write(inUseAddress, QByteArray(1, char(preset)));
}

void clear(FlashImage &flash, int preset)
{
    flash.write(recordAddress(preset), QByteArray(recordLength, 0));
    if (flash.read(inUseAddress, 1) == QByteArray(1, char(preset)))
        flash.write(inUseAddress, QByteArray(1, noneInUse));
}

void copy(FlashImage &flash, int from, int to)
{
    flash.write(recordAddress(to), flash.read(recordAddress(from), recordLength));
}

bool isPreset(int number)
{
    return number >= 0 && number < count;
}
} // namespace

quint32 recordAddress(int preset)
{
    return firstRecord + quint32(preset * recordLength);
}

QByteArray record(const QString &name)
{
    QByteArray bytes(recordLength, 0);
    bytes[storedOffset] = storedMark;
    const QByteArray text = QTextCodec::codecForName("GB2312")->fromUnicode(name).left(nameLength - 1);
    return bytes.replace(nameOffset, text.size(), text);
}

void handleWrite(FlashImage &flash, quint32 address, const QByteArray &bytes)
{
    const auto preset = [&bytes](int offset) {
        return offset < bytes.size() ? int(quint8(bytes[offset])) : -1;
    };
    if (address == 0x13510100 && isPreset(preset(0)))
        load(flash, preset(0));
    else if (address == 0x13510102 && isPreset(preset(0)))
        save(flash, preset(0));
    else if (address == 0x13510104 && isPreset(preset(1)))
        clear(flash, preset(1));
    else if (address == 0x13510106 && isPreset(preset(1)) && isPreset(preset(3)))
        copy(flash, preset(1), preset(3));
}
} // namespace presets
