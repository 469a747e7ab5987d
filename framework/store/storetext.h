// A look at the bytes of a store's file before anything is built from them: whether they are one document of
// the store's form, and which items stand in it. What comes from a worn disk or from a stranger can neither
// hold up the start nor fill the memory. Without state.
#pragma once

#include <QByteArray>
#include <QSet>
#include <QString>

namespace VASK
{
/// More than any store; what is longer is none, whatever it is.
constexpr int storeSizeLimit = 16 * 1024 * 1024;

struct StoreText {
    QString text;  ///< the document, empty if it is not well-formed
    QString error; ///< what is wrong with it, and where
    qint64 line = 0;
    qint64 column = 0;
    QSet<int> items;     ///< the numbers that count
    bool isTidy = false; ///< each of them once and below the root, as a save writes them

    bool isWellFormed() const { return error.isEmpty(); }
    /// Another root, or a root without items, is no store.
    bool isStore() const { return isWellFormed() && !items.isEmpty(); }
};

StoreText readStoreText(const QByteArray &bytes);
} // namespace VASK
