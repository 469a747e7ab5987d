// Which items have a widget: those of the pages that the builder makes at start. Read from any thread.
#pragma once

#include "menu/itemindex.h"
#include "menu/pageindex.h"
#include "menuconfig_k2860.h"

#include <QList>
#include <QSet>

namespace VASK
{
/// The three menu roots and all pages below them, in the order in which they are built.
QList<ENUM_ConfigIndex> builtPages();
QSet<ENUM_MenuIndex> itemsOfBuiltPages();
} // namespace VASK
