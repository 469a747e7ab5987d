#include "platform/host/statefile.h"

#include "boardio.h"

#include <QFile>
#include <sys/file.h>

namespace host
{
QString stateFile(const char *name)
{
    return board::filePath(QString::fromLatin1(name));
}

bool takeFault(const char *name)
{
    QFile file(stateFile(name));
    if (!file.open(QIODevice::ReadWrite | QIODevice::ExistingOnly))
        return false;
    flock(file.handle(), LOCK_EX);
    const int left = file.readAll().trimmed().toInt();
    if (left > 0) {
        file.resize(0);
        file.seek(0);
        file.write(QByteArray::number(left - 1));
    }
    return left > 0;
}
} // namespace host
