#include "emulator/valuefile.h"

#include <QFile>
#include <QSaveFile>

namespace valuefile
{
QMap<QString, QString> read(const QString &file)
{
    QMap<QString, QString> values;
    QFile input(file);
    if (!input.open(QIODevice::ReadOnly))
        return values;
    for (const QString &line : QString::fromUtf8(input.readAll()).split('\n')) {
        const int equals = line.indexOf('=');
        if (equals > 0)
            values.insert(line.left(equals), line.mid(equals + 1));
    }
    return values;
}

bool set(const QString &file, const QString &name, const QString &value)
{
    QMap<QString, QString> values = read(file);
    values.insert(name, value);
    QSaveFile output(file);
    if (!output.open(QIODevice::WriteOnly))
        return false;
    for (auto entry = values.cbegin(); entry != values.cend(); ++entry)
        output.write((entry.key() + '=' + entry.value() + '\n').toUtf8());
    return output.commit();
}
} // namespace valuefile
