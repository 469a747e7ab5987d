#include "emulator/bus/wire.h"

#include <QDataStream>

namespace wire
{
namespace
{
constexpr int messageHeader = 28;
constexpr int frameHeader = 18;
constexpr int checksumBytes = 2;
constexpr quint16 checksumSeed = 0x5555;
constexpr quint16 requestMark = 0xAA55; ///< 55 AA on the wire
constexpr quint16 replyMark = 0x55AA;   ///< AA 55 on the wire

/// Over everything behind the two bytes of the mark.
quint16 checksum(const QByteArray &bytes)
{
    quint16 sum = checksumSeed;
    for (int i = 2; i < bytes.size(); ++i)
        sum = quint16(sum + quint8(bytes[i]));
    return sum;
}

QDataStream &littleEndian(QDataStream &stream)
{
    stream.setByteOrder(QDataStream::LittleEndian);
    return stream;
}
} // namespace

QByteArray encode(const Message &message)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    littleEndian(stream) << message.source << quint32(1) << quint32(messageHeader + message.payload.size())
                         << quint32(0) << quint32(0) << message.smallLabel << message.largeLabel
                         << quint32(message.payload.size());
    return bytes + message.payload;
}

std::optional<Message> decodeMessage(const QByteArray &bytes)
{
    if (bytes.size() < messageHeader)
        return std::nullopt;
    Message message;
    quint32 constant = 0, wholeSize = 0, reserved = 0, payloadSize = 0;
    QDataStream stream(bytes);
    littleEndian(stream) >> message.source >> constant >> wholeSize >> reserved >> reserved >>
        message.smallLabel >> message.largeLabel >> payloadSize;
    message.payload = bytes.mid(messageHeader);
    if (constant != 1 || wholeSize != quint32(bytes.size()) || payloadSize != quint32(message.payload.size()))
        return std::nullopt;
    return message;
}

QByteArray encode(const Frame &frame)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    littleEndian(stream) << (frame.isReply ? replyMark : requestMark) << frame.ack << frame.serial
                         << frame.source << frame.destination << frame.deviceType << frame.port << frame.board
                         << frame.operation << quint8(0) << frame.address << frame.length;
    stream.writeRawData(frame.data.constData(), frame.data.size());
    stream << checksum(bytes);
    return bytes;
}

std::optional<Frame> decodeFrame(const QByteArray &bytes)
{
    if (bytes.size() < frameHeader + checksumBytes)
        return std::nullopt;
    Frame frame;
    quint16 mark = 0, sum = 0;
    quint8 packageType = 0;
    QDataStream stream(bytes);
    littleEndian(stream) >> mark >> frame.ack >> frame.serial >> frame.source >> frame.destination >>
        frame.deviceType >> frame.port >> frame.board >> frame.operation >> packageType >> frame.address >>
        frame.length;
    if (mark != requestMark && mark != replyMark)
        return std::nullopt;
    frame.isReply = mark == replyMark;
    frame.data = bytes.mid(frameHeader, bytes.size() - frameHeader - checksumBytes);
    stream.skipRawData(frame.data.size());
    stream >> sum;
    if (sum != checksum(bytes.left(bytes.size() - checksumBytes)))
        return std::nullopt;
    const bool carriesData = frame.operation == Write ? !frame.isReply : frame.isReply;
    if (carriesData && frame.data.size() != frame.length)
        return std::nullopt;
    return frame;
}
} // namespace wire
