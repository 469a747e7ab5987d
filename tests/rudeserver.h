// A server that behaves as no service should: takes connections and says nothing, or those bytes before it
// closes them.
#pragma once

#include <QSemaphore>
#include <QTcpServer>
#include <QTcpSocket>
#include <QThread>

class RudeServer : public QTcpServer
{
public:
    explicit RudeServer(const QByteArray &bytes = {})
    {
        connect(this, &QTcpServer::newConnection, this, [this, bytes] {
            QTcpSocket *socket = nextPendingConnection();
            if (bytes.isEmpty())
                return;
            connect(socket, &QTcpSocket::readyRead, socket, [socket, bytes] {
                socket->write(bytes);
                socket->disconnectFromHost();
            });
        });
        listen(QHostAddress::LocalHost);
    }
    QString address() const { return QString("http://127.0.0.1:%1").arg(serverPort()); }
};

/// The same beside a test that does not run its event loop.
class RudeServerThread : public QThread
{
public:
    explicit RudeServerThread(const QByteArray &bytes) : m_bytes(bytes)
    {
        start();
        m_listens.acquire();
    }
    ~RudeServerThread() override
    {
        quit();
        wait();
    }
    quint16 port() const { return m_port; }

protected:
    void run() override
    {
        const RudeServer server(m_bytes);
        m_port = server.serverPort();
        m_listens.release();
        exec();
    }

private:
    const QByteArray m_bytes;
    QSemaphore m_listens;
    quint16 m_port = 0;
};
