// Words for the REST service of the device: what is asked of it, what it tells, and how it misbehaves.
#include "emulator/console/words.h"
#include "emulator/emulator.h"

#include <QJsonObject>

namespace
{
constexpr int longestDelayMs = 600000;
constexpr int leastStatus = 100, mostStatus = 599;
constexpr int mostPort = 0xffff;

bool switchService(Emulator &emulator, bool on)
{
    if (on)
        return emulator.service.open() && emulator.pushChannel.open();
    emulator.service.close();
    emulator.pushChannel.close();
    return true;
}

/// What it tells its clients. With a port, a datagram goes there, too.
void pushToClients(Session &session, Arguments &arguments)
{
    const qint64 port = arguments.numberOption("--udp", 1, mostPort).value_or(0);
    const QString text = arguments.text("JSON");
    if (!session.accepts(arguments))
        return;
    PushChannel &channel = session.emulator.pushChannel;
    session.print(QString("%1 clients").arg(channel.push(text)));
    if (port != 0 && !channel.pushDatagram(text, quint16(port)))
        return session.fail("the datagram did not leave");
    session.ok();
}

/// The service's other verbs with what follows them; each does its work only when its arguments were right.
/// @{
bool delay(Session &session, Arguments &arguments)
{
    const qint64 ms = arguments.number("MS", 0, longestDelayMs);
    if (session.accepts(arguments))
        session.emulator.service.setDelay(int(ms));
    return true;
}

bool silent(Session &session, Arguments &arguments)
{
    const bool on = arguments.onOff();
    if (session.accepts(arguments))
        session.emulator.service.setSilent(on);
    return true;
}

bool status(Session &session, Arguments &arguments)
{
    const bool own = arguments.nextIs("own");
    if (own)
        arguments.choice({"own"});
    const qint64 code = own ? 0 : arguments.number("CODE", leastStatus, mostStatus);
    const QString body = own ? QString() : arguments.text("BODY", "");
    if (session.accepts(arguments))
        session.emulator.service.setStatus(int(code), body.toUtf8());
    return true;
}

bool garbage(Session &session, Arguments &arguments)
{
    if (session.accepts(arguments))
        session.emulator.service.setGarbage();
    return true;
}

bool set(Session &session, Arguments &arguments)
{
    const QString path = arguments.text("PATH");
    const QString json = arguments.text("JSON");
    return !session.accepts(arguments) ||
           (path.startsWith('/') && session.emulator.service.resources().set(path, json.toUtf8()));
}

bool on(Session &session, Arguments &arguments)
{
    return !session.accepts(arguments) || switchService(session.emulator, true);
}

bool off(Session &session, Arguments &arguments)
{
    return !session.accepts(arguments) || switchService(session.emulator, false);
}
/// @}

struct Verb {
    const char *name;
    bool (*handle)(Session &session, Arguments &arguments);
    const char *fault; ///< what is said when it could not be done
};

constexpr Verb verbs[] = {
    {"on", on, "cannot listen"},
    {"off", off, ""},
    {"delay", delay, ""},
    {"silent", silent, ""},
    {"status", status, ""},
    {"garbage", garbage, ""},
    {"set", set, "not a path of the service, or no JSON"},
};
} // namespace

void words::requests(Session &session, Arguments &arguments)
{
    RestService &service = session.emulator.service;
    const bool clear = arguments.flag("--clear");
    const bool follow = arguments.flag("--follow");
    session.setJson(arguments.flag("--json"));
    if (!session.accepts(arguments))
        return;
    const auto print = [&session](const QString &line) {
        session.tell(line, {{"method", line.section(' ', 0, 0)},
                            {"path", line.section(' ', 1, 1)},
                            {"body", line.section(' ', 2)}});
    };
    for (const QString &line : service.requests())
        print(line);
    if (clear)
        service.clearRequests();
    if (!follow)
        return session.ok();
    QObject::connect(&service, &RestService::requested, session.request(), print);
}

void words::service(Session &session, Arguments &arguments)
{
    QStringList names{"push"};
    for (const Verb &verb : verbs)
        names << verb.name;
    const QString name = arguments.choice(names);
    if (name == "push")
        return pushToClients(session, arguments);
    for (const Verb &verb : verbs) {
        if (name == QLatin1String(verb.name))
            return verb.handle(session, arguments) ? session.ok() : session.fail(verb.fault);
    }
    session.accepts(arguments); // which says what was wrong
}
