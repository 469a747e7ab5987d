// A packet that asks for bytes from an address. See the base for ownership and thread.
#pragma once

#include "framework/protocol/packet/packagerequestproto3rd.h"

namespace VASK
{
class PackageRequestReadData3rd : public PackageRequestProto3rd
{
public:
    PackageRequestReadData3rd(const QString &portName, unsigned char source, unsigned char destination,
                              unsigned char deviceType, unsigned char port, unsigned short boardIndex,
                              unsigned short highAddr, unsigned short lowAddr, unsigned char packageTypeByte,
                              int timeOut, const QString &tag, CommResults commResult, unsigned short length)
        : PackageRequestProto3rd(portName, source, destination, deviceType, port, boardIndex, highAddr,
                                 lowAddr, packageTypeByte, timeOut, tag, commResult, length, PROTO_Read,
                                 READ_Plain)
    {
    }

    /// How many bytes are asked for.
    int dataLength() const { return getReplyDataLength(); }
    void setDataLength(unsigned short length) { setLength(length); }
};
} // namespace VASK
