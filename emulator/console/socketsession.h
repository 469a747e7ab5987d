// One client of the console's socket. It sends a request a line, WORD ARGUMENT..., where an argument with
// blanks stands in double quotes (\" and \\ inside). The answer is any number of lines that begin with '+',
// then "ok" or "error REASON", where a reason that begins with "usage: " or "time-out: " says which kind it
// is of. Requests of one client are worked off one after the other. A client that sends an endless line or
// does not read what it follows is dropped. Main thread.
#pragma once

#include "emulator/console/session.h"

#include <QLocalSocket>

class SocketSession : public Session
{
    Q_OBJECT
public:
    SocketSession(Emulator &emulator, QLocalSocket *socket, QObject *parent = nullptr);

protected:
    void sendLine(const QString &line) override;
    void sendEnd(Failure failure, const QString &reason) override;

private:
    void read();
    void handleLine(const QString &line);
    void drop(const char *reason);

    QLocalSocket *m_socket;
    qint64 m_mostUnread = 0; ///< bytes that may wait for the client while an answer goes on
};
