// Reads the arguments of console words.
#pragma once

#include <QByteArray>
#include <QStringList>
#include <optional>

namespace arguments
{
/// A decimal or 0x number from least to most.
std::optional<qint64> number(const QString &text, qint64 least, qint64 most);
/// A number that may have a point, from least to most; neither "nan" nor "inf" is one.
std::optional<double> real(const QString &text, double least, double most);
/// A register address or flash address, always in hex, 0x or not.
std::optional<quint32> address(const QString &text);
/// Bytes in hex; blanks are let through, and 0x before a byte.
std::optional<QByteArray> hexBytes(const QString &text);
/// A plain file, or none so far. Anything else, a pipe or a device, could keep its reader or writer waiting
/// for ever, and with it the whole emulator.
bool isPlainFile(const QString &path);
/// Takes an option out of the list: true if it was there.
bool takeFlag(QStringList &list, const QString &name);
/// Takes an option and its value out of the list; the fallback if it was not there, nothing if it has no
/// value.
std::optional<QString> takeOption(QStringList &list, const QString &name, const QString &fallback);
} // namespace arguments
