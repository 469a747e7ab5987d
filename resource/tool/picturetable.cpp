#include "picturetable.h"

#include <QRegularExpression>
#include <QStringList>

namespace
{
constexpr int nameField = 0;
constexpr int sizeField = 1;
constexpr int drawingField = 2;
constexpr int firstValueField = 3;

/// "1..6" gives six numbers, "a|b" two texts, anything else itself.
QStringList members(const QString &text)
{
    static const QRegularExpression range("^(\\d+)\\.\\.(\\d+)$");
    const QRegularExpressionMatch match = range.match(text);
    if (!match.hasMatch())
        return text.split('|');
    QStringList numbers;
    for (int i = match.captured(1).toInt(); i <= match.captured(2).toInt(); ++i)
        numbers << QString::number(i);
    return numbers;
}

using Names = QMap<QString, QString>;

/// The text with every $name replaced by the value that "let" gave it.
QString withNames(QString text, const Names &names, QString &missing)
{
    static const QRegularExpression name("\\$(\\w+)");
    for (QRegularExpressionMatch match = name.match(text); match.hasMatch(); match = name.match(text)) {
        if (!names.contains(match.captured(1)))
            missing = "no value for " + match.captured(0);
        text.replace(match.capturedStart(), match.capturedLength(), names.value(match.captured(1)));
    }
    return text;
}

/// A row's pictures, or why it has none.
QString readRow(const QString &row, const Names &names, QList<Picture> &pictures)
{
    const QStringList fields = row.simplified().split(' ');
    if (fields.size() < firstValueField)
        return "a row needs a name, a size and a drawing";
    const QStringList sides = fields.at(sizeField).split('x');
    const QSize size(sides.first().toInt(), sides.last().toInt());
    if (sides.size() != 2 || size.isEmpty())
        return "bad size " + fields.at(sizeField);

    QMap<QString, QStringList> lists;
    QString missing;
    int count = 1;
    for (const QString &field : fields.mid(firstValueField)) {
        const int equals = field.indexOf('=');
        if (equals < 1)
            return "not a value: " + field;
        const QStringList list = members(withNames(field.mid(equals + 1), names, missing));
        if (count == 1)
            count = list.size();
        else if (list.size() > 1 && list.size() < count)
            return "too few members: " + field;
        lists.insert(field.left(equals), list);
    }
    for (int i = 0; i < count; ++i) {
        Picture picture;
        for (auto it = lists.cbegin(); it != lists.cend(); ++it)
            picture.values.insert(it.key(), it->size() > 1 ? it->at(i) : it->first());
        picture.size = size;
        picture.name = filled(fields.at(nameField), picture.values, missing);
        picture.drawing = filled(fields.at(drawingField), picture.values, missing);
        if (!missing.isEmpty())
            return missing;
        pictures << picture;
    }
    return {};
}
} // namespace

QString filled(const QString &text, const QMap<QString, QString> &values, QString &missing)
{
    static const QRegularExpression placeholder("\\{(\\w+)\\}");
    QString result;
    int end = 0;
    for (auto it = placeholder.globalMatch(text); it.hasNext();) {
        const QRegularExpressionMatch match = it.next();
        result += text.mid(end, match.capturedStart() - end);
        end = match.capturedEnd();
        if (!values.contains(match.captured(1)))
            missing = "no value for " + match.captured(0);
        result += values.value(match.captured(1));
    }
    return result + text.mid(end);
}

QList<Picture> readPictureTable(const QString &text, QString &fault)
{
    QList<Picture> pictures;
    Names names;
    const QStringList lines = text.split('\n');
    for (int i = 0; i < lines.size(); ++i) {
        const QString row = lines.at(i).trimmed();
        if (row.isEmpty() || row.startsWith('#'))
            continue;
        if (row.startsWith(QLatin1String("let "))) {
            // Only names above count: no name can lead to itself.
            const QString value = withNames(row.section(' ', 2), names, fault);
            if (fault.isEmpty())
                names.insert(row.section(' ', 1, 1), value);
        } else {
            fault = readRow(row, names, pictures);
        }
        if (!fault.isEmpty()) {
            fault = QString("line %1: %2").arg(i + 1).arg(fault);
            return {};
        }
    }
    return pictures;
}
