// The factory of packages: one builder a register of the catalogue, and builders for any address. No state,
// any thread.
#pragma once

#include "framework/protocol/packet/packagerequestreaddata3rd.h"
#include "framework/protocol/packet/packagerequestwritedata.h"
#include "framework/protocol/packet/registeraddress.h"

#include <memory>

namespace VASK
{
/// Source byte of what the panel sends, and the port and board that stand for all.
constexpr unsigned char panelSource = 254;
constexpr unsigned char allPorts = 255;
constexpr unsigned short allBoards = 0xFFFF;

using WritePackage = std::unique_ptr<PackageRequestWriteData>;
using ReadPackage = std::unique_ptr<PackageRequestReadData3rd>;

class TGProtocolParser3rd : public QObject
{
public:
    // Every register builder takes port name, destination, port, board index, time-out (carried, not used),
    // flag (the same), a label of the caller, and the bytes; then the number of the register in its row.
#define FPD_WRITE_ARGUMENTS                                                                                  \
    QString portName, unsigned char destination, unsigned char port, unsigned short boardIndex, int timeOut, \
        bool flag, QString tag, QByteArray data
#define FPD_READ_ARGUMENTS                                                                                   \
    QString portName, unsigned char destination, unsigned char port, unsigned short boardIndex, int timeOut, \
        QString tag

#define FPD_WRITE(name, address, bytes, device) static WritePackage name(FPD_WRITE_ARGUMENTS);
#define FPD_WRITE_EACH(name, address, stride, bytes, device)                                                 \
    static WritePackage name(FPD_WRITE_ARGUMENTS, unsigned char n);
#define FPD_WRITE_PAIR(name, address, stride, stride2, bytes, device)                                        \
    static WritePackage name(FPD_WRITE_ARGUMENTS, unsigned char n, unsigned char m);
#define FPD_READ(name, address, bytes) static ReadPackage name(FPD_READ_ARGUMENTS);
#include "framework/protocol/packet/registercatalogue.def"

    // Further names of the same registers.
    static WritePackage Set_TestScreenData(FPD_WRITE_ARGUMENTS);
    static WritePackage Set_SenderFormsSizeData(FPD_WRITE_ARGUMENTS, unsigned char n);
    static WritePackage Set_MosaicScreenPara(FPD_WRITE_ARGUMENTS);
    static WritePackage Set_OsdSwitch(FPD_WRITE_ARGUMENTS);
    static WritePackage Set_OsdGlobalStatus(FPD_WRITE_ARGUMENTS);
    static WritePackage Set_OsdPriority(FPD_WRITE_ARGUMENTS);
    static WritePackage Set_OsdHStartPos(FPD_WRITE_ARGUMENTS);
    static WritePackage Set_OsdVStartPos(FPD_WRITE_ARGUMENTS);

    /// A write of all the data to any address of the sending side.
    static WritePackage Set_CommonWrite(FPD_WRITE_ARGUMENTS, unsigned int address);
    /// The same, to all ports and boards.
    static WritePackage Set_CommonWrite(QByteArray data, unsigned int address, QString tag);
    static ReadPackage Get_CommonRead(unsigned int address, unsigned int length);
    /// A write to all receiving cards.
    static WritePackage Set_ScannerCommonWrite(QByteArray data, int length, unsigned int address);
    /// A read from the first receiving card of a port.
    static ReadPackage Get_ScannerParam(unsigned int address, unsigned int length, unsigned char port);
    static ReadPackage Get_ScannerCommonRead(unsigned int address, unsigned int length, unsigned char port);
    static WritePackage Set_ResetWrite(unsigned int address, unsigned int length, QByteArray data);
};
} // namespace VASK
