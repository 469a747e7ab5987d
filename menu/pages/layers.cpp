#include "menu/itemfamilies.h"
#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "menu/objectindex.h"
#include "menu/pageindex.h"
#include "menu/pages/pagerows.h"

namespace VASK::pagerows
{
/// Layers with their input crop
void addLayerPages(Pages &pages)
{
    pages[CONFIG_MainLayer] =
        page(ENUM_PAGE_MainLayer, "MainLayer",
             numbered({
                 row(ENUM_ROW_MainLayer_Status, TYPE_STRINGCOMBOX, MENU_MainLayer_Status),
                 row(ENUM_ROW_MainLayer_InputSource, TYPE_STRINGCOMBOX, MENU_MainLayer_InputSource),
                 row(ENUM_ROW_MainLayer_ScalingMode, TYPE_STRINGCOMBOX, MENU_MainLayer_ScalingMode),
                 row(ENUM_ROW_MainLayer_HorWidth, TYPE_INTADJUST, MENU_MainLayer_HorWidth),
                 row(ENUM_ROW_MainLayer_VerHeight, TYPE_INTADJUST, MENU_MainLayer_VerHeight),
                 row(ENUM_ROW_MainLayer_InitialX, TYPE_INTADJUST, MENU_MainLayer_InitialX),
                 row(ENUM_ROW_MainLayer_InitialY, TYPE_INTADJUST, MENU_MainLayer_InitialY),
                 row(ENUM_ROW_MainLayer_Priority, TYPE_STRINGCOMBOX, MENU_MainLayer_Priority),
                 subPage(ENUM_ROW_MainLayer_InputCrop, ENUM_PAGE_MainLayerCrop, MENU_MainLayer_InputCrop,
                         CONFIG_MainLayerCrop),
                 row(ENUM_ROW_MainLayer_Opacity, TYPE_INTADJUST, MENU_MainLayer_Opacity),
             }));
    pages[CONFIG_PIP1] =
        page(ENUM_PAGE_PIP1, "PIP1",
             numbered({
                 row(ENUM_ROW_PIP1_Status, TYPE_STRINGCOMBOX, MENU_PIP1_Status),
                 row(ENUM_ROW_PIP1_InputSource, TYPE_STRINGCOMBOX, MENU_PIP1_InputSource),
                 row(ENUM_ROW_PIP1_ScalingMode, TYPE_STRINGCOMBOX, MENU_PIP1_ScalingMode),
                 row(ENUM_ROW_PIP1_HorWidth, TYPE_INTADJUST, MENU_PIP1_HorWidth),
                 row(ENUM_ROW_PIP1_VerHeight, TYPE_INTADJUST, MENU_PIP1_VerHeight),
                 row(ENUM_ROW_PIP1_InitialX, TYPE_INTADJUST, MENU_PIP1_InitialX),
                 row(ENUM_ROW_PIP1_InitialY, TYPE_INTADJUST, MENU_PIP1_InitialY),
                 row(ENUM_ROW_PIP1_Priority, TYPE_STRINGCOMBOX, MENU_PIP1_Priority),
                 subPage(ENUM_ROW_PIP1_InputCrop, ENUM_PAGE_PIP1Crop, MENU_PIP1_InputCrop, CONFIG_PIP1Crop),
                 row(ENUM_ROW_PIP1_Opacity, TYPE_INTADJUST, MENU_PIP1_Opacity),
             }));
    pages[CONFIG_PIP2] =
        page(ENUM_PAGE_PIP2, "PIP2",
             numbered({
                 row(ENUM_ROW_PIP2_Status, TYPE_STRINGCOMBOX, MENU_PIP2_Status),
                 row(ENUM_ROW_PIP2_InputSource, TYPE_STRINGCOMBOX, MENU_PIP2_InputSource),
                 row(ENUM_ROW_PIP2_ScalingMode, TYPE_STRINGCOMBOX, MENU_PIP2_ScalingMode),
                 row(ENUM_ROW_PIP2_HorWidth, TYPE_INTADJUST, MENU_PIP2_HorWidth),
                 row(ENUM_ROW_PIP2_VerHeight, TYPE_INTADJUST, MENU_PIP2_VerHeight),
                 row(ENUM_ROW_PIP2_InitialX, TYPE_INTADJUST, MENU_PIP2_InitialX),
                 row(ENUM_ROW_PIP2_InitialY, TYPE_INTADJUST, MENU_PIP2_InitialY),
                 row(ENUM_ROW_PIP2_Priority, TYPE_STRINGCOMBOX, MENU_PIP2_Priority),
                 subPage(ENUM_ROW_PIP2_InputCrop, ENUM_PAGE_PIP2Crop, MENU_PIP2_InputCrop, CONFIG_PIP2Crop),
                 row(ENUM_ROW_PIP2_Opacity, TYPE_INTADJUST, MENU_PIP2_Opacity),
             }));
    pages[CONFIG_MainLayerCrop] =
        page(ENUM_PAGE_MainLayerCrop, "InputCrop",
             numbered({
                 row(ENUM_ROW_MainLayerCrop_Status, TYPE_STRINGCOMBOX, MENU_MainLayerCrop_Status),
                 row(ENUM_ROW_MainLayerCrop_HorWidth, TYPE_INTADJUST, MENU_MainLayerCrop_HorWidth),
                 row(ENUM_ROW_MainLayerCrop_VerHeight, TYPE_INTADJUST, MENU_MainLayerCrop_VerHeight),
                 row(ENUM_ROW_MainLayerCrop_InitialX, TYPE_INTADJUST, MENU_MainLayerCrop_InitialX),
                 row(ENUM_ROW_MainLayerCrop_InitialY, TYPE_INTADJUST, MENU_MainLayerCrop_InitialY),
                 row(ENUM_ROW_MainLayerCrop_Reset, TYPE_APPLY, MENU_MainLayerCrop_Reset),
             }));
    for (int layer = 1; layer < 3; ++layer) {
        const ENUM_ConfigIndex config = nth(CONFIG_MainLayerCrop, layer);
        const ENUM_ObjectIndex object = layer == 1 ? ENUM_PAGE_PIP1Crop : ENUM_PAGE_PIP2Crop;
        pages[config] =
            raised(pages[CONFIG_MainLayerCrop], "InputCrop", {layer * STRIDE_Crop, layer * STRIDE_Crop, 0});
        pages[config].object = object;
    }
}
} // namespace VASK::pagerows
