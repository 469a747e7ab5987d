#include "emulator/web/webserver.h"

#include "emulator/emulator.h"
#include "emulator/web/pageassets.h"
#include "emulator/web/viewer.h"

#include <QNetworkInterface>

namespace
{
constexpr int mostConnections = 64;
constexpr int handshakeMs = 10000;
constexpr const char *streamPath = "/api/stream";

/// By what others call this machine, which has many addresses when it is bound to all.
QString hostOf(const QHostAddress &bound)
{
    const bool isAny =
        bound == QHostAddress::Any || bound == QHostAddress::AnyIPv4 || bound == QHostAddress::AnyIPv6;
    QHostAddress shown = bound;
    const QList<QHostAddress> own = isAny ? QNetworkInterface::allAddresses() : QList<QHostAddress>();
    for (const QHostAddress &address : own) {
        if (!address.isLoopback() && !address.isLinkLocal() &&
            (shown == bound || address.protocol() == QAbstractSocket::IPv4Protocol))
            shown = address;
    }
    return shown == bound && isAny ? "localhost" : shown.toString();
}
} // namespace

WebServer::WebServer(Emulator &emulator, const QHostAddress &address, QObject *parent)
    : QObject(parent), m_emulator(emulator), m_address(address), m_access(address), m_api(emulator),
      m_live(emulator), m_streams("panel", QWebSocketServer::NonSecureMode)
{
    m_streams.setHandshakeTimeout(handshakeMs);
    m_streams.setMaxPendingConnections(mostConnections);
    connect(&m_server, &QTcpServer::newConnection, this, [this] {
        while (QTcpSocket *socket = m_server.nextPendingConnection())
            take(socket);
    });
    connect(&m_streams, &QWebSocketServer::newConnection, this, [this] {
        while (QWebSocket *socket = m_streams.nextPendingConnection())
            welcome(socket);
    });
}

QString WebServer::open(quint16 port)
{
    if (m_server.listen(m_address, port))
        return QString();
    return QString("cannot serve the panel at %1, port %2: %3")
        .arg(m_address.toString())
        .arg(port)
        .arg(m_server.errorString());
}

QString WebServer::lookLink() const
{
    return link(m_access.lookToken(), "?view");
}

QString WebServer::link(const QString &token, const QString &query) const
{
    QUrl url;
    url.setScheme("http");
    url.setHost(hostOf(m_address));
    url.setPort(port());
    url.setPath("/");
    // Behind the mark, what a browser keeps to itself: no log and no other site gets to see it.
    return url.toString() + query + (token.isEmpty() ? QString() : "#token=" + token);
}

void WebServer::take(QTcpSocket *socket)
{
    if (m_connections >= mostConnections) {
        socket->write("HTTP/1.1 503 Service Unavailable\r\nConnection: close\r\nContent-Length: 0\r\n\r\n");
        connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
        socket->flush();
        return socket->abort();
    }
    ++m_connections;
    connect(socket, &QObject::destroyed, this, [this] { --m_connections; });
    auto *connection = new HttpConnection(socket, this);
    connect(connection, &HttpConnection::requested, this,
            [=](const http::Request &request) { answer(*connection, request); });
    connect(connection, &HttpConnection::upgrading, this,
            [=](const http::Request &request) { upgrade(*connection, request); });
}

bool WebServer::admits(HttpConnection &connection, const http::Request &request) const
{
    if (!Access::isOwnHost(request))
        connection.refuse(http::misdirected, "this machine is not called by that name");
    else if (request.method != "GET" && !Access::isOwnOrigin(request))
        connection.refuse(http::forbidden, "a page of another origin does nothing here");
    else
        return true;
    return false;
}

void WebServer::answer(HttpConnection &connection, const http::Request &request)
{
    if (!admits(connection, request))
        return;
    if (Api::isPath(request.path))
        return m_api.answer(connection, request, m_access.rightOf(request));
    const auto asset = page::asset(request.path);
    if (!asset)
        connection.refuse(http::notFound, "there is nothing by this path");
    else if (request.method != "GET")
        connection.refuse(http::wrongMethod, "not by this method");
    else
        connection.respond(http::fine, asset->type, asset->content);
}

void WebServer::upgrade(HttpConnection &connection, const http::Request &request)
{
    if (!admits(connection, request))
        return;
    if (request.path != QLatin1String(streamPath))
        return connection.refuse(http::notFound, "there is no stream by this path");
    if (!Access::isOwnOrigin(request))
        return connection.refuse(http::forbidden, "a page of another origin sees nothing here");
    if (m_access.rightOf(request) == Access::nothing)
        return connection.refuse(http::unauthorized, "a token is needed");
    m_streams.handleConnection(connection.handOver());
}

void WebServer::welcome(QWebSocket *socket)
{
    const Access::Right right =
        m_access.rightOf(QUrlQuery(socket->requestUrl()), socket->request().rawHeader("authorization"));
    new Viewer(socket, m_emulator, m_live, right == Access::drive, this);
}
