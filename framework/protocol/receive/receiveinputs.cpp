// Reports about the inputs: what they carry, their picture, their sound, and the mosaic of two of them.
#include "framework/protocol/link/proto3rdreceiveparse.h"
#include "menu/itemfamilies.h"

#include <QDebug>
#include <iterator>

namespace VASK
{
namespace
{
/// Input records: source code, interlace, signal state, size, frame period, colour sampling.
int ParseEDIDSourceCode(const Report &report)
{
    const ENUM_MenuIndex first = nth(PARA_InputRecordFirst, report.member, STRIDE_InputRecord);
    const int values[] = {report.u8(0),  report.u8(1),  report.u8(2), report.u16(3),
                          report.u16(5), report.u16(7), report.u8(26)};
    report.parse.BuildMap(first, static_cast<unsigned char>(values[0]));
    for (int i = 0; i < STRIDE_InputRecord; ++i)
        report.parse.report(nth(first, i), values[i]);
    return 0;
}

int ParseInputQualityInfo(const Report &report)
{
    static constexpr ENUM_MenuIndex first[] = {MENU_HDMI1_Brightness, MENU_HDMI2_Brightness,
                                               MENU_DVI_Brightness, MENU_DVI2_Brightness,
                                               MENU_SDI_Brightness};
    if (report.member >= static_cast<int>(std::size(first))) {
        qDebug() << "Error src index..." << report.member;
        return 2;
    }
    // The hue goes out as a signed number and comes back as one.
    const int values[] = {report.u8(1), report.u8(2), report.u8(4), static_cast<qint16>(report.u16(5))};
    for (int i = 0; i < static_cast<int>(std::size(values)); ++i)
        report.parse.report(nth(first[report.member], i), values[i]);
    return 0;
}

/// The two HDMI inputs tell 1 for their own sound, the others anything but 0.
int ParseAudioInputInfo(const Report &report)
{
    constexpr int hdmiInputs = 2;
    constexpr int firstInvalid = 3;
    const int mode = report.u8(0);
    if (mode >= firstInvalid) {
        qDebug() << "##############Error data:" << mode;
        return 2;
    }
    const bool off = report.member < hdmiInputs ? mode == 1 : mode == 0;
    report.parse.report(nth(MENU_AudioInput_HDMI1, report.member), off ? 0 : 1);
    return 0;
}

QString mosaicLayout(int first, int second)
{
    if (first == 1 && second == 2)
        return QStringLiteral("1");
    if (first != 2 || second != 1)
        qDebug() << "##Error mosaic mode";
    return QStringLiteral("0");
}

int ParseInputMosaicInfo(const Report &report)
{
    const int code1 = report.u8(16);
    const int code2 = report.u8(32);
    qDebug() << receiveLogOrigin << __LINE__ << "input1sourceCode" << code1 << "input2SourceCode" << code2;
    int index1 = 0;
    int index2 = 0;
    for (const inputSource &source : Proto3rdReceiveParse::MosaicSourceCode.entries()) {
        qDebug() << receiveLogOrigin << __LINE__ << "i.value().SourceCode" << source.SourceCode;
        if (source.SourceCode == code1)
            index1 = source.index;
        if (source.SourceCode == code2)
            index2 = source.index;
    }
    qDebug() << receiveLogOrigin << __LINE__ << "index1" << index1 << "index2" << index2;
    report.parse.ReportMsgToParaProcess(MENU_Mosaic_Layout, mosaicLayout(report.u8(2), report.u8(3)));
    report.parse.report(MENU_Mosaic_Width, report.u16(22));
    report.parse.report(MENU_Mosaic_Height, report.u16(24));
    report.parse.ReportMsgToParaProcess(MENU_Mosaic_Arrangement,
                                        QStringLiteral("%1/%2").arg(index1).arg(index2));
    return 0;
}

constexpr Family inputRecords{STEP_InputRecord, FAMILY_InputRecord.count};
constexpr Family sounds{STEP_InputAudio, 8};
constexpr Family pictures{STEP_Set_ScreenQulityReset, 8};

constexpr ReportRow rows[] = {
    report(each(inputRecords, REG_InputRecord), ParseEDIDSourceCode),
    report(each(sounds, REG_InputAudio), ParseAudioInputInfo).needs(1),
    report(each(pictures, REG_Set_ScreenQulityReset), ParseInputQualityInfo),
    report(REG_Set_InputMosaicPara, ParseInputMosaicInfo).needs(33),
};
} // namespace

Table<ReportRow> inputReports()
{
    return rows;
}
} // namespace VASK
