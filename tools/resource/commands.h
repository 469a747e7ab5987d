// The commands of fpd-resource, a row each. Main thread.
#pragma once

#include "tools/resource/exchange.h"

#include <QStringList>

namespace resourcetool
{
struct Command {
    const char *name;
    const char *usage; ///< the arguments
    const char *effect;
    /// The exit status. Wrong arguments give wrongUsage.
    int (*run)(const Options &options, const QStringList &arguments);
};

constexpr int wrongUsage = -1;

const QVector<Command> &commands();
} // namespace resourcetool
