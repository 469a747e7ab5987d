// JSON in datagrams: a channel that receives, and hears one sender alone. On the thread that made it.
#pragma once

#include "framework/communication/http/tunnel.h"

#include <QObject>
#include <QUdpSocket>

namespace Communicator_New
{
class UDPTunnel : public QObject, public Tunnel
{
    Q_OBJECT
public:
    bool bind(unsigned short port) override { return bind(QHostAddress::Any, port); }
    bool bind(const QHostAddress &address, unsigned short port) override;
    /// That host is the one that is heard from now on: its address, as a name is not looked up. A tunnel that
    /// is bound keeps its port. Neither function is called.
    PTicket connectTo(const QString &host, unsigned short port, Connected onConnected,
                      Failed onError) override;
    PTicket send(Package &, Ticket::Callback) override { return {}; }
    static PTicket send(const QByteArray &, const Ticket::Callback &) { return {}; }
    /// Each datagram is one JSON text. Those of other senders are read and dropped.
    PTicket recieve(Received function) override;
    bool isActived() override { return true; }

    /// One datagram. True when all of it was written.
    bool sendTo(const QByteArray &data, const QHostAddress &address, unsigned short port);
    /// To every network that this machine is in.
    void broadcast(const QByteArray &data, unsigned short port);

private:
    void readAll(const Received &function);

    QUdpSocket m_socket;
    QHostAddress m_peer; ///< null: nobody is heard
};
} // namespace Communicator_New
