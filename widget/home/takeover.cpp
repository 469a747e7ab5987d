#include "widget/home/takeover.h"

#include "widget/home/homemessages.h"
#include "widget/home/mainwindow_k2860.h"
#include "widget/home/panellock.h"
#include "widget/page/openpage.h"

#include <QApplication>
#include <QThread>

using namespace VASK;

void TakeOver::begin()
{
    if (!m_lock.isLocked()) {
        if (!m_home.isVisible() || QApplication::activeModalWidget())
            leaveForHome();
        m_lock.set(PANEL_LOCK, true);
    }
    m_lock.noteTakeOver();
}

void TakeOver::end()
{
    if (m_lock.isLocked() && m_lock.isTakenOver())
        m_lock.set(PANEL_UNLOCK, true);
}

void TakeOver::leaveForHome()
{
    qDebug() << "slot_ReturnToMain start!!!!!!";
    endDialogs();
    endDialogsLater(); // also one that the ESC brings up
    OpenPage::leave();
    qDebug() << "slot_ReturnToMain end!!!!!!";
    m_home.show();
}

/// What a dialog has interrupted goes on when it is gone, and may have more to ask or to tell: until the last
/// of them has come back from its event loop.
void TakeOver::endDialogs()
{
    constexpr int programsOwnLoop = 1;
    while (auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget())) {
        qDebug() << "now in pDialog";
        dialog->done(HomeMessages::replaced);
    }
    if (QThread::currentThread()->loopLevel() > programsOwnLoop)
        endDialogsLater();
}

void TakeOver::endDialogsLater()
{
    QTimer::singleShot(0, &m_home, [this] { endDialogs(); });
}
