#include "emulator/console/arguments.h"

#include <QFileInfo>
#include <cctype>

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

std::optional<double> real(const QString &text, double least, double most)
{
    bool isNumber = false;
    const double value = text.toDouble(&isNumber);
    if (!isNumber || !(value >= least && value <= most)) // nan is not comparable
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
    // By hand: a regular expression that repeats a pair gives up after some ten thousand of them.
    QByteArray digits;
    bool afterPrefix = false;
    for (int i = 0; i < text.size(); ++i) {
        const bool atByte = digits.size() % 2 == 0;
        if (text[i].isSpace())
            continue;
        if (atByte && !afterPrefix &&
            text.midRef(i, 2).compare(QLatin1String("0x"), Qt::CaseInsensitive) == 0) {
            afterPrefix = true;
            ++i;
            continue;
        }
        if (text[i].unicode() > 127 || !std::isxdigit(text[i].toLatin1()))
            return std::nullopt;
        digits += text[i].toLatin1();
        afterPrefix = false;
    }
    if (afterPrefix || digits.size() % 2 != 0)
        return std::nullopt;
    return QByteArray::fromHex(digits);
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
