#include "emulator/bus/reports.h"

#include <QtEndian>

namespace reports
{
namespace
{
constexpr quint32 inputRecords = 0x13010001;
constexpr quint32 inputStride = 32;
constexpr quint32 outputResolution = 0x13040003;
constexpr quint32 portLinks = 0x0200001F;
constexpr quint32 portLinksStride = 0x80;
constexpr quint32 serviceUp = 0x14000000;
constexpr quint32 selfTest = 0x13800000;
constexpr quint32 loadCabinet = 0x0FF00100;
constexpr quint32 cabinetCount = 8;
constexpr quint32 cabinetLoaded = 0x0FF00000;
constexpr quint8 stableSignal = 3;
constexpr int serviceStartMs = 300;
constexpr quint16 period60Hz = 16667; ///< us

/// HDMI 1 and 2, DVI, SDI, the second DVI, two OPT, mosaic, and the synchronisation reference, which ends the
/// list.
constexpr quint8 sourceCodes[] = {17, 18, 0, 48, 106, 233, 234, 224, 254};

template <class Number> void put(QByteArray &bytes, int offset, Number number)
{
    qToLittleEndian(number, bytes.data() + offset);
}

QByteArray inputRecord(int input)
{
    QByteArray record(int(inputStride), 0);
    put<quint8>(record, 0, sourceCodes[input]);
    if (input == 0) {
        put<quint8>(record, 2, stableSignal);
        put<quint16>(record, 3, 1920);
        put<quint16>(record, 5, 1080);
        put<quint16>(record, 7, period60Hz);
    }
    return record;
}

QByteArray resolution(int width, int height, int rateCentiHz)
{
    QByteArray bytes(6, 0);
    put<quint16>(bytes, 0, quint16(width));
    put<quint16>(bytes, 2, quint16(height));
    put<quint16>(bytes, 4, quint16(rateCentiHz));
    return bytes;
}

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
} // namespace

QVector<RegisterReport> atStart()
{
    QVector<RegisterReport> list;
    for (int input = 0; input < int(std::size(sourceCodes)); ++input)
        list.append({inputRecords + inputStride * quint32(input), inputRecord(input)});
    list.append({outputResolution, resolution(1920, 1080, 6000)});
    list.append({portLinks, QByteArray(1, 0x0f)});
    list.append({portLinks + portLinksStride, QByteArray(1, 0)});
    for (char service : {1, 2})
        list.append({serviceUp, QByteArray(1, service), service * serviceStartMs});
    return list;
}

QVector<RegisterReport> afterWrite(quint32 address)
{
    if (address == selfTest)
        return {{selfTest, selfTestText()}};
    if (address >= loadCabinet && address < loadCabinet + cabinetCount)
        return {{cabinetLoaded, QByteArray(1, 1)}};
    return {};
}
} // namespace reports
