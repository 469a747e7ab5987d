// A client of the emulator's console, as fpdctl is one. Any one thread.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

struct Answer {
    bool ok = false;
    QString error;
    QStringList lines;
};

class ConsoleClient
{
public:
    ~ConsoleClient();

    bool connectTo(const QString &stateFolder);
    /// One request and its whole answer.
    Answer ask(const QStringList &words, int timeoutMs);

    /// Many requests at once, for their number; false if one of them was refused.
    bool askAll(const QList<QStringList> &requests, int timeoutMs);

    /// Starts a request whose answer goes on, such as log --follow.
    void begin(const QStringList &words);
    /// The whole answer to what was begun.
    Answer finish(int timeoutMs);
    /// The lines of the answer that have come by now; waits at most so long for the first.
    QStringList newLines(int timeoutMs);

private:
    bool readLine(QString &line, int timeoutMs);

    int m_descriptor = -1;
    QByteArray m_rest;
};
