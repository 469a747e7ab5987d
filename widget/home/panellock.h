// The lock of the panel's keys: its state, its place in the store, and the window that tells of it. GUI
// thread.
#pragma once

#include "framework/ui/homestates.h"

#include <QTimer>

class HomeView;
class Lock;
class MainWindow;

class PanelLock
{
public:
    /// How long the lock window stays, milliseconds.
    static constexpr int windowMs = 2000;

    PanelLock(MainWindow &home, HomeView &view);

    /// With showing the lock window tells so for two seconds. False, with a log line, for a state that
    /// there is not.
    bool set(ENUM_MainWindowLockState state, bool showing);
    /// The chord of OK and ESC.
    void toggle() { set(m_bLockFlag ? PANEL_UNLOCK : PANEL_LOCK, true); }
    bool isLocked() const { return m_bLockFlag; }
    void hideWindow();

    /// A PC has taken over: what it changes goes past the menu, so the next unlock reads the device again.
    void noteTakeOver() { lock_mode = true; }
    bool isTakenOver() const { return lock_mode; }

private:
    /// Nothing happens unless a PC had taken over.
    void readDevice();
    Lock &window();
    void showWindow();

    MainWindow &m_home;
    HomeView &m_view;
    Lock *m_window = nullptr;
    QTimer m_windowTime;
    bool m_bLockFlag = false;
    bool lock_mode = false;
};
