// What the device's service tells by itself: JSON to the clients of its WebSocket channel, and in datagrams.
// Main thread.
#pragma once

#include "emulator/host/statefolder.h"

#include <QList>
#include <QObject>
#include <QUdpSocket>
#include <QWebSocketServer>

class PushChannel : public QObject
{
    Q_OBJECT
public:
    explicit PushChannel(const StateFolder &folder);
    ~PushChannel() override;

    /// Listens, and writes the port into the state folder.
    bool open();
    /// No client any more, and no new one.
    void close();
    /// The number of clients that it went to.
    int push(const QString &json);
    /// One datagram to that port of this machine.
    bool pushDatagram(const QString &json, quint16 port);

signals:
    /// How many there are.
    void clientsChanged(int count);

private:
    void take(QWebSocket *client);

    const StateFolder &m_folder;
    QWebSocketServer m_server;
    QList<QWebSocket *> m_clients;
    QUdpSocket m_datagrams;
    quint16 m_port = 0; ///< 0: any
};
