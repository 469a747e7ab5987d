// Reports about 3D.
#include "framework/engine/modes.h"
#include "framework/protocol/devicecodes.h"
#include "framework/protocol/link/proto3rdreceiveparse.h"
#include "menu/itemindex.h"

#include <QDebug>

namespace VASK
{
namespace
{
int Parse_3DState(const Report &report)
{
    qDebug() << receiveLogOrigin << __LINE__ << "strValue" << report.u8();
    report.parse.report(MENU_Mode3D_ThirdPartyEmitter, report.u8());
    return 0;
}

int Parse_3DDelayTime(const Report &report)
{
    const int delay = report.u24() / delayStepsPerMicrosecond;
    qDebug() << "Delay time" << delay;
    report.parse.report(MENU_Mode3D_SignalDelayTime, delay);
    return 0;
}

int Prase_3DStatus(const Report &report)
{
    report.parse.report(MENU_Mode3D_Status, report.u8() == deviceOn ? 1 : 0);
    return 0;
}

int Prase_3DPriorityOffset(const Report &report)
{
    if (report.u8() != EYE_LeftFirst && report.u8() != EYE_RightFirst)
        return 2;
    report.parse.report(MENU_Mode3D_EyePriority, report.u8() == EYE_LeftFirst ? 0 : 1);
    return 0;
}

int Prase_3DSourceFormat(const Report &report)
{
    const int code = report.u8();
    report.parse.report(MENU_Mode3D_Format, code == STEREO_SideBySide     ? SideBySide
                                            : code == STEREO_TopAndBottom ? TopAndBottom
                                                                          : FrameSequential);
    return 0;
}

int Prase_3DRightEyeStart(const Report &report)
{
    report.parse.report(MENU_Mode3D_RightEyeStart, report.u16());
    return 0;
}

/// Side by side, top and bottom.
constexpr Family formats{STEP_RightEyeStart, 2};

constexpr ReportRow rows[] = {
    report(REG_StereoEmitter, Parse_3DState).needs(1),
    report(REG_StereoDelay, Parse_3DDelayTime).needs(3),
    report(REG_Set_3DStatusChanged, Prase_3DStatus).needs(1),
    report(REG_Set_3DEyePriorChanged, Prase_3DPriorityOffset).needs(1),
    report(REG_Set_3DSourceFormatChanged, Prase_3DSourceFormat).needs(1),
    report(each(formats, REG_RightEyeStart), Prase_3DRightEyeStart).needs(2),
};
} // namespace

Table<ReportRow> stereoReports()
{
    return rows;
}
} // namespace VASK
