// Reads the arguments of a console word: first its options, which may stand anywhere, then the others from
// left to right. The first that is wrong is kept as a sentence, and what is read from there on means nothing.
#pragma once

#include <QByteArray>
#include <QStringList>
#include <optional>

class Arguments
{
public:
    explicit Arguments(QStringList list) : m_list(std::move(list)) {}

    /// An option without a value: true if it is there.
    bool flag(const char *name);
    /// The value of an option, if it is there.
    /// @{
    std::optional<QString> option(const char *name);
    std::optional<qint64> numberOption(const char *name, qint64 least, qint64 most);
    std::optional<double> realOption(const char *name, double least, double most);
    /// A time of day of the last 24 hours or a number of seconds ago, in ms since 1970.
    std::optional<qint64> timeOption(const char *name);
    /// @}

    /// The next argument, with its name for whoever gets it wrong; where there is a fallback it may be
    /// missing.
    /// @{
    QString text(const char *what, const std::optional<QString> &fallback = std::nullopt);
    /// One of these, in upper or lower case.
    QString choice(const QStringList &choices, const std::optional<QString> &fallback = std::nullopt);
    bool onOff() { return choice({"on", "off"}) == "on"; }
    /// Decimal or with 0x.
    qint64 number(const char *what, qint64 least, qint64 most, std::optional<qint64> fallback = std::nullopt);
    /// A number that may have a point; neither "nan" nor "inf" is one.
    double real(const char *what, double least, double most, std::optional<double> fallback = std::nullopt);
    /// Of a register, of the flash, or a word: always in hex, 0x or not.
    quint32 hexNumber(const char *what, quint32 most = 0xffffffff);
    /// All that are left as bytes in hex; blanks are let through, and 0x before a byte.
    QByteArray bytes(const char *what, int least, int most);
    /// All that are left.
    QStringList rest();
    /// @}

    /// The next one, which stays the next one; empty if there is none.
    QString peek() const { return m_list.value(0); }
    bool isEmpty() const { return m_list.isEmpty(); }
    /// The next one is this, in upper or lower case.
    bool nextIs(const char *word) const;
    /// For whoever finds more wrong with an argument than its form.
    void complain(const QString &fault);
    /// Empty if all was right and nothing is left.
    QString fault() const;

private:
    void wrong(const char *what, const QString &text, const QString &expected);
    qint64 toNumber(const char *what, const QString &text, qint64 least, qint64 most);
    double toReal(const char *what, const QString &text, double least, double most);

    QStringList m_list;
    QString m_fault;
};

namespace arguments
{
std::optional<QByteArray> hexBytes(const QString &text);
/// A plain file, or none so far. Anything else, a pipe or a device, could keep its reader or writer waiting
/// for ever, and with it the whole emulator.
bool isPlainFile(const QString &path);
} // namespace arguments
