// Display mode (normal, freeze, black, test pattern) and the assignment of the Fn key: two radio groups that
// light the panel.

#include "framework/engine/displaymode.h"
#include "framework/engine/parachange.h"

#include "framework/input/keyevent.h"
#include "framework/protocol/devicecodes.h"
#include "framework/store/menuanalysis.h"
#include "menu/itemindex.h"
#include "menu/ledindex.h"
#include "menu/menutypes.h"

namespace VASK
{
namespace
{
void light(ENUM_LedIndex led, bool on)
{
    KeyEvent::SendLedCommand(led, on ? LED_ON : LED_OFF);
}

/// The Fn key is lit while the mode that it switches is the current one.
bool fnStandsFor(int function, int displayMode)
{
    switch (function) {
    case FN_Black:
        return displayMode == MODE_Black;
    case FN_Freeze:
        return displayMode == MODE_Frozen;
    case FN_Test:
        return displayMode == MODE_Testing;
    }
    return false;
}

void lightMode(ParaChange &change, int displayMode)
{
    light(LED_FREEZE, displayMode == MODE_Frozen);
    light(LED_TEST, displayMode == MODE_Testing);
    light(LED_FN, fnStandsFor(change.number(MENU_FnMode), displayMode));
}

void refreshDisplayRows(ParaChange &change)
{
    for (ENUM_MenuIndex item : {MENU_Normal, MENU_Freeze, MENU_FTB, MENU_TestPattern})
        change.refresh(item);
}

void enterMode(ParaChange &change, DisplayMode mode)
{
    change.set(PARA_DisplayMode, QString::number(mode));
}

void applyNormal(ParaChange &change)
{
    qDebug() << "ENUM_MENUINDEX_SCREEN_CONTROL_NORMAL_DISPLAY_MENU::: testMode="
             << change.item(PARA_DisplayMode);
    lightMode(change, MODE_Normal);
    for (ENUM_MenuIndex item : {MENU_Freeze, MENU_FTB, MENU_TestPattern})
        change.enable(item, true);
    change.choice(MENU_Normal, true);
    change.choice(MENU_Freeze, false);
    change.choice(MENU_FTB, false);
    refreshDisplayRows(change);
    enterMode(change, MODE_Normal);
    change.tail();
}

/// Freeze and black: the other two lose their mark, and the test pattern cannot be opened.
void applyHeldPicture(ParaChange &change, DisplayMode mode, ENUM_MenuIndex other)
{
    lightMode(change, mode);
    if (change.number(PARA_DisplayMode) == mode)
        return;
    change.choice(change.index, true);
    change.choice(MENU_Normal, false);
    change.choice(other, false);
    change.enable(MENU_TestPattern, false);
    refreshDisplayRows(change);
    enterMode(change, mode);
    change.tail();
}

void applyFreeze(ParaChange &change)
{
    qDebug() << "ENUM_MENUINDEX_SCREEN_CONTROL_PIC_FROZEN_MENU::: testMode=" << change.item(PARA_DisplayMode);
    applyHeldPicture(change, MODE_Frozen, MENU_FTB);
}

void applyBlack(ParaChange &change)
{
    qDebug() << "ENUM_MENUINDEX_SCREEN_CONTROL_PIC_BLACK_MENU::: testMode=" << change.item(PARA_DisplayMode);
    applyHeldPicture(change, MODE_Black, MENU_Freeze);
}

void applyTestPattern(ParaChange &change)
{
    lightMode(change, MODE_Testing);
    if (change.number(PARA_DisplayMode) == MODE_Testing)
        return;
    if (change.fromUser()) {
        static const ENUM_MenuIndex patterns[] = {MENU_Test_PureColor, MENU_Test_Gradient, MENU_Test_Grid};
        const int family = change.number(PARA_TestPatternFamily);
        if (family >= 0 && family < int(std::size(patterns))) {
            qDebug() << "ENUM_MENUINDEX_TEST_MODE_CUR ==" << family;
            change.send(patterns[family], change.item(patterns[family]));
        }
    }
    for (ENUM_MenuIndex item : {MENU_Normal, MENU_Freeze, MENU_FTB})
        change.choice(item, false);
    change.enable(MENU_Freeze, false);
    change.enable(MENU_FTB, false);
    refreshDisplayRows(change);
    enterMode(change, MODE_Testing);
}

void applyFnFunction(ParaChange &change)
{
    const int function = change.index - MENU_Fn_Synchronization;
    for (int i = MENU_Fn_Synchronization; i <= MENU_Fn_TestPattern; ++i)
        change.choice(ENUM_MenuIndex(i), i == change.index);
    for (int i = MENU_Fn_Synchronization; i <= MENU_Fn_TestPattern; ++i)
        change.refresh(ENUM_MenuIndex(i));
    change.set(MENU_FnMode, QString::number(function));
    light(LED_FN, fnStandsFor(function, change.number(PARA_DisplayMode)));
    change.tail();
}

/// How the device names the display modes.
struct ReportedMode {
    int code;
    ENUM_MenuIndex item;
    DisplayMode mode;
};
constexpr ReportedMode reportedModes[] = {
    {DISPLAY_Normal, MENU_Normal, MODE_Normal},
    {DISPLAY_Freeze, MENU_Freeze, MODE_Frozen},
    {DISPLAY_Black, MENU_FTB, MODE_Black},
    {DISPLAY_Test, MENU_TestPattern, MODE_Testing},
};

constexpr ApplyCase cases[] = {
    {MENU_Normal, applyNormal},
    {MENU_Freeze, applyFreeze},
    {MENU_FTB, applyBlack},
    {MENU_TestPattern, applyTestPattern},
    {range(MENU_Fn_Synchronization, MENU_Fn_TestPattern), applyFnFunction},
};
} // namespace

void followDisplayMode(ParaProcess &engine, MenuAnalysis &store, int code)
{
    for (const ReportedMode &reported : reportedModes) {
        if (reported.code != code)
            continue;
        if (reported.mode != MODE_Testing) {
            if (engine.processData().value(PARA_DisplayMode) == reported.mode)
                return;
            ParaChange change(engine, store, QString(), reported.item, SET_XML_DEVICE);
            change.choice(reported.item, true);
            change.refresh(reported.item);
        }
        engine.SetParaToXml(QString(), reported.item, SET_XML_DEVICE);
    }
}

Table<ApplyCase> displayCases()
{
    return cases;
}
} // namespace VASK
