// The self-check window in the place of a page, and back.

#include "widget/factory/devcheckwin.h"
#include "widget/factory/dialog_factory.h"
#include "widget/page/menudirectoty.h"

namespace VASK
{
QPointer<DevCheckWin> MenuDirectory::m_win;
QPointer<Factory> MenuDirectory::m_factory;

DevCheckWin *MenuDirectory::showSelfCheck(QWidget *instead, bool test)
{
    delete m_win;
    m_win = new DevCheckWin;
    m_win->InitDefaultItems(test);
    m_win->show();
    instead->hide();
    return m_win;
}

void MenuDirectory::closeSelfCheck()
{
    if (!m_win || DevCheckWin::test_flg)
        return;
    m_win->hide();
    m_win->deleteLater();
}

void MenuDirectory::slot_devchk_end()
{
    m_skipNextEsc = true;
    show();
    // The window is still at its key.
    if (m_win)
        m_win->deleteLater();
}
} // namespace VASK
