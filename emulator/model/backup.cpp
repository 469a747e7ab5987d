// Who steps in for whom: an input for another one, and this device for another device. Main thread.
#include "emulator/model/inputs.h"
#include "emulator/model/subject.h"

namespace
{
constexpr quint32 switchRegister = 0x13120000;
constexpr int switchOn = 0x5B;
constexpr quint32 pairRegister = 0x13120010; ///< main code, 0, code of the partner, 1
constexpr quint32 pairStride = 4;
constexpr quint32 partnerOffset = 2;
constexpr int noPartner = 255;
constexpr const char *pairNames[] = {"hdmi1", "dvi", "mosaic"};

constexpr quint32 roleRegister = 0x0200009D;
constexpr int backupRole = 0xA5;

QString partnerText(int code)
{
    if (code == noPartner)
        return "none";
    const int input = inputs::byCode(code);
    return input < 0 ? QString("source %1").arg(code) : inputs::nameOf(input);
}

Reports noReports(const Registers &)
{
    return {}; // the flash tells them at the start
}

QStringList describe(const Registers &registers)
{
    QStringList lines = {"input backup: " + onOff(registers.u8(switchRegister) == switchOn)};
    for (int pair = 0; pair < int(std::size(pairNames)); ++pair) {
        const quint32 address = pairRegister + pairStride * quint32(pair) + partnerOffset;
        lines.append(QString("partner of %1: %2").arg(pairNames[pair], partnerText(registers.u8(address))));
    }
    const bool isBackup = registers.u8(roleRegister) == backupRole;
    return lines + QStringList{QString("role of the device: %1").arg(isBackup ? "backup" : "primary")};
}
} // namespace

Subject backupSubject()
{
    return {"backup", {}, noReports, describe};
}
