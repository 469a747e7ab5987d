// A packet that writes bytes at an address. See the base for ownership and thread.
#pragma once

#include "framework/protocol/packet/packagerequestproto3rd.h"

namespace VASK
{
class PackageRequestWriteData : public PackageRequestProto3rd
{
public:
    /// Takes the first length bytes of the data; a caller gives at least so many, what lacks is sent as 0.
    PackageRequestWriteData(const QString &portName, unsigned char source, unsigned char destination,
                            unsigned char deviceType, unsigned char port, unsigned short boardIndex,
                            unsigned short highAddr, unsigned short lowAddr, unsigned char packageTypeByte,
                            int timeOut, const QString &tag, CommResults commResult, bool flag,
                            const QByteArray &data, unsigned short length)
        : PackageRequestProto3rd(portName, source, destination, deviceType, port, boardIndex, highAddr,
                                 lowAddr, packageTypeByte, timeOut, tag, commResult, flag,
                                 data.leftJustified(length, '\0', true), length, PROTO_Write, READ_Plain)
    {
    }
};
} // namespace VASK
