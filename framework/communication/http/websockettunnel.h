// JSON over a WebSocket: a channel that receives, kept alive by a ping a second. When it closes, its owner is
// told and may call connectTo again; nothing reconnects by itself. On the thread that made it.
#pragma once

#include "framework/communication/http/tunnel.h"

#include <QObject>
#include <QTimer>
#include <QWebSocket>

namespace Communicator_New
{
class WebsocketTunnel : public QObject, public Tunnel
{
    Q_OBJECT
public:
    WebsocketTunnel();

    bool bind(unsigned short) override { return false; }
    bool bind(const QHostAddress &, unsigned short) override { return false; }
    /// Opens the service's channel, under an id of its own each time. onConnected is called when it is open,
    /// onError with the socket's error, or with 0 when it closes; both must be given.
    PTicket connectTo(const QString &host, unsigned short port, Connected onConnected,
                      Failed onError) override;
    PTicket send(Package &, Ticket::Callback) override { return {}; }
    /// Each text is one JSON text; what came before is lost. The function must be given; it is told the
    /// address that connectTo was given.
    PTicket recieve(Received function) override;
    bool isActived() override { return m_socket.isValid(); }

private:
    QWebSocket m_socket;
    QString m_host;
    unsigned short m_port = 0;
    QTimer m_ping;
    QObject *m_connection = nullptr; ///< owns what the last connectTo has connected
};
} // namespace Communicator_New
