#include "framework/protocol/bus/apipcservice.h"

#include "framework/protocol/bus/apipcsocket.h"
#include "framework/protocol/link/protocolinterface.h"
#include "framework/ui/home.h"
#include "menu/objectindex.h"

namespace VASK
{
namespace
{
constexpr int tickMs = 10;
constexpr int retries = 5;
constexpr unsigned long longestStopMs = 1000;
// So many packets may wait above the bus before no more are taken from it: a tenth of a second of the fastest
// flood on their way to the reports' thread, three seconds of sending.
constexpr int longestUnread = 1000;
constexpr int longestUnsent = 300;
} // namespace

APiPCService::APiPCService(ENUM_ObjectIndex index) : CommunicationClientInterface(index) {}

APiPCService::~APiPCService()
{
    Terminate();
    // The socket stays: its threads are in the library and cannot be called back.
    if (m_socket) {
        m_socket->disconnect();
        m_socket->setRoom({});
    }
}

void APiPCService::ApipcInit()
{
    if (m_socket)
        return;
    m_socket = new ApipcSocket;
    m_socket->setRoom([this] { return hasRoom(); });
    m_socket->Initialize();
    connect(m_socket, &ApipcSocket::receivedInfos, this, &APiPCService::slot_receiveMessage);
    if (auto *home = dynamic_cast<HomeScreen *>(GetObjectFromPool(ENUM_MAIN_WINDOW)))
        connect(m_socket, &ApipcSocket::signal_update, home, &HomeScreen::slot_update, Qt::QueuedConnection);
}

int APiPCService::Initalize()
{
    const auto running = [](const Direction &direction) {
        return direction.ticker && !direction.ticker->stop();
    };
    if (running(m_receive) || running(m_send))
        Terminate();
    start(m_receive, "tick receive", &APiPCService::slot_notifyThreadFun);
    start(m_send, "tick send", &APiPCService::slot_sendThreadFun);
    m_protocol = dynamic_cast<ProtocolInterface *>(GetObjectFromPool(ENUM_PROTOCOINTERFER_3RD));
    if (!m_protocol)
        qDebug() << "APiPCService:get PROTOCOINTERFER_3RD faild!";
    return 1;
}

void APiPCService::start(Direction &direction, const char *name, void (APiPCService::*slot)(bool))
{
    direction.stopped = false;
    direction.ticker = std::make_unique<MsgThread>(tickMs);
    direction.ticker->setObjectName(QLatin1String(name));
    direction.gate.open(
        direction.ticker.get(), this, [&direction] { return direction.waiting > 0; },
        [this, slot](bool finishing) { (this->*slot)(finishing); });
    direction.ticker->start();
}

void APiPCService::Terminate()
{
    m_receive.stopped = m_send.stopped = true;
    stop(m_receive);
    stop(m_send);
}

void APiPCService::stop(Direction &direction)
{
    if (direction.ticker) {
        direction.gate.close();
        direction.ticker->setStop(true);
        direction.ticker->wait(longestStopMs);
        direction.ticker.reset();
    }
    QMutexLocker lock(&direction.mutex);
    direction.list.clear();
    direction.waiting = 0;
}

void APiPCService::append(Direction &direction, const QByteArray &packet)
{
    {
        QMutexLocker lock(&direction.mutex);
        direction.list.append(packet);
        direction.waiting = direction.list.size();
    }
    direction.gate.wake();
}

int APiPCService::SendMsg(void *packet)
{
    if (!packet)
        return 0;
    qDebug() << "SendMsg";
    append(m_send, *static_cast<QByteArray *>(packet));
    return 1;
}

bool APiPCService::hasRoom() const
{
    const int unread = m_receive.waiting + (m_protocol ? m_protocol->waiting() : 0);
    return unread < longestUnread && m_send.waiting < longestUnsent;
}

void APiPCService::slot_receiveMessage(QByteArray packet)
{
    append(m_receive, packet);
}

void APiPCService::slot_notifyThreadFun(bool)
{
    if (m_receive.waiting == 0 || m_receive.stopped)
        return;
    QMutexLocker lock(&m_receive.mutex);
    while (!m_receive.list.isEmpty()) {
        if (m_protocol)
            m_protocol->slot_ReceivePackHandle(m_receive.list.first());
        m_receive.list.removeFirst();
    }
    m_receive.waiting = 0;
}

void APiPCService::slot_sendThreadFun(bool finishing)
{
    if (finishing || m_send.stopped || m_send.waiting == 0)
        return;
    m_sending = true;
    QMutexLocker lock(&m_send.mutex);
    if (!m_send.list.isEmpty()) {
        if (!sendWithRetries(m_send.list.first()))
            qDebug() << "send fail 5 times!";
        m_send.list.removeFirst();
    }
    m_send.waiting = m_send.list.size();
    m_sending = false;
}

bool APiPCService::sendWithRetries(const QByteArray &packet)
{
    if (!m_socket)
        return false;
    for (int attempt = 0; attempt <= retries; ++attempt) {
        if (m_socket->SendData(packet))
            return true;
        qDebug() << "send fail!";
    }
    return false;
}
} // namespace VASK
