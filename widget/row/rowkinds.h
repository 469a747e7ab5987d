// What a page does with a row depends on its kind only; here is which kinds go together.
#pragma once

#include "menu/menutypes.h"

namespace VASK
{
constexpr bool isNumberRow(ENUM_ControlType type)
{
    return type == TYPE_INTADJUST || type == TYPE_FLOATADJUST;
}

/// Rows whose value the knob changes step by step, faster when it is turned faster.
constexpr bool isKnobRow(ENUM_ControlType type)
{
    return isNumberRow(type) || type == TYPE_IPADJUST;
}

/// Rows that open a table to choose from.
constexpr bool isListRow(ENUM_ControlType type)
{
    return type == TYPE_STRINGCOMBOX || type == TYPE_ICOCOMBOX || type == TYPE_MOSAIC ||
           type == TYPE_TWOSTRINGCOMBOX;
}

/// Rows with parts side by side, which the cursor walks through.
constexpr bool hasInnerParts(ENUM_ControlType type)
{
    return type == TYPE_APPLYRESET || type == TYPE_TWOSTRINGCOMBOX || type == TYPE_FOURPIC;
}

/// Rows that act at once.
constexpr bool isButtonRow(ENUM_ControlType type)
{
    return type == TYPE_BUTTON || type == TYPE_APPLY || type == TYPE_APPLYRESET || type == TYPE_FOURPIC;
}
} // namespace VASK
