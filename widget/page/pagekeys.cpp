// Which key does what on a page.

#include "widget/page/menudirectoty.h"

#include "framework/object/globaltimer.h"
#include "framework/store/menuanalysis.h"
#include "menu/keycodes.h"
#include "menu/objectindex.h"
#include "widget/home/mainwindow_k2860.h"
#include "widget/home/panelkeys.h"

namespace VASK
{
namespace
{
/// The made-up key of who leaves a page in the user's place.
KeypadEvent madeUpEsc()
{
    return {KEY_RELEASED, KEY_ESC, 1, false};
}
} // namespace

/// The page's own keys; the dedicated keys have a table of their own.
struct MenuDirectory::PageKey {
    unsigned char key;
    int type; ///< a KEY_TYPE, anyType for all
    bool whileEditing;
    void (MenuDirectory::*handler)(KeypadEvent *event);
};

const QVector<MenuDirectory::PageKey> &MenuDirectory::pageKeys()
{
    constexpr int anyType = -1;
    static const QVector<PageKey> keys = {
        {KEY_LOCK, KEY_LONG_PRESS, false, &MenuDirectory::lockPanel},
        {KEY_KNOB_LEFT, anyType, true, &MenuDirectory::keypadRotateLeftEvent},
        {KEY_KNOB_RIGHT, anyType, true, &MenuDirectory::keypadRotateRightEvent},
        {KEY_OK, KEY_RELEASED, true, &MenuDirectory::keypadOkEvent},
        {KEY_ESC, KEY_PRESSED, true, &MenuDirectory::escPressed},
        {KEY_ESC, KEY_RELEASED, true, &MenuDirectory::escKey},
    };
    return keys;
}

bool MenuDirectory::event(QEvent *event)
{
    if (!event)
        return false;
    auto *key = dynamic_cast<KeypadEvent *>(event);
    if (!key)
        return QWidget::event(event);
    keyEvent(key);
    return true;
}

void MenuDirectory::keyEvent(KeypadEvent *event)
{
    qDebug() << "MenuDirectory: key:" << event->key() << "type:" << event->type();
    GlobalTimer::getInstance()->ResetReturnToMain();
    if (auto *store = poolObject<MenuAnalysis>(ENUM_MENUANALYSIS))
        store->restartUpdateTimer();

    for (const PageKey &entry : pageKeys()) {
        if (entry.key != event->key() || (entry.type >= 0 && entry.type != event->type()))
            continue;
        if (!m_edit || entry.whileEditing)
            (this->*entry.handler)(event);
        return;
    }
    if (!m_edit)
        runPanelKey(this, PanelScreen::Page, *event);
    else if (GetkeypadNum(event->key()) != noDigit)
        keypadNumEvent(event);
}

/// A new ESC is the page's, whether or not the release of the one that closed another window has come.
void MenuDirectory::escPressed(KeypadEvent *)
{
    m_skipNextEsc = false;
}

void MenuDirectory::escKey(KeypadEvent *event)
{
    if (m_skipNextEsc)
        m_skipNextEsc = false;
    else
        keypadEScEvent(event);
}

void MenuDirectory::lockPanel(KeypadEvent *event)
{
    if (auto *home = poolObject<MainWindow>(ENUM_MAIN_WINDOW))
        home->keypadLockEvent(event);
    ReturnToMainWindows(event);
}

void MenuDirectory::ReturnToMainWindows(KeypadEvent *)
{
    enableCopiedPreset();
    KeypadEvent esc = madeUpEsc();
    if (auto *active = dynamic_cast<MenuDirectory *>(QApplication::activeWindow())) {
        active->keypadEScEvent(&esc);
        active->hide();
    }
    hideAllPages();
    if (auto *menu = poolObject<MenuDirectory>(ENUM_MAIN_MENU)) {
        menu->m_pparerentdirectory = poolObject<MainWindow>(ENUM_MAIN_WINDOW);
        menu->keypadEScEvent(&esc);
    }
    setNoPage();
}
} // namespace VASK
