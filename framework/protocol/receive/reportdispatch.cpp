#include "framework/protocol/receive/reportdispatch.h"

#include "framework/protocol/link/proto3rdreceiveparse.h"
#include "framework/protocol/packet/packagerequestproto3rd.h"
#include "framework/protocol/packet/registeraddress.h"

#include <QDebug>

namespace VASK
{
namespace
{
/// In the order of the addresses, which ends the search early.
constexpr MessageCheck g_scannerMsgCheck[] = {
    {ScannerSolidifyAddr, 1},      {MappingAddr, 1},
    {ScannerGammaAddr, 1},         {ScannerLightnessAddr, 1},
    {ScannerRedLightnessAddr, 1},  {ScannerGreenLightnessAddr, 1},
    {ScannerBlueLightnessAddr, 1}, {ScannerCabinetWidth, 4},
    {ScannerGrayDepthAddr, 1},     {ScannerGrayRealizeTypeAddr, 1},
    {ScannerGrayQueryAddr, 1},
};

stMessageHandle messageOf(const PackageRequestProto3rd &package, bool flag)
{
    stMessageHandle message;
    message.data = package.data();
    message.length = package.getReplyDataLength();
    message.address = package.getAddress();
    message.tag = package.getTag();
    message.ackCode = static_cast<unsigned char>(package.getAckCode());
    message.flag = flag;
    message.protoType = package.getProtoType();
    return message;
}

/// Cuts every register that lies whole inside the reply out of it.
void handleCardReply(const stMessageHandle &reply)
{
    const unsigned long long end = static_cast<unsigned long long>(reply.address) + reply.length - 1;
    for (const MessageCheck &check : g_scannerMsgCheck) {
        if (check.address > end) {
            qDebug() << "Handle control  return";
            return;
        }
        if (check.address < reply.address || check.address + check.length - 1 > end)
            continue;
        stMessageHandle part = reply;
        part.data =
            reply.data.mid(static_cast<int>(check.address - reply.address), static_cast<int>(check.length));
        part.length = check.length;
        part.address = check.address;
        Proto3rdReceiveParse::getInstance()->Parse3rdToDisplay(&part);
    }
}
} // namespace

void dispatchReport(const PackageRequestProto3rd &package, bool flag)
{
    const stMessageHandle message = messageOf(package, flag);
    if (package.getDeviceType() == TARGET_Sender)
        Proto3rdReceiveParse::getInstance()->Parse3rdToDisplay(&message);
    else if (package.getDeviceType() == TARGET_Scanner)
        handleCardReply(message);
}
} // namespace VASK
