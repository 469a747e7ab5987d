#include "tools/monkey/shrink.h"

#include <QElapsedTimer>

namespace shrink
{
namespace
{
constexpr int pauseMs = 60, knobPauseMs = 4;
constexpr int heldMs = 3200, heldFromMs = 2500;

bool isRelease(const QString &line)
{
    constexpr int releaseBit = 0x80;
    return line.section(' ', 1, 1) == "key" && line.section(' ', 2, 2).toInt(nullptr, 16) & releaseBit;
}

bool isKnob(const QString &line)
{
    constexpr int knobBits = 0x7E, knob = 32;
    return line.section(' ', 1, 1) == "key" &&
           (line.section(' ', 2, 2).toInt(nullptr, 16) & knobBits) == knob;
}

int msOf(const QString &line)
{
    return line.section(' ', 0, 0).toInt();
}
} // namespace

QStringList eventsOf(const QString &session, int beforeMs)
{
    QStringList events;
    for (const QString &line : session.split('\n', Qt::SkipEmptyParts)) {
        if (line.startsWith('#'))
            continue;
        if (msOf(line) >= beforeMs)
            break;
        if (isRelease(line) && !events.isEmpty())
            events.last() += '\n' + line;
        else
            events << line;
    }
    return events;
}

QByteArray sessionOf(const QStringList &events)
{
    QByteArray session;
    int now = 0, before = 0;
    for (const QString &event : events)
        for (const QString &line : event.split('\n')) {
            now += isKnob(line)                                          ? knobPauseMs
                   : isRelease(line) && msOf(line) - before > heldFromMs ? heldMs
                                                                         : pauseMs;
            before = msOf(line);
            session += QByteArray::number(now) + ' ' + line.section(' ', 1).toUtf8() + '\n';
        }
    return session;
}

QStringList shortest(QStringList events, const std::function<bool(const QStringList &)> &fails, int seconds)
{
    QElapsedTimer passed;
    passed.start();
    const auto isOver = [&] { return passed.hasExpired(seconds * 1000); };
    if (!fails(events))
        return events;
    for (int piece = qMax(1, events.size() / 2);; piece /= 2) {
        for (int from = 0; from < events.size() && !isOver();) {
            const QStringList fewer = events.mid(0, from) + events.mid(from + piece);
            if (fails(fewer))
                events = fewer;
            else
                from += piece;
        }
        if (piece <= 1 || isOver())
            return events;
    }
}
} // namespace shrink
