// The limits of values that depend on other values. Each case gives the value that may be used instead of the
// one that was asked for; the cases of frame rates change which options of a list are available instead.
// Any thread.
#pragma once

#include "framework/table.h"
#include "menu/itemfamilies.h"
#include "menu/objectindex.h"

#include <QString>

namespace VASK
{
class ParaProcess;
struct ST_ItemInfo;

/// The value itself, or the limit of its item that it lies beyond.
QString withinLimits(const ST_ItemInfo &item, const QString &value);
/// The value itself if it is an option of its item, else the first.
QString knownOption(const ST_ItemInfo &item, const QString &value);

/// A value that is asked for.
struct ParaLimit {
    ParaProcess &engine;
    const QString &value;
    ENUM_MenuIndex index;
    int member; ///< number of the layer or input that the item belongs to
};

struct LimitCase {
    ItemSpan span;
    QString (*apply)(const ParaLimit &asked);
};

/// The case of an item, without a row if nothing but its own limits holds it.
TableEntry<LimitCase> findLimitCase(ENUM_MenuIndex index);

/// A list has other options available: its row, if its page is built, shows them.
void repaintList(ENUM_ObjectIndex row, ENUM_MenuIndex list);

/// True when so many cabinets, in the whole columns or rows of the quick screen configuration, are more than
/// the first port carries.
bool firstPortOverloads(const ParaProcess &engine, int cabinets);

#define FPD_FAMILY(name) Table<LimitCase> name##Limits();
#include "framework/engine/limits/families.def"
#undef FPD_FAMILY
} // namespace VASK
