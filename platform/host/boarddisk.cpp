#include "boarddisk.h"

#include "boardio.h"
#include "platform/host/diskwatch.h"

#include <QFile>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace board
{
namespace
{
constexpr mode_t newFileMode = 0666;

bool fails(const char *call)
{
    const int error = host::takeDiskFault(call);
    if (error != 0)
        errno = error;
    return error != 0;
}

QString nameOf(int file)
{
    return QFile::symLinkTarget("/proc/self/fd/" + QString::number(file));
}

bool isFolder(int file)
{
    struct stat status;
    return fstat(file, &status) == 0 && S_ISDIR(status.st_mode);
}
} // namespace

int openFile(const QString &boardPath, int flags)
{
    if (fails("open"))
        return -1;
    const int file = open(QFile::encodeName(filePath(boardPath)), flags | O_CLOEXEC, newFileMode);
    if (file >= 0 && (flags & O_TRUNC) != 0)
        host::tellDisk({host::DiskStep::Truncate, filePath(boardPath)});
    return file;
}

ssize_t readFile(int file, char *bytes, size_t size)
{
    return fails("read") ? -1 : read(file, bytes, size);
}

/// A write that fails has often written a part before: so does the one that fails as it was told.
ssize_t writeFile(int file, const char *bytes, size_t size)
{
    if (fails("write")) {
        const int error = errno;
        const ssize_t part = write(file, bytes, size / 2);
        errno = error;
        return part < 0 ? part : -1;
    }
    const ssize_t written = write(file, bytes, size);
    if (written > 0)
        host::tellDisk({host::DiskStep::Write, nameOf(file), {}, QByteArray(bytes, int(written))});
    return written;
}

int syncFile(int file)
{
    if (fails("fsync"))
        return -1;
    const int result = fsync(file);
    if (result == 0)
        host::tellDisk(
            {isFolder(file) ? host::DiskStep::SyncFolder : host::DiskStep::SyncFile, nameOf(file)});
    return result;
}

int renameFile(const QString &from, const QString &to)
{
    if (fails("rename"))
        return -1;
    const int result = rename(QFile::encodeName(filePath(from)), QFile::encodeName(filePath(to)));
    if (result == 0)
        host::tellDisk({host::DiskStep::Rename, filePath(from), filePath(to)});
    return result;
}

int removeFile(const QString &boardPath)
{
    if (fails("remove"))
        return -1;
    const int result = unlink(QFile::encodeName(filePath(boardPath)));
    if (result == 0)
        host::tellDisk({host::DiskStep::Remove, filePath(boardPath)});
    return result;
}
} // namespace board
