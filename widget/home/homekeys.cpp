#include "widget/home/homekeys.h"

#include "framework/engine/paraprocess.h"
#include "framework/object/globaltimer.h"
#include "framework/productiontest/productiontest.h"
#include "framework/store/menuanalysis.h"
#include "menu/itemindex.h"
#include "menu/keycodes.h"
#include "widget/home/languagechoice.h"
#include "widget/home/mainwindow_k2860.h"
#include "widget/home/panelkeys.h"
#include "widget/home/panellock.h"
#include "widget/page/menudirectoty.h"
#include "widget/page/openpage.h"
#include "widget/page/testwindows.h"

using namespace VASK;

namespace
{
constexpr int anyType = -1;
} // namespace

/// The screen's own keys; the dedicated keys have a table of their own.
struct HomeKeys::HomeKey {
    unsigned char key;
    int type; ///< a KEY_TYPE, anyType for all
    void (HomeKeys::*handler)(KeypadEvent &event);
};

const QVector<HomeKeys::HomeKey> &HomeKeys::homeKeys()
{
    static const QVector<HomeKey> keys = {
        {KEY_LOCK, KEY_LONG_PRESS, &HomeKeys::lock},
        {KEY_SERVICE, KEY_LONG_PRESS, &HomeKeys::productionTest},
        {KEY_KNOB_LEFT, anyType, &HomeKeys::knob},
        {KEY_KNOB_RIGHT, anyType, &HomeKeys::knob},
        {KEY_OK, KEY_RELEASED, &HomeKeys::mainMenu},
        {KEY_OK, KEY_LONG_PRESS, &HomeKeys::language},
        {KEY_USER_HIDDEN_MENU, KEY_LONG_PRESS, &HomeKeys::userMenu},
        {KEY_PRODUCT_HIDDEN_MENU, KEY_LONG_PRESS, &HomeKeys::productMenu},
    };
    return keys;
}

bool HomeKeys::handle(KeypadEvent &event)
{
    if (!poolObject<MenuDirectory>(ENUM_MAIN_MENU) || ProductionTest::runs())
        return false;
    GlobalTimer::getInstance()->ResetReturnToMain();
    if (auto *store = poolObject<MenuAnalysis>(ENUM_MENUANALYSIS))
        store->restartUpdateTimer();
    if (m_lock.isLocked() && event.key() != KEY_LOCK) {
        m_lock.set(PANEL_LOCK, true);
        return false;
    }
    qDebug() << "MainWindow: key:" << event.key();
    for (const HomeKey &entry : homeKeys()) {
        if (entry.key == event.key() && (entry.type == anyType || entry.type == event.type())) {
            (this->*entry.handler)(event);
            return true;
        }
    }
    runPanelKey(&m_home, PanelScreen::Home, event);
    return true;
}

void HomeKeys::lock(KeypadEvent &event)
{
    qDebug() << "keypadLockEvent";
    m_home.keypadLockEvent(&event);
}

void HomeKeys::knob(KeypadEvent &event)
{
    qDebug() << (event.key() == KEY_KNOB_LEFT ? "mainwindow left" : "mainwindow right");
}

void HomeKeys::mainMenu(KeypadEvent &)
{
    m_home.logMenus();
    open(ENUM_MAIN_MENU);
}

void HomeKeys::language(KeypadEvent &)
{
    chooseLanguage(m_home);
}

void HomeKeys::userMenu(KeypadEvent &)
{
    open(ENUM_USER_HIDE_MENU);
}

void HomeKeys::productMenu(KeypadEvent &)
{
    open(ENUM_PRODUCT_HIDE_MENU);
}

void HomeKeys::open(ENUM_ObjectIndex object)
{
    auto *menu = poolObject<MenuDirectory>(object);
    if (!menu)
        return;
    menu->setParentScreen(&m_home);
    menu->show();
    m_home.hide();
    OpenPage::set(object);
}

void HomeKeys::productionTest(KeypadEvent &)
{
    TestWindows::startProductionTest(m_home);
    if (auto *engine = poolObject<ParaProcess>(ENUM_PARAPROCESS))
        engine->SetParaToXml(QString(), MENU_SelfTest, SET_XML_DEVICE);
}
