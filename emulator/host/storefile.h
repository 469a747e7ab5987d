// The panel's store as it lies on the disk, for those who only look: items with number, name and fields.
// Without state.
#pragma once

#include <QJsonObject>
#include <QVector>
#include <optional>

struct StoreItem {
    int number;
    QString name;
    QString value;
    QJsonObject fields; ///< all, by the names of their elements
};

namespace storefile
{
/// All items; nothing if the file is no store, as while it is being written.
std::optional<QVector<StoreItem>> read(const QString &stateFolder);
/// Those with that number, or with that name in upper or lower case.
QVector<StoreItem> find(const QVector<StoreItem> &items, const QString &nameOrNumber);
/// What to say when that name is not of one item alone.
QString notOne(const QVector<StoreItem> &found, const QString &nameOrNumber);
} // namespace storefile
