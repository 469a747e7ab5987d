// The part of the protocol object that starts it and ties cables, host session and home screen together.

#include "framework/engine/device.h"
#include "framework/engine/paraprocess.h"
#include "framework/protocol/link/proto3rd.h"
#include "framework/protocol/link/proto3rdreceiveparse.h"
#include "framework/protocol/link/proto3rdsend.h"
#include "framework/protocol/receive/packagehandler.h"
#include "framework/protocol/receive/reportdispatch.h"
#include "framework/ui/home.h"
#include "menu/itemindex.h"
#include "menu/objectindex.h"

namespace VASK
{
namespace
{
constexpr int drainMs = 10;
constexpr int sendMs = 200;
} // namespace

int Proto3rd::initialize()
{
    m_exit = false;
    // A widget as all of the family: it must stand before the report thread sends through it.
    Proto3rdSend::getInstance();
    qDebug() << "create m_notifyThread";
    m_notifyThread = std::make_unique<MsgThread>(drainMs);
    m_notifyThread->setObjectName("tick drain");
    m_notifyGate.open(
        m_notifyThread.get(), this, [this] { return m_waiting > 0; },
        [this](bool finishing) { slot_notifyThreadFun(finishing); });
    m_notifyThread->start();
    qDebug() << "create m_pMessageHandler";
    // The readers of the reports are made here, on this thread, before the first report needs them.
    Proto3rdReceiveParse::getInstance();
    m_pMessageHandler = std::make_unique<PackageHandler>(dispatchReport);
    m_pMessageHandler->start();
    qDebug() << "create m_pMessageHandler end";
    m_pParaProcess = poolObject<ParaProcess>(ENUM_PARAPROCESS);
    m_link.start();
    m_sendTimer.start(sendMs);
    connectHomeScreen();
    return 1;
}

void Proto3rd::connectSupervision()
{
    connect(&m_link, &LinkSupervision::connectState, this, &Proto3rd::showConnection);
    connect(&m_link, &LinkSupervision::returnHome, this, [this] { returnMain(true); });
    connect(&m_link, &LinkSupervision::linkLost, &m_session, [this] { m_session.DealNetorUsbLink(false); });
    connect(&m_link, &LinkSupervision::usbPolled, this,
            [this](int state) { passInOutTest(INOUT_USB_IN, state); });
    connect(&m_link, &LinkSupervision::ethernetPolled, this,
            [this](int state) { passInOutTest(INOUT_ETHERNET, state); });
    connect(&m_session, &HostSession::over, this, [this] { returnMain(true); });
}

void Proto3rd::connectHomeScreen()
{
    auto *home = dynamic_cast<HomeScreen *>(GetObjectFromPool(ENUM_MAIN_WINDOW));
    if (!home)
        return;
    connect(this, &Proto3rd::signal_return_main, home, &HomeScreen::slot_ReturnToMainSoft,
            Qt::QueuedConnection);
    connect(this, &Proto3rd::signal_soft_calibrate, home, &HomeScreen::slot_soft_calibrate,
            Qt::QueuedConnection);
}

void Proto3rd::showConnection(ENUM_MainWindowConnectState state)
{
    toHome(poolObject<HomeScreen>(ENUM_MAIN_WINDOW),
           [state](HomeScreen &home) { home.SetConnectState(state); });
}

/// The production test looks at the sockets while it stands at its last step. A cable that is in before
/// counts as well as one that comes: a worker has plugged all of them.
void Proto3rd::passInOutTest(en_inout_test_index index, int state)
{
    if (ProductionTest::m_cur_step == FACTORY_STEP_IN_OUT && state != 0)
        emit signal_update_menuitem(index, ITEM_PASSED);
}

Proto3rd::HostMode Proto3rd::hostMode(const ParaProcess *engine)
{
    if (!engine)
        return HostMode::Unknown;
    return DeviceView(*engine).workMode() == WORK_FIBER ? HostMode::Fiber : HostMode::Allowed;
}

void Proto3rd::returnMain(bool mode)
{
    if (hostMode(m_pParaProcess) == HostMode::Allowed)
        emit signal_return_main(mode);
}
} // namespace VASK
