#include "widget/page/testwindows.h"

#include "widget/factory/devcheckwin.h"
#include "widget/factory/dialog_factory.h"
#include "widget/page/menudirectoty.h"

namespace VASK
{
QPointer<DevCheckWin> TestWindows::m_win;
QPointer<Factory> TestWindows::m_factory;

DevCheckWin *TestWindows::newSelfCheck(QWidget &instead, bool test)
{
    delete m_win;
    m_win = new DevCheckWin;
    m_win->InitDefaultItems(test);
    m_win->show();
    instead.hide();
    return m_win;
}

void TestWindows::showSelfCheck(MenuDirectory &instead)
{
    QObject::connect(newSelfCheck(instead, false), &DevCheckWin::signal_devchk_end, &instead,
                     &MenuDirectory::slot_devchk_end);
}

void TestWindows::showSelfCheckOfTest(QWidget &instead)
{
    newSelfCheck(instead, true);
}

void TestWindows::endSelfCheck()
{
    if (m_win)
        m_win->deleteLater();
}

void TestWindows::closeSelfCheck()
{
    if (!m_win || DevCheckWin::test_flg)
        return;
    m_win->hide();
    m_win->deleteLater();
}

DevCheckWin *TestWindows::selfCheck()
{
    return m_win;
}

void TestWindows::startProductionTest(QWidget &instead)
{
    if (!m_factory)
        m_factory = new Factory;
    m_factory->beginSelfTest();
    m_factory->show();
    instead.hide();
}
} // namespace VASK
