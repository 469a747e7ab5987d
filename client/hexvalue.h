// Numbers as the console's words take them: the bytes of a register in hex.
#pragma once

#include <QByteArray>
#include <QString>
#include <QtEndian>

namespace frames
{
/// A number as it stands in a register, little-endian, in so many bytes.
inline QString le(qint64 value, int bytes)
{
    QByteArray data(int(sizeof value), 0);
    qToLittleEndian(value, data.data());
    return data.left(bytes).toHex();
}
} // namespace frames
