#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "menu/objectindex.h"
#include "menu/pageindex.h"
#include "menu/pages/pagerows.h"

namespace VASK::pagerows
{
/// Screen configuration
void addScreenPages(Pages &pages)
{
    pages[CONFIG_QuickConfiguration] =
        page(ENUM_PAGE_QuickConfiguration, "QuickConfiguration",
             numbered({
                 row(ENUM_ROW_Quick_CabinetRow, TYPE_INTADJUST, MENU_Quick_CabinetRow),
                 row(ENUM_ROW_Quick_CabinetCol, TYPE_INTADJUST, MENU_Quick_CabinetCol),
                 row(ENUM_ROW_Quick_PortOneCab, TYPE_INTADJUST, MENU_Quick_PortOneCab),
                 row(ENUM_ROW_Quick_FlowWay, TYPE_ICOCOMBOX, MENU_Quick_FlowWay),
             }));
    pages[CONFIG_LoadCabFiles] = page(ENUM_PAGE_LoadCabFiles, "LoadCabFiles",
                                      numbered({
                                          row(ENUM_ROW_CabinetFile1, TYPE_BUTTON, MENU_CabinetFile1),
                                          row(ENUM_ROW_CabinetFile2, TYPE_BUTTON, MENU_CabinetFile2),
                                          row(ENUM_ROW_CabinetFile3, TYPE_BUTTON, MENU_CabinetFile3),
                                          row(ENUM_ROW_CabinetFile4, TYPE_BUTTON, MENU_CabinetFile4),
                                          row(ENUM_ROW_CabinetFile5, TYPE_BUTTON, MENU_CabinetFile5),
                                          row(ENUM_ROW_CabinetFile6, TYPE_BUTTON, MENU_CabinetFile6),
                                          row(ENUM_ROW_CabinetFile7, TYPE_BUTTON, MENU_CabinetFile7),
                                          row(ENUM_ROW_CabinetFile8, TYPE_BUTTON, MENU_CabinetFile8),
                                      }));
    pages[CONFIG_MoreSettings] =
        page(ENUM_PAGE_MoreSettings, "MoreSettings",
             numbered({
                 subPage(ENUM_ROW_AdvancedCfg, ENUM_PAGE_AdvancedCfg, MENU_AdvancedCfg, CONFIG_AdvancedCfg),
                 row(ENUM_ROW_Mapping, TYPE_STRINGCOMBOX, MENU_Mapping),
                 subPage(ENUM_ROW_LEDScreenColor, ENUM_PAGE_LEDScreenColor, MENU_LEDScreenColor,
                         CONFIG_LEDScreenColor),
                 row(ENUM_ROW_OutputFrameRate, TYPE_STRINGCOMBOX, MENU_OutputFrameRate),
             }));
    pages[CONFIG_AdvancedCfg] =
        page(ENUM_PAGE_AdvancedCfg, "AdvancedCfg",
             numbered({
                 row(ENUM_ROW_Advanced_Status, TYPE_STRINGCOMBOX, MENU_Advanced_Status),
                 row(ENUM_ROW_Advanced_EthernetPort, TYPE_INTADJUST, MENU_Advanced_EthernetPort),
                 row(ENUM_ROW_Advanced_CabinetRow, TYPE_INTADJUST, MENU_Advanced_CabinetRow),
                 row(ENUM_ROW_Advanced_CabinetCol, TYPE_INTADJUST, MENU_Advanced_CabinetCol),
                 row(ENUM_ROW_Advanced_HorOffset, TYPE_INTADJUST, MENU_Advanced_HorOffset),
                 row(ENUM_ROW_Advanced_VerOffset, TYPE_INTADJUST, MENU_Advanced_VerOffset),
                 row(ENUM_ROW_Advanced_FlowWay, TYPE_ICOCOMBOX, MENU_Advanced_FlowWay),
                 row(ENUM_ROW_Advanced_Apply, TYPE_APPLYRESET, MENU_Advanced_Apply),
             }));
    pages[CONFIG_LEDScreenColor] =
        page(ENUM_PAGE_LEDScreenColor, "LEDScreenColor",
             numbered({
                 row(ENUM_ROW_Color_Gamma, TYPE_FLOATADJUST, MENU_Color_Gamma),
                 row(ENUM_ROW_Color_ColorTemp, TYPE_STRINGCOMBOX, MENU_Color_ColorTemp),
                 row(ENUM_ROW_Color_R, TYPE_INTADJUST, MENU_Color_R),
                 row(ENUM_ROW_Color_G, TYPE_INTADJUST, MENU_Color_G),
                 row(ENUM_ROW_Color_B, TYPE_INTADJUST, MENU_Color_B),
                 row(ENUM_ROW_Color_Reset, TYPE_APPLY, MENU_Color_Reset),
             }));
}
} // namespace VASK::pagerows
