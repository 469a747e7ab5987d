#include "emulator/console/arguments.h"

#include <QFileInfo>
#include <QRegularExpression>

namespace arguments
{
std::optional<qint64> number(const QString &text, qint64 least, qint64 most)
{
    bool isNumber = false;
    const qint64 value = text.toLongLong(&isNumber, text.startsWith("0x", Qt::CaseInsensitive) ? 16 : 10);
    if (!isNumber || value < least || value > most)
        return std::nullopt;
    return value;
}

std::optional<quint32> address(const QString &text)
{
    bool isNumber = false;
    const quint32 value = text.toUInt(&isNumber, 16);
    if (!isNumber)
        return std::nullopt;
    return value;
}

std::optional<QByteArray> hexBytes(const QString &text)
{
    QString digits = text;
    digits.remove(QRegularExpression("\\s|0[xX](?=[0-9a-fA-F]{2})"));
    static const QRegularExpression pairs("^([0-9a-fA-F]{2})*$");
    if (!pairs.match(digits).hasMatch())
        return std::nullopt;
    return QByteArray::fromHex(digits.toLatin1());
}

bool isPlainFile(const QString &path)
{
    const QFileInfo file(path);
    return !file.exists() || file.isFile();
}

bool takeFlag(QStringList &list, const QString &name)
{
    return list.removeAll(name) > 0;
}

std::optional<QString> takeOption(QStringList &list, const QString &name, const QString &fallback)
{
    const int at = list.indexOf(name);
    if (at < 0)
        return fallback;
    if (at + 1 >= list.size())
        return std::nullopt;
    list.removeAt(at);
    return list.takeAt(at);
}
} // namespace arguments
