// What the keys of layers, inputs, scaling and display modes send, from the home screen.
#include "tests/system/frames/layerframes.h"
#include "tests/testprogram.h"

using namespace VASK;
using frames::path;
using namespace layerframes;

class TestFramesKeys : public FramesTest
{
    QVector<NamedFrames> table() const override;
};

QVector<NamedFrames> TestFramesKeys::table() const
{
    return {
        {"key freeze", {}, "freeze", "13000004 00 04"},
        {"key freeze again", {}, "freeze", "13000004 00 0305"},
        {"key test", {}, "test", "13000004 00 0605"},
        {"key test again", {}, "test", "13000004 00 0305"},
        {"Fn is sync", {}, "fn", ""},
        {"Fn becomes black", path(MENU_SystemSetting, MENU_Fn, MENU_Fn_FTB), "", ""},
        {"Fn black", {}, "fn", "13000004 00 05"},
        {"Fn black again", {}, "fn", "13000004 00 0305"},
        {"Fn becomes freeze", path(MENU_SystemSetting, MENU_Fn, MENU_Fn_Freeze), "", ""},
        {"Fn freeze", {}, "fn", "13000004 00 04"},
        {"Fn freeze again", {}, "fn", "13000004 00 0305"},
        {"Fn becomes test", path(MENU_SystemSetting, MENU_Fn, MENU_Fn_TestPattern), "", ""},
        {"Fn test", {}, "fn", "13000004 00 0605"},
        {"Fn test again", {}, "fn", "13000004 00 0305"},
        {"main layer: key of HDMI 2", {}, "in2", {source(0, hdmi2)}},
        {"main layer: key of DVI", {}, "in3", {source(0, dvi)}},
        {"main layer: key of SDI", {}, "in4", {source(0, sdi)}},
        {"main layer: key of HDMI 1", {}, "in1", {source(0, hdmi1)}},
        {"keys of inputs that no layer can take", {}, "in6 in7 in8", ""},
        {"main layer: narrower",
         path(MENU_LayerSettings, MENU_MainLayer, MENU_MainLayer_HorWidth),
         "L20 ok",
         {window(0, 0, 0, 1900, 1080), window(0, 0, 0, 1900, 1080)}},
        {"main layer: scale to the full screen", {}, "scale", {window(0, 0, 0, 1920, 1080)}},
        {"main layer: scale back", {}, "scale", {window(0, 0, 0, 1900, 1080)}},
        {"main layer: held", {}, "main!", {status(0, false)}},
        {"main layer: pressed", {}, "main", {status(0, true)}},
        {"PIP 1: pressed, and a source for it",
         {},
         "pip1 still in3 still in1",
         {cut, status(1, true), source(1, dvi), source(1, hdmi1)}},
        {"PIP 1: held", {}, "pip1!", {status(1, false)}},
        {"PIP 2: pressed", {}, "pip2", {cut, status(2, true)}},
        {"PIP 2: held", {}, "pip2!", {status(2, false)}},
    };
}

FPD_TEST(TestFramesKeys)
