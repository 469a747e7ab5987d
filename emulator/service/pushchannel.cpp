#include "emulator/service/pushchannel.h"

#include "fpd_hostlink.h"
#include "fpd_hostvalues.h"

#include <QWebSocket>

namespace
{
constexpr const char *channel = "/api/v1/websocketchannel";
}

PushChannel::PushChannel(const StateFolder &folder)
    : m_folder(folder), m_server("device", QWebSocketServer::NonSecureMode)
{
    connect(&m_server, &QWebSocketServer::newConnection, this, [this] {
        while (QWebSocket *client = m_server.nextPendingConnection())
            take(client);
    });
}

PushChannel::~PushChannel()
{
    close();
}

bool PushChannel::open()
{
    if (m_server.isListening())
        return true;
    if (!m_server.listen(QHostAddress::LocalHost, m_port) && !m_server.listen(QHostAddress::LocalHost))
        return false;
    m_port = m_server.serverPort();
    return hostlink::changeValue(m_folder.file(hostlink::portFile), QByteArray::number(hostlink::pushPort),
                                 QByteArray::number(m_port));
}

void PushChannel::close()
{
    m_server.close();
    const QList<QWebSocket *> clients = m_clients;
    m_clients.clear();
    for (QWebSocket *client : clients) {
        client->disconnect(this);
        client->abort();
        delete client;
    }
}

void PushChannel::take(QWebSocket *client)
{
    client->setParent(this);
    if (client->requestUrl().path() != channel) {
        client->close(QWebSocketProtocol::CloseCodePolicyViolated, "no such channel");
        connect(client, &QWebSocket::disconnected, client, &QObject::deleteLater);
        return;
    }
    m_clients.append(client);
    connect(client, &QWebSocket::disconnected, this, [this, client] {
        m_clients.removeOne(client);
        client->deleteLater();
        emit clientsChanged(m_clients.size());
    });
    emit clientsChanged(m_clients.size());
}

int PushChannel::push(const QString &json)
{
    for (QWebSocket *client : qAsConst(m_clients))
        client->sendTextMessage(json);
    return m_clients.size();
}

bool PushChannel::pushDatagram(const QString &json, quint16 port)
{
    const QByteArray text = json.toUtf8();
    return m_datagrams.writeDatagram(text, QHostAddress::LocalHost, port) == text.size();
}
