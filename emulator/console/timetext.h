// Times as the console prints them.
#pragma once

#include <QDateTime>

/// Of ms since 1970: the time of day.
inline QString timeText(qint64 timeMs)
{
    return QDateTime::fromMSecsSinceEpoch(timeMs).toString("HH:mm:ss.zzz");
}
