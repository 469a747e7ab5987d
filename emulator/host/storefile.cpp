#include "emulator/host/storefile.h"

#include <QFile>
#include <QXmlStreamReader>

namespace
{
constexpr const char *file = "/usr/vask/etc/fpd/config/config.xml";
constexpr qint64 largest = 16 * 1024 * 1024; ///< bytes

/// The fields of a list of options, by their names.
QJsonObject readOptions(QXmlStreamReader &xml)
{
    QJsonObject options;
    while (xml.readNextStartElement()) {
        const QString name = xml.attributes().value("paramName").toString();
        options.insert(name, xml.readElementText(QXmlStreamReader::SkipChildElements));
    }
    return options;
}

StoreItem readItem(QXmlStreamReader &xml)
{
    StoreItem item{xml.attributes().value("Index").toInt(), {}, {}, {}};
    while (xml.readNextStartElement()) {
        const QString name = xml.name().toString();
        if (name.startsWith("Params"))
            item.fields.insert(name, readOptions(xml));
        else
            item.fields.insert(name, xml.readElementText(QXmlStreamReader::SkipChildElements));
    }
    item.name = item.fields["Tag"].toString();
    item.value = item.fields["Value"].toString();
    return item;
}
} // namespace

std::optional<QVector<StoreItem>> storefile::read(const QString &stateFolder)
{
    QFile input(stateFolder + file);
    if (!input.open(QIODevice::ReadOnly) || input.size() > largest)
        return std::nullopt;
    QXmlStreamReader xml(&input);
    QVector<StoreItem> items;
    if (!xml.readNextStartElement())
        return std::nullopt;
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1String("Items"))
            items.append(readItem(xml));
        else
            xml.skipCurrentElement();
    }
    if (xml.hasError() || items.isEmpty())
        return std::nullopt;
    return items;
}

QVector<StoreItem> storefile::find(const QVector<StoreItem> &items, const QString &nameOrNumber)
{
    bool isNumber = false;
    const int number = nameOrNumber.toInt(&isNumber);
    QVector<StoreItem> found;
    for (const StoreItem &item : items) {
        if (isNumber ? item.number == number : item.name.compare(nameOrNumber, Qt::CaseInsensitive) == 0)
            found.append(item);
    }
    return found;
}

QString storefile::notOne(const QVector<StoreItem> &found, const QString &nameOrNumber)
{
    if (found.isEmpty())
        return "the store has no item " + nameOrNumber;
    QStringList numbers;
    for (const StoreItem &item : found)
        numbers << QString::number(item.number);
    return QString("%1 is the name of %2 items: %3")
        .arg(nameOrNumber)
        .arg(found.size())
        .arg(numbers.join(' '));
}
