#include "emulator/console/arguments.h"

#include <QDateTime>
#include <QFileInfo>
#include <algorithm>
#include <cctype>

namespace
{
QString limits(const QString &least, const QString &most)
{
    return least + " to " + most;
}
} // namespace

namespace arguments
{
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
} // namespace arguments

bool Arguments::flag(const char *name)
{
    const auto end = std::remove_if(m_list.begin(), m_list.end(), [name](const QString &text) {
        return text.compare(QLatin1String(name), Qt::CaseInsensitive) == 0;
    });
    const bool found = end != m_list.end();
    m_list.erase(end, m_list.end());
    return found;
}

std::optional<QString> Arguments::option(const char *name)
{
    for (int at = 0; at < m_list.size(); ++at) {
        if (m_list[at].compare(QLatin1String(name), Qt::CaseInsensitive) != 0)
            continue;
        m_list.removeAt(at);
        if (at < m_list.size())
            return m_list.takeAt(at);
        complain(QString("%1 needs a value").arg(name));
    }
    return std::nullopt;
}

std::optional<qint64> Arguments::numberOption(const char *name, qint64 least, qint64 most)
{
    const auto text = option(name);
    return text ? std::optional<qint64>(toNumber(name, *text, least, most)) : std::nullopt;
}

std::optional<double> Arguments::realOption(const char *name, double least, double most)
{
    const auto text = option(name);
    return text ? std::optional<double>(toReal(name, *text, least, most)) : std::nullopt;
}

std::optional<qint64> Arguments::timeOption(const char *name)
{
    constexpr int day = 24 * 3600;
    const auto text = option(name);
    if (!text)
        return std::nullopt;
    const QDateTime now = QDateTime::currentDateTime();
    bool isSeconds = false;
    const double seconds = text->toDouble(&isSeconds);
    if (isSeconds && seconds >= 0 && seconds <= day)
        return now.toMSecsSinceEpoch() - qint64(seconds * 1000);
    for (const char *form : {"HH:mm:ss.zzz", "HH:mm:ss", "HH:mm"}) {
        const QTime time = QTime::fromString(*text, form);
        if (!time.isValid())
            continue;
        const QDateTime today(now.date(), time);
        return (today > now ? today.addDays(-1) : today).toMSecsSinceEpoch();
    }
    wrong(name, *text, "a time such as 21:20:50.123 or a number of seconds ago, up to a day");
    return std::nullopt;
}

QString Arguments::text(const char *what, const std::optional<QString> &fallback)
{
    if (!m_list.isEmpty())
        return m_list.takeFirst();
    if (!fallback)
        complain(QString("%1 is missing").arg(what));
    return fallback.value_or(QString());
}

QString Arguments::choice(const QStringList &choices, const std::optional<QString> &fallback)
{
    if (m_list.isEmpty()) {
        if (!fallback)
            complain("missing: " + choices.join(" or "));
        return fallback.value_or(choices.first());
    }
    const QString given = m_list.takeFirst();
    for (const QString &choice : choices) {
        if (given.compare(choice, Qt::CaseInsensitive) == 0)
            return choice;
    }
    complain(QString("\"%1\" is not %2").arg(given, choices.join(" or ")));
    return choices.first();
}

qint64 Arguments::number(const char *what, qint64 least, qint64 most, std::optional<qint64> fallback)
{
    if (m_list.isEmpty() && fallback)
        return *fallback;
    return toNumber(what, text(what), least, most);
}

double Arguments::real(const char *what, double least, double most, std::optional<double> fallback)
{
    if (m_list.isEmpty() && fallback)
        return *fallback;
    return toReal(what, text(what), least, most);
}

quint32 Arguments::hexNumber(const char *what, quint32 most)
{
    const QString given = text(what);
    bool isNumber = false;
    const quint32 value = given.toUInt(&isNumber, 16);
    if (!isNumber || value > most)
        wrong(what, given, "a number in hex, " + limits("0", QString::number(most, 16)));
    return value;
}

QByteArray Arguments::bytes(const char *what, int least, int most)
{
    const QString given = rest().join(QString());
    if (given.isEmpty() && least > 0)
        complain(QString("%1 is missing").arg(what));
    const auto bytes = arguments::hexBytes(given);
    if (!bytes)
        wrong(what, given, "whole bytes in hex");
    else if (bytes->size() < least || bytes->size() > most)
        complain(QString("%1 has %2 bytes, must have %3")
                     .arg(what)
                     .arg(bytes->size())
                     .arg(limits(QString::number(least), QString::number(most))));
    return bytes.value_or(QByteArray());
}

QStringList Arguments::rest()
{
    QStringList all;
    all.swap(m_list);
    return all;
}

bool Arguments::nextIs(const char *word) const
{
    return !m_list.isEmpty() && m_list.first().compare(QLatin1String(word), Qt::CaseInsensitive) == 0;
}

void Arguments::complain(const QString &fault)
{
    if (m_fault.isEmpty())
        m_fault = fault;
}

QString Arguments::fault() const
{
    if (!m_fault.isEmpty() || m_list.isEmpty())
        return m_fault;
    return QString(m_list.first().startsWith("--") ? "no such option: %1" : "\"%1\" is one too many")
        .arg(m_list.first());
}

void Arguments::wrong(const char *what, const QString &text, const QString &expected)
{
    constexpr int mostShown = 40; // of an argument that may be a megabyte
    complain(QString("%1 is \"%2\", must be %3")
                 .arg(what, text.size() > mostShown ? text.left(mostShown) + "..." : text, expected));
}

qint64 Arguments::toNumber(const char *what, const QString &text, qint64 least, qint64 most)
{
    bool isNumber = false;
    const qint64 value = text.toLongLong(&isNumber, text.startsWith("0x", Qt::CaseInsensitive) ? 16 : 10);
    if (isNumber && value >= least && value <= most)
        return value;
    wrong(what, text, limits(QString::number(least), QString::number(most)));
    return least;
}

double Arguments::toReal(const char *what, const QString &text, double least, double most)
{
    bool isNumber = false;
    const double value = text.toDouble(&isNumber);
    if (isNumber && value >= least && value <= most) // nan is not comparable
        return value;
    wrong(what, text, limits(QString::number(least), QString::number(most)));
    return least;
}
