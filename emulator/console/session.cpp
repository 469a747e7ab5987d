#include "emulator/console/session.h"

#include "emulator/console/words.h"

#include <QDir>
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

Session::Session(Emulator &theEmulator, QLocalSocket *socket, QObject *parent)
    : QObject(parent), emulator(theEmulator), m_socket(socket)
{
    socket->setParent(this);
    socket->setReadBufferSize(longestLine);
    connect(socket, &QLocalSocket::readyRead, this, &Session::read);
    connect(socket, &QLocalSocket::bytesWritten, this, &Session::read);
    connect(socket, &QLocalSocket::disconnected, this, &QObject::deleteLater);
}

void Session::print(const QString &text)
{
    if (!m_request)
        return; // the answer has ended
    for (const QString &line : text.split('\n'))
        m_socket->write('+' + line.toUtf8() + '\n');
    if (m_mostUnread > 0 && m_socket->bytesToWrite() > m_mostUnread)
        drop("does not read what it follows");
}

void Session::ok()
{
    finish("ok");
}

void Session::fail(Failure failure, const QString &reason)
{
    const char *kind = failure == Failure::usage     ? "usage: "
                       : failure == Failure::timeout ? "time-out: "
                                                     : "";
    finish(QString("error %1%2").arg(kind, reason).replace('\n', ' '));
}

bool Session::accepts(const Arguments &arguments)
{
    const QString fault = arguments.fault();
    if (!fault.isEmpty())
        fail(Failure::usage, m_usage + ": " + fault);
    return fault.isEmpty();
}

QString Session::absolutePath(const QString &file) const
{
    return QDir::cleanPath(QDir(m_folder).absoluteFilePath(file));
}

void Session::finish(const QString &line)
{
    if (!m_request)
        return;
    m_request.release()->deleteLater();
    m_socket->write(line.toUtf8() + '\n');
    if (!m_socket->canReadLine()) // the answers to requests in a row go together
        m_socket->flush();
    QMetaObject::invokeMethod(this, &Session::read, Qt::QueuedConnection);
}

void Session::read()
{
    // Whoever does not read its answers gets no more of them.
    while (!m_request && m_socket->bytesToWrite() < mostUnread && m_socket->canReadLine())
        handle(QString::fromUtf8(m_socket->readLine()).trimmed());
    if (!m_request && !m_socket->canReadLine() && m_socket->bytesAvailable() >= longestLine)
        drop("sends a line without an end");
}

void Session::drop(const char *reason)
{
    qWarning("a client of the console is dropped: it %s", reason);
    if (m_request)
        m_request.release()->deleteLater();
    m_socket->abort();
}

void Session::handle(const QString &line)
{
    m_request = std::make_unique<QObject>();
    m_mostUnread = 0;
    const auto arguments = splitLine(line);
    if (!arguments)
        fail("a quote is left open");
    else if (arguments->isEmpty())
        ok();
    else
        handleWord(*this, arguments->first(), arguments->mid(1));
    // What was said at once, as a long log is, waits however much it is.
    m_mostUnread = m_socket->bytesToWrite() + mostUnread;
}
