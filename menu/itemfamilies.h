// The families of items: how many layers, inputs and ports there are, and how far apart their items lie.
#pragma once

#include "menu/itemindex.h"
#include "menu/span.h"

namespace VASK
{
using ItemSpan = Span<ENUM_MenuIndex>;

constexpr Family FAMILY_Layer{STRIDE_Layer, 3}; ///< main, PIP 1, PIP 2
constexpr Family FAMILY_Pip{STRIDE_Layer, 2, 1};
constexpr Family FAMILY_Crop{STRIDE_Crop, FAMILY_Layer.count};
/// HDMI 1, HDMI 2, DVI, DVI 2: their pages, and the pages below them.
constexpr Family FAMILY_Input{STRIDE_Input, 4};
constexpr Family FAMILY_InputPicture{STRIDE_InputPicture, FAMILY_Input.count};
/// Every input that the device lists, with the mosaic and the synchronisation reference.
constexpr Family FAMILY_InputRecord{STRIDE_InputRecord, 9};
constexpr Family FAMILY_AdvancedPort{STRIDE_AdvancedPort, 10};
constexpr Family FAMILY_PortState{1, 10};
constexpr Family FAMILY_Preset{1, 10};
constexpr Family FAMILY_OSDPicture{1, 8};
} // namespace VASK
