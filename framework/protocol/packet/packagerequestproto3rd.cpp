#include "framework/protocol/packet/packagerequestproto3rd.h"

#include "framework/protocol/packet/packageframe.h"

namespace VASK
{
PackageRequestProto3rd::PackageRequestProto3rd(
    const QString &portName, unsigned char source, unsigned char destination, unsigned char deviceType,
    unsigned char port, unsigned short boardIndex, unsigned short highAddr, unsigned short lowAddr,
    unsigned char packageTypeByte, int timeOut, const QString &tag, CommResults commResult, bool flag,
    const QByteArray &data, unsigned short length, enum_ProtoType protoType, ReadTypes readType)
    : PackageBase(timeOut, tag, commResult, protoType, readType), m_portName(portName), m_source(source),
      m_destination(destination), m_deviceType(deviceType), m_port(port), m_boardIndex(boardIndex),
      m_highAddr(highAddr), m_lowAddr(lowAddr), m_packageTypeByte(packageTypeByte), m_flag(flag),
      m_data(data), m_length(length)
{
}

PackageRequestProto3rd::PackageRequestProto3rd(const QString &portName, unsigned char source,
                                               unsigned char destination, unsigned char deviceType,
                                               unsigned char port, unsigned short boardIndex,
                                               unsigned short highAddr, unsigned short lowAddr,
                                               unsigned char packageTypeByte, int timeOut, const QString &tag,
                                               CommResults commResult, unsigned short length,
                                               enum_ProtoType protoType, ReadTypes readType)
    : PackageRequestProto3rd(portName, source, destination, deviceType, port, boardIndex, highAddr, lowAddr,
                             packageTypeByte, timeOut, tag, commResult, false, QByteArray(), length,
                             protoType, readType)
{
}

QByteArray PackageRequestProto3rd::ParseSendRequest()
{
    const int dataSize = getProtoType() == PROTO_Write ? m_length : 0;
    QByteArray frame(frameOverhead + dataSize, '\0');
    frame.replace(FRAME_Header, requestHeader.size(), requestHeader);
    putLittleEndian(frame, FRAME_SerialNum, 1, getSerialNum());
    putLittleEndian(frame, FRAME_Source, 1, m_source);
    putLittleEndian(frame, FRAME_Destination, 1, m_destination);
    putLittleEndian(frame, FRAME_DeviceType, 1, m_deviceType);
    putLittleEndian(frame, FRAME_Port, 1, m_port);
    putLittleEndian(frame, FRAME_BoardIndex, 2, m_boardIndex);
    putLittleEndian(frame, FRAME_ProtoType, 1, static_cast<unsigned int>(getProtoType()));
    putLittleEndian(frame, FRAME_PackageType, 1, m_packageTypeByte);
    putLittleEndian(frame, FRAME_LowAddress, 2, m_lowAddr);
    putLittleEndian(frame, FRAME_HighAddress, 2, m_highAddr);
    putLittleEndian(frame, FRAME_Length, 2, m_length);
    const QByteArray payload = m_data.left(dataSize);
    frame.replace(FRAME_Data, payload.size(), payload);

    unsigned short sum = 0;
    CacuRevise(frame, FRAME_AckCode, FRAME_Data - FRAME_AckCode + dataSize, &sum);
    putLittleEndian(frame, FRAME_Data + dataSize, frameChecksumSize, sum);
    setDataProto(frame);
    return frame;
}

bool PackageRequestProto3rd::unPackageReply(const QByteArray &frame, bool)
{
    if (!ReviseOk(frame, 0, frame.size()))
        return false;
    const auto byteAt = [&frame](int offset) {
        return static_cast<unsigned char>(littleEndianAt(frame, offset, 1));
    };
    const auto wordAt = [&frame](int offset) {
        return static_cast<unsigned short>(littleEndianAt(frame, offset, 2));
    };
    setCommResults(CommResults(byteAt(FRAME_AckCode)));
    setSerialNum(byteAt(FRAME_SerialNum));
    m_source = byteAt(FRAME_Source);
    m_destination = byteAt(FRAME_Destination);
    m_deviceType = byteAt(FRAME_DeviceType);
    m_port = byteAt(FRAME_Port);
    m_boardIndex = wordAt(FRAME_BoardIndex);
    setProtoType(enum_ProtoType(byteAt(FRAME_ProtoType)));
    m_packageTypeByte = byteAt(FRAME_PackageType);
    if (m_packageTypeByte == PACKAGE_Marked)
        setPackageType(PACKAGE_Marked);
    m_lowAddr = wordAt(FRAME_LowAddress);
    m_highAddr = wordAt(FRAME_HighAddress);
    m_length = wordAt(FRAME_Length);

    const bool knownType = getProtoType() == PROTO_Read || getProtoType() == PROTO_Write;
    if (m_length != 0 && frame.size() > frameOverhead && knownType)
        m_data += frame.mid(FRAME_Data, qMin<int>(m_length, frame.size() - frameOverhead));
    return true;
}
} // namespace VASK
