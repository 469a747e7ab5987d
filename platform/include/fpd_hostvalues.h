// Small files of NAME=VALUE lines in the state folder that the host platform and the emulator both change:
// link state and persistent environment. A file is replaced in one step, so that no reader sees half of one.
#pragma once

#include <QByteArray>
#include <QFile>
#include <QMap>
#include <QSaveFile>
#include <QString>
#include <sys/file.h>

namespace hostlink
{
/// All values of a file, none if it can not be read.
inline QMap<QByteArray, QByteArray> readValues(const QString &file)
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

/// Changes one value and leaves the others to whoever changes them: a lock beside the file is held from the
/// reading to the writing. False if the file can not be written.
inline bool changeValue(const QString &file, const QByteArray &name, const QByteArray &value)
{
    QFile lock(file + ".lock");
    if (!lock.open(QIODevice::ReadWrite) || flock(lock.handle(), LOCK_EX) != 0)
        return false;
    QMap<QByteArray, QByteArray> values = readValues(file);
    values.insert(name, value);
    QSaveFile output(file);
    if (!output.open(QIODevice::WriteOnly))
        return false;
    for (auto entry = values.cbegin(); entry != values.cend(); ++entry)
        output.write(entry.key() + '=' + entry.value() + '\n');
    return output.commit();
}
} // namespace hostlink
