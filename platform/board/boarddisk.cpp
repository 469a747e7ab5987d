#include "boarddisk.h"

#include <QFile>
#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

namespace board
{
int openFile(const QString &boardPath, int flags)
{
    constexpr mode_t mode = 0666;
    return open(QFile::encodeName(boardPath), flags | O_CLOEXEC, mode);
}

ssize_t readFile(int file, char *bytes, size_t size)
{
    return read(file, bytes, size);
}

ssize_t writeFile(int file, const char *bytes, size_t size)
{
    return write(file, bytes, size);
}

int syncFile(int file)
{
    return fsync(file);
}

int renameFile(const QString &from, const QString &to)
{
    return rename(QFile::encodeName(from), QFile::encodeName(to));
}

int removeFile(const QString &boardPath)
{
    return unlink(QFile::encodeName(boardPath));
}
} // namespace board
