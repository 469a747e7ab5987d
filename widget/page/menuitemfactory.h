// Makes the widget of a row by its kind. No data of its own. GUI thread.
#pragma once

#include "framework/object/vaskobject.h"
#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "menu/objectindex.h"

namespace VASK
{
class MenuItemFactory
{
public:
    /// The row widget, without a parent; null for a kind without a class.
    static VaskUiObject *CreateMenuItem(ENUM_ControlType type, ENUM_ObjectIndex object, ENUM_MenuIndex index);
};
} // namespace VASK
