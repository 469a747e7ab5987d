// The way down the menu: which page a row leads to, and how that takes the place of the page above it. GUI
// thread.
#pragma once

#include "widget/page/pagetable.h"

namespace VASK
{
class MenuDirectory;

/// OK on an entry: its page opens and leads back to the one that it stands on.
void openSubPage(MenuDirectory &above, const ShownRow &entry);
} // namespace VASK
