#include "emulator/model/registers.h"

#include <QtEndian>

namespace
{
constexpr quint32 blockLength = 256;
constexpr int mostBlocks = 32 * 1024; ///< 8 MB, far more than a device has registers

quint64 blockOf(quint8 deviceType, quint32 address)
{
    return quint64(deviceType) << 32 | address / blockLength;
}
} // namespace

char Registers::volatileByte(quint8 deviceType, quint32 address) const
{
    const auto block = m_volatile.constFind(blockOf(deviceType, address));
    return block == m_volatile.constEnd() ? '\0' : block->at(int(address % blockLength));
}

void Registers::setVolatileByte(quint8 deviceType, quint32 address, char byte)
{
    auto block = m_volatile.find(blockOf(deviceType, address));
    if (block == m_volatile.end()) {
        if (m_volatile.size() >= mostBlocks) {
            ++m_lost;
            return;
        }
        block = m_volatile.insert(blockOf(deviceType, address), QByteArray(int(blockLength), '\0'));
    }
    (*block)[int(address % blockLength)] = byte;
}

QByteArray Registers::read(quint8 deviceType, quint32 address, int length) const
{
    QByteArray bytes(length, 0);
    for (int i = 0; i < length; ++i) {
        const quint32 at = address + quint32(i);
        const qint64 mirror = FlashImage::mirrorAddress(deviceType, at);
        bytes[i] = mirror >= 0 ? m_flash.byte(quint32(mirror)) : volatileByte(deviceType, at);
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
            setVolatileByte(deviceType, at, bytes[i]);
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
