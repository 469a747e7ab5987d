// What must hold of every item of the store, whatever device and user have done: its value lies inside its
// own limits, or is one of its options; and the few items of which that is not so, each with its reason. Any
// thread.
#pragma once

#include "menuconfig_k2860.h"

#include <QString>

namespace storerules
{
/// What is wrong with the item, empty if nothing.
QString fault(const VASK::ST_ItemInfo &item);
/// False for an item of which nothing can be wrong.
bool isRuled(VASK::ENUM_MenuIndex index);
} // namespace storerules
