// The registers of the device as bytes at addresses. What the flash mirrors lives there, so that it outlives
// a power cut; the rest lives as long as this object. Main thread.
#pragma once

#include "emulator/bus/flashimage.h"

#include <QHash>

/// Where a register lives.
enum DeviceType : quint8 {
    sendingSide = 0,
    receivingCard = 1,
    stereoEmitter = 4,
};

class Registers
{
public:
    explicit Registers(FlashImage &flash) : m_flash(flash) {}

    FlashImage &flash() const { return m_flash; }

    QByteArray read(quint8 deviceType, quint32 address, int length) const;
    void write(quint8 deviceType, quint32 address, const QByteArray &bytes);

    /// Registers of the sending side, little-endian.
    QByteArray read(quint32 address, int length) const { return read(sendingSide, address, length); }
    void write(quint32 address, const QByteArray &bytes) { write(sendingSide, address, bytes); }
    int u8(quint32 address) const;
    int u16(quint32 address) const;
    void setU8(quint32 address, int value);

    /// Forgets what the flash does not hold.
    void powerOff() { m_volatile.clear(); }
    /// Bytes that were written where the device has no memory left; they read as 0.
    qint64 lost() const { return m_lost; }

private:
    char volatileByte(quint8 deviceType, quint32 address) const;
    void setVolatileByte(quint8 deviceType, quint32 address, char byte);

    FlashImage &m_flash;
    QHash<quint64, QByteArray> m_volatile; ///< blocks of the same length, by device type and address
    qint64 m_lost = 0;
};
