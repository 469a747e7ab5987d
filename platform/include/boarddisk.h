// The calls that bring a file to the disk, one by one: what outlives a power cut depends on their order and
// on the result of each. Results and errno as of the system calls of these names, paths as in boardio.h. All
// may be called from any thread; files are closed with close(2).
#pragma once

#include <QString>
#include <sys/types.h>

namespace board
{
int openFile(const QString &boardPath, int flags);
ssize_t readFile(int file, char *bytes, size_t size);
ssize_t writeFile(int file, const char *bytes, size_t size);
/// Of a file its bytes, of an open folder the names in it.
int syncFile(int file);
int renameFile(const QString &from, const QString &to);
int removeFile(const QString &boardPath);
} // namespace board
