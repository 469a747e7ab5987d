// The keys of the display mode, Fn and the presets.

#include "widget/home/panelkeys.h"

#include "framework/engine/paraprocess.h"
#include "framework/engine/processdata.h"
#include "framework/input/keyevent.h"
#include "menu/itemindex.h"
#include "menu/ledindex.h"
#include "menu/objectindex.h"

#include <QTimer>

namespace VASK
{
namespace
{
/// How long a key's LED flashes when its page opens, milliseconds.
constexpr int flashMs = 100;

/// None of the modes as long as there is no engine.
int displayMode()
{
    constexpr int noMode = -1;
    const auto *engine = poolObject<ParaProcess>(ENUM_PARAPROCESS);
    return engine ? engine->processData().value(PARA_DisplayMode) : noMode;
}

void press(ENUM_ObjectIndex row, ENUM_MenuIndex item)
{
    if (auto *widget = poolObject<VaskUiObject>(row))
        widget->EnterEntry(item);
}

void showNormal()
{
    press(ENUM_ROW_Normal, MENU_Normal);
}

/// Opens a page with its key lit for a moment; the LED's own state comes back after it.
void openWithFlash(QWidget *screen, ENUM_LedIndex led, std::initializer_list<ENUM_ObjectIndex> path)
{
    KeyEvent::SendLedCommandOnce(led, LED_ON);
    openMenuPath(screen, path);
    QTimer::singleShot(flashMs, [led] { KeyEvent::SendLedCommandOnce(led, LED_OFF); });
}

void fnSynchronization(QWidget *screen, unsigned char)
{
    openWithFlash(screen, LED_FN, {ENUM_MAIN_MENU, ENUM_PAGE_AdvancedSetting, ENUM_PAGE_Synchronization});
}

void fnOutput(QWidget *screen, unsigned char)
{
    openWithFlash(screen, LED_FN, {ENUM_MAIN_MENU, ENUM_PAGE_AdvancedSetting, ENUM_PAGE_HDMIOutput});
}

void fnBlack(QWidget *, unsigned char)
{
    if (displayMode() == MODE_Black)
        showNormal();
    else
        press(ENUM_ROW_FTB, MENU_FTB);
}

struct FnKey {
    FnFunction function;
    void (*press)(QWidget *, unsigned char);
};
constexpr FnKey fnKeys[] = {
    {FN_Synchronization, fnSynchronization},
    {FN_Output, fnOutput},
    {FN_Black, fnBlack},
    // These have keys of their own, too.
    {FN_Freeze, keypadFreezeEvent},
    {FN_Test, keypadTestEvent},
};
} // namespace

void keypadFnEvent(QWidget *screen, unsigned char key)
{
    const auto *engine = poolObject<ParaProcess>(ENUM_PARAPROCESS);
    if (!engine)
        return;
    const QString function = engine->GetParaFromIndex(MENU_FnMode);
    qDebug() << "###MenuDirectory::keypadFnEvent:fn_mode=" << function;
    bool isNumber = false;
    const int number = function.toInt(&isNumber);
    for (const FnKey &fn : fnKeys)
        if (isNumber && fn.function == number)
            fn.press(screen, key);
}

void keypadFreezeEvent(QWidget *, unsigned char)
{
    const int mode = displayMode();
    if (mode == MODE_Testing)
        return;
    if (mode == MODE_Frozen)
        showNormal();
    else
        press(ENUM_ROW_Freeze, MENU_Freeze);
}

void keypadTestEvent(QWidget *screen, unsigned char)
{
    const int mode = displayMode();
    qDebug() << "disp_mode == " << QString::number(mode);
    if (mode == MODE_Testing) {
        showNormal();
        return;
    }
    // As OK on the row of the page: it starts the pattern, unless a held picture disables the row.
    if (mode == MODE_Normal)
        press(ENUM_ROW_TestPattern, MENU_TestPattern);
    openMenuPath(screen, {ENUM_MAIN_MENU, ENUM_PAGE_DisplayControl, ENUM_PAGE_TestPattern});
}

void keypadPresetEvent(QWidget *screen, unsigned char)
{
    openWithFlash(screen, LED_PRESET, {ENUM_MAIN_MENU, ENUM_PAGE_PresetSettings});
}
} // namespace VASK
