// Words that record a session and play it again.
#include "emulator/console/arguments.h"
#include "emulator/console/words.h"
#include "emulator/device/replayer.h"
#include "emulator/emulator.h"

namespace
{
constexpr qint64 longestSession = 64 * 1024 * 1024; ///< bytes of a file that is replayed

void record(Session &session, const QStringList &list)
{
    Recorder &recorder = session.emulator.recorder;
    if (list.size() != 1)
        return failUsage(session, "record");
    if (list[0] != "stop") {
        const QString file = session.absolutePath(list[0]);
        if (!arguments::isPlainFile(file))
            return session.fail(file + " is no plain file");
        const QString fault = recorder.start(file);
        return fault.isEmpty() ? session.ok() : session.fail(fault);
    }
    if (!recorder.isRecording())
        return session.fail("nothing is being recorded");
    const auto result = recorder.stop();
    if (!result.second.isEmpty())
        return session.fail(result.second);
    session.print(QString("%1 events").arg(result.first));
    session.ok();
}

/// Nothing if the file cannot be read or is no session; the request has failed then.
std::optional<QVector<session::Event>> readSession(Session &session, const QString &name)
{
    QFile file(session.absolutePath(name));
    if (!arguments::isPlainFile(file.fileName()) || file.size() > longestSession) {
        session.fail(file.fileName() + " is no plain file of at most 64 MB");
        return std::nullopt;
    }
    if (!file.open(QIODevice::ReadOnly)) {
        session.fail("cannot read " + file.fileName() + ": " + file.errorString());
        return std::nullopt;
    }
    QVector<session::Event> events;
    const QString fault = session::parse(QString::fromUtf8(file.readAll()), events);
    if (!fault.isEmpty()) {
        session.fail(file.fileName() + ": " + fault);
        return std::nullopt;
    }
    return events;
}

void replay(Session &session, const QStringList &list)
{
    constexpr double slowest = 0.001, fastest = 100000;
    const auto speed = arguments::real(list.value(1, "1"), slowest, fastest);
    if (list.isEmpty() || list.size() > 2 || !speed)
        return failUsage(session, "replay");
    const auto events = readSession(session, list[0]);
    if (!events)
        return;
    Emulator &emulator = session.emulator;
    auto *replayer = new Replayer(emulator.keypad, emulator.device, *events, *speed, session.request());
    QObject::connect(replayer, &Replayer::ended, session.request(),
                     [&session, replayer](const QString &fault) {
                         session.print(QString("played %1 keys and %2 reports")
                                           .arg(replayer->keysPlayed())
                                           .arg(replayer->reportsPlayed()));
                         if (fault.isEmpty())
                             session.ok();
                         else
                             session.fail(fault);
                     });
    replayer->start();
}
} // namespace

QVector<Word> sessionWords()
{
    return {
        {"record", "FILE | stop", "writes down keys and reports with their times", record},
        {"replay", "FILE [SPEED]", "plays them again, SPEED times as fast; ends when all is played", replay},
    };
}
