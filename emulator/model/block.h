// Bytes of a register block or a record of the flash, with little-endian numbers at offsets. Any one thread.
#pragma once

#include <QByteArray>
#include <QtEndian>

class Block
{
public:
    explicit Block(int length) : m_bytes(length, 0) {}
    explicit Block(const QByteArray &bytes, int length) : m_bytes(bytes.left(length))
    {
        m_bytes.append(QByteArray(length - m_bytes.size(), 0));
    }

    Block &u8(int offset, int number) { return put(offset, quint8(number)); }
    Block &u16(int offset, int number) { return put(offset, quint16(number)); }
    Block &i32(int offset, int number) { return put(offset, qint32(number)); }

    int u8(int offset) const { return get<quint8>(offset); }
    int u16(int offset) const { return get<quint16>(offset); }
    int i32(int offset) const { return get<qint32>(offset); }

    operator QByteArray() const { return m_bytes; }

private:
    template <class Number> Block &put(int offset, Number number)
    {
        Q_ASSERT(offset + int(sizeof number) <= m_bytes.size());
        qToLittleEndian(number, m_bytes.data() + offset);
        return *this;
    }
    template <class Number> Number get(int offset) const
    {
        Q_ASSERT(offset + int(sizeof(Number)) <= m_bytes.size());
        return qFromLittleEndian<Number>(m_bytes.constData() + offset);
    }

    QByteArray m_bytes;
};
