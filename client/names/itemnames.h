// The menu's items by name, for tables that can be read and failures that say what they are about: the
// enumerator without its first word, such as "Mode3D_Status" or "OutputRate", and of a family without
// enumerators one behind its first, "PortLink+3".
#pragma once

#include "menu/itemindex.h"

#include <QString>

namespace itemnames
{
/// Ends the program if there is no such item.
VASK::ENUM_MenuIndex item(const QString &name);
QString name(int item);
/// "PIP1_{Status=1 Opacity-}" as "PIP1_Status=1 PIP1_Opacity-", which tables would be full of.
QString expanded(const QString &text);
/// As "NAME=VALUE".
QString line(int item, const QString &value);
} // namespace itemnames
