// A word of the console that comes from a page or over HTTP: it can name no file, and its answer goes on as a
// signal a line. One word; goes with its parent. Main thread.
#pragma once

#include "emulator/console/session.h"

#include <QJsonValue>

class WebSession : public Session
{
    Q_OBJECT
public:
    WebSession(Emulator &emulator, QObject *parent);

    void run(const QStringList &words) { handle(words); }
    /// The answer gets longer than can be kept: it ends here.
    void cut() { fail("the answer is too long; ask for less of it, such as --since 10"); }

signals:
    /// A line; one of JSON as what it holds.
    void said(const QJsonValue &line);
    void ended(Failure failure, const QString &reason);

protected:
    void sendLine(const QString &line) override;
    void sendEnd(Failure failure, const QString &reason) override { emit ended(failure, reason); }
};
