#include "framework/protocol/packet/tgprotocolparser3rd.h"

#include "menuconfig_k2860.h"

namespace VASK
{
namespace
{
constexpr unsigned char plainPackage = 0;
constexpr int usualTimeOut = 10;
constexpr unsigned char firstDestination = 0;
constexpr unsigned short firstBoard = 0;
const QString generalTag = QStringLiteral("2800");

/// Stands in the catalogue for a register that takes as many bytes as there are.
constexpr int lengthOfData = -1;

/// Where a packet goes, apart from its address.
struct Route {
    QString portName;
    unsigned char destination;
    unsigned char port;
    unsigned short boardIndex;
    int timeOut;
    bool flag;
    QString tag;
};

Route toAll(const QString &tag)
{
    return {DESPORTNAME, firstDestination, allPorts, allBoards, usualTimeOut, false, tag};
}

WritePackage write(const Route &to, DeviceType device, unsigned int address, const QByteArray &data,
                   int length)
{
    const int bytes = length == lengthOfData ? data.size() : length;
    return std::make_unique<PackageRequestWriteData>(
        to.portName, panelSource, to.destination, device, to.port, to.boardIndex,
        static_cast<unsigned short>(address >> 16), static_cast<unsigned short>(address), plainPackage,
        to.timeOut, to.tag, COMM_Success, to.flag, data, static_cast<unsigned short>(bytes));
}

ReadPackage read(const Route &to, DeviceType device, unsigned int address, unsigned int length)
{
    return std::make_unique<PackageRequestReadData3rd>(
        to.portName, panelSource, to.destination, device, to.port, to.boardIndex,
        static_cast<unsigned short>(address >> 16), static_cast<unsigned short>(address), plainPackage,
        to.timeOut, to.tag, COMM_Success, static_cast<unsigned short>(length));
}
} // namespace

#define FPD_ROUTE                                                                                            \
    {                                                                                                        \
        portName, destination, port, boardIndex, timeOut, flag, tag                                          \
    }
#define FPD_WRITE(name, address, bytes, device)                                                              \
    WritePackage TGProtocolParser3rd::name(FPD_WRITE_ARGUMENTS)                                              \
    {                                                                                                        \
        return write(FPD_ROUTE, device, address, data, bytes);                                               \
    }
#define FPD_WRITE_EACH(name, address, stride, bytes, device)                                                 \
    WritePackage TGProtocolParser3rd::name(FPD_WRITE_ARGUMENTS, unsigned char n)                             \
    {                                                                                                        \
        return write(FPD_ROUTE, device, address + stride * n, data, bytes);                                  \
    }
#define FPD_WRITE_PAIR(name, address, stride, stride2, bytes, device)                                        \
    WritePackage TGProtocolParser3rd::name(FPD_WRITE_ARGUMENTS, unsigned char n, unsigned char m)            \
    {                                                                                                        \
        return write(FPD_ROUTE, device, address + stride * n + stride2 * m, data, bytes);                    \
    }
#define FPD_READ(name, address, bytes)                                                                       \
    ReadPackage TGProtocolParser3rd::name(FPD_READ_ARGUMENTS)                                                \
    {                                                                                                        \
        constexpr bool flag = false;                                                                         \
        return read(FPD_ROUTE, TARGET_Sender, address, bytes);                                               \
    }
#include "framework/protocol/packet/registercatalogue.def"

#define FPD_ALIAS(name, target)                                                                              \
    WritePackage TGProtocolParser3rd::name(FPD_WRITE_ARGUMENTS)                                              \
    {                                                                                                        \
        return target(portName, destination, port, boardIndex, timeOut, flag, tag, data);                    \
    }
FPD_ALIAS(Set_TestScreenData, Set_ScreenTestModeData)
FPD_ALIAS(Set_MosaicScreenPara, Set_MosaicResetClick)
FPD_ALIAS(Set_OsdSwitch, Set_OSD_Switch)
FPD_ALIAS(Set_OsdGlobalStatus, Set_OSD_Switch)
FPD_ALIAS(Set_OsdPriority, Set_OSD_Priority)
FPD_ALIAS(Set_OsdHStartPos, Set_OSD_HorStart)
FPD_ALIAS(Set_OsdVStartPos, Set_OSD_VerStart)

WritePackage TGProtocolParser3rd::Set_SenderFormsSizeData(FPD_WRITE_ARGUMENTS, unsigned char n)
{
    return Set_SenderFormsHorStartData(portName, destination, port, boardIndex, timeOut, flag, tag, data, n);
}

WritePackage TGProtocolParser3rd::Set_CommonWrite(FPD_WRITE_ARGUMENTS, unsigned int address)
{
    return write(FPD_ROUTE, TARGET_Sender, address, data, lengthOfData);
}

WritePackage TGProtocolParser3rd::Set_CommonWrite(QByteArray data, unsigned int address, QString tag)
{
    return write(toAll(tag), TARGET_Sender, address, data, lengthOfData);
}

ReadPackage TGProtocolParser3rd::Get_CommonRead(unsigned int address, unsigned int length)
{
    return read(toAll(QString()), TARGET_Sender, address, length);
}

WritePackage TGProtocolParser3rd::Set_ScannerCommonWrite(QByteArray data, int length, unsigned int address)
{
    return write(toAll(generalTag), TARGET_Scanner, address, data, qMax(length, 0));
}

ReadPackage TGProtocolParser3rd::Get_ScannerParam(unsigned int address, unsigned int length,
                                                  unsigned char port)
{
    return read({DESPORTNAME, firstDestination, port, firstBoard, usualTimeOut, false, QString()},
                TARGET_Scanner, address, length);
}

ReadPackage TGProtocolParser3rd::Get_ScannerCommonRead(unsigned int address, unsigned int length,
                                                       unsigned char port)
{
    return Get_ScannerParam(address, length, port);
}

WritePackage TGProtocolParser3rd::Set_ResetWrite(unsigned int address, unsigned int length, QByteArray data)
{
    return write(toAll(generalTag), TARGET_Sender, address, data, static_cast<int>(length));
}
} // namespace VASK
