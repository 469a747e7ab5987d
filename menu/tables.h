// The three parts of the menu table, each in a file of its own; menuconfig_k2860.cpp makes the global maps of
// them.
#pragma once

#include "menuconfig_k2860.h"

namespace VASK
{
QMap<ENUM_ConfigIndex, ST_MenuConfig> menuPages();
/// The rows as they are written down, from which the maps are made.
/// @{
QVector<ST_ItemInfo> menuItemRows();
QVector<QPair<ENUM_MenuIndex, ST_DialogInfo>> menuDialogRows();
/// @}
QMap<ENUM_MenuIndex, ST_ItemInfo> menuItems();
QMap<ENUM_MenuIndex, ST_DialogInfo> menuDialogs();
} // namespace VASK
