#include "framework/store/menuxml.h"
#include "menu/itemindex.h"

#include <QTextStream>

namespace VASK
{
namespace
{
/// A child with plain text and the field that it holds.
struct TextField {
    XMLELEMENT name;
    QString ST_ItemInfo::*field;
};
struct NumberField {
    XMLELEMENT name;
    int ST_ItemInfo::*field;
    const char *complaint;
};
struct FlagField {
    XMLELEMENT name;
    bool ST_ItemInfo::*field;
    const char *complaint;
};
struct MapField {
    XMLELEMENT name;
    QMap<QString, QString> ST_ItemInfo::*field;
};

// In the file the numbers stand behind the first four texts, the flags and maps at the end.
const TextField firstTexts[] = {
    {XML_ICON, &ST_ItemInfo::icon},
    {XML_TAG, &ST_ItemInfo::tag},
    {XML_VALUE, &ST_ItemInfo::value},
    {XML_ICONEX, &ST_ItemInfo::iconRight},
};
const NumberField numbers[] = {
    {XML_ROW, &ST_ItemInfo::row, "Row is invalid:"},
    {XML_COL, &ST_ItemInfo::col, "Col is invalid:"},
};
/// Of a table of pictures; more have no place on the LCD.
constexpr int tableLimit = 16;
const TextField lastTexts[] = {
    {XML_MAX, &ST_ItemInfo::max},         {XML_MIN, &ST_ItemInfo::min},
    {XML_PERBASE, &ST_ItemInfo::perBase}, {XML_PIXVALUE, &ST_ItemInfo::pixValue},
    {XML_STEP, &ST_ItemInfo::step},       {XML_UNIT, &ST_ItemInfo::unit},
    {XML_CHOICE, &ST_ItemInfo::choice},
};
const FlagField flags[] = {
    {XML_ENABLE, &ST_ItemInfo::enable, "enable is invalid:"},
    {XML_ENABLESELECT, &ST_ItemInfo::enableSelect, "EnableSelect is invalid:"},
};
const MapField maps[] = {
    {XML_PARAMS, &ST_ItemInfo::params},
    {XML_PARAMS1, &ST_ItemInfo::params1},
};

/// The text without the characters that no XML document may hold: with one of them the whole file would
/// count as damaged at the next start.
QString storableText(const QString &text)
{
    QString result;
    result.reserve(text.size());
    for (int i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        if (c.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate())
            result += text.mid(i++, 2);
        else if (!c.isSurrogate() && c.unicode() < 0xFFFE &&
                 (c.unicode() >= 0x20 || c == '\t' || c == '\n' || c == '\r'))
            result += c;
    }
    return result;
}

/// An empty text makes no node: a document that was read has none either, and both shall be written alike.
void setText(QDomDocument &document, QDomElement &element, const QString &text)
{
    if (!text.isEmpty())
        element.appendChild(document.createTextNode(storableText(text)));
}

void appendText(QDomDocument &document, QDomElement &parent, const QString &name, const QString &text)
{
    QDomElement child = document.createElement(name);
    setText(document, child, text);
    parent.appendChild(child);
}

void appendMap(QDomDocument &document, QDomElement &parent, const XmlNames &names, XMLELEMENT name,
               const QMap<QString, QString> &map)
{
    QDomElement child = document.createElement(names[name]);
    for (auto entry = map.cbegin(); entry != map.cend(); ++entry) {
        QDomElement param = document.createElement(names[XML_PARAM]);
        param.setAttribute(names[XML_PARAMNAME], storableText(entry.key()));
        setText(document, param, entry.value());
        child.appendChild(param);
    }
    parent.appendChild(child);
}

bool readFlag(const QString &text, bool &flag)
{
    const bool isFlag = text == "true" || text == "false";
    if (isFlag)
        flag = text == "true";
    return isFlag;
}

bool readNumber(const QString &text, int &number)
{
    bool isNumber = false;
    const int value = text.toInt(&isNumber);
    const bool fits = isNumber && value >= 0 && value <= tableLimit;
    if (fits)
        number = value;
    return fits;
}

template <class Table, class Read>
bool readFrom(const Table &table, const XmlNames &names, const QString &tag, Read read)
{
    for (const auto &row : table)
        if (*names.constFind(row.name) == tag) {
            read(row);
            return true;
        }
    return false;
}

} // namespace

XmlNames menuXmlNames()
{
    return {
        {XML_LIST, "List"},       {XML_ITEMS, "Items"},
        {XML_INDEX, "Index"},     {XML_ICON, "Icon"},
        {XML_TAG, "Tag"},         {XML_VALUE, "Value"},
        {XML_ICONEX, "IconEx"},   {XML_MAX, "Max"},
        {XML_MIN, "Min"},         {XML_PIXVALUE, "PixValue"},
        {XML_PERBASE, "PerBase"}, {XML_UNIT, "Unit"},
        {XML_CHOICE, "Choice"},   {XML_STEP, "Step"},
        {XML_ROW, "Row"},         {XML_COL, "Col"},
        {XML_ENABLE, "Enable"},   {XML_ENABLESELECT, "EnableSelect"},
        {XML_PARAMS, "Params"},   {XML_PARAMS1, "Params1"},
        {XML_PARAM, "param"},     {XML_PARAMNAME, "paramName"},
    };
}

bool isItemNumber(const QString &text, ENUM_MenuIndex &index)
{
    bool isNumber = false;
    index = ENUM_MenuIndex(text.toInt(&isNumber));
    return isNumber && index < MENU_END;
}

QDomDocument emptyMenuDocument()
{
    QDomDocument document;
    document.appendChild(document.createProcessingInstruction("xml", "version='1.0' encoding='UTF-8'"));
    QDomElement root = document.createElement(menuXmlRoot);
    root.setAttribute("Version", "1.0");
    document.appendChild(root);
    return document;
}

QByteArray menuDocumentText(const QDomDocument &document)
{
    constexpr int indent = 4;
    // Into a text, as a stream into bytes would encode line by line.
    QString text;
    QTextStream stream(&text);
    stream.setCodec("UTF-8");
    document.save(stream, indent);
    return text.toUtf8();
}

QDomElement CreateMenuItemConfig(QDomDocument &document, const XmlNames &names, ENUM_MenuIndex index,
                                 const ST_ItemInfo &item)
{
    QDomElement element = document.createElement(names[XML_ITEMS]);
    element.setAttribute(names[XML_INDEX], int(index));
    for (const TextField &row : firstTexts)
        appendText(document, element, names[row.name], item.*row.field);
    for (const NumberField &row : numbers)
        appendText(document, element, names[row.name], QString::number(item.*row.field));
    for (const TextField &row : lastTexts)
        appendText(document, element, names[row.name], item.*row.field);
    for (const FlagField &row : flags)
        appendText(document, element, names[row.name], item.*row.field ? "true" : "false");
    for (const MapField &row : maps)
        appendMap(document, element, names, row.name, item.*row.field);
    return element;
}

void takeXmlField(const XmlField &child, const XmlNames &names, ST_ItemInfo &item,
                  QVector<XmlComplaint> &complaints)
{
    const QString &tag = child.tag;
    const auto takeText = [&](const TextField &row) { item.*row.field = child.text; };
    const auto takeNumber = [&](const NumberField &row) {
        if (!readNumber(child.text, item.*row.field))
            complaints.append({row.complaint, child.text});
    };
    const auto takeFlag = [&](const FlagField &row) {
        if (!readFlag(child.text, item.*row.field))
            complaints.append({row.complaint, child.text});
    };
    const auto takeMap = [&](const MapField &row) {
        for (auto entry = child.params.cbegin(); entry != child.params.cend(); ++entry)
            (item.*row.field).insert(entry.key(), entry.value());
    };
    const bool known = readFrom(firstTexts, names, tag, takeText) ||
                       readFrom(lastTexts, names, tag, takeText) ||
                       readFrom(numbers, names, tag, takeNumber) || readFrom(flags, names, tag, takeFlag) ||
                       readFrom(maps, names, tag, takeMap);
    if (!known)
        complaints.append({"no this tagName:", tag});
}
} // namespace VASK
