// The items of the three layers. A layer is told by its items, so that one function serves all three.
#pragma once

#include "menu/itemfamilies.h"

#include <array>

namespace VASK
{
constexpr int layerCount = FAMILY_Layer.count;

/// The items of one layer.
struct LayerItems {
    int number; ///< 0 main, 1 PIP 1, 2 PIP 2
    ENUM_MenuIndex status;
    ENUM_MenuIndex source;
    ENUM_MenuIndex scaling;
    ENUM_MenuIndex width;
    ENUM_MenuIndex height;
    ENUM_MenuIndex x;
    ENUM_MenuIndex y;
    ENUM_MenuIndex priority;
    ENUM_MenuIndex cropPage;
    /// The first of the four that remember a custom geometry: width, height, x, y.
    ENUM_MenuIndex customWidth;
    ENUM_MenuIndex cropStatus;
    ENUM_MenuIndex cropWidth;
    ENUM_MenuIndex cropHeight;
    ENUM_MenuIndex cropX;
    ENUM_MenuIndex cropY;

    bool isMain() const { return number == 0; }
    /// The item that remembers one of the four of the geometry.
    ENUM_MenuIndex customOf(ENUM_MenuIndex geometry) const { return nth(customWidth, geometry - width); }
    std::array<ENUM_MenuIndex, 4> geometry() const { return {width, height, x, y}; }
};

constexpr LayerItems itemsOfLayer(int layer)
{
    return {layer,
            nth(MENU_MainLayer_Status, layer, STRIDE_Layer),
            nth(MENU_MainLayer_InputSource, layer, STRIDE_Layer),
            nth(MENU_MainLayer_ScalingMode, layer, STRIDE_Layer),
            nth(MENU_MainLayer_HorWidth, layer, STRIDE_Layer),
            nth(MENU_MainLayer_VerHeight, layer, STRIDE_Layer),
            nth(MENU_MainLayer_InitialX, layer, STRIDE_Layer),
            nth(MENU_MainLayer_InitialY, layer, STRIDE_Layer),
            nth(MENU_MainLayer_Priority, layer, STRIDE_Layer),
            nth(MENU_MainLayer_InputCrop, layer, STRIDE_Layer),
            nth(MENU_MainLayer_CustomWidth, layer, STRIDE_CustomScaling),
            nth(MENU_MainLayerCrop_Status, layer, STRIDE_Crop),
            nth(MENU_MainLayerCrop_HorWidth, layer, STRIDE_Crop),
            nth(MENU_MainLayerCrop_VerHeight, layer, STRIDE_Crop),
            nth(MENU_MainLayerCrop_InitialX, layer, STRIDE_Crop),
            nth(MENU_MainLayerCrop_InitialY, layer, STRIDE_Crop)};
}

inline constexpr std::array<LayerItems, layerCount> layers{itemsOfLayer(0), itemsOfLayer(1), itemsOfLayer(2)};
} // namespace VASK
