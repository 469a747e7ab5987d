// Reports about audio, on-screen display and latency.
#include "framework/protocol/devicecodes.h"
#include "framework/protocol/link/proto3rdreceiveparse.h"
#include "menu/itemfamilies.h"

#include <QDebug>

namespace VASK
{
namespace
{
/// The output's source: an input, or none.
QString audioOutput(int code)
{
    constexpr int lastInput = 3;
    if (code == audioLineIn)
        return QString::number(audioLineInRow);
    return code <= lastInput ? QString::number(code) : QString();
}

int ParseAudioSelect(const Report &report)
{
    report.parse.ReportMsgToParaProcess(MENU_Audio_AudioOutput, audioOutput(report.u8()));
    report.parse.report(MENU_Audio_Volume,
                        report.u8(REG_Set_AudioSettingVolume - REG_Set_AudioSettingSelect));
    return 0;
}

int ParseAudioSize(const Report &report)
{
    report.parse.report(MENU_Audio_Volume, report.u8());
    return 0;
}

int ParseOSDInfo(const Report &report)
{
    constexpr int inFront = 14;
    constexpr unsigned int first = REG_Set_OSD_Switch; // one report of all its registers
    report.parse.report(MENU_OSDState, report.u8());
    report.parse.report(MENU_OSDChoice, report.u8(REG_Set_OSD_Choice - first));
    report.parse.report(MENU_OSDInitialX, report.i32(REG_Set_OSD_HorStart - first));
    report.parse.report(MENU_OSDInitialY, report.i32(REG_Set_OSD_VerStart - first));
    report.parse.report(MENU_OSDPriority, report.u8(REG_Set_OSD_Priority - first) == inFront ? 1 : 0);
    return 0;
}

int ParseOSDPictureState(const Report &report)
{
    report.parse.report(nth(EVENT_OSDPictureFirst, report.member), report.u8());
    return 0;
}

int ParseLowLatencyInfo(const Report &report)
{
    report.parse.report(MENU_LowLatency, report.u8() == lowLatencyOn ? 1 : 0);
    return 0;
}

constexpr ReportRow rows[] = {
    report(REG_Set_AudioSettingSelect, ParseAudioSelect),
    report(REG_Set_AudioSettingVolume, ParseAudioSize),
    report(REG_Set_OSD_Switch, ParseOSDInfo),
    report(each(FAMILY_OSDPicture, REG_OSDPictureState), ParseOSDPictureState),
    report(REG_Set_LowLatency, ParseLowLatencyInfo),
};
} // namespace

Table<ReportRow> settingReports()
{
    return rows;
}
} // namespace VASK
