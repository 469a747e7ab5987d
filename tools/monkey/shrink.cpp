#include "tools/monkey/shrink.h"

namespace shrink
{
namespace
{
constexpr int pauseMs = 60;
constexpr int heldMs = 3200, heldFromMs = 2500;

bool isRelease(const QString &line)
{
    constexpr int releaseBit = 0x80;
    return line.section(' ', 1, 1) == "key" && line.section(' ', 2, 2).toInt(nullptr, 16) & releaseBit;
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
            now += isRelease(line) && msOf(line) - before > heldFromMs ? heldMs : pauseMs;
            before = msOf(line);
            session += QByteArray::number(now) + ' ' + line.section(' ', 1).toUtf8() + '\n';
        }
    return session;
}

QStringList shortest(QStringList events, const std::function<bool(const QStringList &)> &fails, int tries)
{
    if (!fails(events))
        return events;
    for (int piece = qMax(1, events.size() / 2);; piece /= 2) {
        for (int from = 0; from < events.size() && tries > 0;) {
            const QStringList fewer = events.mid(0, from) + events.mid(from + piece);
            --tries;
            if (fails(fewer))
                events = fewer;
            else
                from += piece;
        }
        if (piece <= 1 || tries <= 0)
            return events;
    }
}
} // namespace shrink
