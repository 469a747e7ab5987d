#include "emulator/web/httpconnection.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace
{
constexpr int patienceMs = 10000;
constexpr int longestUnread = 1024 * 1024; ///< bytes of a stream

/// No other page may show, read or frame what comes from here, and this one takes nothing from elsewhere.
constexpr const char *guards =
    "Connection: close\r\n"
    "Cache-Control: no-store\r\n"
    "Content-Security-Policy: default-src 'self'; img-src 'self' blob:; frame-ancestors 'none'\r\n"
    "Cross-Origin-Resource-Policy: same-origin\r\n"
    "Referrer-Policy: no-referrer\r\n"
    "X-Content-Type-Options: nosniff\r\n"
    "X-Frame-Options: DENY\r\n";
} // namespace

HttpConnection::HttpConnection(QTcpSocket *socket, QObject *parent) : QObject(parent), m_socket(socket)
{
    socket->setParent(this);
    socket->setReadBufferSize(http::longestHead + http::longestBody);
    socket->setSocketOption(QAbstractSocket::LowDelayOption, 1);
    connect(socket, &QTcpSocket::readyRead, this, &HttpConnection::read);
    connect(socket, &QTcpSocket::disconnected, this, &QObject::deleteLater);
    m_patience.setSingleShot(true);
    connect(&m_patience, &QTimer::timeout, socket, &QTcpSocket::abort);
    m_patience.start(patienceMs);
}

void HttpConnection::read()
{
    if (m_asked)
        return;
    // Not taken yet: a connection that is upgraded is read once more by whoever speaks the other protocol.
    http::Head head = http::parseHead(m_socket->peek(http::longestHead + 4));
    if (head.status == http::incomplete ||
        (head.status == http::fine && m_socket->bytesAvailable() < head.length + head.bodyLength))
        return;
    m_asked = true;
    m_patience.stop();
    if (head.status != http::fine)
        return refuse(head.status, "the request cannot be read");
    if (head.request.isUpgrade()) {
        emit upgrading(head.request);
        return;
    }
    m_socket->read(head.length);
    head.request.body = m_socket->read(head.bodyLength);
    emit requested(head.request);
}

void HttpConnection::respond(http::Status status, const QByteArray &type, const QByteArray &body)
{
    write(status, "Content-Type: " + type + "\r\nContent-Length: " + QByteArray::number(body.size()) + "\r\n",
          body);
    // What is still to come would make the system take the answer back.
    connect(m_socket, &QTcpSocket::readyRead, m_socket, [socket = m_socket] { socket->readAll(); });
    m_socket->readAll();
    m_socket->disconnectFromHost();
    if (m_socket->state() != QAbstractSocket::UnconnectedState)
        m_patience.start(patienceMs);
}

void HttpConnection::refuse(http::Status status, const QString &reason)
{
    respond(status, "application/json",
            QJsonDocument(QJsonObject{{"ok", false}, {"error", reason}}).toJson(QJsonDocument::Compact));
}

void HttpConnection::beginStream(const QByteArray &type)
{
    write(http::fine, "Content-Type: " + type + "\r\n", QByteArray());
}

void HttpConnection::stream(const QByteArray &data)
{
    m_socket->write(data);
    if (m_socket->bytesToWrite() > longestUnread)
        m_socket->abort();
}

QTcpSocket *HttpConnection::handOver()
{
    QTcpSocket *socket = std::exchange(m_socket, nullptr);
    socket->disconnect(this);
    m_patience.disconnect();
    socket->setParent(nullptr);
    deleteLater();
    return socket;
}

void HttpConnection::write(http::Status status, const QByteArray &headers, const QByteArray &body)
{
    m_socket->write("HTTP/1.1 " + QByteArray::number(status) + ' ' + http::phrase(status) + "\r\n" + headers +
                    guards + "\r\n" + body);
}
