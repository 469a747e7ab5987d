// Little-endian numbers and texts in bytes that may be too few: what is not there counts as 0. Any thread.
#pragma once

#include <QByteArray>
#include <QString>
#include <QtEndian>
#include <cstring>

namespace VASK
{
/// The number of width bytes, 1 to 4, at the offset.
inline quint32 littleEndianAt(const QByteArray &bytes, int offset, int width)
{
    quint32 number = 0;
    if (offset >= 0 && offset < bytes.size())
        memcpy(&number, bytes.constData() + offset, size_t(qMin(width, bytes.size() - offset)));
    return qFromLittleEndian(number);
}

/// A number as that many bytes, 1 to 8; what does not fit is cut off.
inline QByteArray littleEndian(qint64 number, int width)
{
    const qint64 ordered = qToLittleEndian(number);
    return QByteArray(reinterpret_cast<const char *>(&ordered), width);
}

/// Puts a number of width bytes at the offset, where there must be room for it.
inline void putLittleEndian(QByteArray &bytes, int offset, int width, quint32 number)
{
    bytes.replace(offset, width, littleEndian(number, width));
}

/// UTF-16, which ends with a zero or with the bytes.
inline QString utf16Text(const QByteArray &bytes)
{
    QString text(bytes.size() / int(sizeof(ushort)), Qt::Uninitialized);
    qFromLittleEndian<ushort>(bytes.constData(), text.size(), text.data());
    const int end = text.indexOf(QChar::Null);
    return end < 0 ? text : text.left(end);
}

/// The numbers of a block or report, each by its offset.
class ByteView
{
public:
    explicit ByteView(const QByteArray &bytes) : m_bytes(bytes) {}

    int u8(int offset) const { return int(littleEndianAt(m_bytes, offset, 1)); }
    int u16(int offset) const { return int(littleEndianAt(m_bytes, offset, 2)); }
    int u24(int offset) const { return int(littleEndianAt(m_bytes, offset, 3)); }
    int i32(int offset) const { return int(littleEndianAt(m_bytes, offset, 4)); }

private:
    const QByteArray &m_bytes;
};
} // namespace VASK
