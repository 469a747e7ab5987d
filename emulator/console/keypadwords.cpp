#include "emulator/console/arguments.h"
#include "emulator/console/words.h"
#include "emulator/emulator.h"

#include <QDateTime>
#include <QPointer>

namespace
{
constexpr int tapMs = 20;
constexpr int holdMs = 3200;

/// The code of one key by its name or its number.
std::optional<int> keyCode(const QString &text)
{
    for (const KeyName &key : keyNames()) {
        if (text.compare(QLatin1String(key.name), Qt::CaseInsensitive) == 0)
            return key.code;
    }
    const auto code = arguments::number(text, 0, releasedBit - 1);
    return code ? std::optional<int>(int(*code)) : std::nullopt;
}

/// The codes of several keys joined by '+'.
std::optional<QVector<int>> keyCodes(const QString &text)
{
    QVector<int> codes;
    for (const QString &name : text.split('+')) {
        const auto code = keyCode(name);
        if (!code)
            return std::nullopt;
        codes.append(*code);
    }
    return codes;
}

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

void key(Session &session, const QStringList &arguments)
{
    if (arguments.isEmpty() || arguments.size() > 2)
        return failUsage(session, "key");
    const auto keys = keyCodes(arguments[0]);
    if (!keys)
        return session.fail("no such key: " + arguments[0]);
    const QString way = arguments.value(1, "tap");
    if (way == "tap")
        pressFor(session, *keys, tapMs);
    else if (way == "hold")
        pressFor(session, *keys, holdMs);
    else if (way == "press")
        answer(session, session.emulator.keypad.press(*keys));
    else if (way == "release")
        answer(session, session.emulator.keypad.release(*keys));
    else
        failUsage(session, "key");
}

void knob(Session &session, const QStringList &list)
{
    const auto steps = arguments::number(list.value(1, "1"), 1, 10000);
    const auto speed = arguments::number(list.value(2, "1"), 0, 255);
    const QString way = list.value(0);
    if ((way != "left" && way != "right") || list.size() > 3 || !steps || !speed)
        return failUsage(session, "knob");
    const int code = way == "left" ? keyKnobLeft : keyKnobRight;
    answer(session, session.emulator.keypad.turn(code, int(*steps), int(*speed)));
}

void word(Session &session, const QStringList &list)
{
    QVector<quint16> words;
    for (const QString &text : list) {
        const auto value = arguments::address(text);
        if (!value || *value > 0xffff)
            return session.fail("not a 16-bit word in hex: " + text);
        words.append(quint16(*value));
    }
    if (words.isEmpty())
        return failUsage(session, "word");
    answer(session, session.emulator.keypad.sendWords(words));
}

void sent(Session &session, const QStringList &list)
{
    if (!list.isEmpty())
        return failUsage(session, "sent");
    session.print(QString::number(session.emulator.keypad.sentNs()));
    session.ok();
}

void printLeds(Session &session)
{
    session.print(QDateTime::currentDateTime().toString("HH:mm:ss.zzz ") + session.emulator.keypad.ledText());
}

void leds(Session &session, const QStringList &list)
{
    if (list.isEmpty()) {
        session.print(session.emulator.keypad.ledText());
        return session.ok();
    }
    constexpr int longestWatch = 7 * 24 * 3600; // seconds
    const auto seconds = arguments::real(list.value(1), 0, longestWatch);
    if (list[0] != "--watch" || list.size() != 2 || !seconds)
        return failUsage(session, "leds");
    printLeds(session);
    QObject::connect(&session.emulator.keypad, &Keypad::ledsChanged, session.request(),
                     [&session] { printLeds(session); });
    QTimer::singleShot(int(*seconds * 1000), session.request(), [&session] { session.ok(); });
}
} // namespace

QVector<Word> keypadWords()
{
    return {
        {"key", "NAME|CODE [tap|press|release|hold]",
         "presses a key, or several joined by '+'; hold is 3.2 s", key},
        {"knob", "left|right [STEPS] [SPEED]", "turns the knob by so many steps with that speed byte", knob},
        {"word", "HEX...", "raw 16-bit key words", word},
        {"sent", "", "when the last key word went out, in ns of the monotonic clock", sent},
        {"leds", "[--watch SECONDS]", "the 16 LEDs, LED 0 first; or each change with its time", leds},
    };
}
