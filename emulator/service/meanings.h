// What the resources that are the device itself mean in its registers. A new one is a row of the table in
// meanings.cpp. Main thread.
#pragma once

#include "emulator/model/subject.h"

#include <QJsonValue>
#include <optional>

namespace rest
{
struct Meaning {
    const char *resource; ///< as in the table of paths
    /// The registers that a body means, as if the panel had written them; nothing for a body that the device
    /// does not take.
    std::optional<QVector<Write>> (*change)(const QJsonValue &body);
    /// What it holds; null: what was put last.
    QJsonValue (*read)(const Registers &registers);
};

/// Null for a resource without a meaning of its own.
const Meaning *meaningOf(const QString &resource);
} // namespace rest
