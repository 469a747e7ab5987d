#include "emulator/model/registers.h"

#include <QtEndian>

namespace
{
quint64 keyOf(quint8 deviceType, quint32 address)
{
    return quint64(deviceType) << 32 | address;
}
} // namespace

QByteArray Registers::read(quint8 deviceType, quint32 address, int length) const
{
    QByteArray bytes(length, 0);
    for (int i = 0; i < length; ++i) {
        const quint32 at = address + quint32(i);
        const qint64 mirror = FlashImage::mirrorAddress(deviceType, at);
        bytes[i] = mirror >= 0 ? m_flash.byte(quint32(mirror)) : m_volatile.value(keyOf(deviceType, at));
    }
    return bytes;
}

void Registers::write(quint8 deviceType, quint32 address, const QByteArray &bytes)
{
    for (int i = 0; i < bytes.size(); ++i) {
        const quint32 at = address + quint32(i);
        const qint64 mirror = FlashImage::mirrorAddress(deviceType, at);
        if (mirror >= 0)
            m_flash.write(quint32(mirror), bytes.mid(i, 1));
        else
            m_volatile[keyOf(deviceType, at)] = bytes[i];
    }
}

int Registers::u8(quint32 address) const
{
    return quint8(read(address, 1)[0]);
}

int Registers::u16(quint32 address) const
{
    return qFromLittleEndian<quint16>(read(address, 2).constData());
}

void Registers::setU8(quint32 address, int value)
{
    write(address, QByteArray(1, char(value)));
}
