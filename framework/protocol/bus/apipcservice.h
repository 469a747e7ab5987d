// The transport of the protocol objects: one queue for each direction between them and the device's bus, one
// packet down and everything up per tick. Made and working on the GUI thread; SendMsg comes from any thread.
#pragma once

#include "framework/protocol/link/communicationclientinterface.h"
#include "framework/thread/tickgate.h"
#include "menu/objectindex.h"

#include <QByteArray>
#include <QList>
#include <QMutex>
#include <memory>

namespace VASK
{
class ApipcSocket;
class ProtocolInterface;

class APiPCService : public CommunicationClientInterface
{
    Q_OBJECT
public:
    explicit APiPCService(ENUM_ObjectIndex index);
    ~APiPCService() override;
    int BuildHandshake(const VaskObject *, QMap<QString, QString>) override { return 1; }

    /// Joins the bus and connects the home screen to its news. Called once; a bus that cannot be joined
    /// leaves the link dead.
    void ApipcInit();
    /// Starts both tickers and finds the protocol object. Returns 1.
    int Initalize();
    /// Stops both tickers and drops what waits in the queues.
    void Terminate();
    /// Queues a packet: the argument points at a QByteArray. 1, or 0 for a null pointer.
    int SendMsg(void *packet) override;

public slots:
    void slot_receiveMessage(QByteArray packet);
    /// Hands all that has arrived to the protocol object.
    void slot_notifyThreadFun(bool finishing);
    /// Sends the packet that waits longest. One that the bus refuses six times is lost.
    void slot_sendThreadFun(bool finishing);

private:
    struct Direction {
        std::unique_ptr<MsgThread> ticker;
        TickGate gate;
        bool stopped = false;
        QMutex mutex; ///< guards the list
        QList<QByteArray> list;
        std::atomic<int> waiting{0}; ///< length of the list, for the ticker's thread
    };
    void append(Direction &direction, const QByteArray &packet);
    void start(Direction &direction, const char *name, void (APiPCService::*slot)(bool));
    void stop(Direction &direction);
    /// Those who work on what has arrived, and on what it has led to, keep up.
    bool hasRoom() const;
    bool sendWithRetries(const QByteArray &packet);

    ApipcSocket *m_socket = nullptr;
    Direction m_receive;
    Direction m_send;
    bool m_sending = false;
    ProtocolInterface *m_protocol = nullptr;
};
} // namespace VASK
