#include "emulator/console/jsonforms.h"
#include "emulator/console/timetext.h"
#include "emulator/console/words.h"
#include "emulator/emulator.h"

#include <QBuffer>
#include <QFileInfo>
#include <QJsonDocument>

namespace
{
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
    const QString file = session.takePath(name);
    if (file.isEmpty())
        return;
    if (!arguments::isPlainFile(file))
        return session.fail(file + " is no plain file");
    if (!picture.save(file, "PNG"))
        return session.fail("cannot write " + file);
    session.ok();
}

void printTexts(Session &session)
{
    const bool asJson = session.isJson();
    session.emulator.screenText.ask(session.request(),
                                    [&session, asJson](const std::optional<QJsonArray> &texts) {
                                        if (!texts)
                                            return session.fail("the panel does not answer");
                                        if (asJson)
                                            session.print(QJsonDocument(*texts));
                                        for (const QJsonValue &text : asJson ? QJsonArray() : *texts)
                                            session.print(ScreenText::describe(text.toObject()));
                                        session.ok();
                                    });
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
} // namespace

void words::screen(Session &session, Arguments &arguments)
{
    const bool last = arguments.flag("--last");
    session.setJson(arguments.flag("--json"));
    const QString name = arguments.text("FILE");
    const bool asText = name.compare("text", Qt::CaseInsensitive) == 0;
    const QString suffix = QFileInfo(name).suffix();
    if (!suffix.isEmpty() && suffix.compare("png", Qt::CaseInsensitive) != 0)
        arguments.complain(QString("the picture is a PNG, not a %1: %2").arg(suffix, name));
    if (!session.accepts(arguments))
        return;
    const PanelProcess &panel = session.emulator.panel;
    if (!panel.isRunning() && !last)
        return session.fail(panel.status() + ": its LCD is dark (--last: what it has shown last)");
    if (asText)
        printTexts(session);
    else
        saveScreen(session, name);
}

void words::log(Session &session, Arguments &arguments)
{
    const bool follow = arguments.flag("--follow");
    const bool plain = arguments.flag("--plain");
    const qint64 since = arguments.timeOption("--since").value_or(0);
    session.setJson(arguments.flag("--json"));
    if (!session.accepts(arguments))
        return;
    const auto print = [&session, plain](const LogLine &line) {
        const QString text = QString::fromUtf8(line.text);
        session.tell(plain ? text : timeText(line.timeMs) + ' ' + text, jsonforms::logLine(line));
    };
    const PanelLog &log = session.emulator.panel.log();
    if (log.dropped() > 0)
        session.tell(QString("(%1 older lines are no longer kept)").arg(log.dropped()),
                     {{"dropped", log.dropped()}});
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
    session.setJson(arguments.flag("--json"));
    const QString what = arguments.choice({"status", "start", "stop", "kill"});
    if (!session.accepts(arguments))
        return;
    if (what == "start")
        return startPanel(session);
    if (what != "status")
        return endPanel(session, what == "stop" ? &PanelProcess::stop : &PanelProcess::kill);
    session.tell(session.emulator.panel.status(), jsonforms::panel(session.emulator.panel));
    session.ok();
}

void words::state(Session &session, Arguments &arguments)
{
    session.setJson(arguments.flag("--json"));
    if (!session.accepts(arguments))
        return;
    const QString path = session.emulator.folder.path();
    session.tell(path, {{"path", path}});
    session.ok();
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
