// The outputs: rate, HDMI output, synchronisation, audio, 3D, latency.

#include "framework/protocol/send/sendrow.h"
#include "framework/protocol/send/videomode.h"
#include "menu/itemindex.h"

#include <QDebug>

namespace VASK
{
namespace
{
using P = TGProtocolParser3rd;

int HdmiOutputResChange(const SendChange &change)
{
    QByteArray mode;
    if (videoMode(change.value, mode))
        return change.sendBytes(mode);
    qDebug() << "Invalid Value:" << change.value;
    return SEND_BadValue;
}

/// The start as it is set, and beside it the one kept for the top-and-bottom format.
int _3DRightEyeStartChanged(const SendChange &change)
{
    return change.sendBytes(littleEndian(change.value.toInt(), 2) +
                            littleEndian(change.number(MENU_RightEyeStartTop), 2));
}

constexpr SendRow hdmiOutputMode()
{
    SendRow row = plain(MENU_Output_Mode, zeroOneOnly(0, 1), P::Set_HdmiOutputMode);
    row.failText = "SendMsg fail";
    return row;
}

constexpr SendRow rows[] = {
    plain(MENU_OutputFrameRate, centi(), P::Set_OutRefreshRate),
    hdmiOutputMode(),
    own(MENU_Output_Apply, HdmiOutputResChange, P::Set_HdmiOutputRes),

    plain(MENU_Sync_Status, onOff(1, 0), P::Set_SyncStatusData),
    plain(MENU_Sync_Source, numberPlus(1), P::Set_SyncSourceData),

    plain(MENU_Audio_AudioOutput, numberBut("4", audioLineIn), P::Set_AudioSettingSelect),
    plain(MENU_Audio_Volume, number(), P::Set_AudioSettingVolume),

    plain(MENU_Mode3D_Status, zeroElse(40, deviceOn), P::Set_3DStatusChanged),
    plain(MENU_Mode3D_Format, zeroOneElse(STEREO_SideBySide, STEREO_TopAndBottom, STEREO_Sequential),
          P::Set_3DSourceFormatChanged),
    plain(MENU_Mode3D_EyePriority, zeroElse(EYE_LeftFirst, EYE_RightFirst), P::Set_3DEyePriorChanged),
    own(MENU_Mode3D_RightEyeStart, _3DRightEyeStartChanged, P::Set_3DRightEyeStartChanged),
    plain(MENU_Mode3D_SignalDelayTime, numberTimes(delayStepsPerMicrosecond, 3),
          P::Set_3DSignalDelayTimeChanged),
    plain(MENU_Mode3D_ThirdPartyEmitter, zeroElse(0, 1), P::Set_3DStartThirdEmitChanged),

    plain(MENU_LowLatency, zeroElse(0, lowLatencyOn), P::Set_LowLatency),
};
} // namespace

Table<SendRow> outputRows()
{
    return rows;
}
} // namespace VASK
