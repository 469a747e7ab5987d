#include "emulator/model/selftest.h"

namespace selftest
{
namespace
{
constexpr quint32 selfTestRegister = 0x13800000;
constexpr int durationMs = 200;
/// Behind the register, where nothing else lies: the text of each value at fault, with a zero at its end.
constexpr quint32 faultTexts = selfTestRegister + 0x100;
constexpr int faultLength = 64;

struct Value {
    const char *name;
    const char *healthy;
};

/// In the order of the device's records. Three more the panel finds out by itself.
constexpr Value values[] = {
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

quint32 faultAddress(size_t value)
{
    return faultTexts + quint32(value * faultLength);
}

/// Empty for a value that is as it should be.
QByteArray faultOf(const Registers &registers, size_t value)
{
    const QByteArray bytes = registers.read(faultAddress(value), faultLength);
    return bytes.left(bytes.indexOf('\0'));
}

void keepFault(Registers &registers, size_t value, const QByteArray &text)
{
    registers.write(faultAddress(value), text.leftJustified(faultLength, '\0'));
}

/// The number of a value, behind the last for an unknown name.
size_t numberOf(const QString &name)
{
    size_t number = 0;
    while (number < std::size(values) && name != QLatin1String(values[number].name))
        ++number;
    return number;
}

QByteArray selfTestText(const Registers &registers)
{
    QByteArray text = "SELFTEST;";
    for (size_t i = 0; i < std::size(values); ++i) {
        const QByteArray fault = faultOf(registers, i);
        const bool healthy = fault.isEmpty();
        text += QByteArray(values[i].name) + ":--:--:" + (healthy ? QByteArray(values[i].healthy) : fault);
        text += healthy ? ":--:normal;" : ":--:error;";
    }
    return text + '\0';
}

Reports obey(Registers &registers, const RegisterRow &, int, const Write &)
{
    return {{selfTestRegister, selfTestText(registers), durationMs}};
}

bool fitsARecord(const QString &text)
{
    const QByteArray bytes = text.toLatin1();
    return !text.isEmpty() && text == QString::fromLatin1(bytes) && bytes.size() < faultLength &&
           text != QLatin1String("--") && !bytes.contains(':') && !bytes.contains(';') &&
           !bytes.contains('\0');
}
} // namespace

RegisterRow row()
{
    return {selfTestRegister, 1, 1, 0, obey};
}

bool setFault(Registers &registers, const QString &name, const QString &text)
{
    const size_t number = numberOf(name);
    if (number == std::size(values) || !fitsARecord(text))
        return false;
    keepFault(registers, number, text.toLatin1());
    return true;
}

bool heal(Registers &registers, const QString &name)
{
    if (name.isEmpty()) {
        for (size_t i = 0; i < std::size(values); ++i)
            keepFault(registers, i, QByteArray());
        return true;
    }
    const size_t number = numberOf(name);
    if (number == std::size(values))
        return false;
    keepFault(registers, number, QByteArray());
    return true;
}

QString describe(const Registers &registers)
{
    QStringList faults;
    for (size_t i = 0; i < std::size(values); ++i) {
        const QByteArray fault = faultOf(registers, i);
        if (!fault.isEmpty())
            faults << QString("%1 %2").arg(values[i].name, QString::fromLatin1(fault));
    }
    return faults.isEmpty() ? "healthy" : faults.join(", ");
}
} // namespace selftest
