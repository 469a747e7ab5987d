// What the kernel tells of a process: CPU time, memory, and the CPU time of each of its threads.
#pragma once

#include "fpd_hostthreads.h"

#include <QDir>
#include <QMap>
#include <numeric>
#include <unistd.h>

namespace procfs
{
using threads::read;

/// The panel of that state folder.
inline int panelOf(const QString &stateFolder)
{
    const QByteArray mark = "FPD_STATE=" + QFile::encodeName(stateFolder);
    for (const QString &id : QDir("/proc").entryList({"[1-9]*"}, QDir::Dirs))
        if (read("/proc/" + id + "/comm") == "fpd\n" && read("/proc/" + id + "/environ").contains(mark))
            return id.toInt();
    return 0;
}

/// Time on a processor in ms, from the scheduler's own nanoseconds, by the thread's name and number.
inline QMap<QString, double> threadsMs(int process)
{
    QMap<QString, double> threads;
    const QString folder = QString("/proc/%1/task/").arg(process);
    for (const QString &id : QDir(folder).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        const QString name = QString::fromUtf8(read(folder + id + "/comm")).trimmed();
        threads[QString("%1 %2").arg(name).arg(id.toInt() - process)] =
            read(folder + id + "/schedstat").split(' ').first().toDouble() / 1e6;
    }
    return threads;
}

/// Of the threads that live.
inline double cpuMs(int process)
{
    const QMap<QString, double> threads = threadsMs(process);
    return std::accumulate(threads.begin(), threads.end(), 0.0);
}

/// How often each thread has gone to sleep of its own accord, by the same keys.
inline QMap<QString, double> wakes(int process)
{
    QMap<QString, double> threads;
    const QString folder = QString("/proc/%1/task/").arg(process);
    for (const QString &key : threadsMs(process).keys()) {
        const int id = process + key.section(' ', -1).toInt();
        const QByteArray status = read(folder + QString::number(id) + "/status");
        const int at = status.indexOf("voluntary_ctxt_switches:");
        threads[key] = status.mid(at + 24, 20).trimmed().split('\n').first().toDouble();
    }
    return threads;
}

/// The sum of the lines of a file that begin with one of these words, in MB.
inline double megabytesOf(const QString &file, const QList<QByteArray> &words)
{
    double kilobytes = 0;
    for (const QByteArray &line : read(file).split('\n'))
        for (const QByteArray &word : words)
            if (line.startsWith(word))
                kilobytes += line.mid(word.size()).trimmed().split(' ').first().toDouble();
    return kilobytes / 1024;
}

inline double memoryMb(int process)
{
    return megabytesOf(QString("/proc/%1/status").arg(process), {"VmRSS:"});
}

/// Of it what the process has for itself: not what it shares with others that use the same libraries.
inline double privateMb(int process)
{
    return megabytesOf(QString("/proc/%1/smaps_rollup").arg(process), {"Private_Clean:", "Private_Dirty:"});
}
} // namespace procfs
