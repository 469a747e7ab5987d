// A packet of the addressed register space: the fields of its frame, the making of the frame and the reading
// of a received one. Used where it is; see the base for ownership.
#pragma once

#include "framework/protocol/packet/packagebase.h"

namespace VASK
{
class PackageRequestProto3rd : public PackageBase
{
public:
    PackageRequestProto3rd() = default;
    PackageRequestProto3rd(const QString &portName, unsigned char source, unsigned char destination,
                           unsigned char deviceType, unsigned char port, unsigned short boardIndex,
                           unsigned short highAddr, unsigned short lowAddr, unsigned char packageTypeByte,
                           int timeOut, const QString &tag, CommResults commResult, bool flag,
                           const QByteArray &data, unsigned short length, enum_ProtoType protoType,
                           ReadTypes readType);
    PackageRequestProto3rd(const QString &portName, unsigned char source, unsigned char destination,
                           unsigned char deviceType, unsigned char port, unsigned short boardIndex,
                           unsigned short highAddr, unsigned short lowAddr, unsigned char packageTypeByte,
                           int timeOut, const QString &tag, CommResults commResult, unsigned short length,
                           enum_ProtoType protoType, ReadTypes readType);

    QByteArray data() const override { return m_data; }

    /// Builds the frame from the fields, keeps it (getDataProto) and returns it.
    QByteArray ParseSendRequest();
    /// Fills an empty package from a received frame. False, and nothing changes, on a bad checksum.
    bool unPackageReply(const QByteArray &frame, bool = false);

    bool getFlag() const { return m_flag; }
    const QString &getPortName() const { return m_portName; }
    unsigned char getDeviceType() const { return m_deviceType; }
    unsigned char getPort() const { return m_port; }
    unsigned short getBoardIndex() const { return m_boardIndex; }
    unsigned short getHighAddr() const { return m_highAddr; }
    unsigned short getLowAddr() const { return m_lowAddr; }
    unsigned int getAddress() const { return static_cast<unsigned int>(m_highAddr) << 16 | m_lowAddr; }
    /// The length field of the frame, which may promise more than data() holds.
    unsigned short getReplyDataLength() const { return m_length; }

protected:
    void setData(const QByteArray &data) { m_data = data; }
    void setLength(unsigned short length) { m_length = length; }

private:
    QString m_portName;
    unsigned char m_source = 0;
    unsigned char m_destination = 0;
    unsigned char m_deviceType = 0;
    unsigned char m_port = 0;
    unsigned short m_boardIndex = 0;
    unsigned short m_highAddr = 0;
    unsigned short m_lowAddr = 0;
    unsigned char m_packageTypeByte = 0;
    bool m_flag = false;
    QByteArray m_data;
    unsigned short m_length = 0;
};
} // namespace VASK
