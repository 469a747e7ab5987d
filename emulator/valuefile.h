// Small files of NAME=VALUE lines that the panel reads, too: link state and persistent environment.
#pragma once

#include <QMap>
#include <QString>

namespace valuefile
{
QMap<QString, QString> read(const QString &file);
/// Changes one value and puts the file in place in one step.
bool set(const QString &file, const QString &name, const QString &value);
} // namespace valuefile
