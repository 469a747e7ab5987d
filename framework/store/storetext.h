// A look at the bytes of a store's file: whether they are one document of the store's form, and which items
// stand in it with what values. One pass over the text; a document is made only of what has passed. What
// comes from a worn disk or from a stranger can neither hold up the start nor fill the memory. Without state.
#pragma once

#include "framework/store/menuxml.h"
#include "menu/itemindex.h"
#include "menuconfig_k2860.h"

#include <QByteArray>
#include <QMap>
#include <QSet>
#include <QString>
#include <QVector>

namespace VASK
{
/// More than any store; what is longer is none, whatever it is.
constexpr int storeSizeLimit = 16 * 1024 * 1024;

struct StoreText {
    QString text;  ///< the document, empty if it is not well-formed
    QString error; ///< what is wrong with it, and where
    qint64 line = 0;
    qint64 column = 0;
    int elements = 0;    ///< that are items by their name
    QSet<int> items;     ///< the numbers that count
    bool isTidy = false; ///< each of them once and below the root, as a save writes them
    QMap<ENUM_MenuIndex, ST_ItemInfo> records; ///< the items of a tidy store
    QVector<XmlComplaint> complaints;          ///< what in them cannot be read

    bool isWellFormed() const { return error.isEmpty(); }
    /// Another root, or a root without items, is no store.
    bool isStore() const { return isWellFormed() && !items.isEmpty(); }
};

StoreText readStoreText(const QByteArray &bytes);
} // namespace VASK
