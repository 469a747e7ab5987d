#include "platform/host/statefile.h"

#include "boardio.h"

#include <QFile>
#include <QSaveFile>
#include <sys/file.h>

namespace host
{
QString stateFile(const char *name)
{
    return board::filePath(QString::fromLatin1(name));
}

QMap<QByteArray, QByteArray> readValues(const QString &file)
{
    QMap<QByteArray, QByteArray> values;
    QFile input(file);
    if (!input.open(QIODevice::ReadOnly))
        return values;
    while (!input.atEnd()) {
        const QByteArray line = input.readLine().trimmed();
        const int equals = line.indexOf('=');
        if (equals > 0)
            values.insert(line.left(equals), line.mid(equals + 1));
    }
    return values;
}

bool writeValues(const QString &file, const QMap<QByteArray, QByteArray> &values)
{
    QSaveFile output(file);
    if (!output.open(QIODevice::WriteOnly))
        return false;
    for (auto value = values.cbegin(); value != values.cend(); ++value)
        output.write(value.key() + '=' + value.value() + '\n');
    return output.commit();
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
