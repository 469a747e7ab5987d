#include "emulator/host/diskimage.h"

#include <cstring>
#include <fcntl.h>

QString reserve(QFile &file, qint64 size)
{
    if (file.size() > size && !file.resize(size))
        return "cannot shorten " + file.fileName() + ": " + file.errorString();
    const int fault = posix_fallocate(file.handle(), 0, size);
    return fault == 0 ? QString() : "no room for " + file.fileName() + ": " + strerror(fault);
}
