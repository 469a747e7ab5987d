#include "framework/protocol/bus/datagram.h"

#include "framework/protocol/bus/ipcheaderinfo.h"
#include "framework/protocol/packet/packageframe.h"
#include "framework/protocol/packet/registeraddress.h"

namespace VASK
{
bool unPackageReplyType(const QByteArray &packet, PackageType &type)
{
    if (!PackageBase::ReviseOk(packet, 0, packet.size()))
        return false;
    type = littleEndianAt(packet, FRAME_PackageType, 1) == PACKAGE_Marked ? PACKAGE_Marked : PACKAGE_Plain;
    return true;
}

namespace
{
void takePacket(Datagram &datagram, const QByteArray &packet)
{
    PackageType type = PACKAGE_Plain;
    datagram.kind = DATAGRAM_BadChecksum;
    if (!unPackageReplyType(packet, type))
        return;
    datagram.kind = DATAGRAM_Packet;
    datagram.packet = packet;
}

bool isHeartbeat(const QByteArray &bytes)
{
    return bytes.size() >= FRAME_Address + 4 && littleEndianAt(bytes, FRAME_Address, 4) == HeartbeatAddr;
}
} // namespace

Datagram sortDatagram(const QByteArray &bytes)
{
    Datagram datagram;
    const bool request = bytes.startsWith(requestHeader);
    if (!request && !bytes.startsWith(replyHeader)) {
        const IpcMessage message = parseIpcMessage(bytes);
        datagram.hasLabels = true;
        datagram.largeLabel = message.largeLabel;
        datagram.smallLabel = message.smallLabel;
        if (message.largeLabel == LABEL_Packet)
            takePacket(datagram, message.payload);
        return datagram;
    }
    // A packet that ends before its type counts as a read.
    const unsigned int type = littleEndianAt(bytes, FRAME_ProtoType, 1);
    if (isHeartbeat(bytes))
        datagram.kind = DATAGRAM_Heartbeat;
    else if (request && type == PROTO_Read)
        datagram.kind = DATAGRAM_ReadRequest;
    else if (!request && type == PROTO_Write)
        datagram.kind = DATAGRAM_WriteResponse;
    else
        takePacket(datagram, bytes);
    return datagram;
}
} // namespace VASK
