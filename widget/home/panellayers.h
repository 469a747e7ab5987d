// The three layers as the keys of the panel know them: one row a layer.
#pragma once

#include "framework/engine/layeritems.h"
#include "menu/keycodes.h"
#include "menu/objectindex.h"

#include <array>

namespace VASK
{
struct PanelLayer {
    const LayerItems &items;
    ENUM_KeyCode key;
    ENUM_ObjectIndex page;
    ENUM_ObjectIndex cropPage;
    ENUM_ObjectIndex statusRow;
    ENUM_ObjectIndex sourceRow;
    ENUM_ObjectIndex scalingRow;
};

/// Main layer, PIP 1, PIP 2.
inline constexpr std::array<PanelLayer, layerCount> panelLayers{{
    {layers[0], KEY_MAIN, ENUM_PAGE_MainLayer, ENUM_PAGE_MainLayerCrop, ENUM_ROW_MainLayer_Status,
     ENUM_ROW_MainLayer_InputSource, ENUM_ROW_MainLayer_ScalingMode},
    {layers[1], KEY_PIP1, ENUM_PAGE_PIP1, ENUM_PAGE_PIP1Crop, ENUM_ROW_PIP1_Status, ENUM_ROW_PIP1_InputSource,
     ENUM_ROW_PIP1_ScalingMode},
    {layers[2], KEY_PIP2, ENUM_PAGE_PIP2, ENUM_PAGE_PIP2Crop, ENUM_ROW_PIP2_Status, ENUM_ROW_PIP2_InputSource,
     ENUM_ROW_PIP2_ScalingMode},
}};

inline constexpr int mainLayer = 0;
} // namespace VASK
