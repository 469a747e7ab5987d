// Keys on the home screen, and the lock.

#include "widget/home/mainwindow_k2860.h"

#include "framework/engine/paraprocess.h"
#include "framework/object/globaltimer.h"
#include "framework/object/transport.h"
#include "framework/store/menuanalysis.h"
#include "menu/itemindex.h"
#include "menu/keycodes.h"
#include "menu/objectindex.h"
#include "widget/dialog/lock.h"
#include "widget/factory/dialog_factory.h"
#include "widget/home/mainwindowui.h"
#include "widget/home/panelkeys.h"
#include "widget/page/menudirectoty.h"

using namespace VASK;

namespace
{
constexpr int anyType = -1;
} // namespace

/// The screen's own keys; the dedicated keys have a table of their own.
struct MainWindow::HomeKey {
    unsigned char key;
    int type; ///< a KEY_TYPE, anyType for all
    void (MainWindow::*handler)(KeypadEvent *event);
};

const QVector<MainWindow::HomeKey> &MainWindow::homeKeys()
{
    static const QVector<HomeKey> keys = {
        {KEY_LOCK, KEY_LONG_PRESS, &MainWindow::lockKey},
        {KEY_SERVICE, KEY_LONG_PRESS, &MainWindow::startFactoryTest},
        {KEY_KNOB_LEFT, anyType, &MainWindow::knobKey},
        {KEY_KNOB_RIGHT, anyType, &MainWindow::knobKey},
        {KEY_OK, KEY_RELEASED, &MainWindow::openMainMenu},
        {KEY_OK, KEY_LONG_PRESS, &MainWindow::chooseLanguage},
        {KEY_USER_HIDDEN_MENU, KEY_LONG_PRESS, &MainWindow::openUserMenu},
        {KEY_PRODUCT_HIDDEN_MENU, KEY_LONG_PRESS, &MainWindow::openProductMenu},
    };
    return keys;
}

bool MainWindow::event(QEvent *event)
{
    if (!event)
        return false;
    auto *key = dynamic_cast<KeypadEvent *>(event);
    if (!key)
        return QWidget::event(event);
    return keyEvent(key);
}

bool MainWindow::keyEvent(KeypadEvent *event)
{
    if (!poolObject<MenuDirectory>(ENUM_MAIN_MENU) || ProductionTest::runs())
        return false;
    GlobalTimer::getInstance()->ResetReturnToMain();
    if (auto *store = poolObject<MenuAnalysis>(ENUM_MENUANALYSIS))
        store->restartUpdateTimer();
    if (m_bLockFlag && event->key() != KEY_LOCK) {
        SetLockState(PANEL_LOCK, true);
        return QWidget::event(event);
    }
    qDebug() << "MainWindow: key:" << event->key();
    for (const HomeKey &entry : homeKeys()) {
        if (entry.key == event->key() && (entry.type == anyType || entry.type == event->type())) {
            (this->*entry.handler)(event);
            return true;
        }
    }
    runPanelKey(this, PanelScreen::Home, *event);
    return true;
}

void MainWindow::lockKey(KeypadEvent *event)
{
    qDebug() << "keypadLockEvent";
    keypadLockEvent(event);
}

void MainWindow::knobKey(KeypadEvent *event)
{
    qDebug() << (event->key() == KEY_KNOB_LEFT ? "mainwindow left" : "mainwindow right");
}

void MainWindow::openMainMenu(KeypadEvent *)
{
    qDebug() << "m_pMainMenu" << m_pMainMenu << "m_pUserHideMenu" << m_pUserHideMenu << "m_pProductHideMenu"
             << m_pProductHideMenu;
    openMenu(ENUM_MAIN_MENU);
}

void MainWindow::openUserMenu(KeypadEvent *)
{
    openMenu(ENUM_USER_HIDE_MENU);
}

void MainWindow::openProductMenu(KeypadEvent *)
{
    openMenu(ENUM_PRODUCT_HIDE_MENU);
}

void MainWindow::openMenu(ENUM_ObjectIndex object)
{
    auto *menu = poolObject<MenuDirectory>(object);
    if (!menu)
        return;
    menu->m_pparerentdirectory = this;
    menu->show();
    hide();
    MenuDirectory::setCurrentPage(object);
}

void MainWindow::startFactoryTest(KeypadEvent *)
{
    QPointer<Factory> &test = MenuDirectory::m_factory;
    if (!test)
        test = new Factory;
    test->beginSelfTest();
    test->show();
    hide();
    if (auto *engine = poolObject<ParaProcess>(ENUM_PARAPROCESS))
        engine->SetParaToXml(QString(), MENU_SelfTest, SET_XML_DEVICE);
}

void MainWindow::keypadLockEvent(KeypadEvent *)
{
    SetLockState(m_bLockFlag ? PANEL_UNLOCK : PANEL_LOCK, true);
}

bool MainWindow::SetLockState(ENUM_MainWindowLockState state, bool showDialog)
{
    qDebug() << "SetLockState Start!!!";
    if (state != PANEL_LOCK && state != PANEL_UNLOCK) {
        qDebug() << "LockState faild! lockState:" << state;
        return false;
    }
    const bool locked = state == PANEL_LOCK;
    if (!locked && !m_bLockFlag)
        return true;
    ui->labLock->setVisible(locked);
    lockDialog()->SetLockState(locked);
    m_bLockFlag = locked;
    if (!locked && lock_mode) {
        // What came in meanwhile went past the menu.
        lock_mode = false;
        if (auto *engine = poolObject<ParaProcess>(ENUM_PARAPROCESS)) {
            engine->InitReadParaFrom20M();
            engine->InitializeMainWindow();
        }
    }
    storeLockState(state);
    if (showDialog)
        showLockDialog();
    qDebug() << "SetLockState End!!!";
    return true;
}

void MainWindow::storeLockState(ENUM_MainWindowLockState state)
{
    if (auto *store = poolObject<MenuAnalysis>(ENUM_MENUANALYSIS))
        store->UpdataItemCurValue(MENU_ScreenLock, state == PANEL_LOCK ? "1" : "0");
}

Lock *MainWindow::lockDialog()
{
    if (!m_lockDialog)
        m_lockDialog = new Lock(this);
    return m_lockDialog;
}

void MainWindow::showLockDialog()
{
    lockDialog()->show();
    lockDialog()->raise();
    // Every key starts the two seconds again.
    if (!m_lockTimer) {
        m_lockTimer = new QTimer(this);
        m_lockTimer->setSingleShot(true);
        connect(m_lockTimer, &QTimer::timeout, this, &MainWindow::slot_cancelLockDialog);
    }
    m_lockTimer->start(lockDialogMs);
}

void MainWindow::slot_cancelLockDialog()
{
    if (m_lockDialog)
        m_lockDialog->hide();
}
