// One client of the console. It sends a request a line, WORD ARGUMENT..., where an argument with blanks
// stands in double quotes (\" and \\ inside). The answer is any number of lines that begin with '+', then
// "ok" or "error REASON", where a reason that begins with "usage: " or "time-out: " says which kind it is of.
// Requests of one client are worked off one after the other. A client that sends an
// endless line or does not read what it follows is dropped. Main thread.
#pragma once

#include <QLocalSocket>
#include <QObject>
#include <QStringList>
#include <memory>

class Arguments;
class Emulator;

enum class Failure { refused, usage, timeout };

class Session : public QObject
{
    Q_OBJECT
public:
    Session(Emulator &emulator, QLocalSocket *socket, QObject *parent = nullptr);

    Emulator &emulator;

    /// One line of the answer.
    void print(const QString &text);
    /// Ends the answer.
    void ok();
    void fail(const QString &reason) { fail(Failure::refused, reason); }
    void fail(Failure failure, const QString &reason);

    /// False if an argument is wrong or one too many: the request has failed then, with how the word is used.
    bool accepts(const Arguments &arguments);
    /// How the word that is being answered is used.
    void setUsage(const QString &usage) { m_usage = usage; }

    /// Lives as long as the request that is being answered; what is connected to it ends with it.
    QObject *request() { return m_request.get(); }
    /// The folder that relative file names start from.
    void setFolder(const QString &folder) { m_folder = folder; }
    QString absolutePath(const QString &file) const;

private:
    void read();
    void finish(const QString &line);
    void handle(const QString &line);
    void drop(const char *reason);

    QLocalSocket *m_socket;
    QString m_folder = "/";
    QString m_usage;
    qint64 m_mostUnread = 0; ///< bytes that may wait for the client while an answer goes on
    std::unique_ptr<QObject> m_request;
};
