#include "emulator/model/ports.h"

#include "emulator/model/registermap.h"

namespace ports
{
namespace
{
struct Group {
    int first;
    int size;
    quint32 link;    ///< a bit a port
    quint32 backup;  ///< a byte a port
    quint32 engaged; ///< two bits a port, of which the upper counts
};

constexpr Group groups[] = {
    {0, 4, linkRegisters[0], 0x02000018, 0x0200001E},
    {4, 4, linkRegisters[1], 0x02000098, 0x0200009E},
    {8, 2, linkRegisters[2], 0x02000100, 0x02000120},
};

constexpr int portsOfIdleRegister = 8;
constexpr int backupMark = 0x80;

const Group &groupOf(int port)
{
    return port < groups[1].first ? groups[0] : port < groups[2].first ? groups[1] : groups[2];
}

int bitOf(int value, int bit)
{
    return value >> bit & 1;
}

void setBit(Registers &registers, quint32 address, int bit, bool on)
{
    const int value = registers.u8(address);
    registers.setU8(address, on ? value | 1 << bit : value & ~(1 << bit));
}

Reports linkReports(const Registers &registers)
{
    Reports list;
    for (const Group &group : groups)
        list.append({group.link, registers.read(group.link, 1)});
    return list;
}

Reports backupReports(const Registers &registers)
{
    Reports list;
    for (const Group &group : groups) {
        list.append({group.backup, registers.read(group.backup, group.size)});
        list.append({group.engaged, registers.read(group.engaged, 1)});
    }
    return list;
}

Reports idleReports(const Registers &registers)
{
    Reports list;
    for (quint32 address : {idleRegister, idleRegister + 1})
        list.append({address, registers.read(address, 1)});
    return list;
}

Reports allReports(const Registers &registers)
{
    return linkReports(registers) + backupReports(registers) + idleReports(registers);
}

QStringList describe(const Registers &registers)
{
    QStringList lines;
    for (int number = 0; number < count; ++number) {
        const Port port = read(registers, number);
        lines.append(QString("port %1: link %2, backup %3, engaged %4")
                         .arg(number + 1)
                         .arg(onOff(port.link), onOff(port.backup), onOff(port.engaged)));
    }
    return lines;
}

RegisterRow backupRow(const Group &group)
{
    return {group.backup, group.size, 1, 0, obey::storeAndReport};
}
} // namespace

Port read(const Registers &registers, int port)
{
    const Group &group = groupOf(port);
    const int place = port - group.first;
    return {bitOf(registers.u8(group.link), place) == 1,
            registers.u8(group.backup + quint32(place)) == backupMark,
            bitOf(registers.u8(group.engaged), 2 * place + 1) == 1};
}

Reports set(Registers &registers, int port, State state, bool on)
{
    const Group &group = groupOf(port);
    const int place = port - group.first;
    if (state == State::backup) {
        registers.setU8(group.backup + quint32(place), on ? backupMark : 0);
        return {{group.backup, registers.read(group.backup, group.size)}};
    }
    if (state == State::engaged) {
        setBit(registers, group.engaged, 2 * place + 1, on);
        return {{group.engaged, registers.read(group.engaged, 1)}};
    }
    const quint32 idle = idleRegister + quint32(port / portsOfIdleRegister);
    setBit(registers, group.link, place, on);
    setBit(registers, idle, port % portsOfIdleRegister, !on);
    return {{group.link, registers.read(group.link, 1)}, {idle, registers.read(idle, 1)}};
}
} // namespace ports

Subject portsSubject()
{
    using namespace ports;
    return {
        "ports", {backupRow(groups[0]), backupRow(groups[1]), backupRow(groups[2])}, allReports, describe};
}
