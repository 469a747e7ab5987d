// The form of one menu item in the store's XML document: item to element and back, and nothing about files.
// Without state, on a document that the caller has made or locked.
#pragma once

#include "menu/itemindex.h"
#include "menuconfig_k2860.h"

#include <QDomDocument>
#include <QMap>
#include <QString>
#include <QVector>

namespace VASK
{
/// The tag names of the document; List is declared and no element uses it.
enum XMLELEMENT {
    XML_LIST = 0,
    XML_ITEMS = 1,
    XML_INDEX = 2,
    XML_ICON = 3,
    XML_TAG = 4,
    XML_VALUE = 6,
    XML_ICONEX = 7,
    XML_MAX = 8,
    XML_MIN = 9,
    XML_PIXVALUE = 10,
    XML_PERBASE = 11,
    XML_UNIT = 12,
    XML_CHOICE = 13,
    XML_STEP = 14,
    XML_ROW = 15,
    XML_COL = 16,
    XML_ENABLE = 17,
    XML_ENABLESELECT = 18,
    XML_PARAMS = 19,
    XML_PARAMS1 = 20,
    XML_PARAM = 21,
    XML_PARAMNAME = 22,
};

using XmlNames = QMap<XMLELEMENT, QString>;

/// The names as they stand in the file.
XmlNames menuXmlNames();

constexpr const char *menuXmlRoot = "MenuItemList";

/// The number in an item's attribute. False if no item has such a one.
bool isItemNumber(const QString &text, ENUM_MenuIndex &index);

/// A document that holds the head and an empty root.
QDomDocument emptyMenuDocument();

/// The document as it stands in a file.
QByteArray menuDocumentText(const QDomDocument &document);

/// A new Items element with all children, in the file's order.
QDomElement CreateMenuItemConfig(QDomDocument &document, const XmlNames &names, ENUM_MenuIndex index,
                                 const ST_ItemInfo &item);

/// A child of an item as it stands in the file: its text, and of a map its entries.
struct XmlField {
    QString tag;
    QString text;
    QMap<QString, QString> params;
};

/// What cannot be read, to be logged by whoever takes the item.
struct XmlComplaint {
    const char *what;
    QString text;
};

/// Fills the field from the child. What it cannot read leaves the field as it was.
void takeXmlField(const XmlField &child, const XmlNames &names, ST_ItemInfo &item,
                  QVector<XmlComplaint> &complaints);
} // namespace VASK
