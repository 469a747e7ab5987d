#include "client/consoleclient.h"

#include "fpd_hostlink.h"
#include "fpd_hostsocket.h"

#include <QElapsedTimer>
#include <QFile>
#include <poll.h>

namespace
{
QByteArray requestLine(const QStringList &words)
{
    QByteArray line;
    for (QString word : words)
        line += '"' + word.replace('\\', "\\\\").replace('"', "\\\"").toUtf8() + "\" ";
    return line + '\n';
}
} // namespace

ConsoleClient::~ConsoleClient()
{
    if (m_descriptor >= 0)
        close(m_descriptor);
}

bool ConsoleClient::connectTo(const QString &stateFolder)
{
    const QString file = stateFolder + hostlink::consoleSocket;
    m_descriptor = hostlink::connectSocket(QFile::encodeName(file).toStdString(), SOCK_STREAM);
    return m_descriptor >= 0;
}

Answer ConsoleClient::ask(const QStringList &words, int timeoutMs)
{
    begin(words);
    Answer answer = finish(timeoutMs);
    if (!answer.ok && answer.error.isEmpty())
        answer.error = "no answer to " + words.join(' ');
    return answer;
}

Answer ConsoleClient::finish(int timeoutMs)
{
    Answer answer;
    QElapsedTimer passed;
    passed.start();
    for (QString line; readLine(line, timeoutMs - int(passed.elapsed()));) {
        if (line == "ok") {
            answer.ok = true;
            return answer;
        }
        if (line.startsWith("error ")) {
            answer.error = line.mid(6);
            return answer;
        }
        answer.lines.append(line.mid(1));
    }
    return answer;
}

bool ConsoleClient::askAll(const QList<QStringList> &requests, int timeoutMs)
{
    QByteArray lines;
    for (const QStringList &words : requests)
        lines += requestLine(words);
    if (send(m_descriptor, lines.constData(), size_t(lines.size()), MSG_NOSIGNAL) != lines.size())
        return false;
    bool allDone = true;
    int answers = 0;
    for (QString line; answers < requests.size() && readLine(line, timeoutMs);) {
        answers += !line.startsWith('+');
        allDone = allDone && !line.startsWith("error ");
    }
    return allDone && answers == requests.size();
}

void ConsoleClient::begin(const QStringList &words)
{
    const QByteArray line = requestLine(words);
    if (send(m_descriptor, line.constData(), size_t(line.size()), MSG_NOSIGNAL) != line.size())
        qWarning("the console is gone");
}

QStringList ConsoleClient::newLines(int timeoutMs)
{
    QStringList lines;
    for (QString line; readLine(line, lines.isEmpty() ? timeoutMs : 0);)
        lines.append(line.mid(1));
    return lines;
}

bool ConsoleClient::readLine(QString &line, int timeoutMs)
{
    int end = m_rest.indexOf('\n');
    while (end < 0) {
        pollfd entry{m_descriptor, POLLIN, 0};
        if (poll(&entry, 1, qMax(0, timeoutMs)) != 1)
            return false;
        char buffer[65536];
        const ssize_t size = recv(m_descriptor, buffer, sizeof buffer, 0);
        if (size <= 0)
            return false;
        m_rest.append(buffer, int(size));
        end = m_rest.indexOf('\n');
    }
    line = QString::fromUtf8(m_rest.left(end));
    m_rest.remove(0, end + 1);
    return true;
}
