#include "framework/communication/http/websockettunnel.h"

#include <QUrl>
#include <QUuid>

namespace Communicator_New
{
namespace
{
constexpr int pingMs = 1000;
}

WebsocketTunnel::WebsocketTunnel() : m_socket(QString(), QWebSocketProtocol::Version13)
{
    m_socket.setParent(this);
    m_ping.setParent(this);
    m_ping.setInterval(pingMs);
    connect(&m_ping, &QTimer::timeout, &m_socket, [this] { m_socket.ping(); });
    connect(&m_socket, &QWebSocket::disconnected, &m_ping, &QTimer::stop);
}

PTicket WebsocketTunnel::connectTo(const QString &host, unsigned short port, Connected onConnected,
                                   Failed onError)
{
    m_host = host;
    m_port = port;
    // What an earlier call connected must not be told of this connection, nor of its own end by this call.
    delete m_connection;
    m_connection = new QObject(this);
    m_ping.stop();
    m_socket.abort();
    connect(&m_socket, &QWebSocket::connected, m_connection, [this, onConnected] {
        onConnected(m_socket.isValid());
        m_ping.start();
    });
    // Queued: a function may call connectTo again, and then the socket must be done with what it tells.
    connect(
        &m_socket, &QWebSocket::disconnected, m_connection, [onError] { onError(0); }, Qt::QueuedConnection);
    connect(
        &m_socket, qOverload<QAbstractSocket::SocketError>(&QWebSocket::error), m_connection,
        [onError](QAbstractSocket::SocketError code) { onError(int(code)); }, Qt::QueuedConnection);
    m_socket.open(QUrl(QString("ws://%1:%2/api/v1/websocketchannel?id=%3")
                           .arg(host)
                           .arg(port)
                           .arg(QUuid::createUuid().toString(QUuid::Id128))));
    return std::make_shared<Ticket>();
}

PTicket WebsocketTunnel::recieve(Received function)
{
    connect(&m_socket, &QWebSocket::textMessageReceived, this, [this, function](const QString &text) {
        function(QHostAddress(m_host), m_port, ResultSet::fromJson(text.toUtf8()));
    });
    return std::make_shared<Ticket>();
}
} // namespace Communicator_New
