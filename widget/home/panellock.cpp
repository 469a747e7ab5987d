#include "widget/home/panellock.h"

#include "framework/engine/paraprocess.h"
#include "framework/store/menuanalysis.h"
#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "menu/objectindex.h"
#include "widget/dialog/lock.h"
#include "widget/home/homeview.h"
#include "widget/home/mainwindow_k2860.h"

#include <utility>

using namespace VASK;

PanelLock::PanelLock(MainWindow &home, HomeView &view) : m_home(home), m_view(view)
{
    m_windowTime.setSingleShot(true);
    m_windowTime.setInterval(windowMs);
    QObject::connect(&m_windowTime, &QTimer::timeout, &home, &MainWindow::slot_cancelLockDialog);
}

bool PanelLock::set(ENUM_MainWindowLockState state, bool showing)
{
    qDebug() << "SetLockState Start!!!";
    if (state != PANEL_LOCK && state != PANEL_UNLOCK) {
        qDebug() << "LockState faild! lockState:" << state;
        return false;
    }
    const bool locked = state == PANEL_LOCK;
    if (!locked && !m_bLockFlag)
        return true;
    m_view.showLocked(locked);
    window().SetLockState(locked);
    m_bLockFlag = locked;
    if (!locked)
        readDevice();
    if (auto *store = poolObject<MenuAnalysis>(ENUM_MENUANALYSIS))
        store->UpdataItemCurValue(MENU_ScreenLock, locked ? SELECTED : UNSELECTED);
    if (showing)
        showWindow();
    qDebug() << "SetLockState End!!!";
    return true;
}

void PanelLock::readDevice()
{
    auto *engine = poolObject<ParaProcess>(ENUM_PARAPROCESS);
    if (!std::exchange(lock_mode, false) || !engine)
        return;
    engine->InitReadParaFrom20M();
    engine->InitializeMainWindow();
}

Lock &PanelLock::window()
{
    if (!m_window)
        m_window = new Lock(&m_home);
    return *m_window;
}

/// Every key starts the two seconds again.
void PanelLock::showWindow()
{
    window().show();
    window().raise();
    m_windowTime.start();
}

void PanelLock::hideWindow()
{
    if (m_window)
        m_window->hide();
}
