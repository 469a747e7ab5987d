// What comes from the bus, fed to every decoder of frames and messages: no byte of it may crash the panel,
// and what a decoder accepts must hold together.

#include "framework/protocol/bus/datagram.h"
#include "framework/protocol/bus/ipcheaderinfo.h"
#include "framework/protocol/packet/packageframe.h"
#include "framework/protocol/packet/packagerequestproto3rd.h"
#include "tests/fuzz/fuzztarget.h"

using namespace VASK;

namespace
{
void decodeFrame(const QByteArray &frame)
{
    PackageRequestProto3rd package;
    const bool accepted = package.unPackageReply(frame);
    PackageType type = PACKAGE_Plain;
    REQUIRE(accepted == unPackageReplyType(frame, type));
    if (!accepted) {
        REQUIRE(package.data().isEmpty() && package.getAddress() == 0);
        return;
    }
    REQUIRE(type == package.getPackageType());
    REQUIRE(package.data().size() <= package.getReplyDataLength());
    REQUIRE(package.data().size() <= qMax(0, frame.size() - frameOverhead));
    // What was read can be sent again, as long as it says it is.
    const QByteArray again = package.ParseSendRequest();
    const int payload = package.getProtoType() == PROTO_Write ? package.getReplyDataLength() : 0;
    REQUIRE(again.size() == frameOverhead + payload);
    PackageRequestProto3rd copy;
    REQUIRE(copy.unPackageReply(again) && copy.getAddress() == package.getAddress());
}

void decodeMessage(const QByteArray &bytes)
{
    const IpcMessage message = parseIpcMessage(bytes);
    REQUIRE(message.payload.size() <= qMax(0, bytes.size() - ipcHeaderSize));
    if (isWholeIpcMessage(bytes.constData(), static_cast<unsigned int>(bytes.size())))
        REQUIRE(ipcHeaderSize + message.payload.size() == ipcMessageLength(bytes.constData()));
    QByteArray payload;
    const bool unpacked = IpcHeaderInfo().UnpackMessage(bytes.constData(), bytes.size(), payload);
    REQUIRE(payload.size() == (unpacked ? bytes.size() - ipcHeaderSize : 0));
    decodeFrame(message.payload);
}

void decode(const QByteArray &bytes)
{
    const Datagram datagram = sortDatagram(bytes);
    REQUIRE((datagram.kind == DATAGRAM_Packet) == !datagram.packet.isEmpty());
    decodeFrame(datagram.packet);
    decodeFrame(bytes);
    decodeMessage(bytes);
}

void feed(const QByteArray &bytes)
{
    decode(bytes);
    // The same with a good checksum, which chance hardly finds.
    QByteArray checked = bytes + QByteArray(frameChecksumSize, '\0');
    unsigned short sum = 0;
    PackageBase::CacuRevise(checked, FRAME_AckCode, bytes.size() - FRAME_AckCode, &sum);
    putLittleEndian(checked, bytes.size(), frameChecksumSize, sum);
    decode(checked);
}
} // namespace

FPD_FUZZ_TARGET(decoders, feed, 1024)
