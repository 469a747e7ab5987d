// What the kernel tells of the threads of a process.
#pragma once

#include <QDir>
#include <QFile>

namespace threads
{
inline QByteArray read(const QString &name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// True while a thread of that name runs, or waits for a processor or a disk.
inline bool isBusy(qint64 process, const QByteArray &thread)
{
    const QString folder = QString("/proc/%1/task/").arg(process);
    for (const QString &id : QDir(folder).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        const QByteArray stat = read(folder + id + "/stat");
        const int name = stat.indexOf('('), end = stat.lastIndexOf(')');
        if (stat.mid(name + 1, end - name - 1) == thread)
            return stat.mid(end + 2, 1) != "S";
    }
    return false;
}
} // namespace threads
