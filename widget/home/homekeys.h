// What the keys do on the home screen: its own keys here, the panel's dedicated keys in panelkeys.h. GUI
// thread.
#pragma once

#include "framework/input/keypadevent.h"
#include "menu/objectindex.h"

#include <QVector>

class MainWindow;
class PanelLock;

class HomeKeys
{
public:
    HomeKeys(MainWindow &home, PanelLock &lock) : m_home(home), m_lock(lock) {}

    /// False if the home screen takes no keys at present.
    bool handle(VASK::KeypadEvent &event);

private:
    struct HomeKey;
    static const QVector<HomeKey> &homeKeys();
    void lock(VASK::KeypadEvent &event);
    void knob(VASK::KeypadEvent &event);
    void mainMenu(VASK::KeypadEvent &event);
    void language(VASK::KeypadEvent &event);
    void userMenu(VASK::KeypadEvent &event);
    void productMenu(VASK::KeypadEvent &event);
    void productionTest(VASK::KeypadEvent &event);
    void open(VASK::ENUM_ObjectIndex menu);

    MainWindow &m_home;
    PanelLock &m_lock;
};
