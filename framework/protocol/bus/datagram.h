// Sorts what comes up from the transport: which datagrams carry something for this side, and the packet in
// them. Pure functions, any thread.
#pragma once

#include "framework/protocol/packet/packagebase.h"

namespace VASK
{
enum DatagramKind : int {
    DATAGRAM_Heartbeat,     ///< a host holds the device
    DATAGRAM_ReadRequest,   ///< nobody reads from the panel
    DATAGRAM_WriteResponse, ///< nobody waits for it
    DATAGRAM_BadChecksum,
    DATAGRAM_Packet,  ///< a read response, or a write that the device pushes
    DATAGRAM_Foreign, ///< a bus message about something else
};

struct Datagram {
    DatagramKind kind = DATAGRAM_Foreign;
    QByteArray packet; ///< set for DATAGRAM_Packet
    /// The datagram came with the header of the bus; its labels.
    bool hasLabels = false;
    int largeLabel = 0;
    int smallLabel = 0;
};

Datagram sortDatagram(const QByteArray &bytes);

/// Checks the sum over the whole packet. False on a bad one; else tells the package type.
bool unPackageReplyType(const QByteArray &packet, PackageType &type);
} // namespace VASK
