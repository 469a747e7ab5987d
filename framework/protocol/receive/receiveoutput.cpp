// Reports about the output and the wall: sizes, rates, brightness, mapping, and what the output shows.
#include "framework/engine/paraprocess.h"
#include "framework/protocol/devicecodes.h"
#include "framework/protocol/link/proto3rdreceiveparse.h"
#include "framework/protocol/snapshot/snapshotmap.h"
#include "framework/store/menuanalysis.h"
#include "menu/itemindex.h"

#include <QDebug>
#include <QStringList>

namespace VASK
{
namespace
{
/// Offsets in a mode as it is told by itself.
enum ModeOffset {
    VIDEOMODE_Width = 0,  ///< u16
    VIDEOMODE_Height = 2, ///< u16
    VIDEOMODE_Rate = 4,   ///< u16, hundredths of a hertz
    VIDEOMODE_End = 6,    ///< behind the last byte
};
enum CabinetOffset { CABINET_Width = 0, CABINET_Height = 2, CABINET_End = 4 };
constexpr int syncSource = REG_Set_SyncSourceData - REG_Set_SyncStatusData;

int OutputResolution(const Report &report)
{
    qDebug() << "width:" << report.u16(VIDEOMODE_Width) << "heigth:" << report.u16(VIDEOMODE_Height)
             << "actual:" << report.u16(VIDEOMODE_Rate);
    report.parse.report(PARA_OutputRate, report.u16(VIDEOMODE_Rate));
    report.parse.report(PARA_ReportedWidth, report.u16(VIDEOMODE_Width));
    report.parse.report(PARA_ReportedHeight, report.u16(VIDEOMODE_Height));
    return 0;
}

int OutputResolutionBpMode(const Report &report)
{
    report.parse.report(PARA_ReportedRate, report.u16(OUTPUT_Rate));
    report.parse.report(PARA_ReportedWidthAlias, report.u16(OUTPUT_Width));
    report.parse.report(PARA_ReportedHeightAlias, report.u16(OUTPUT_Height));
    return 0;
}

/// The first row of a list whose text the test likes, -1 if there is none.
template <class Test> int rowOf(const Report &report, ENUM_MenuIndex list, Test test)
{
    ST_ItemInfo item;
    if (!report.parse.store().GetMenuItem(list, item))
        return -1;
    for (int row = 0; item.params.contains(QString::number(row)); ++row)
        if (test(item.params.value(QString::number(row))))
            return row;
    return -1;
}

/// The host has chosen size and rate of the output: both lists follow, and the engine takes the pair over.
int MvrResolution(const Report &report)
{
    const int width = report.u16(VIDEOMODE_Width);
    const int height = report.u16(VIDEOMODE_Height);
    const int rate = report.u16(VIDEOMODE_Rate);
    const int sizeRow = rowOf(report, MENU_Output_Resolution, [width, height](const QString &text) {
        const QStringList size = text.split(QLatin1Char('*'));
        return size.size() == 2 && size.at(0).toInt() == width && size.at(1).toInt() == height;
    });
    if (sizeRow >= 0)
        report.parse.report(MENU_Output_Resolution, sizeRow);
    const int rateRow = rowOf(report, MENU_Output_FrameRate, [rate](const QString &text) {
        return text.toFloat() * 100.0F == static_cast<float>(rate);
    });
    if (rateRow >= 0)
        report.parse.report(MENU_Output_FrameRate, rateRow);
    report.parse.ReportMsgToParaProcess(MENU_Output_Apply, QString());
    return 0;
}

/// The register's 255 steps as per cent.
int BrightNessPara(const Report &report)
{
    const int percent = static_cast<int>(report.u8() / 2.55 + 0.5) & 0xFF;
    qDebug() << "BrightNessPara:" << percent;
    report.parse.report(MENU_ScreenBrightness, percent);
    return 0;
}

int ParseScreenWidth(const Report &report)
{
    qDebug() << "strWidth" << report.u16(CABINET_Width) << "strHeight" << report.u16(CABINET_Height);
    report.parse.report(PARA_CabinetWidth, report.u16(CABINET_Width));
    report.parse.report(PARA_CabinetHeight, report.u16(CABINET_Height));
    return 0;
}

int ParseMapping(const Report &report)
{
    report.parse.report(MENU_Mapping, report.u8() == mappingOn ? 1 : 0);
    return 0;
}

int ParseDispModeInfo(const Report &report)
{
    const QString mode = QString::number(report.u8() - DISPLAY_Normal);
    if (mode != report.parse.engine().GetParaFromIndex(PARA_DisplayMode))
        report.parse.engine().UpdataDispMode(report.u8());
    return 0;
}

int reportIfNew(const Report &report, ENUM_MenuIndex index, int value)
{
    if (report.parse.engine().GetParaFromIndex(index) != QString::number(value))
        report.parse.report(index, value);
    return 0;
}

int ParseSyncInfo(const Report &report)
{
    reportIfNew(report, MENU_Sync_Source, (report.u8(syncSource) - 1) & 0xFF);
    return reportIfNew(report, MENU_Sync_Status, report.u8());
}

int ParseHdmiOutputMode(const Report &report)
{
    return reportIfNew(report, MENU_Output_Mode, report.u8());
}

int ParseGenlockInfo(const Report &report)
{
    constexpr int lastState = 4;
    if (report.u8() > lastState)
        return 2;
    report.parse.report(PARA_GenlockState, report.u8());
    return 0;
}

constexpr ReportRow rows[] = {
    report(REG_OutputResolution, OutputResolution).needs(VIDEOMODE_End),
    report(REG_SenderOutput, OutputResolutionBpMode).needs(OUTPUT_Rate + 2),
    report(REG_Set_HdmiOutputRes, MvrResolution).needs(VIDEOMODE_End),
    report(REG_Set_AcceptCardLightnessData, BrightNessPara).needs(1),
    report(CabinetWidthAddr, ParseScreenWidth).needs(CABINET_End),
    report(MappingAddr, ParseMapping).needs(1),
    report(REG_Set_ScreenDisplayModeData, ParseDispModeInfo).needs(1),
    report(REG_Set_SyncStatusData, ParseSyncInfo),
    report(REG_Set_HdmiOutputMode, ParseHdmiOutputMode),
    report(REG_GenlockState, ParseGenlockInfo),
};
} // namespace

Table<ReportRow> outputReports()
{
    return rows;
}
} // namespace VASK
