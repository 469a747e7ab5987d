// The rows of which the tables of the pages are made, one a line, and the groups of pages, a file each. A
// page that is another's twin is told by what raises its numbers.
#pragma once

#include "menuconfig_k2860.h"

#include <initializer_list>

namespace VASK::pagerows
{
using Rows = QMap<int, st_MenuItemInfo>;
using Pages = QMap<ENUM_ConfigIndex, ST_MenuConfig>;

st_MenuItemInfo row(ENUM_ObjectIndex widget, ENUM_ControlType type, ENUM_MenuIndex item);
st_MenuItemInfo subPage(ENUM_ObjectIndex widget, ENUM_ObjectIndex page, ENUM_MenuIndex item,
                        ENUM_ConfigIndex config);
/// A row that acts at once and yet names a page object, its own number: no page is built for it.
st_MenuItemInfo ownPage(ENUM_ObjectIndex widget, ENUM_MenuIndex item);

Rows numbered(std::initializer_list<st_MenuItemInfo> list);
ST_MenuConfig page(ENUM_ObjectIndex object, const QString &title, const Rows &rows);
/// A page of which only the first rows are placed.
ST_MenuConfig shortPage(ENUM_ObjectIndex object, const QString &title, signed char count, const Rows &rows);

/// What raises the numbers of a family's first member to those of another.
struct Raise {
    int items;
    int objects;
    int configs;
};
ST_MenuConfig raised(const ST_MenuConfig &first, const QString &title, Raise by);

void addMainPages(Pages &pages);
void addDevicePages(Pages &pages);
void addPicturePages(Pages &pages);
void addScreenPages(Pages &pages);
void addLayerPages(Pages &pages);
void addInputPages(Pages &pages);
void addMosaicPages(Pages &pages);
void addTestPages(Pages &pages);
void addCustomPicturePages(Pages &pages);
void addFunctionPages(Pages &pages);
void addStereoAndNetworkPages(Pages &pages);
void addSystemPages(Pages &pages);
void addLastPages(Pages &pages);
} // namespace VASK::pagerows
