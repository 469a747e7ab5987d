#include "emulator/console/arguments.h"
#include "emulator/console/words.h"
#include "emulator/emulator.h"

namespace
{
void screen(Session &session, const QStringList &list)
{
    if (list.size() != 1)
        return failUsage(session, "screen");
    const QString file = session.absolutePath(list[0]);
    if (!arguments::isPlainFile(file))
        return session.fail(file + " is no plain file");
    if (!session.emulator.lcd.picture().save(file, "PNG"))
        return session.fail("cannot write " + file);
    session.ok();
}

void log(Session &session, const QStringList &list)
{
    const bool follow = list == QStringList{"--follow"};
    if (!follow && !list.isEmpty())
        return failUsage(session, "log");
    const PanelLog &log = session.emulator.panel.log();
    if (log.dropped() > 0)
        session.print(QString("(%1 older lines are no longer kept)").arg(log.dropped()));
    for (const LogLine &line : log.lines())
        session.print(QString::fromUtf8(line.text));
    if (!follow)
        return session.ok();
    QObject::connect(&session.emulator.panel, &PanelProcess::line, session.request(),
                     [&session](const QString &line) { session.print(line); });
}

void endPanel(Session &session, void (PanelProcess::*how)())
{
    PanelProcess &process = session.emulator.panel;
    if (!process.isRunning())
        return session.fail("the panel is not running");
    QObject::connect(&process, &PanelProcess::ended, session.request(), [&session] { session.ok(); });
    (process.*how)();
}

void startPanel(Session &session)
{
    PanelProcess &process = session.emulator.panel;
    if (process.isRunning())
        return session.fail("the panel is running");
    QObject::connect(&process, &PanelProcess::started, session.request(), [&session] { session.ok(); });
    QObject::connect(&process, &PanelProcess::ended, session.request(),
                     [&session, &process] { session.fail(process.failure()); });
    session.emulator.startPanel();
}

void panel(Session &session, const QStringList &list)
{
    const QString what = list.value(0);
    if (list.size() == 1 && what == "start")
        startPanel(session);
    else if (list.size() == 1 && what == "stop")
        endPanel(session, &PanelProcess::stop);
    else if (list.size() == 1 && what == "kill")
        endPanel(session, &PanelProcess::kill);
    else
        failUsage(session, "panel");
}

void state(Session &session, const QStringList &)
{
    session.print(session.emulator.folder.path());
    session.ok();
}

void waitReady(Session &session)
{
    if (session.emulator.isReady())
        return session.ok();
    QObject::connect(&session.emulator, &Emulator::ready, session.request(), [&session] { session.ok(); });
}

void waitLog(Session &session, const QString &text)
{
    for (const LogLine &line : session.emulator.panel.log().lines()) {
        if (QString::fromUtf8(line.text).contains(text))
            return session.ok();
    }
    QObject::connect(&session.emulator.panel, &PanelProcess::line, session.request(),
                     [&session, text](const QString &line) {
                         if (line.contains(text))
                             session.ok();
                     });
}

void wait(Session &session, const QStringList &list)
{
    const bool forReady = list.value(0) == "ready" && list.size() <= 2;
    const bool forLog = list.value(0) == "log" && (list.size() == 2 || list.size() == 3);
    const auto seconds = arguments::number(list.value(forLog ? 2 : 1, "30"), 0, 86400);
    if ((!forReady && !forLog) || !seconds)
        return failUsage(session, "wait");
    QTimer::singleShot(int(*seconds * 1000), session.request(),
                       [&session] { session.fail("waited in vain"); });
    QObject::connect(&session.emulator.panel, &PanelProcess::ended, session.request(),
                     [&session] { session.fail("the panel has ended"); });
    if (forReady)
        waitReady(session);
    else
        waitLog(session, list[1]);
}

void flag(Session &session, const QStringList &list)
{
    BootFlag &flag = session.emulator.bootFlag;
    const auto delay = arguments::number(list.value(1), 0, 3600 * 1000);
    if (list.size() == 1 && (list[0] == "withhold" || list[0] == "give"))
        flag.setWithheld(list[0] == "withhold");
    else if (list.size() == 2 && list[0] == "delay" && delay)
        flag.setDelay(int(*delay));
    else
        return failUsage(session, "flag");
    session.ok();
}
} // namespace

QVector<Word> panelWords()
{
    return {
        {"screen", "FILE.png", "the LCD as it stands", screen},
        {"log", "[--follow]", "the panel's debug stream", log},
        {"panel", "stop|start|kill", "ends the panel gently, starts it, or kills it", panel},
        {"state", "", "the state folder's path", state},
        {"wait", "ready [SECONDS] | log TEXT [SECONDS]", "until the panel is ready or has logged a text",
         wait},
        {"flag", "delay MS | withhold | give", "when the device answers the panel at start", flag},
    };
}
