// The limits of values that depend on other values. Each case gives the value that may be used instead of the
// one that was asked for; the cases of frame rates change which options of a list are available instead.
// Any thread.
#pragma once

#include "menu/itemindex.h"
#include "menu/objectindex.h"

#include <QString>

namespace VASK
{
class ParaProcess;

struct LimitCase {
    ENUM_MenuIndex first;
    ENUM_MenuIndex last;
    QString (*apply)(ParaProcess &engine, const QString &value, ENUM_MenuIndex index);
};

/// The case of an item, null if nothing but its own limits holds it.
const LimitCase *findLimitCase(ENUM_MenuIndex index);

/// A list has other options available: its row, if its page is built, shows them.
void repaintList(ENUM_ObjectIndex row, ENUM_MenuIndex list);

/// True when so many cabinets, in the whole columns or rows of the quick screen configuration, are more than
/// the first port carries.
bool firstPortOverloads(const ParaProcess &engine, int cabinets);

struct LimitFamily {
    const LimitCase *cases;
    int count;
};
LimitFamily screenLimits();
LimitFamily layerLimits();
LimitFamily edidLimits();
} // namespace VASK
