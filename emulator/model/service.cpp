#include "emulator/model/service.h"

#include "emulator/model/factory.h"

#include <QtEndian>

namespace service
{
namespace
{
constexpr quint32 servicesRegister = 0x14000000;
constexpr quint32 selfTestRegister = 0x13800000;
constexpr quint32 resetRegister = 0x01000002;
constexpr quint32 loadCabinetRegister = 0x0FF00100;
constexpr int cabinetFiles = 8;
constexpr quint32 cabinetLoadedRegister = 0x0FF00000;
constexpr quint32 renamedRegister = 0x0FF00001;
constexpr quint32 calibrationRegister = 0x0200009C;
constexpr quint32 lowLatencyRegister = 0x02000074;
constexpr quint32 workModeRegister = 0x1300002C;
constexpr quint32 fiberRegister = 0x020001DF;
constexpr quint32 communicationRegister = 0x022000C0; ///< 0: USB goes before LAN

constexpr quint32 renamedFlash = 0xD14000;
constexpr quint32 nameFlash = 0xD14100;
constexpr int nameUnits = 32;
constexpr char renamedMark = char(0x9A);

constexpr int lowLatencyOn = 120;
constexpr int sendingCard = 16;

// How long the device takes.
constexpr int serviceStartMs = 300;
constexpr int selfTestMs = 200;
constexpr int loadCabinetMs = 500;
constexpr int resetMs = 500;
constexpr int restartMs = 1000;

/// Name, text and state of each value that the device watches.
QByteArray selfTestText()
{
    static const char *const values[][2] = {
        {"F_VERSION", "2.0.11"},     {"F_CONNECT", "normal"},     {"F_VCCINT", "0.95V"},
        {"F_VCCAUX", "1.80V"},       {"F_VCCBRAM", "0.95V"},      {"F_TEMP", "52"},
        {"F_D_CLK_ST", "normal"},    {"F_DISP_CLK", "148.5M"},    {"F_M_CLK_ST", "normal"},
        {"F_MONIT_CLK", "148.5M"},   {"F_DDR", "normal"},         {"F_MMCM_LK", "normal"},
        {"F_GTX_LK_ST0", "normal"},  {"F_GTX_LK_FRE0", "125.0M"}, {"F_GTX_LK_ST1", "normal"},
        {"F_GTX_LK_FRE1", "125.0M"}, {"A_MEM_PER", "31%"},        {"A_CPU_PER", "12%"},
        {"A_EMMC_PER", "24%"},       {"M_VERSION", "20230601"},   {"S_VERSION", "1.4.2"},
        {"H_VERSION", "A1"},         {"H_TEMP_BD", "41"},         {"H_VCC_BD", "12.1V"},
        {"H_TEST_COUNT", "1"},       {"S0_TEMP", "44"},           {"S1_TEMP", "45"},
    };
    QByteArray text = "SELFTEST;";
    for (const auto &value : values)
        text += QByteArray(value[0]) + ":--:--:" + value[1] + ":--:normal;";
    return text + '\0';
}

Reports obeySelfTest(Registers &, const RegisterRow &, int, const Write &)
{
    return {{selfTestRegister, selfTestText(), selfTestMs}};
}

Reports obeyLoadCabinet(Registers &registers, const RegisterRow &row, int member, const Write &write)
{
    obey::store(registers, row, member, write);
    return {{cabinetLoadedRegister, QByteArray(1, 1), loadCabinetMs}};
}

/// Answers with the kind of reset, and then tells what is left.
Reports obeyReset(Registers &registers, const RegisterRow &, int, const Write &write)
{
    const int kind = quint8(write.bytes[0]);
    if (!factory::reset(registers, kind))
        return {};
    Reports reports = {{resetRegister, write.bytes.left(1), resetMs}};
    for (const Subject &subject : allSubjects()) {
        if (qstrcmp(subject.name, serviceSubject().name) == 0)
            continue; // the services stay up
        for (Report report : subject.reports(registers)) {
            report.afterMs = restartMs;
            reports.append(report);
        }
    }
    return reports;
}

/// Two reports of one register need a pause, since a receiver keeps only the newest.
Reports allReports(const Registers &registers)
{
    return {{lowLatencyRegister, registers.read(lowLatencyRegister, 1)},
            {servicesRegister, QByteArray(1, 1), serviceStartMs},
            {servicesRegister, QByteArray(1, 2), 2 * serviceStartMs}};
}

QString workModeText(const Registers &registers)
{
    if (registers.u8(workModeRegister) == sendingCard)
        return "sending card";
    return registers.u8(fiberRegister) == 1 ? "fiber converter" : "video controller";
}

QStringList describe(const Registers &registers)
{
    return {
        "name: " + nameOf(registers.flash()), "work mode: " + workModeText(registers),
        "low latency: " + onOff(registers.u8(lowLatencyRegister) == lowLatencyOn),
        "soft calibration: " + onOff(registers.u8(calibrationRegister) == deviceOn),
        QString("communication: %1 preferred").arg(registers.u8(communicationRegister) == 0 ? "USB" : "LAN")};
}
} // namespace

Reports rename(Registers &registers, const QString &name)
{
    registers.flash().write(renamedFlash, QByteArray(1, name.isEmpty() ? '\0' : renamedMark));
    registers.flash().write(nameFlash, nameRecord(name));
    return {{renamedRegister, QByteArray(1, 1)}};
}

QString nameOf(const FlashImage &flash)
{
    if (flash.byte(renamedFlash) != renamedMark)
        return QString();
    const QByteArray bytes = flash.read(nameFlash, 2 * nameUnits);
    QString name;
    for (int i = 0; i < nameUnits; ++i) {
        const auto unit = qFromLittleEndian<quint16>(bytes.constData() + 2 * i);
        if (unit == 0)
            break;
        name += QChar(unit);
    }
    return name;
}

QByteArray nameRecord(const QString &name)
{
    QByteArray bytes(2 * nameUnits, 0);
    for (int i = 0; i < qMin(name.size(), nameUnits); ++i)
        qToLittleEndian(quint16(name[i].unicode()), bytes.data() + 2 * i);
    return bytes;
}

Reports calibrate(Registers &registers, bool on)
{
    registers.setU8(calibrationRegister, on ? deviceOn : 0);
    return {{calibrationRegister, registers.read(calibrationRegister, 1)}};
}
} // namespace service

Subject serviceSubject()
{
    return {"device",
            {{service::selfTestRegister, 1, 1, 0, service::obeySelfTest},
             {service::loadCabinetRegister, 1, service::cabinetFiles, 1, service::obeyLoadCabinet},
             {service::resetRegister, 1, 1, 0, service::obeyReset},
             {service::lowLatencyRegister, 1, 1, 0, obey::storeAndReport}},
            service::allReports,
            service::describe};
}
