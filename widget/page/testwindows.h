// The windows of the self check and of the production test: each comes up in the place of a page or of the
// home screen, and there is one of each. GUI thread.
#pragma once

#include <QPointer>

class DevCheckWin;
class Factory;
class QWidget;

namespace VASK
{
class MenuDirectory;

class TestWindows
{
public:
    /// Brings up a new self check in the place of a page, which comes back with ESC.
    static void showSelfCheck(MenuDirectory &instead);
    /// On behalf of the production test, for good.
    static void showSelfCheckOfTest(QWidget &instead);
    /// The self check has been left; its window is still at its key.
    static void endSelfCheck();
    /// The home screen comes up by itself: a self check from the menu must not stay below it.
    static void closeSelfCheck();
    /// Null before the first one.
    static DevCheckWin *selfCheck();
    /// Begins the production test in the place of another window.
    static void startProductionTest(QWidget &instead);

private:
    static DevCheckWin *newSelfCheck(QWidget &instead, bool test);

    static QPointer<DevCheckWin> m_win;
    static QPointer<Factory> m_factory;
};
} // namespace VASK
