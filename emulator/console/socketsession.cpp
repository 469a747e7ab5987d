#include "emulator/console/socketsession.h"

#include <optional>

namespace
{
constexpr qint64 longestLine = 1024 * 1024; ///< also what is taken in behind a request that waits
constexpr qint64 mostUnread = 16 * 1024 * 1024;

/// The arguments of a line; nothing if a quote is left open.
std::optional<QStringList> splitLine(const QString &line)
{
    QStringList arguments;
    QString current;
    bool inside = false, quoted = false;
    for (int i = 0; i < line.size(); ++i) {
        const QChar c = line[i];
        if (c == '\\' && quoted && i + 1 < line.size()) {
            current += line[++i];
        } else if (c == '"') {
            quoted = !quoted;
            inside = true;
        } else if (c.isSpace() && !quoted) {
            if (inside)
                arguments.append(current);
            current.clear();
            inside = false;
        } else {
            current += c;
            inside = true;
        }
    }
    if (inside)
        arguments.append(current);
    if (quoted)
        return std::nullopt;
    return arguments;
}
} // namespace

SocketSession::SocketSession(Emulator &theEmulator, QLocalSocket *socket, QObject *parent)
    : Session(theEmulator, "/", parent), m_socket(socket)
{
    socket->setParent(this);
    socket->setReadBufferSize(longestLine);
    connect(socket, &QLocalSocket::readyRead, this, &SocketSession::read);
    connect(socket, &QLocalSocket::bytesWritten, this, &SocketSession::read);
    connect(socket, &QLocalSocket::disconnected, this, &QObject::deleteLater);
}

void SocketSession::sendLine(const QString &line)
{
    m_socket->write('+' + line.toUtf8() + '\n');
    if (m_mostUnread > 0 && m_socket->bytesToWrite() > m_mostUnread)
        drop("does not read what it follows");
}

void SocketSession::sendEnd(Failure failure, const QString &reason)
{
    const char *kind = failure == Failure::usage     ? "usage: "
                       : failure == Failure::timeout ? "time-out: "
                                                     : "";
    const QString line = failure == Failure::none ? QString("ok") : QString("error %1%2").arg(kind, reason);
    m_socket->write(line.toUtf8() + '\n');
    if (!m_socket->canReadLine()) // the answers to requests in a row go together
        m_socket->flush();
    QMetaObject::invokeMethod(this, &SocketSession::read, Qt::QueuedConnection);
}

void SocketSession::read()
{
    // Whoever does not read its answers gets no more of them.
    while (!isAnswering() && m_socket->bytesToWrite() < mostUnread && m_socket->canReadLine())
        handleLine(QString::fromUtf8(m_socket->readLine()).trimmed());
    if (!isAnswering() && !m_socket->canReadLine() && m_socket->bytesAvailable() >= longestLine)
        drop("sends a line without an end");
}

void SocketSession::drop(const char *reason)
{
    qWarning("a client of the console is dropped: it %s", reason);
    abandon();
    m_socket->abort();
}

void SocketSession::handleLine(const QString &line)
{
    m_mostUnread = 0;
    const auto words = splitLine(line);
    if (words)
        handle(*words);
    else
        sendEnd(Failure::refused, "a quote is left open");
    // What was said at once, as a long log is, waits however much it is.
    m_mostUnread = m_socket->bytesToWrite() + mostUnread;
}
