// The two optical links, OPT 1 and OPT 2, with the Ethernet ports at their far ends. Main thread.
#include "emulator/model/registermap.h"
#include "emulator/model/subject.h"

namespace
{
constexpr int linkCount = 2;
constexpr quint32 portStride = 2;
constexpr int portCount = 10;
constexpr quint32 secondModeRegister = 0x020001DA;
constexpr int copyMode = 4;

QString portText(int linked)
{
    QStringList numbers;
    for (int port = 0; port < portCount; ++port) {
        if (linked >> port & 1)
            numbers.append(QString::number(port + 1));
    }
    return numbers.isEmpty() ? QString("no ports") : "ports " + numbers.join(' ');
}

Reports noReports(const Registers &)
{
    return {}; // nothing hangs there, unless somebody pushes that it does
}

QStringList describe(const Registers &registers)
{
    QStringList lines;
    for (int link = 0; link < linkCount; ++link)
        lines.append(QString("OPT %1: link %2, %3")
                         .arg(link + 1)
                         .arg(onOff(registers.u8(opticalLinkRegister) >> link & 1),
                              portText(registers.u16(opticalPortRegister + portStride * quint32(link)))));
    const bool copies = registers.u8(secondModeRegister) == copyMode;
    return lines + QStringList{QString("OPT 2 mode: %1").arg(copies ? "copy" : "backup")};
}
} // namespace

Subject fiberSubject()
{
    return {"fiber", {}, noReports, describe};
}
