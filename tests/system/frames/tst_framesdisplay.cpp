// What the rows of picture, test pattern, OSD and LED screen send when a user changes them with the keys.
#include "tests/system/frames/framedrive.h"
#include "tests/testprogram.h"

using namespace VASK;
using frames::path;
using frames::twice;

class TestFramesDisplay : public FramesTest
{
    QVector<NamedFrames> table() const override;
};

namespace
{
using Path = QList<ENUM_MenuIndex>;

Path control(ENUM_MenuIndex row)
{
    return {MENU_DisplayControl, row};
}
Path pattern(ENUM_MenuIndex row)
{
    return {MENU_DisplayControl, MENU_TestPattern, row};
}
Path osd(ENUM_MenuIndex row)
{
    return {MENU_OSDSettings, row};
}
Path screen(ENUM_MenuIndex row)
{
    return {MENU_AdvancedSetting, MENU_ScreenSetting, MENU_MoreSettings, row};
}
Path colour(ENUM_MenuIndex row)
{
    return {MENU_AdvancedSetting, MENU_ScreenSetting, MENU_MoreSettings, MENU_LEDScreenColor, row};
}

// The curve of exponent 2.8 and of 2.9 for twelve bits, 256 entries of two bytes.
const QString curve28 = "05000000 01 512:ee9d3a2981754e0154b35ac872b5b0a948024ab0";
const QString curve29 = "05000000 01 512:65462f059b11a074bd43e520de58e2e80402344d";
} // namespace

QVector<NamedFrames> TestFramesDisplay::table() const
{
    // A number is sent at each step of the knob and once more at its end.
    return {
        // The receiving cards take the brightness of 255 and keep it by a command.
        {"brightness", path(MENU_ScreenBrightness), "R3 ok closed",
         "02000001 01 a0, 02000001 01 a0, 01000011 01 00"},
        {"brightness, by ESC", path(MENU_ScreenBrightness), "L3 esc closed",
         "02000001 01 99, 02000001 01 99, 01000011 01 00"},

        {"freeze", control(MENU_Freeze), "", "13000004 00 04"},
        {"freeze again", control(MENU_Freeze), "", ""},
        {"black", control(MENU_FTB), "", "13000004 00 05"},
        {"normal", control(MENU_Normal), "", "13000004 00 0305"},
        {"normal again", control(MENU_Normal), "", "13000004 00 0305"},
        {"transition: cut", control(MENU_MainLayerTransition), "r1 ok", "13000001 00 00"},
        {"transition: fade", control(MENU_MainLayerTransition), "r1 ok", "13000001 00 01"},
        {"transition, left", control(MENU_MainLayerTransition), "r1 esc", ""},
        {"time of the transition", control(MENU_TransitionDuration), "R2 ok", twice("13000002 00 4600")},
        {"time to black", control(MENU_FTBDuration), "R3 ok", twice("13000033 00 5000")},

        // The page itself starts the last pattern; a picture goes out when its list opens and at each step.
        {"test pattern", control(MENU_TestPattern), "", "13000004 00 0605"},
        {"pure colour", pattern(MENU_Test_PureColor), "r1 ok", "13000004 00 0605, 13000004 00 0606"},
        {"gradient", pattern(MENU_Test_Gradient), "r2 ok",
         "13000004 00 0620, 13000004 00 0621, 13000004 00 0622"},
        {"grid", pattern(MENU_Test_Grid), "r1 esc", "13000004 00 0610, 13000004 00 0611"},
        {"test brightness", pattern(MENU_Test_Brightness), "R1 ok", twice("13000042 00 04")},
        {"test spacing", pattern(MENU_Test_Spacing), "L2 ok", twice("13000043 00 03")},
        {"test speed", pattern(MENU_Test_Speed), "L1 esc", twice("13000044 00 02")},
        {"end of the test", control(MENU_Normal), "", "13000004 00 0305"},

        {"OSD on", osd(MENU_OSDState), "r1 ok", "13411000 00 01"},
        {"OSD off", osd(MENU_OSDState), "r1 ok", "13411000 00 00"},
        {"OSD picture", osd(MENU_OSDChoice), "r2 ok", "13411003 00 02"},
        {"OSD x", osd(MENU_OSDInitialX), "R9 ok", twice("13411020 00 09000000")},
        {"OSD y", osd(MENU_OSDInitialY), "L7 ok", twice("13411024 00 f9ffffff")},
        {"OSD behind", osd(MENU_OSDPriority), "r1 ok", "13411001 00 00"},
        {"OSD in front", osd(MENU_OSDPriority), "r1 ok", "13411001 00 01"},

        {"mapping on", screen(MENU_Mapping), "r1 ok", "01000088 01 05"},
        {"mapping off", screen(MENU_Mapping), "r1 ok", "01000088 01 ff"},
        {"output rate 59.94", screen(MENU_OutputFrameRate), "l1 ok", "13040007 00 6a17"},
        {"output rate 60", screen(MENU_OutputFrameRate), "r1 ok", "13040007 00 7017"},

        {"gamma", colour(MENU_Color_Gamma), "R1 ok", {"02000000 01 1d", curve29, "02000000 01 1d", curve29}},
        {"cool", colour(MENU_Color_ColorTemp), "r1 ok", "02000002 01 bf, 02000003 01 d3, 02000004 01 ff"},
        {"warm", colour(MENU_Color_ColorTemp), "r1 ok", "02000002 01 ff, 02000003 01 d5, 02000004 01 a1"},
        {"custom", colour(MENU_Color_ColorTemp), "r1 ok", ""},
        {"red", colour(MENU_Color_R), "L5 ok", twice("02000002 01 fa")},
        {"green", colour(MENU_Color_G), "R7 ok", twice("02000003 01 dc")},
        {"blue", colour(MENU_Color_B), "R9 ok", twice("02000004 01 aa")},
        {"colour reset, refused", colour(MENU_Color_Reset), "no", ""},
        {"colour reset",
         colour(MENU_Color_Reset),
         "yes",
         {"02000000 01 1c", curve28, "02000002 01 ff", "02000003 01 f9", "02000004 01 fd"}},
    };
}

FPD_TEST(TestFramesDisplay)
