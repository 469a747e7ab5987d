#include "framework/protocol/bus/ipcheaderinfo.h"

#include "framework/protocol/packet/packageframe.h"

#include <QDebug>

namespace VASK
{
IpcHeaderInfo::IpcHeaderInfo(const QByteArray *payload, quint32 payloadLength, quint32 source,
                             quint32 constant, quint32 reserved1, quint32 reserved2, quint16 smallLabel,
                             quint16 largeLabel)
    : m_source(source), m_constant(constant), m_reserved1(reserved1), m_reserved2(reserved2),
      m_smallLabel(smallLabel), m_largeLabel(largeLabel), m_payloadLength(payloadLength), m_payload(payload)
{
}

IpcHeaderInfo::IpcHeaderInfo(const QByteArray *payload)
    : m_payloadLength(payload ? static_cast<quint32>(payload->size()) : 0), m_payload(payload)
{
}

bool IpcHeaderInfo::AssembleMessage(QByteArray &message)
{
    if (!m_payload)
        return false;
    qDebug() << "before:3" << m_payload->toHex();
    if (m_payloadLength < static_cast<quint32>(frameOverhead))
        return false;
    m_wholeSize = m_payloadLength + ipcHeaderSize;
    message = QByteArray(ipcHeaderSize, '\0');
    putLittleEndian(message, IPC_Source, 4, m_source);
    putLittleEndian(message, IPC_Constant, 4, m_constant);
    putLittleEndian(message, IPC_WholeSize, 4, m_wholeSize);
    putLittleEndian(message, IPC_Reserved1, 4, m_reserved1);
    putLittleEndian(message, IPC_Reserved2, 4, m_reserved2);
    putLittleEndian(message, IPC_SmallLabel, 2, m_smallLabel);
    putLittleEndian(message, IPC_LargeLabel, 2, m_largeLabel);
    putLittleEndian(message, IPC_PayloadLength, 4, m_payloadLength);
    message += *m_payload;
    return true;
}

bool IpcHeaderInfo::UnpackMessage(const char *message, int length, QByteArray &payload) const
{
    if (!message || length < ipcHeaderSize + frameOverhead)
        return false;
    payload.prepend(message + IPC_Payload, length - IPC_Payload);
    return true;
}

IpcMessage parseIpcMessage(const QByteArray &message)
{
    IpcMessage parsed;
    parsed.largeLabel = static_cast<short>(littleEndianAt(message, IPC_LargeLabel, 2));
    parsed.smallLabel = static_cast<short>(littleEndianAt(message, IPC_SmallLabel, 2));
    const unsigned int promised = littleEndianAt(message, IPC_PayloadLength, 4);
    const auto present = static_cast<unsigned int>(qMax(message.size() - IPC_Payload, 0));
    parsed.payload = message.mid(IPC_Payload, static_cast<int>(qMin(promised, present)));
    return parsed;
}

namespace
{
unsigned int payloadLength(const void *message)
{
    return littleEndianAt(QByteArray::fromRawData(static_cast<const char *>(message), ipcHeaderSize),
                          IPC_PayloadLength, 4);
}
} // namespace

bool isWholeIpcMessage(const void *message, unsigned int length)
{
    return length >= ipcHeaderSize && payloadLength(message) <= length - ipcHeaderSize;
}

int ipcMessageLength(const void *message)
{
    return ipcHeaderSize + static_cast<int>(payloadLength(message));
}
} // namespace VASK
