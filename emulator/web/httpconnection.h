// One connection of the web server: one request, then its answer or a stream, then its end. Whoever is slow
// to ask, or does not take the answer, is dropped. Main thread.
#pragma once

#include "emulator/web/httprequest.h"

#include <QTcpSocket>
#include <QTimer>

class HttpConnection : public QObject
{
    Q_OBJECT
public:
    HttpConnection(QTcpSocket *socket, QObject *parent = nullptr);

    void respond(http::Status status, const QByteArray &type, const QByteArray &body);
    /// The same as a sentence.
    void refuse(http::Status status, const QString &reason);

    /// An answer that goes on until one of both ends it.
    void beginStream(const QByteArray &type);
    void stream(const QByteArray &data);

    /// The socket is somebody else's from now on, with the request unread in it.
    QTcpSocket *handOver();

signals:
    void requested(const http::Request &request);
    /// To speak another protocol from here on.
    void upgrading(const http::Request &request);

private:
    void read();
    void write(http::Status status, const QByteArray &headers, const QByteArray &body);

    QTcpSocket *m_socket;
    QTimer m_patience; ///< until the request is whole, and until its answer is taken
    bool m_asked = false;
};
