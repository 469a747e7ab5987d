// What the screen shows instead of, over or between the layers: display modes, transitions, test patterns,
// OSD.

#include "framework/protocol/send/sendrow.h"
#include "menu/itemindex.h"

#include <QDebug>

namespace VASK
{
namespace
{
using P = TGProtocolParser3rd;

constexpr int noColour = -1;

/// The colour with the mark of the pattern's kind.
int SendTestData(const SendChange &change, quint8 kind)
{
    const int colour = change.value.toInt();
    if (colour == noColour) {
        qDebug() << "Invalid color name";
        return SEND_BadValue;
    }
    return change.sendBytes(littleEndian(DISPLAY_Test, 1) + littleEndian(colour | kind, 1));
}

int TestPure(const SendChange &change)
{
    return SendTestData(change, 0);
}

int TestGradient(const SendChange &change)
{
    return SendTestData(change, 0x20);
}

int TestGrad(const SendChange &change)
{
    return SendTestData(change, 0x10);
}

constexpr SendRow osd(SendRow row, const char *failText = "SendMsg Fail")
{
    row.failText = failText;
    return row;
}

constexpr SendRow switchEffect()
{
    SendRow row = plain(MENU_MainLayerTransition, zeroOneOnly(1, 0), P::Set_ScreenEffectData);
    row.refusal = "strCurValue is invalid!:";
    return row;
}

constexpr SendRow rows[] = {
    switchEffect(),
    plain(MENU_TransitionDuration, centi(), P::Set_ScreenSwitchTimeData),
    plain(MENU_Normal, fixed(DISPLAY_Normal, 5), P::Set_TestScreenData),
    plain(MENU_Freeze, fixed(DISPLAY_Freeze), P::Set_ScreenDisplayModeData),
    plain(MENU_FTB, fixed(DISPLAY_Black), P::Set_ScreenDisplayModeData),
    plain(MENU_FTBDuration, centi(), P::Set_ScreenFTBTimeData),

    own(MENU_Test_PureColor, TestPure, P::Set_TestScreenData),
    own(MENU_Test_Gradient, TestGradient, P::Set_TestScreenData),
    own(MENU_Test_Grid, TestGrad, P::Set_TestScreenData),
    plain(MENU_Test_Brightness, number(), P::Set_TestScreenLightnessData),
    plain(MENU_Test_Spacing, number(), P::Set_TestScreenSpacingData),
    plain(MENU_Test_Speed, number(), P::Set_TestScreenSpeedData),

    osd(plain(MENU_OSDState, zeroElse(0, 1), P::Set_OSD_Switch)),
    osd(plain(MENU_OSDChoice, number(), P::Set_OSD_Choice)),
    osd(plain(MENU_OSDInitialX, number(4), P::Set_OSD_HorStart)),
    osd(plain(MENU_OSDInitialY, number(4), P::Set_OSD_VerStart)),
    osd(plain(MENU_OSDPriority, number(), P::Set_OSD_Priority), "SendMsg fail"),
};
} // namespace

Table<SendRow> displayRows()
{
    return rows;
}
} // namespace VASK
