// A PC takes the panel over, and lets go: whatever is open ends, the home screen comes up and the keys are
// locked until then. GUI thread.
#pragma once

class MainWindow;
class PanelLock;

class TakeOver
{
public:
    TakeOver(MainWindow &home, PanelLock &lock) : m_home(home), m_lock(lock) {}

    void begin();
    void end();

private:
    void leaveForHome();
    void endDialogs();
    void endDialogsLater();

    MainWindow &m_home;
    PanelLock &m_lock;
};
