#include "emulator/model/selftest.h"

namespace selftest
{
namespace
{
constexpr quint32 selfTestRegister = 0x13800000;
constexpr int durationMs = 200;

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

Reports obey(Registers &, const RegisterRow &, int, const Write &)
{
    return {{selfTestRegister, selfTestText(), durationMs}};
}
} // namespace

RegisterRow row()
{
    return {selfTestRegister, 1, 1, 0, obey};
}
} // namespace selftest
