// Pages of the menu that are built only when something is chosen, and that take another page's place. GUI
// thread.
#pragma once

#include "menu/objectindex.h"
#include "menu/pageindex.h"

namespace VASK
{
class MenuDirectory;
class ParaProcess;

/// The page under a number of the pool, built from its table row if it is not there yet.
MenuDirectory *pageOrBuild(ParaProcess &engine, ENUM_ObjectIndex object, ENUM_ConfigIndex config);

/// The page opens, and ESC leads from it back to the parent, which closes.
void openBelow(MenuDirectory *page, MenuDirectory *parent);

/// One of several pages that share a place in the menu.
struct PageSwap {
    ENUM_ObjectIndex place; ///< stands for the current one
    ENUM_ObjectIndex page;
    ENUM_ConfigIndex config;
    ENUM_ObjectIndex parent;
};
/// The page takes the place of the one that was shown there, and opens. From any thread.
void swapPage(ParaProcess &engine, const PageSwap &swap);
} // namespace VASK
