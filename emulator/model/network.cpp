// The device's address in the network, set by hand or got from a server.
#include "emulator/model/block.h"
#include "emulator/model/registermap.h"
#include "emulator/model/subject.h"

namespace
{
struct Network {
    bool automatic = false;
    QString address, mask, gateway;
};

constexpr quint32 automaticRegister = 0x1300001A;
constexpr int serverMs = 1500; ///< a server needs a while to give an address

// Offsets in the address register: two bytes a number, in the gateway one.
constexpr int offsetAddress = 0, offsetMask = 8, offsetGateway = 16;

QString dotted(const Block &block, int offset, int stride)
{
    QStringList numbers;
    for (int i = 0; i < 4; ++i)
        numbers.append(QString::number(stride == 2 ? block.u16(offset + 2 * i) : block.u8(offset + i)));
    return numbers.join('.');
}

Network read(const Registers &registers)
{
    const Block block(registers.read(networkRegister, networkLength), networkLength);
    return {registers.u8(automaticRegister) == deviceOn, dotted(block, offsetAddress, 2),
            dotted(block, offsetMask, 2), dotted(block, offsetGateway, 1)};
}

Report addressReport(const Registers &registers)
{
    return {networkRegister, registers.read(networkRegister, networkLength)};
}

/// An address by hand counts only while there is none from a server.
Reports obeyAddress(Registers &registers, const RegisterRow &row, int member, const Write &write)
{
    if (read(registers).automatic)
        return {};
    return obey::storeAndReport(registers, row, member, write);
}

QByteArray addressFromServer()
{
    Block block(networkLength);
    const int address[] = {192, 168, 0, 137}, mask[] = {255, 255, 255, 0}, gateway[] = {192, 168, 0, 1};
    for (int i = 0; i < 4; ++i)
        block.u16(offsetAddress + 2 * i, address[i])
            .u16(offsetMask + 2 * i, mask[i])
            .u8(offsetGateway + i, gateway[i]);
    return block;
}

/// A device that is to have its address from a server asks for it, whoever has switched that on.
Reports askServer(Registers &registers)
{
    if (!read(registers).automatic)
        return {};
    registers.write(networkRegister, addressFromServer());
    Report address = addressReport(registers);
    address.afterMs = serverMs;
    return {address};
}

Reports obeyAutomatic(Registers &registers, const RegisterRow &row, int member, const Write &write)
{
    const Reports reports = obey::storeAndReport(registers, row, member, write);
    return reports + askServer(registers);
}

Reports allReports(const Registers &registers)
{
    return {{automaticRegister, registers.read(automaticRegister, 1)}, addressReport(registers)};
}

QStringList describe(const Registers &registers)
{
    const Network network = read(registers);
    return {"address: " + network.address, "mask: " + network.mask, "gateway: " + network.gateway,
            "automatic: " + onOff(network.automatic)};
}
} // namespace

Subject networkSubject()
{
    return {"network",
            {{networkRegister, networkLength, 1, 0, obeyAddress},
             {automaticRegister, 1, 1, 0, obeyAutomatic, sendingSide, askServer}},
            allReports,
            describe};
}
