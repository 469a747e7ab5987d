// Serves the panel to browsers and programs: the page, what programs ask for, and the stream of each viewer,
// all at one port. Main thread.
#pragma once

#include "emulator/web/access.h"
#include "emulator/web/api.h"
#include "emulator/web/live.h"

#include <QTcpServer>
#include <QWebSocketServer>

class WebServer : public QObject
{
    Q_OBJECT
public:
    WebServer(Emulator &emulator, const QHostAddress &address, QObject *parent = nullptr);

    /// Port 0: a free one. Empty, or what went wrong.
    QString open(quint16 port);
    /// What a user opens, and who may only look; the same where no token is needed.
    QString driveLink() const { return link(m_access.driveToken()); }
    QString lookLink() const;
    bool needsToken() const { return m_access.needsToken(); }
    quint16 port() const { return m_server.serverPort(); }

private:
    QString link(const QString &token, const QString &query = QString()) const;
    void take(QTcpSocket *socket);
    /// False if it has been refused.
    bool admits(HttpConnection &connection, const http::Request &request) const;
    void answer(HttpConnection &connection, const http::Request &request);
    void upgrade(HttpConnection &connection, const http::Request &request);
    void welcome(QWebSocket *socket);

    Emulator &m_emulator;
    QHostAddress m_address;
    Access m_access;
    Api m_api;
    Live m_live;
    QTcpServer m_server;
    QWebSocketServer m_streams;
    int m_connections = 0;
};
