// The shortest session that still leads to a fault: events are left out in ever smaller pieces, each try on a
// new panel. GUI thread.
#pragma once

#include <QStringList>
#include <functional>

namespace shrink
{
/// The events of a recorded session before a moment, a key with its release as one.
QStringList eventsOf(const QString &session, int beforeMs);
/// They as a session that replay plays, as fast as a user's fingers.
QByteArray sessionOf(const QStringList &events);
/// The fewest of them that still fail, after at most so many seconds; all of them if they do not fail at all.
QStringList shortest(QStringList events, const std::function<bool(const QStringList &)> &fails, int seconds);
} // namespace shrink
