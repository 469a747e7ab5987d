// Listens on a SOCK_SEQPACKET socket of the state folder and passes packets on. It can be closed and opened
// again, as when a device is unplugged. Main thread.
#pragma once

#include <QHash>
#include <QObject>
#include <QQueue>
#include <QString>

class QSocketNotifier;

class PacketServer : public QObject
{
    Q_OBJECT
public:
    explicit PacketServer(const QString &file, QObject *parent = nullptr);
    ~PacketServer() override;

    bool open();
    /// Nobody can connect any more; whoever has, stays.
    void stopListening();
    /// Nobody can connect, and whoever has is cut off.
    void close();

    /// One packet to one client, in order: while its socket is full, packets wait here, but not endlessly.
    /// False for a client that has gone, or that does not read.
    bool send(int client, const QByteArray &packet);
    /// One packet to every client; how many took it.
    int sendToAll(const QByteArray &packet);
    /// Some client has not read for so long that it is sent nothing more.
    bool isFull() const;
    /// Packets that were not taken since a client did not read.
    qint64 refused() const { return m_refused; }

signals:
    void connected(int client);
    void received(int client, const QByteArray &packet);
    void disconnected(int client);

private:
    struct Client {
        QSocketNotifier *readable;
        QSocketNotifier *writable; ///< enabled while packets wait
        QQueue<QByteArray> waiting;
        qint64 waitingBytes = 0; ///< with what each packet costs
    };

    void accept();
    void read(int client);
    void sendWaiting(int client);
    void drop(int client);

    QString m_file;
    int m_listener = -1;
    QSocketNotifier *m_notifier = nullptr;
    QHash<int, Client> m_clients;
    qint64 m_refused = 0;
};
