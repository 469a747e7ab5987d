// The three layers as the keys and LEDs of the panel know them: one row of numbers a layer.
#pragma once

#include "menu/itemindex.h"
#include "menu/keycodes.h"
#include "menu/ledindex.h"
#include "menu/objectindex.h"

#include <array>

namespace VASK
{
struct PanelLayer {
    ENUM_KeyCode key;
    ENUM_LedIndex led;
    ENUM_ObjectIndex page;
    ENUM_ObjectIndex cropPage;
    ENUM_MenuIndex status;
    ENUM_ObjectIndex statusRow;
    ENUM_MenuIndex source;
    ENUM_ObjectIndex sourceRow;
    ENUM_MenuIndex scaling;
    ENUM_ObjectIndex scalingRow;
};

/// Main layer, PIP 1, PIP 2.
inline constexpr std::array<PanelLayer, 3> panelLayers{{
    {KEY_MAIN, LED_MAIN, ENUM_PAGE_MainLayer, ENUM_PAGE_MainLayerCrop, MENU_MainLayer_Status,
     ENUM_ROW_MainLayer_Status, MENU_MainLayer_InputSource, ENUM_ROW_MainLayer_InputSource,
     MENU_MainLayer_ScalingMode, ENUM_ROW_MainLayer_ScalingMode},
    {KEY_PIP1, LED_PIP1, ENUM_PAGE_PIP1, ENUM_PAGE_PIP1Crop, MENU_PIP1_Status, ENUM_ROW_PIP1_Status,
     MENU_PIP1_InputSource, ENUM_ROW_PIP1_InputSource, MENU_PIP1_ScalingMode, ENUM_ROW_PIP1_ScalingMode},
    {KEY_PIP2, LED_PIP2, ENUM_PAGE_PIP2, ENUM_PAGE_PIP2Crop, MENU_PIP2_Status, ENUM_ROW_PIP2_Status,
     MENU_PIP2_InputSource, ENUM_ROW_PIP2_InputSource, MENU_PIP2_ScalingMode, ENUM_ROW_PIP2_ScalingMode},
}};

inline constexpr int mainLayer = 0;
} // namespace VASK
