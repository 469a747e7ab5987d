// The keys of the display mode, Fn and the presets.

#include "widget/home/panelkeys.h"

#include "framework/engine/paraprocess.h"
#include "framework/input/keyevent.h"
#include "menu/itemindex.h"
#include "menu/ledindex.h"
#include "menu/objectindex.h"

#include <QTimer>

namespace VASK
{
namespace
{
/// The display mode, as the process data hold it.
const QString modeNormal = QStringLiteral("0");
const QString modeFrozen = QStringLiteral("1");
const QString modeBlack = QStringLiteral("2");
const QString modeTest = QStringLiteral("3");

/// How long a key's LED flashes when its page opens, milliseconds.
constexpr int flashMs = 100;

QString displayMode()
{
    const auto *engine = poolObject<ParaProcess>(ENUM_PARAPROCESS);
    return engine ? engine->GetParaFromIndex(PARA_DisplayMode) : QString();
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
    if (displayMode() == modeBlack)
        showNormal();
    else
        press(ENUM_ROW_FTB, MENU_FTB);
}

/// By the value of the Fn item.
constexpr void (*fnFunctions[])(QWidget *, unsigned char) = {
    fnSynchronization, fnOutput, fnBlack, keypadFreezeEvent, keypadTestEvent,
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
    const size_t number = function.toUInt(&isNumber);
    if (isNumber && number < std::size(fnFunctions))
        fnFunctions[number](screen, key);
}

void keypadFreezeEvent(QWidget *, unsigned char)
{
    const QString mode = displayMode();
    if (mode == modeTest)
        return;
    if (mode == modeFrozen)
        showNormal();
    else
        press(ENUM_ROW_Freeze, MENU_Freeze);
}

void keypadTestEvent(QWidget *screen, unsigned char)
{
    const QString mode = displayMode();
    qDebug() << "disp_mode == " << mode;
    if (mode == modeTest) {
        showNormal();
        return;
    }
    // As OK on the row of the page: it starts the pattern, unless a held picture disables the row.
    if (mode == modeNormal)
        press(ENUM_ROW_TestPattern, MENU_TestPattern);
    openMenuPath(screen, {ENUM_MAIN_MENU, ENUM_PAGE_DisplayControl, ENUM_PAGE_TestPattern});
}

void keypadPresetEvent(QWidget *screen, unsigned char)
{
    openWithFlash(screen, LED_PRESET, {ENUM_MAIN_MENU, ENUM_PAGE_PresetSettings});
}
} // namespace VASK
