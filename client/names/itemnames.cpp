#include "client/names/itemnames.h"

#include <QMap>
#include <QRegularExpression>
#include <QStringList>

using namespace VASK;

namespace
{
struct Row {
    const char *name;
    ENUM_MenuIndex item;
};
constexpr Row rows[] = {
#include "itemnames.inc"
};

QMap<QString, ENUM_MenuIndex> itemsByName()
{
    QMap<QString, ENUM_MenuIndex> items;
    for (const Row &row : rows)
        items.insert(row.name, row.item);
    return items;
}

QMap<int, QString> namesByItem()
{
    QMap<int, QString> names;
    for (const Row &row : rows)
        names.insert(row.item, row.name);
    return names;
}
} // namespace

ENUM_MenuIndex itemnames::item(const QString &name)
{
    static const QMap<QString, ENUM_MenuIndex> items = itemsByName();
    const auto found = items.find(name.section('+', 0, 0));
    if (found == items.end())
        qFatal("no item: %s", qPrintable(name));
    return ENUM_MenuIndex(*found + name.section('+', 1).toInt());
}

QString itemnames::name(int item)
{
    static const QMap<int, QString> names = namesByItem();
    auto found = names.upperBound(item);
    if (found == names.begin())
        return QString::number(item);
    --found;
    const int behind = item - found.key();
    return behind == 0 ? *found : QString("%1+%2").arg(*found).arg(behind);
}

QString itemnames::expanded(const QString &text)
{
    static const QRegularExpression group("(\\w+_)\\{([^}]*)\\}");
    QString whole = text;
    for (auto found = group.match(whole); found.hasMatch(); found = group.match(whole)) {
        QStringList members = found.captured(2).split(' ');
        for (QString &member : members)
            member.prepend(found.captured(1));
        whole.replace(found.capturedStart(), found.capturedLength(), members.join(' '));
    }
    return whole;
}

QString itemnames::line(int item, const QString &value)
{
    return name(item) + '=' + value;
}
