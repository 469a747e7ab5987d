// Words that record a session and play it again.
#include "emulator/console/words.h"
#include "emulator/device/answercheck.h"
#include "emulator/device/replayer.h"
#include "emulator/emulator.h"

#include <QJsonArray>
#include <QJsonObject>

namespace
{
constexpr qint64 longestSession = 64 * 1024 * 1024; ///< bytes of a file that is replayed

void startRecording(Session &session, const QString &name)
{
    const QString file = session.takePath(name);
    if (file.isEmpty())
        return;
    if (!arguments::isPlainFile(file))
        return session.fail(file + " is no plain file");
    const QString fault = session.emulator.recorder.start(file);
    if (fault.isEmpty())
        session.ok();
    else
        session.fail(fault);
}

void stopRecording(Session &session)
{
    Recorder &recorder = session.emulator.recorder;
    if (!recorder.isRecording())
        return session.fail("nothing is being recorded");
    const auto result = recorder.stop();
    if (!result.second.isEmpty())
        return session.fail(result.second);
    session.tell(QString("%1 events").arg(result.first), {{"events", result.first}});
    session.ok();
}

/// Nothing if the file cannot be read or is no session; the request has failed then.
std::optional<QVector<session::Event>> readSession(Session &session, const QString &name)
{
    const QString path = session.takePath(name);
    if (path.isEmpty())
        return std::nullopt;
    QFile file(path);
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

/// What is to be told at the end, and whether it was as it should be.
void report(Session &session, const Replayer &replayer, const QString &fault, const QStringList &differences)
{
    const int keys = replayer.keysPlayed(), reports = replayer.reportsPlayed();
    const QString played = QString("played %1 keys and %2 reports").arg(keys).arg(reports);
    session.tell(
        (QStringList{played} + differences).join('\n'),
        {{"keys", keys}, {"reports", reports}, {"differences", QJsonArray::fromStringList(differences)}});
    if (!fault.isEmpty())
        session.fail(fault);
    else if (!differences.isEmpty())
        session.fail("the device has answered otherwise than in the recorded session");
    else
        session.ok();
}
} // namespace

void words::record(Session &session, Arguments &arguments)
{
    session.setJson(arguments.flag("--json"));
    const bool stop = arguments.nextIs("stop");
    const QString file = arguments.text("FILE");
    if (!session.accepts(arguments))
        return;
    if (stop)
        stopRecording(session);
    else
        startRecording(session, file);
}

void words::replay(Session &session, Arguments &arguments)
{
    constexpr double slowest = 0.001, fastest = 100000;
    session.setJson(arguments.flag("--json"));
    const bool checks = arguments.flag("--check");
    const QString file = arguments.text("FILE");
    const double speed = arguments.real("SPEED", slowest, fastest, 1);
    if (!session.accepts(arguments))
        return;
    const auto events = readSession(session, file);
    if (!events)
        return;
    Emulator &emulator = session.emulator;
    auto *replayer = new Replayer(emulator.keypad, emulator.device, *events, speed, session.request());
    auto *check = checks ? new AnswerCheck(emulator.device, *events, session.request()) : nullptr;
    QObject::connect(replayer, &Replayer::ended, session.request(), [=, &session](const QString &fault) {
        if (!check || !fault.isEmpty())
            return report(session, *replayer, fault, {});
        QObject::connect(check, &AnswerCheck::ended, session.request(),
                         [=, &session] { report(session, *replayer, QString(), check->differences()); });
        check->end();
    });
    replayer->start();
}
