// The bytes that travel between the panel and the device: messages of the bus and the register frames inside
// them. This is the device's own reading of the format, apart from the panel's on purpose.
#pragma once

#include <QByteArray>
#include <optional>

namespace wire
{
/// A message of the bus: 28 bytes of header, then the payload.
struct Message {
    quint32 source = 0;
    qint16 smallLabel = 1;
    qint16 largeLabel = 28;
    QByteArray payload;
};

QByteArray encode(const Message &message);
/// Nothing if the bytes are no whole message.
std::optional<Message> decodeMessage(const QByteArray &bytes);

enum Operation : quint8 { Read = 0, Write = 1 };

/// A read or write of registers, or the answer to one.
struct Frame {
    bool isReply = false;
    quint8 ack = 0;
    quint8 serial = 0;
    quint8 source = 0;
    quint8 destination = 0;
    quint8 deviceType = 0;
    quint8 port = 0;
    quint16 board = 0;
    quint8 operation = Read;
    quint32 address = 0;
    quint16 length = 0; ///< of the data; a read request asks for so many
    QByteArray data;
};

QByteArray encode(const Frame &frame);
/// Nothing if a byte is missing, too many or wrong.
std::optional<Frame> decodeFrame(const QByteArray &bytes);
} // namespace wire
