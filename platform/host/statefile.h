// Small text files of the state folder, lines of NAME=VALUE, replaced in one step so that no reader sees half
// of one.
#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>

namespace host
{
/// A file of the state folder, by its name from fpd_hostlink.h.
QString stateFile(const char *name);

QMap<QByteArray, QByteArray> readValues(const QString &file);
bool writeValues(const QString &file, const QMap<QByteArray, QByteArray> &values);

/// Takes one from a decimal counter file. True if there was one to take.
bool takeFault(const char *name);
} // namespace host
