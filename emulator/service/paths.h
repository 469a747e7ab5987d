// What the device's REST service has: the paths of its resources, some with a {placeholder}, such as the id
// of a screen. Main thread.
#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

namespace paths
{
/// The resource that a path of a request means, as it stands in the table, without "/api/v1"; empty if there
/// is none.
QString resourceOf(const QString &path);
} // namespace paths
