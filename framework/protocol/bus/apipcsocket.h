// Faces the closed library of the device's bus: joins it, sends messages, and receives them on two threads of
// its own, one in the library's wait loop, one at its queue. Made and used on the GUI thread; the signals are
// emitted there, too. Once its threads run it must live until the process ends.
#pragma once

#include "framework/thread/postqueue.h"

#include <QByteArray>
#include <QMutex>
#include <QObject>
#include <atomic>
#include <pthread.h>

namespace VASK
{
class ApipcSocket : public QObject
{
    Q_OBJECT
public:
    /// Joins the bus and starts the threads. False, with a log line, if that fails: the link stays dead.
    bool Initialize();
    /// Packs the packet into a message and sends it to the device service. True when the bus took it.
    bool SendData(QByteArray packet);
    /// Passes a received packet up, from any thread. Returns 0. While those before it wait for room above,
    /// the thread at the queue waits, too, and the bus keeps what follows.
    int AddMessage(const char *packet, int length);
    /// Whether more may be passed up now, asked on the GUI thread.
    void setRoom(std::function<bool()> hasRoom) { m_arrivals.setRoom(std::move(hasRoom)); }
    void SetReceiveSucessFlag(bool success);
    /// Does what the labels of a whole received message ask for. Any thread.
    void dispatch(const QByteArray &message);

signals:
    void receivedInfos(QByteArray packet);
    /// Progress of a firmware update: mode 0 with a count, mode 1 at the end.
    void signal_update(quint8 mode, quint16 count);
    void signal_back_up(quint8 step);
    void signal_restore(quint8 step);

private:
    /// 0, or -1 if a thread could not be started.
    int CreateThread();
    static void *ApipcThreadProc(void *socket);
    static void *RecvThreadProc(void *socket);
    void ApipcMsg();
    void RecvMsg();
    /// Takes messages from the library's queue for as long as that works; returns 3 on a fault.
    int ipc_event_deal_th();
    void reportUpdate(quint8 mode, quint16 count);

    static constexpr int longestArrivals = 1000;

    struct Label;
    static const Label labels[];

    pthread_t m_waitThread{};
    std::atomic<bool> m_stopWait{false};
    pthread_t m_receiveThread{};
    std::atomic<bool> m_stopReceive{false};
    bool m_receiveSuccess = false;
    QMutex m_mutex;
    PostQueue m_arrivals{this, longestArrivals};
};
} // namespace VASK
