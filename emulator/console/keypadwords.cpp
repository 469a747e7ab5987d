#include "emulator/console/jsonforms.h"
#include "emulator/console/keyarguments.h"
#include "emulator/console/words.h"
#include "emulator/emulator.h"

#include <QDateTime>
#include <QPointer>

namespace
{
constexpr int holdMs = 3200;

void answer(Session &session, bool taken)
{
    if (taken)
        session.ok();
    else
        session.fail(session.emulator.keypad.refusal());
}

/// Pressed, held for that long, let go: also when whoever asked for it has gone by then.
void pressFor(Session &session, const QVector<int> &keys, int milliseconds)
{
    Keypad &keypad = session.emulator.keypad;
    if (!keypad.press(keys))
        return session.fail(keypad.refusal());
    const QPointer<QObject> request = session.request();
    QTimer::singleShot(milliseconds, Qt::PreciseTimer, &keypad, [&session, &keypad, keys, request] {
        const bool taken = keypad.release(keys);
        if (request)
            answer(session, taken);
    });
}

void printLeds(Session &session)
{
    const QString time = QDateTime::currentDateTime().toString("HH:mm:ss.zzz");
    const QString text = session.emulator.keypad.ledText();
    session.tell(time + ' ' + text, {{"time", time}, {"leds", jsonforms::leds(text)}});
}
} // namespace

void words::key(Session &session, Arguments &arguments)
{
    const QVector<int> keys = takeKeys(arguments);
    const QString way = arguments.choice({"tap", "press", "release", "hold"}, "tap");
    if (!session.accepts(arguments))
        return;
    if (way == "press")
        answer(session, session.emulator.keypad.press(keys));
    else if (way == "release")
        answer(session, session.emulator.keypad.release(keys));
    else
        pressFor(session, keys, way == "hold" ? holdMs : tapMs);
}

void words::knob(Session &session, Arguments &arguments)
{
    const bool left = arguments.choice({"left", "right"}) == "left";
    const auto steps = arguments.number("STEPS", 1, 10000, 1);
    const auto speed = arguments.number("SPEED", 0, 255, 1);
    if (session.accepts(arguments))
        answer(session,
               session.emulator.keypad.turn(left ? keyKnobLeft : keyKnobRight, int(steps), int(speed)));
}

void words::word(Session &session, Arguments &arguments)
{
    QVector<quint16> words;
    do
        words.append(quint16(arguments.hexNumber("HEX", 0xffff)));
    while (!arguments.isEmpty());
    if (session.accepts(arguments))
        answer(session, session.emulator.keypad.sendWords(words));
}

void words::sent(Session &session, Arguments &arguments)
{
    session.setJson(arguments.flag("--json"));
    if (!session.accepts(arguments))
        return;
    const qint64 sentNs = session.emulator.keypad.sentNs();
    session.tell(QString::number(sentNs), {{"ns", sentNs}});
    session.ok();
}

void words::leds(Session &session, Arguments &arguments)
{
    constexpr int longestWatch = 7 * 24 * 3600; // seconds
    const bool now = arguments.flag("--now");
    session.setJson(arguments.flag("--json"));
    const auto seconds = arguments.realOption("--watch", 0, longestWatch);
    if (!session.accepts(arguments))
        return;
    const Keypad &keypad = session.emulator.keypad;
    if (!seconds) {
        if (!session.emulator.panel.isRunning())
            return session.fail(session.emulator.panel.status() + ": its LEDs are off");
        const QString text = now ? keypad.ledText() : keypad.blinkText();
        session.tell(text, jsonforms::leds(text));
        return session.ok();
    }
    printLeds(session);
    QObject::connect(&keypad, &Keypad::ledsChanged, session.request(), [&session] { printLeds(session); });
    QTimer::singleShot(int(*seconds * 1000), session.request(), [&session] { session.ok(); });
}
