// Reports about the inputs: what they carry, their picture, their sound, and the mosaic of two of them.
#include "framework/engine/modes.h"
#include "framework/protocol/link/proto3rdreceiveparse.h"
#include "framework/protocol/snapshot/snapshotmap.h"
#include "menu/itemfamilies.h"

#include <QDebug>
#include <iterator>

namespace VASK
{
namespace
{
/// Offsets in the record of an input.
enum InputOffset {
    INPUTRECORD_Code = 0,       ///< u8
    INPUTRECORD_Interlaced = 1, ///< u8
    INPUTRECORD_Signal = 2,     ///< u8
    INPUTRECORD_Width = 3,      ///< u16
    INPUTRECORD_Height = 5,     ///< u16
    INPUTRECORD_Period = 7,     ///< u16, microseconds
    INPUTRECORD_Sampling = 26,  ///< u8
};

int ParseEDIDSourceCode(const Report &report)
{
    const ENUM_MenuIndex first = nth(PARA_InputRecordFirst, report.member, STRIDE_InputRecord);
    const int values[] = {report.u8(INPUTRECORD_Code),    report.u8(INPUTRECORD_Interlaced),
                          report.u8(INPUTRECORD_Signal),  report.u16(INPUTRECORD_Width),
                          report.u16(INPUTRECORD_Height), report.u16(INPUTRECORD_Period),
                          report.u8(INPUTRECORD_Sampling)};
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
    const int values[] = {report.u8(PICTURE_Brightness), report.u8(PICTURE_Contrast),
                          report.u8(PICTURE_Saturation), static_cast<qint16>(report.u16(PICTURE_Hue))};
    for (int i = 0; i < static_cast<int>(std::size(values)); ++i)
        report.parse.report(nth(first[report.member], i), values[i]);
    return 0;
}

/// The two HDMI inputs tell 1 for their own sound, the others anything but 0.
int ParseAudioInputInfo(const Report &report)
{
    constexpr int hdmiInputs = 2;
    constexpr int firstInvalid = 3;
    const int mode = report.u8();
    if (mode >= firstInvalid) {
        qDebug() << "##############Error data:" << mode;
        return 2;
    }
    const bool off = report.member < hdmiInputs ? mode == 1 : mode == 0;
    report.parse.report(nth(MENU_AudioInput_HDMI1, report.member), off ? 0 : 1);
    return 0;
}

/// Offsets in the record of a mosaic: its head, then a part for each of the two inputs.
enum MosaicOffset {
    MOSAIC_Rows = 2,
    MOSAIC_Columns = 3,
    MOSAIC_Code1 = 16,
    MOSAIC_Width = 22,  ///< u16, of either part
    MOSAIC_Height = 24, ///< u16
    MOSAIC_Code2 = 32,
    MOSAIC_End = 33, ///< behind the last byte that is read
};

QString mosaicLayout(int first, int second)
{
    if (first == 1 && second == 2)
        return mosaicBeside;
    if (first != 2 || second != 1)
        qDebug() << "##Error mosaic mode";
    return mosaicAbove;
}

int ParseInputMosaicInfo(const Report &report)
{
    const int code1 = report.u8(MOSAIC_Code1);
    const int code2 = report.u8(MOSAIC_Code2);
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
    report.parse.ReportMsgToParaProcess(MENU_Mosaic_Layout,
                                        mosaicLayout(report.u8(MOSAIC_Rows), report.u8(MOSAIC_Columns)));
    report.parse.report(MENU_Mosaic_Width, report.u16(MOSAIC_Width));
    report.parse.report(MENU_Mosaic_Height, report.u16(MOSAIC_Height));
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
    report(REG_Set_InputMosaicPara, ParseInputMosaicInfo).needs(MOSAIC_End),
};
} // namespace

Table<ReportRow> inputReports()
{
    return rows;
}
} // namespace VASK
