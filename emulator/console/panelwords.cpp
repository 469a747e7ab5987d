#include "emulator/console/timetext.h"
#include "emulator/console/words.h"
#include "emulator/emulator.h"

#include <QBuffer>
#include <QFileInfo>

namespace
{
constexpr int usualWait = 30; ///< seconds
constexpr int longestWait = 86400;

/// To a file, or with "-" as a line in hex, which fpdctl makes bytes of.
void saveScreen(Session &session, const QString &name)
{
    const QImage picture = session.emulator.lcd.picture();
    if (name == "-") {
        QBuffer png;
        picture.save(&png, "PNG");
        session.print(QString::fromLatin1(png.data().toHex()));
        return session.ok();
    }
    const QString file = session.absolutePath(name);
    if (!arguments::isPlainFile(file))
        return session.fail(file + " is no plain file");
    if (!picture.save(file, "PNG"))
        return session.fail("cannot write " + file);
    session.ok();
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
                     [&session, &process] { session.fail(process.status()); });
    session.emulator.startPanel();
}

void waitReady(Session &session)
{
    if (session.emulator.isReady())
        return session.ok();
    if (session.emulator.panel.hasFailed())
        return session.fail(session.emulator.panel.status());
    QObject::connect(&session.emulator, &Emulator::ready, session.request(), [&session] { session.ok(); });
}

/// From that time on; a line that is still to come has it anyway.
void waitLog(Session &session, const QString &text, qint64 sinceMs)
{
    for (const LogLine &line : session.emulator.panel.log().lines()) {
        if (line.timeMs >= sinceMs && QString::fromUtf8(line.text).contains(text))
            return session.ok();
    }
    QObject::connect(&session.emulator.panel, &PanelProcess::line, session.request(),
                     [&session, text](const LogLine &line) {
                         if (QString::fromUtf8(line.text).contains(text))
                             session.ok();
                     });
}
} // namespace

void words::screen(Session &session, Arguments &arguments)
{
    const bool last = arguments.flag("--last");
    const QString name = arguments.text("FILE");
    const QString suffix = QFileInfo(name).suffix();
    if (!suffix.isEmpty() && suffix.compare("png", Qt::CaseInsensitive) != 0)
        arguments.complain(QString("the picture is a PNG, not a %1: %2").arg(suffix, name));
    if (!session.accepts(arguments))
        return;
    const PanelProcess &panel = session.emulator.panel;
    if (!panel.isRunning() && !last)
        return session.fail(panel.status() + ": its LCD is dark (--last: what it has shown last)");
    saveScreen(session, name);
}

void words::log(Session &session, Arguments &arguments)
{
    const bool follow = arguments.flag("--follow");
    const bool plain = arguments.flag("--plain");
    const qint64 since = arguments.timeOption("--since").value_or(0);
    if (!session.accepts(arguments))
        return;
    const auto print = [&session, plain](const LogLine &line) {
        const QString text = QString::fromUtf8(line.text);
        session.print(plain ? text : timeText(line.timeMs) + ' ' + text);
    };
    const PanelLog &log = session.emulator.panel.log();
    if (log.dropped() > 0)
        session.print(QString("(%1 older lines are no longer kept)").arg(log.dropped()));
    for (const LogLine &line : log.lines()) {
        if (line.timeMs >= since)
            print(line);
    }
    if (!follow)
        return session.ok();
    QObject::connect(&session.emulator.panel, &PanelProcess::line, session.request(), print);
}

void words::panel(Session &session, Arguments &arguments)
{
    const QString what = arguments.choice({"status", "start", "stop", "kill"});
    if (!session.accepts(arguments))
        return;
    if (what == "start")
        return startPanel(session);
    if (what != "status")
        return endPanel(session, what == "stop" ? &PanelProcess::stop : &PanelProcess::kill);
    session.print(session.emulator.panel.status());
    session.ok();
}

void words::state(Session &session, Arguments &arguments)
{
    if (!session.accepts(arguments))
        return;
    session.print(session.emulator.folder.path());
    session.ok();
}

void words::wait(Session &session, Arguments &arguments)
{
    const bool any = arguments.flag("--any");
    const qint64 now = QDateTime::currentMSecsSinceEpoch();
    const qint64 since = arguments.timeOption("--since").value_or(any ? 0 : now);
    const bool forReady = arguments.choice({"ready", "log"}) == "ready";
    const QString text = forReady ? QString() : arguments.text("TEXT");
    const auto seconds = arguments.real("SECONDS", 0, longestWait, usualWait);
    if (!session.accepts(arguments))
        return;
    QTimer::singleShot(int(seconds * 1000), session.request(), [&session, seconds] {
        session.fail(Failure::timeout, QString("waited %1 s in vain").arg(seconds));
    });
    QObject::connect(&session.emulator.panel, &PanelProcess::ended, session.request(),
                     [&session] { session.fail("the panel has ended"); });
    if (forReady)
        waitReady(session);
    else
        waitLog(session, text, since);
}

void words::flag(Session &session, Arguments &arguments)
{
    constexpr int longestDelayMs = 3600 * 1000;
    BootFlag &flag = session.emulator.bootFlag;
    const QString what = arguments.choice({"withhold", "give", "delay"});
    const auto delay = what == "delay" ? int(arguments.number("MS", 0, longestDelayMs)) : 0;
    if (!session.accepts(arguments))
        return;
    if (what == "delay")
        flag.setDelay(delay);
    else
        flag.setWithheld(what == "withhold");
    session.ok();
}
