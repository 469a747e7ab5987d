#include "platform/host/diskwatch.h"

#include "boardio.h"
#include "fpd_hostlink.h"
#include "platform/host/statefile.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QMutex>
#include <QThread>
#include <cerrno>
#include <sys/file.h>
#include <sys/wait.h>

namespace host
{
namespace
{
struct Watch {
    QMutex mutex;
    DiskWatcher watcher;
};

Watch &watch()
{
    static Watch instance;
    return instance;
}

QByteArray contents(const QString &name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// What a copy leaves that finds no room or a bad block: the target is cut, and holds a part of it.
void tearCopy(const QString &source, const QString &target)
{
    const QByteArray bytes = contents(source);
    QFile file(target);
    if (file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        file.write(bytes.left(bytes.size() / 2));
}

/// A disk that is worn out or busy lets those wait who want to be sure, until it is told to be well again.
int waitForSlowDisk(const QByteArray &call, qint64 ms)
{
    constexpr unsigned long lookMs = 5;
    if (call == "fsync" || call == "copy" || call == "sync")
        for (const QDeadlineTimer end(ms);
             !end.hasExpired() && QFile::exists(stateFile(hostlink::diskFaultFile));)
            QThread::msleep(lookMs);
    return 0;
}

constexpr int shellFailure = 1 << 8; ///< as system(3) gives it: the command has ended with 1
} // namespace

void watchDisk(DiskWatcher watcher)
{
    QMutexLocker lock(&watch().mutex);
    watch().watcher = std::move(watcher);
}

void tellDisk(const DiskStep &step)
{
    QMutexLocker lock(&watch().mutex);
    if (watch().watcher)
        watch().watcher(step);
}

int takeDiskFault(const char *call)
{
    QFile file(stateFile(hostlink::diskFaultFile));
    if (!file.open(QIODevice::ReadWrite | QIODevice::ExistingOnly))
        return 0;
    flock(file.handle(), LOCK_EX);
    QList<QByteArray> words = file.readAll().simplified().split(' ');
    if (words.size() == 2 && words[0] == "slow") {
        file.close();
        return waitForSlowDisk(call, words[1].toLongLong());
    }
    if (words.size() < 3 || (words[0] != call && words[0] != "any"))
        return 0;
    const int left = words[1].toInt();
    const int error = words[2].toInt();
    const bool goesOn = words.size() > 3;
    if (left > 1 || (left == 1 && !goesOn)) {
        words[1] = QByteArray::number(left - 1);
        file.resize(0);
        file.seek(0);
        file.write(words.join(' '));
    }
    return left == 1 ? error : 0;
}

int runDiskCommand(const QStringList &words, const std::function<int()> &run)
{
    const bool isCopy = words.first() == QLatin1String("cp") && words.size() > 2;
    if (!isCopy && words.first() != QLatin1String("sync"))
        return run();
    const QString source = isCopy ? board::filePath(words.at(words.size() - 2)) : QString();
    const QString target = isCopy ? board::filePath(words.last()) : QString();
    if (const int error = takeDiskFault(isCopy ? "copy" : "sync")) {
        if (isCopy && (error == ENOSPC || error == EIO))
            tearCopy(source, target);
        return shellFailure;
    }
    if (isCopy)
        tellDisk({DiskStep::Copy, source, target, contents(source)});
    const int result = run();
    if (!isCopy && result == 0)
        tellDisk({DiskStep::SyncAll, {}});
    return result;
}
} // namespace host
