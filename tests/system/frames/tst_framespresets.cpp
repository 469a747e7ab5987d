// What the presets send: each action of their dialog, and the choice of a target for a copy.
#include "tests/system/frames/framedrive.h"
#include "tests/testprogram.h"

using namespace VASK;

class TestFramesPresets : public FramesTest
{
    QVector<NamedFrames> table() const override;
};

namespace
{
QList<ENUM_MenuIndex> preset(int number)
{
    return {MENU_PresetSettings, ENUM_MenuIndex(MENU_Preset1 + number - 1)};
}
} // namespace

/// At first the device has two presets, of which the first is in use; the second shows PIP 1, which cuts.
QVector<NamedFrames> TestFramesPresets::table() const
{
    return {
        {"left", preset(1), "next next esc", ""},
        {"save the last", preset(10), "ok closed2", "13510102 00 09"},
        {"save over it, refused", preset(10), "previous ok no", ""},
        {"save over it", preset(10), "previous ok yes closed2", "13510102 00 09"},
        {"load", preset(2), "ok closed2", "13510100 00 01, 13000001 00 00"},
        {"copy, left", preset(2), "next next ok r3 esc", ""},
        {"copy", preset(2), "next next ok r2 ok closed2", "13510106 00 00010002"},
        {"copy onto a saved one, refused", preset(3), "next next ok r9 ok no esc", ""},
        {"copy onto a saved one", preset(3), "next next ok r9 ok yes closed2", "13510106 00 00020009"},
        {"clear, refused", preset(10), "next ok no", ""},
        {"clear", preset(10), "next ok yes closed2", "13510104 00 0009"},
    };
}

FPD_TEST(TestFramesPresets)
