// All operations of the facades as rows, for programs that are given an operation by name. GUI thread.
#pragma once

#include <QMap>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <vector>

namespace VASK
{
/// What the operations take between them; each takes what its shape says.
struct FacadeArguments {
    QString device;
    QStringList ids; ///< one, or those of a group
    QMap<QString, QString> query;
    QVariant body; ///< a map or a list
};

struct FacadeRow {
    const char *facade;
    const char *name;
    const char *key;   ///< of the resource
    const char *shape; ///< as in facadeshapes.h
    /// Calls it and gives its answer, invalid if there was none or it has none.
    QVariant (*call)(const FacadeArguments &);
};

/// In the order of the .def files. An operation with two shapes, such as one screen and a group of them, has
/// two rows.
const std::vector<FacadeRow> &facadeRows();
} // namespace VASK
