#include "framework/object/globaltimer.h"

#include "framework/engine/brightnessedit.h"
#include "framework/engine/paraprocess.h"
#include "framework/productiontest/productiontest.h"
#include "framework/ui/home.h"
#include "framework/ui/pages.h"
#include "menu/itemindex.h"
#include "menu/objectindex.h"

#include <QDebug>
#include <QDialog>

namespace VASK
{
namespace
{
/// For a store that holds no usable time: a period of nothing would take the panel home without end.
constexpr int defaultReturnS = 60;
constexpr int msPerSecond = 1000;
} // namespace

GlobalTimer::GlobalTimer() : VaskObject(ENUM_GLOBAL_TIMER) {}

GlobalTimer *GlobalTimer::getInstance()
{
    static GlobalTimer *instance = new GlobalTimer;
    return instance;
}

void GlobalTimer::Initialize(HomeScreen *mainWindow)
{
    m_paraProcess = poolObject<ParaProcess>(ENUM_PARAPROCESS);
    m_pmainwindow = mainWindow;
    m_presetPage = GetObjectFromPool(ENUM_PAGE_PresetSettings);
    m_returnMainWindow = new QTimer(this);
    m_returnMainWindow->setObjectName("return home");
    m_returnTimeMs = readReturnTime();
    m_returnMainWindow->setInterval(m_returnTimeMs);
    qDebug() << "m_returnMainWindow" << m_returnMainWindow << m_returnTimeMs;
    connect(m_returnMainWindow, &QTimer::timeout, this, &GlobalTimer::slot_ReturnToMain);
    m_returnMainWindow->start();
}

bool GlobalTimer::ResetReturnToMain()
{
    if (m_returnMainWindow) {
        m_returnTimeMs = readReturnTime();
        m_returnMainWindow->stop();
        m_returnMainWindow->setInterval(m_returnTimeMs);
        m_returnMainWindow->start();
    }
    return true;
}

bool GlobalTimer::ChangeMainWindow(HomeScreen *mainWindow)
{
    m_pmainwindow = mainWindow;
    // A panel that has started as a fiber converter has no time to return until it gets a home screen.
    if (!m_returnMainWindow)
        Initialize(mainWindow);
    return true;
}

void GlobalTimer::slot_ReturnToMain()
{
    qDebug() << "framework/object/globaltimer.cpp" << __LINE__ << "slot_ReturnToMain!!!!!!";
    if (!poolObject<Page>(ENUM_MAIN_MENU) || ProductionTest::runs())
        return;
    const QWidget *front = frontWindow();
    if (front && (front == m_pmainwindow || front == m_presetPage))
        return;
    qDebug() << "slot_ReturnToMain start!!!!!!";
    if (qobject_cast<const QDialog *>(front)) {
        qDebug() << "now in pDialog";
        return;
    }
    if (Pages::instance() && qobject_cast<const Page *>(front))
        Pages::instance()->leave();
    BrightnessEdit::end();
    qDebug() << "m_pmainwindow:" << m_pmainwindow << "GlobalTimer::slot_ReturnToMain" << m_returnMainWindow
             << m_returnTimeMs;
    if (m_pmainwindow)
        m_pmainwindow->show();
}

int GlobalTimer::readReturnTime() const
{
    const int seconds = m_paraProcess ? m_paraProcess->GetParaFromIndex(MENU_ReturntoHome).toInt() : 0;
    return (seconds > 0 ? seconds : defaultReturnS) * msPerSecond;
}
} // namespace VASK
