// Frames put together by hand, independent of the panel's own encoder.
#pragma once

#include <QByteArray>

namespace frames
{
struct Fields {
    QByteArray header = QByteArray::fromHex("55aa");
    int ackCode = 0;
    int serial = 0;
    int source = 0xFE;
    int destination = 0;
    int deviceType = 0;
    int port = 0xFF;
    int board = 0xFFFF;
    int protoType = 1;
    int packageType = 0;
    quint32 address = 0;
    int length = -1; ///< -1: as many as there is payload
    QByteArray payload;
};

inline QByteArray number(quint32 value, int width)
{
    QByteArray bytes;
    for (; width > 0; --width, value >>= 8)
        bytes += char(value);
    return bytes;
}

inline QByteArray withChecksum(QByteArray bytes)
{
    quint16 sum = 0x5555;
    for (int i = 2; i < bytes.size(); ++i)
        sum = quint16(sum + quint8(bytes[i]));
    return bytes + number(sum, 2);
}

inline QByteArray frame(const Fields &f)
{
    return withChecksum(f.header + number(f.ackCode, 1) + number(f.serial, 1) + number(f.source, 1) +
                        number(f.destination, 1) + number(f.deviceType, 1) + number(f.port, 1) +
                        number(f.board, 2) + number(f.protoType, 1) + number(f.packageType, 1) +
                        number(f.address, 4) + number(f.length < 0 ? f.payload.size() : f.length, 2) +
                        f.payload);
}

/// A read reply of the sending side.
inline QByteArray report(quint32 address, const QByteArray &payload, int deviceType = 0, int serial = 0)
{
    Fields f;
    f.header = QByteArray::fromHex("aa55");
    f.serial = serial;
    f.deviceType = deviceType;
    f.protoType = 0;
    f.address = address;
    f.payload = payload;
    return frame(f);
}
} // namespace frames
