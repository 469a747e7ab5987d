// What of the store a device mirrors: the items whose value can be read off the device's own description of
// itself. The table is the comparison: an item, the line of "device show" that tells of it, and which words
// there stand for which value.
#pragma once

#include <QStringList>

class Panel;

namespace mirrored
{
/// Items that differ between store and device, "ITEM: STORED in the store, TOLD at the device (LINE)" each.
QStringList differences(Panel &panel);
/// How many items are compared.
int count();
} // namespace mirrored
