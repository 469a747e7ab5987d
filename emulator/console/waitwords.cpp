// The word wait: until the panel has done, shows, logs or stores something.
#include "emulator/console/words.h"
#include "emulator/device/rest.h"
#include "emulator/emulator.h"
#include "emulator/host/storefile.h"

#include <QDateTime>

namespace
{
constexpr int usualWait = 30; ///< seconds
constexpr int longestWait = 86400;
constexpr int storeLookMs = 100;

/// What is waited for, as it was asked for.
struct Wish {
    QString text;  ///< of the log or the LCD
    QString item;  ///< of the store, by number or name
    QString value; ///< of that item
    bool gone = false;
    qint64 sinceMs = 0;
};

void waitReady(Session &session, const Wish &)
{
    if (session.emulator.isReady())
        return session.ok();
    if (session.emulator.panel.hasFailed())
        return session.fail(session.emulator.panel.status());
    QObject::connect(&session.emulator, &Emulator::ready, session.request(), [&session] { session.ok(); });
}

/// From that time on; a line that is still to come has it anyway.
void waitLog(Session &session, const Wish &wish)
{
    for (const LogLine &line : session.emulator.panel.log().lines()) {
        if (line.timeMs >= wish.sinceMs && QString::fromUtf8(line.text).contains(wish.text))
            return session.ok();
    }
    QObject::connect(&session.emulator.panel, &PanelProcess::line, session.request(),
                     [&session, text = wish.text](const LogLine &line) {
                         if (QString::fromUtf8(line.text).contains(text))
                             session.ok();
                     });
}

void waitText(Session &session, const Wish &wish)
{
    ScreenText &screen = session.emulator.screenText;
    QObject::connect(&screen, &ScreenText::changed, session.request(),
                     [&session, wish](const QJsonArray &texts) {
                         if (ScreenText::shows(texts, wish.text) != wish.gone)
                             session.ok();
                     });
    screen.watch(session.request());
}

void waitRest(Session &session, Rest::Of what)
{
    auto *rest = new Rest(what, session.emulator, session.request());
    QObject::connect(rest, &Rest::reached, session.request(), [&session] { session.ok(); });
    rest->start();
}

void waitStill(Session &session, const Wish &)
{
    waitRest(session, Rest::Screen);
}

void waitSettled(Session &session, const Wish &)
{
    if (session.emulator.isReady())
        return waitRest(session, Rest::ScreenAndBus);
    QObject::connect(&session.emulator, &Emulator::ready, session.request(),
                     [&session] { waitRest(session, Rest::ScreenAndBus); });
}

void waitValue(Session &session, const Wish &wish)
{
    auto *look = new QTimer(session.request());
    QObject::connect(look, &QTimer::timeout, session.request(), [&session, wish] {
        const auto items = storefile::read(session.emulator.folder.path());
        const auto found = items ? storefile::find(*items, wish.item) : QVector<StoreItem>();
        if (items && found.size() != 1)
            session.fail(storefile::notOne(found, wish.item));
        else if (items && found[0].value == wish.value)
            session.ok();
    });
    look->start(storeLookMs);
}

struct Kind {
    const char *name;
    void (*wait)(Session &session, const Wish &wish);
};

constexpr Kind kinds[] = {
    {"ready", waitReady},  {"log", waitLog},         {"text", waitText},
    {"screen", waitStill}, {"settled", waitSettled}, {"value", waitValue},
};

Wish takeWish(Arguments &arguments, const QString &kind)
{
    Wish wish;
    if (kind == "screen") {
        arguments.choice({"still"});
    } else if (kind == "value") {
        wish.item = arguments.text("ITEM");
        wish.value = arguments.text("VALUE");
    } else if (kind == "text") {
        wish.gone = arguments.flag("--gone");
        wish.text = arguments.text("TEXT");
    } else if (kind == "log") {
        const bool any = arguments.flag("--any");
        const qint64 now = QDateTime::currentMSecsSinceEpoch();
        wish.sinceMs = arguments.timeOption("--since").value_or(any ? 0 : now);
        wish.text = arguments.text("TEXT");
    }
    return wish;
}
} // namespace

void words::wait(Session &session, Arguments &arguments)
{
    QStringList names;
    for (const Kind &kind : kinds)
        names << kind.name;
    const QString name = arguments.choice(names);
    const Wish wish = takeWish(arguments, name);
    const auto seconds = arguments.real("SECONDS", 0, longestWait, usualWait);
    if (!session.accepts(arguments))
        return;
    QTimer::singleShot(int(seconds * 1000), session.request(), [&session, seconds] {
        session.fail(Failure::timeout, QString("waited %1 s in vain").arg(seconds));
    });
    QObject::connect(&session.emulator.panel, &PanelProcess::ended, session.request(),
                     [&session] { session.fail("the panel has ended"); });
    kinds[names.indexOf(name)].wait(session, wish);
}
