// Reports about 3D.
#include "framework/protocol/devicecodes.h"
#include "framework/protocol/link/proto3rdreceiveparse.h"
#include "menu/itemindex.h"

#include <QDebug>
#include <iterator>

namespace VASK
{
namespace
{
int Parse_3DState(const Report &report)
{
    qDebug() << receiveLogOrigin << __LINE__ << "strValue" << report.u8(0);
    report.parse.report(MENU_Mode3D_ThirdPartyEmitter, report.u8(0));
    return 0;
}

int Parse_3DDelayTime(const Report &report)
{
    const int delay = report.u24(0) / delayStepsPerMicrosecond;
    qDebug() << "Delay time" << delay;
    report.parse.report(MENU_Mode3D_SignalDelayTime, delay);
    return 0;
}

int Prase_3DStatus(const Report &report)
{
    report.parse.report(MENU_Mode3D_Status, report.u8(0) == deviceOn ? 1 : 0);
    return 0;
}

int Prase_3DPriorityOffset(const Report &report)
{
    if (report.u8(0) != EYE_LeftFirst && report.u8(0) != EYE_RightFirst)
        return 2;
    report.parse.report(MENU_Mode3D_EyePriority, report.u8(0) == EYE_LeftFirst ? 0 : 1);
    return 0;
}

int Prase_3DSourceFormat(const Report &report)
{
    const int code = report.u8(0);
    report.parse.report(MENU_Mode3D_Format, code == STEREO_SideBySide     ? 0
                                            : code == STEREO_TopAndBottom ? 1
                                                                          : 2);
    return 0;
}

int Prase_3DRightEyeStart(const Report &report)
{
    report.parse.report(MENU_Mode3D_RightEyeStart, report.u16(0));
    return 0;
}

constexpr ReportRow rows[] = {
    {0x02002001, 0, 1, 0, 1, Parse_3DState},        {0x02002002, 0, 1, 0, 3, Parse_3DDelayTime},
    {0x02000039, 0, 1, 0, 1, Prase_3DStatus},       {0x02000041, 0, 1, 0, 1, Prase_3DPriorityOffset},
    {0x02000042, 0, 1, 0, 1, Prase_3DSourceFormat}, {0x02000089, 2, 2, 0, 2, Prase_3DRightEyeStart},
};
} // namespace

ReportFamily stereoReports()
{
    return {rows, static_cast<int>(std::size(rows))};
}
} // namespace VASK
