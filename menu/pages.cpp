#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "menu/objectindex.h"
#include "menu/pageindex.h"
#include "tables.h"

// All pages, one row a line. A page that is another's twin is told by what raises its numbers.

#include <initializer_list>

namespace VASK
{
namespace
{
using Rows = QMap<int, st_MenuItemInfo>;
using Pages = QMap<ENUM_ConfigIndex, ST_MenuConfig>;

constexpr const char *chineseStyle =
    "*{font-family: \"宋体\";font-size: 22px;color: #b8b4cc;background-color:rgba(0,0,0,0);}"
    "QTableWidget::item:selected{background:rgba(39,25,99);}";
constexpr short pageWidth = 320; ///< pixels

st_MenuItemInfo row(ENUM_ObjectIndex widget, ENUM_ControlType type, ENUM_MenuIndex item)
{
    return {widget, ENUM_OBJECT_END, type, item, CONFIG_END};
}

st_MenuItemInfo subPage(ENUM_ObjectIndex widget, ENUM_ObjectIndex page, ENUM_MenuIndex item,
                        ENUM_ConfigIndex config)
{
    return {widget, page, TYPE_SUBPAGE, item, config};
}

/// A row that acts at once and yet names a page object, its own number: no page is built for it.
st_MenuItemInfo ownPage(ENUM_ObjectIndex widget, ENUM_MenuIndex item)
{
    return {widget, widget, TYPE_BUTTON, item, CONFIG_END};
}

Rows numbered(std::initializer_list<st_MenuItemInfo> list)
{
    Rows rows;
    for (const st_MenuItemInfo &info : list)
        rows.insert(rows.size(), info);
    return rows;
}

ST_MenuConfig page(ENUM_ObjectIndex object, const QString &title, const Rows &rows)
{
    return {object, pageWidth, static_cast<signed char>(rows.size()), title, chineseStyle, rows, {}};
}

/// A page of which only the first rows are placed.
ST_MenuConfig shortPage(ENUM_ObjectIndex object, const QString &title, signed char count, const Rows &rows)
{
    return {object, pageWidth, count, title, chineseStyle, rows, {}};
}

/// What raises the numbers of a family's first member to those of another.
struct Raise {
    int items;
    int objects;
    int configs;
};

ST_MenuConfig raised(const ST_MenuConfig &first, const QString &title, Raise by)
{
    Rows rows = first.rowsMap;
    for (st_MenuItemInfo &info : rows) {
        info.itemObject = nth(info.itemObject, by.objects);
        info.menuIndex = nth(info.menuIndex, by.items);
        if (info.pageObject != ENUM_OBJECT_END) {
            info.pageObject = nth(info.pageObject, by.objects);
            info.subPage = nth(info.subPage, by.configs);
        }
    }
    return page(nth(first.object, by.objects), title, rows);
}

/// Main menu and its first level
void addMainPages(Pages &pages)
{
    pages[CONFIG_MainMenu] = page(
        ENUM_MAIN_MENU, "MainMenu",
        numbered({
            row(ENUM_ROW_ScreenBrightness, TYPE_INTADJUST, MENU_ScreenBrightness),
            subPage(ENUM_ROW_LayerSettings, ENUM_PAGE_LayerSettings, MENU_LayerSettings,
                    CONFIG_LayerSettings),
            subPage(ENUM_ROW_InputSettings, ENUM_PAGE_InputSettings, MENU_InputSettings,
                    CONFIG_InputSettings),
            subPage(ENUM_ROW_OSDSettings, ENUM_PAGE_OSDSettings, MENU_OSDSettings, CONFIG_OSDSettings),
            subPage(ENUM_ROW_DisplayControl, ENUM_PAGE_DisplayControl, MENU_DisplayControl,
                    CONFIG_DisplayControl),
            subPage(ENUM_ROW_PresetSettings, ENUM_PAGE_PresetSettings, MENU_PresetSettings,
                    CONFIG_PresetSettings),
            subPage(ENUM_ROW_AdvancedSetting, ENUM_PAGE_AdvancedSetting, MENU_AdvancedSetting,
                    CONFIG_AdvancedSetting),
            subPage(ENUM_ROW_SystemSetting, ENUM_PAGE_SystemSetting, MENU_SystemSetting,
                    CONFIG_SystemSetting),
            subPage(ENUM_ROW_FactoryReset, ENUM_PAGE_FactoryReset, MENU_FactoryReset, CONFIG_FactoryReset),
            subPage(ENUM_ROW_CommunicationSettings, ENUM_PAGE_CommunicationSettings,
                    MENU_CommunicationSettings, CONFIG_CommunicationSettings),
        }));
    pages[CONFIG_ScreenSetting] = page(
        ENUM_PAGE_ScreenSetting, "ScreenSetting",
        numbered({
            subPage(ENUM_ROW_QuickConfiguration, ENUM_PAGE_QuickConfiguration, MENU_QuickConfiguration,
                    CONFIG_QuickConfiguration),
            subPage(ENUM_ROW_LoadCabFiles, ENUM_PAGE_LoadCabFiles, MENU_LoadCabFiles, CONFIG_LoadCabFiles),
            ownPage(ENUM_ROW_SavetoRVCard, MENU_SavetoRVCard),
            subPage(ENUM_ROW_MoreSettings, ENUM_PAGE_MoreSettings, MENU_MoreSettings, CONFIG_MoreSettings),
        }));
    pages[CONFIG_LayerSettings] =
        page(ENUM_PAGE_LayerSettings, "LayerSettings",
             numbered({
                 subPage(ENUM_ROW_MainLayer, ENUM_PAGE_MainLayer, MENU_MainLayer, CONFIG_MainLayer),
                 subPage(ENUM_ROW_PIP1, ENUM_PAGE_PIP1, MENU_PIP1, CONFIG_PIP1),
                 subPage(ENUM_ROW_PIP2, ENUM_PAGE_PIP2, MENU_PIP2, CONFIG_PIP2),
             }));
    pages[CONFIG_InputSettings] = page(ENUM_PAGE_InputSettings, "InputSettings",
                                       numbered({
                                           subPage(ENUM_ROW_HDMI1, ENUM_PAGE_HDMI1, MENU_HDMI1, CONFIG_HDMI1),
                                           subPage(ENUM_ROW_HDMI2, ENUM_PAGE_HDMI2, MENU_HDMI2, CONFIG_HDMI2),
                                           subPage(ENUM_ROW_DVI, ENUM_PAGE_DVI, MENU_DVI, CONFIG_DVI),
                                           subPage(ENUM_ROW_SDI, ENUM_PAGE_SDI, MENU_SDI, CONFIG_SDI),
                                       }));
    pages[CONFIG_OSDSettings] = page(ENUM_PAGE_OSDSettings, "OSDSettings",
                                     numbered({
                                         row(ENUM_ROW_OSDState, TYPE_STRINGCOMBOX, MENU_OSDState),
                                         row(ENUM_ROW_OSDChoice, TYPE_ICOCOMBOX, MENU_OSDChoice),
                                         row(ENUM_ROW_OSDInitialX, TYPE_INTADJUST, MENU_OSDInitialX),
                                         row(ENUM_ROW_OSDInitialY, TYPE_INTADJUST, MENU_OSDInitialY),
                                         row(ENUM_ROW_OSDPriority, TYPE_STRINGCOMBOX, MENU_OSDPriority),
                                     }));
}

/// The pages of the presets, of the image mosaic and of the picture.
void addPicturePages(Pages &pages)
{
    pages[CONFIG_PresetSettings] = page(ENUM_PAGE_PresetSettings, "PresetSettings",
                                        numbered({
                                            row(ENUM_ROW_Preset1, TYPE_BUTTON, MENU_Preset1),
                                            row(ENUM_ROW_Preset2, TYPE_BUTTON, MENU_Preset2),
                                            row(ENUM_ROW_Preset3, TYPE_BUTTON, MENU_Preset3),
                                            row(ENUM_ROW_Preset4, TYPE_BUTTON, MENU_Preset4),
                                            row(ENUM_ROW_Preset5, TYPE_BUTTON, MENU_Preset5),
                                            row(ENUM_ROW_Preset6, TYPE_BUTTON, MENU_Preset6),
                                            row(ENUM_ROW_Preset7, TYPE_BUTTON, MENU_Preset7),
                                            row(ENUM_ROW_Preset8, TYPE_BUTTON, MENU_Preset8),
                                            row(ENUM_ROW_Preset9, TYPE_BUTTON, MENU_Preset9),
                                            row(ENUM_ROW_Preset10, TYPE_BUTTON, MENU_Preset10),
                                        }));
    pages[CONFIG_PresetCopyTo] = page(ENUM_PAGE_PresetCopyTo, "PresetCopyTo",
                                      numbered({
                                          row(ENUM_ROW_PresetCopy1, TYPE_BUTTON, MENU_Preset1),
                                          row(ENUM_ROW_PresetCopy2, TYPE_BUTTON, MENU_Preset2),
                                          row(ENUM_ROW_PresetCopy3, TYPE_BUTTON, MENU_Preset3),
                                          row(ENUM_ROW_PresetCopy4, TYPE_BUTTON, MENU_Preset4),
                                          row(ENUM_ROW_PresetCopy5, TYPE_BUTTON, MENU_Preset5),
                                          row(ENUM_ROW_PresetCopy6, TYPE_BUTTON, MENU_Preset6),
                                          row(ENUM_ROW_PresetCopy7, TYPE_BUTTON, MENU_Preset7),
                                          row(ENUM_ROW_PresetCopy8, TYPE_BUTTON, MENU_Preset8),
                                          row(ENUM_ROW_PresetCopy9, TYPE_BUTTON, MENU_Preset9),
                                          row(ENUM_ROW_PresetCopy10, TYPE_BUTTON, MENU_Preset10),
                                      }));
    pages[CONFIG_ImageMosaic] = page(
        ENUM_PAGE_ImageMosaic, "ImageMosaic",
        numbered({
            row(ENUM_ROW_ImageMosaic_Status, TYPE_STRINGCOMBOX, MENU_ImageMosaic_Status),
            row(ENUM_ROW_ImageMosaic_TotalHPixels, TYPE_INTADJUST, MENU_ImageMosaic_TotalHPixels),
            row(ENUM_ROW_ImageMosaic_TotalVPixels, TYPE_INTADJUST, MENU_ImageMosaic_TotalVPixels),
            row(ENUM_ROW_ImageMosaic_LoadAreaWidth, TYPE_INTADJUST, MENU_ImageMosaic_LoadAreaWidth),
            row(ENUM_ROW_ImageMosaic_LoadAreaHeight, TYPE_INTADJUST, MENU_ImageMosaic_LoadAreaHeight),
            row(ENUM_ROW_ImageMosaic_LoadAreaInitialX, TYPE_INTADJUST, MENU_ImageMosaic_LoadAreaInitialX),
            row(ENUM_ROW_ImageMosaic_LoadAreaInitialY, TYPE_INTADJUST, MENU_ImageMosaic_LoadAreaInitialY),
            row(ENUM_ROW_ImageMosaic_Reset, TYPE_APPLY, MENU_ImageMosaic_Reset),
        }));
    pages[CONFIG_DisplayControl] =
        page(ENUM_PAGE_DisplayControl, "DisplayControl",
             numbered({
                 row(ENUM_ROW_Normal, TYPE_CHECKITEM, MENU_Normal),
                 row(ENUM_ROW_Freeze, TYPE_CHECKITEM, MENU_Freeze),
                 row(ENUM_ROW_FTB, TYPE_CHECKITEM, MENU_FTB),
                 subPage(ENUM_ROW_TestPattern, ENUM_PAGE_TestPattern, MENU_TestPattern, CONFIG_TestPattern),
                 row(ENUM_ROW_MainLayerTransition, TYPE_STRINGCOMBOX, MENU_MainLayerTransition),
                 row(ENUM_ROW_TransitionDuration, TYPE_FLOATADJUST, MENU_TransitionDuration),
                 row(ENUM_ROW_FTBDuration, TYPE_FLOATADJUST, MENU_FTBDuration),
             }));
}

/// The pages below the main menu that set the device itself.
void addDevicePages(Pages &pages)
{
    pages[CONFIG_AdvancedSetting] =
        page(ENUM_PAGE_AdvancedSetting, "AdvancedSetting",
             numbered({
                 row(ENUM_ROW_DeviceBackup, TYPE_STRINGCOMBOX, MENU_DeviceBackup),
                 subPage(ENUM_ROW_Synchronization, ENUM_PAGE_Synchronization, MENU_Synchronization,
                         CONFIG_Synchronization),
                 subPage(ENUM_ROW_HDMIOutput, ENUM_PAGE_HDMIOutput, MENU_HDMIOutput, CONFIG_HDMIOutput),
                 subPage(ENUM_ROW_ScreenSetting, ENUM_PAGE_ScreenSetting, MENU_ScreenSetting,
                         CONFIG_ScreenSetting),
                 subPage(ENUM_ROW_Audio, ENUM_PAGE_Audio, MENU_Audio, CONFIG_Audio),
                 row(ENUM_ROW_HDCP, TYPE_STRINGCOMBOX, MENU_HDCP),
                 row(ENUM_ROW_LowLatency, TYPE_STRINGCOMBOX, MENU_LowLatency),
             }));
    pages[CONFIG_SystemSetting] =
        page(ENUM_PAGE_SystemSetting, "SystemSetting",
             numbered({
                 subPage(ENUM_ROW_Fn, ENUM_PAGE_Fn, MENU_Fn, CONFIG_Fn),
                 row(ENUM_ROW_ReturntoHome, TYPE_INTADJUST, MENU_ReturntoHome),
                 row(ENUM_ROW_SelfTest, TYPE_BUTTON, MENU_SelfTest),
                 subPage(ENUM_ROW_AboutUs, ENUM_PAGE_AboutUs, MENU_AboutUs, CONFIG_AboutUs),
             }));
    pages[CONFIG_FactoryReset] = page(ENUM_PAGE_FactoryReset, "FactoryReset",
                                      numbered({
                                          row(ENUM_ROW_SaveIP, TYPE_BUTTON, MENU_SaveIP),
                                          row(ENUM_ROW_SaveUserData, TYPE_BUTTON, MENU_SaveUserData),
                                          row(ENUM_ROW_ResetAll, TYPE_BUTTON, MENU_ResetAll),
                                          row(ENUM_ROW_TipReset, TYPE_TIP, MENU_TipReset),
                                      }));
    pages[CONFIG_CommunicationSettings] =
        page(ENUM_PAGE_CommunicationSettings, "CommunicationSettings",
             numbered({
                 row(ENUM_ROW_CommunicationMode, TYPE_STRINGCOMBOX, MENU_CommunicationMode),
                 subPage(ENUM_ROW_NetworkSettings, ENUM_PAGE_NetworkSettings, MENU_NetworkSettings,
                         CONFIG_NetworkSettings),
             }));
    pages[CONFIG_WorkingMode] = page(ENUM_PAGE_WorkingMode, "WorkingMode",
                                     numbered({
                                         row(ENUM_ROW_VideoController, TYPE_CHECKITEM, MENU_VideoController),
                                         row(ENUM_ROW_FiberConverter, TYPE_CHECKITEM, MENU_FiberConverter),
                                         row(ENUM_ROW_SendingCard, TYPE_CHECKITEM, MENU_SendingCard),
                                     }));
    pages[CONFIG_Language] = page(ENUM_PAGE_Language, "Language",
                                  numbered({
                                      row(ENUM_ROW_LanguageEn, TYPE_CHECKITEM, MENU_LanguageEn),
                                      row(ENUM_ROW_LanguageZh, TYPE_CHECKITEM, MENU_LanguageZh),
                                  }));
}

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

/// The first input, HDMI1, which the other three repeat
void addFirstInputPages(Pages &pages)
{
    pages[CONFIG_HDMI1] =
        page(ENUM_PAGE_HDMI1, "HDMI1",
             numbered({
                 subPage(ENUM_ROW_HDMI1_EDID, ENUM_PAGE_HDMI1_EDID, MENU_HDMI1_EDID, CONFIG_HDMI1_EDID),
                 subPage(ENUM_ROW_HDMI1_InputColor, ENUM_PAGE_HDMI1_InputColor, MENU_HDMI1_InputColor,
                         CONFIG_HDMI1_InputColor),
                 row(ENUM_ROW_HDMI1_LimitedtoFull, TYPE_STRINGCOMBOX, MENU_HDMI1_LimitedtoFull),
                 subPage(ENUM_ROW_HDMI1_Attributes, ENUM_PAGE_HDMI1_Attributes, MENU_HDMI1_Attributes,
                         CONFIG_HDMI1_Attributes),
             }));
    pages[CONFIG_HDMI1_EDID] =
        page(ENUM_PAGE_HDMI1_EDID, "EDID",
             numbered({
                 row(ENUM_ROW_HDMI1_EDIDChoice, TYPE_STRINGCOMBOX, MENU_HDMI1_EDIDChoice),
                 row(ENUM_ROW_HDMI1_EDIDResolution, TYPE_STRINGCOMBOX, MENU_HDMI1_EDIDResolution),
                 row(ENUM_ROW_HDMI1_EDIDFrameRate, TYPE_STRINGCOMBOX, MENU_HDMI1_EDIDFrameRate),
                 row(ENUM_ROW_HDMI1_EDIDApply, TYPE_APPLY, MENU_HDMI1_EDIDApply),
             }));
    pages[CONFIG_HDMI1_EDIDStandard] =
        page(ENUM_PAGE_HDMI1_EDIDStandard, "EDID",
             numbered({
                 row(ENUM_ROW_HDMI1_EDIDStandardChoice, TYPE_STRINGCOMBOX, MENU_HDMI1_EDIDChoice),
                 row(ENUM_ROW_HDMI1_EDIDStandardResolution, TYPE_STRINGCOMBOX, MENU_HDMI1_EDIDResolution),
                 row(ENUM_ROW_HDMI1_EDIDStandardFrameRate, TYPE_STRINGCOMBOX, MENU_HDMI1_EDIDFrameRate),
                 row(ENUM_ROW_HDMI1_EDIDStandardApply, TYPE_APPLY, MENU_HDMI1_EDIDApply),
             }));
    pages[CONFIG_HDMI1_EDIDCustom] =
        page(ENUM_PAGE_HDMI1_EDIDCustom, "EDID",
             numbered({
                 row(ENUM_ROW_HDMI1_EDIDCustomChoice, TYPE_STRINGCOMBOX, MENU_HDMI1_EDIDChoice),
                 row(ENUM_ROW_HDMI1_EDIDWidth, TYPE_INTADJUST, MENU_HDMI1_EDIDWidth),
                 row(ENUM_ROW_HDMI1_EDIDHeight, TYPE_INTADJUST, MENU_HDMI1_EDIDHeight),
                 row(ENUM_ROW_HDMI1_EDIDCustomRate, TYPE_STRINGCOMBOX, MENU_HDMI1_EDIDCustomRate),
                 row(ENUM_ROW_HDMI1_EDIDCustomApply, TYPE_APPLY, MENU_HDMI1_EDIDApply),
             }));
    pages[CONFIG_HDMI1_InputColor] =
        page(ENUM_PAGE_HDMI1_InputColor, "InputColor",
             numbered({
                 row(ENUM_ROW_HDMI1_Brightness, TYPE_INTADJUST, MENU_HDMI1_Brightness),
                 row(ENUM_ROW_HDMI1_Contrast, TYPE_INTADJUST, MENU_HDMI1_Contrast),
                 row(ENUM_ROW_HDMI1_Saturation, TYPE_INTADJUST, MENU_HDMI1_Saturation),
                 row(ENUM_ROW_HDMI1_Hue, TYPE_INTADJUST, MENU_HDMI1_Hue),
                 row(ENUM_ROW_HDMI1_ColorReset, TYPE_APPLY, MENU_HDMI1_ColorReset),
             }));
    pages[CONFIG_HDMI1_Attributes] =
        page(ENUM_PAGE_HDMI1_Attributes, "Attributes",
             numbered({
                 row(ENUM_ROW_HDMI1_ColorSample, TYPE_INFORMATION, MENU_HDMI1_ColorSample),
             }));
}

/// The input pages: the first input's, the other three raised from it, and SDI.
void addInputPages(Pages &pages)
{
    addFirstInputPages(pages);
    constexpr int objectsPerInput = ENUM_PAGE_HDMI2_EDID - ENUM_PAGE_HDMI1_EDID;
    constexpr int pagesPerInput = CONFIG_HDMI2_EDID - CONFIG_HDMI1_EDID;
    const QString titles[] = {"HDMI1", "HDMI2", "DVI", "DVI2"};
    const ENUM_ObjectIndex inputPages[] = {ENUM_PAGE_HDMI1, ENUM_PAGE_HDMI2, ENUM_PAGE_DVI, ENUM_PAGE_DVI2};
    for (int input = 1; input < 4; ++input) {
        const int objects = input * objectsPerInput;
        const int configs = input * pagesPerInput;
        const ENUM_ConfigIndex inputPage = nth(CONFIG_HDMI1, input);
        pages[inputPage] =
            raised(pages[CONFIG_HDMI1], titles[input], {input * STRIDE_Input, objects, configs});
        pages[inputPage].object = inputPages[input];
        for (ENUM_ConfigIndex config : {CONFIG_HDMI1_EDID, CONFIG_HDMI1_EDIDStandard, CONFIG_HDMI1_EDIDCustom,
                                        CONFIG_HDMI1_InputColor, CONFIG_HDMI1_Attributes}) {
            const int items = config == CONFIG_HDMI1_Attributes ? STRIDE_Input : STRIDE_InputPicture;
            pages[nth(config, configs)] =
                raised(pages[config], pages[config].title, {input * items, objects, configs});
        }
    }
    pages[CONFIG_SDI] = page(ENUM_PAGE_SDI, "SDI",
                             numbered({
                                 subPage(ENUM_ROW_SDI_InputColor, ENUM_PAGE_SDI_InputColor,
                                         MENU_SDI_InputColor, CONFIG_SDI_InputColor),
                                 subPage(ENUM_ROW_SDI_Attributes, ENUM_PAGE_SDI_Attributes,
                                         MENU_SDI_Attributes, CONFIG_SDI_Attributes),
                             }));
    pages[CONFIG_SDI_InputColor] = page(ENUM_PAGE_SDI_InputColor, "InputColor",
                                        numbered({
                                            row(ENUM_ROW_SDI_Brightness, TYPE_INTADJUST, MENU_SDI_Brightness),
                                            row(ENUM_ROW_SDI_Contrast, TYPE_INTADJUST, MENU_SDI_Contrast),
                                            row(ENUM_ROW_SDI_Saturation, TYPE_INTADJUST, MENU_SDI_Saturation),
                                            row(ENUM_ROW_SDI_Hue, TYPE_INTADJUST, MENU_SDI_Hue),
                                            row(ENUM_ROW_SDI_ColorReset, TYPE_APPLY, MENU_SDI_ColorReset),
                                        }));
    pages[CONFIG_SDI_Attributes] =
        page(ENUM_PAGE_SDI_Attributes, "Attributes",
             numbered({
                 row(ENUM_ROW_SDI_ColorSample, TYPE_INFORMATION, MENU_SDI_ColorSample),
             }));
}

/// Test pattern, and its pages by type
void addTestPages(Pages &pages)
{
    pages[CONFIG_TestPattern] = page(ENUM_PAGE_TestPattern, "TestPattern",
                                     numbered({
                                         row(ENUM_ROW_Test_PureColor, TYPE_ICOCOMBOX, MENU_Test_PureColor),
                                         row(ENUM_ROW_Test_Gradient, TYPE_ICOCOMBOX, MENU_Test_Gradient),
                                         row(ENUM_ROW_Test_Grid, TYPE_ICOCOMBOX, MENU_Test_Grid),
                                         row(ENUM_ROW_Test_Brightness, TYPE_INTADJUST, MENU_Test_Brightness),
                                         row(ENUM_ROW_Test_Spacing, TYPE_INTADJUST, MENU_Test_Spacing),
                                         row(ENUM_ROW_Test_Speed, TYPE_INTADJUST, MENU_Test_Speed),
                                     }));
    pages[CONFIG_TestType] = page(ENUM_PAGE_TestType, "TestPattern",
                                  numbered({
                                      row(ENUM_ROW_Test_Type, TYPE_STRINGCOMBOX, MENU_Test_Type),
                                      row(ENUM_ROW_TestType_Brightness, TYPE_INTADJUST, MENU_Test_Brightness),
                                      row(ENUM_ROW_TestType_Spacing, TYPE_INTADJUST, MENU_Test_Spacing),
                                      row(ENUM_ROW_TestType_Speed, TYPE_INTADJUST, MENU_Test_Speed),
                                  }));
    pages[CONFIG_TestPureColor] =
        page(ENUM_PAGE_TestPureColor, "TestPattern",
             numbered({
                 row(ENUM_ROW_TestPureColor_Type, TYPE_STRINGCOMBOX, MENU_Test_Type),
                 row(ENUM_ROW_TestPureColor_PureColor, TYPE_ICOCOMBOX, MENU_Test_PureColor),
                 row(ENUM_ROW_TestPureColor_Brightness, TYPE_INTADJUST, MENU_Test_Brightness),
                 row(ENUM_ROW_TestPureColor_Spacing, TYPE_INTADJUST, MENU_Test_Spacing),
                 row(ENUM_ROW_TestPureColor_Speed, TYPE_INTADJUST, MENU_Test_Speed),
             }));
    pages[CONFIG_TestGradient] =
        page(ENUM_PAGE_TestGradient, "TestPattern",
             numbered({
                 row(ENUM_ROW_TestGradient_Type, TYPE_STRINGCOMBOX, MENU_Test_Type),
                 row(ENUM_ROW_TestGradient_Gradient, TYPE_ICOCOMBOX, MENU_Test_Gradient),
                 row(ENUM_ROW_TestGradient_Brightness, TYPE_INTADJUST, MENU_Test_Brightness),
                 row(ENUM_ROW_TestGradient_Spacing, TYPE_INTADJUST, MENU_Test_Spacing),
                 row(ENUM_ROW_TestGradient_Speed, TYPE_INTADJUST, MENU_Test_Speed),
             }));
    pages[CONFIG_TestGrid] = page(ENUM_PAGE_TestGrid, "TestPattern",
                                  numbered({
                                      row(ENUM_ROW_TestGrid_Type, TYPE_STRINGCOMBOX, MENU_Test_Type),
                                      row(ENUM_ROW_TestGrid_Grid, TYPE_ICOCOMBOX, MENU_Test_Grid),
                                      row(ENUM_ROW_TestGrid_Brightness, TYPE_INTADJUST, MENU_Test_Brightness),
                                      row(ENUM_ROW_TestGrid_Spacing, TYPE_INTADJUST, MENU_Test_Spacing),
                                      row(ENUM_ROW_TestGrid_Speed, TYPE_INTADJUST, MENU_Test_Speed),
                                  }));
    pages[CONFIG_TestVaskImage] =
        page(ENUM_PAGE_TestVaskImage, "TestPattern",
             numbered({
                 row(ENUM_ROW_TestVaskImage_Type, TYPE_STRINGCOMBOX, MENU_Test_Type),
                 row(ENUM_ROW_Test_VaskImage, TYPE_ICOCOMBOX, MENU_Test_VaskImage),
                 row(ENUM_ROW_TestVaskImage_Brightness, TYPE_INTADJUST, MENU_Test_Brightness),
                 row(ENUM_ROW_TestVaskImage_Spacing, TYPE_INTADJUST, MENU_Test_Spacing),
                 row(ENUM_ROW_TestVaskImage_Speed, TYPE_INTADJUST, MENU_Test_Speed),
             }));
}

/// The pictures of the user as test patterns.
void addCustomPicturePages(Pages &pages)
{
    pages[CONFIG_TestCustom] = page(
        ENUM_PAGE_TestCustom, "TestPattern",
        numbered({
            row(ENUM_ROW_TestCustom_Type, TYPE_STRINGCOMBOX, MENU_Test_Type),
            subPage(ENUM_ROW_Test_Custom, ENUM_PAGE_CustomPictures, MENU_Test_Custom, CONFIG_CustomPictures),
            row(ENUM_ROW_TestCustom_Brightness, TYPE_INTADJUST, MENU_Test_Brightness),
            row(ENUM_ROW_TestCustom_Spacing, TYPE_INTADJUST, MENU_Test_Spacing),
            row(ENUM_ROW_TestCustom_Speed, TYPE_INTADJUST, MENU_Test_Speed),
        }));
    pages[CONFIG_CustomPictures] =
        page(ENUM_PAGE_CustomPictures, "自定义",
             numbered({
                 row(ENUM_ROW_Test_CustomPictures, TYPE_FOURPIC, MENU_Test_CustomPictures),
                 row(ENUM_ROW_Test_Snapshot, TYPE_APPLY, MENU_Test_Snapshot),
             }));
    pages[CONFIG_SnapshotSlots] =
        page(ENUM_PAGE_SnapshotSlots, "选择存储位置",
             numbered({
                 row(ENUM_ROW_Test_CustomPicture1, TYPE_BUTTON, MENU_Test_CustomPicture1),
                 row(ENUM_ROW_Test_CustomPicture2, TYPE_BUTTON, MENU_Test_CustomPicture2),
                 row(ENUM_ROW_Test_CustomPicture3, TYPE_BUTTON, MENU_Test_CustomPicture3),
                 row(ENUM_ROW_Test_CustomPicture4, TYPE_BUTTON, MENU_Test_CustomPicture4),
             }));
}

/// Input mosaic, in the two places that show it
void addMosaicPages(Pages &pages)
{
    pages[CONFIG_MosaicSplit] =
        page(ENUM_PAGE_MosaicSplit, "MosaicSplit",
             numbered({
                 row(ENUM_ROW_Mosaic_Layout, TYPE_STRINGCOMBOX, MENU_Mosaic_Layout),
                 row(ENUM_ROW_Mosaic_Width, TYPE_INTADJUST, MENU_Mosaic_Width),
                 row(ENUM_ROW_Mosaic_Height, TYPE_INTADJUST, MENU_Mosaic_Height),
                 row(ENUM_ROW_Mosaic_Arrangement, TYPE_MOSAIC, MENU_Mosaic_Arrangement),
                 row(ENUM_ROW_Mosaic_Apply, TYPE_APPLYRESET, MENU_Mosaic_Apply),
             }));
    pages[CONFIG_MosaicSplitTwin] =
        page(ENUM_PAGE_MosaicSplitTwin, "MosaicSplit",
             numbered({
                 row(ENUM_ROW_MosaicTwin_Layout, TYPE_STRINGCOMBOX, MENU_Mosaic_Layout),
                 row(ENUM_ROW_MosaicTwin_Width, TYPE_INTADJUST, MENU_Mosaic_Width),
                 row(ENUM_ROW_MosaicTwin_Height, TYPE_INTADJUST, MENU_Mosaic_Height),
                 row(ENUM_ROW_MosaicTwin_Arrangement, TYPE_MOSAIC, MENU_Mosaic_Arrangement),
                 row(ENUM_ROW_MosaicTwin_Apply, TYPE_APPLYRESET, MENU_Mosaic_Apply),
             }));
}

/// Fn key, synchronisation, output, audio, 3D, network
void addFunctionPages(Pages &pages)
{
    pages[CONFIG_Fn] = page(ENUM_PAGE_Fn, "Fn",
                            numbered({
                                row(ENUM_ROW_Fn_Synchronization, TYPE_CHECKITEM, MENU_Fn_Synchronization),
                                row(ENUM_ROW_Fn_HDMIOutput, TYPE_CHECKITEM, MENU_Fn_HDMIOutput),
                                row(ENUM_ROW_Fn_FTB, TYPE_CHECKITEM, MENU_Fn_FTB),
                                row(ENUM_ROW_Fn_Freeze, TYPE_CHECKITEM, MENU_Fn_Freeze),
                                row(ENUM_ROW_Fn_TestPattern, TYPE_CHECKITEM, MENU_Fn_TestPattern),
                            }));
    pages[CONFIG_Synchronization] = page(ENUM_PAGE_Synchronization, "Synchronization",
                                         numbered({
                                             row(ENUM_ROW_Sync_Status, TYPE_STRINGCOMBOX, MENU_Sync_Status),
                                             row(ENUM_ROW_Sync_Source, TYPE_STRINGCOMBOX, MENU_Sync_Source),
                                         }));
    pages[CONFIG_HDMIOutput] =
        page(ENUM_PAGE_HDMIOutput, "HDMIOutput",
             numbered({
                 row(ENUM_ROW_Output_Mode, TYPE_STRINGCOMBOX, MENU_Output_Mode),
                 row(ENUM_ROW_Output_Resolution, TYPE_STRINGCOMBOX, MENU_Output_Resolution),
                 row(ENUM_ROW_Output_FrameRate, TYPE_STRINGCOMBOX, MENU_Output_FrameRate),
                 row(ENUM_ROW_Output_Apply, TYPE_APPLY, MENU_Output_Apply),
             }));
    pages[CONFIG_Audio] =
        page(ENUM_PAGE_Audio, "Audio",
             numbered({
                 row(ENUM_ROW_Audio_AudioOutput, TYPE_STRINGCOMBOX, MENU_Audio_AudioOutput),
                 row(ENUM_ROW_Audio_Volume, TYPE_INTADJUST, MENU_Audio_Volume),
                 subPage(ENUM_ROW_Audio_Inputs, ENUM_PAGE_AudioInputs, MENU_Audio_Inputs, CONFIG_AudioInputs),
             }));
    pages[CONFIG_AudioInputs] =
        page(ENUM_PAGE_AudioInputs, "输入源音频设置",
             numbered({
                 row(ENUM_ROW_AudioInput_HDMI1, TYPE_STRINGCOMBOX, MENU_AudioInput_HDMI1),
                 row(ENUM_ROW_AudioInput_HDMI2, TYPE_STRINGCOMBOX, MENU_AudioInput_HDMI2),
                 row(ENUM_ROW_AudioInput_DVI, TYPE_STRINGCOMBOX, MENU_AudioInput_DVI),
                 row(ENUM_ROW_AudioInput_SDI, TYPE_STRINGCOMBOX, MENU_AudioInput_SDI),
             }));
}

/// 3D and the network.
void addStereoAndNetworkPages(Pages &pages)
{
    pages[CONFIG_Mode3D] =
        page(ENUM_PAGE_Mode3D, "Mode3D",
             numbered({
                 row(ENUM_ROW_Mode3D_Status, TYPE_STRINGCOMBOX, MENU_Mode3D_Status),
                 row(ENUM_ROW_Mode3D_Format, TYPE_STRINGCOMBOX, MENU_Mode3D_Format),
                 row(ENUM_ROW_Mode3D_EyePriority, TYPE_STRINGCOMBOX, MENU_Mode3D_EyePriority),
                 subPage(ENUM_ROW_Mode3D_MoreSettings, ENUM_PAGE_Mode3DMore, MENU_Mode3D_MoreSettings,
                         CONFIG_Mode3DMore),
                 row(ENUM_ROW_Mode3D_Tip, TYPE_TIP, MENU_Mode3D_Tip),
             }));
    pages[CONFIG_Mode3DMore] =
        page(ENUM_PAGE_Mode3DMore, "MoreSettings",
             numbered({
                 row(ENUM_ROW_Mode3D_RightEyeStart, TYPE_INTADJUST, MENU_Mode3D_RightEyeStart),
                 row(ENUM_ROW_Mode3D_SignalDelayTime, TYPE_INTADJUST, MENU_Mode3D_SignalDelayTime),
                 row(ENUM_ROW_Mode3D_ThirdPartyEmitter, TYPE_STRINGCOMBOX, MENU_Mode3D_ThirdPartyEmitter),
             }));
    pages[CONFIG_NetworkSettings] = page(ENUM_PAGE_NetworkSettings, "NetworkSettings",
                                         numbered({
                                             row(ENUM_ROW_Net_NetMode, TYPE_STRINGCOMBOX, MENU_Net_NetMode),
                                             row(ENUM_ROW_Net_IPAddress, TYPE_IPADJUST, MENU_Net_IPAddress),
                                             row(ENUM_ROW_Net_SubnetMask, TYPE_IPADJUST, MENU_Net_SubnetMask),
                                             row(ENUM_ROW_Net_Gateway, TYPE_IPADJUST, MENU_Net_Gateway),
                                             row(ENUM_ROW_Net_Apply, TYPE_APPLYRESET, MENU_Net_Apply),
                                         }));
}

/// Self test, About, hidden menus
void addSystemPages(Pages &pages)
{
    pages[CONFIG_SelfTestResult] = page(
        ENUM_PAGE_SelfTestResult, "SelfTestResult",
        numbered({
            subPage(ENUM_ROW_SelfTest_ProgramVersion, ENUM_PAGE_APPVersion, MENU_SelfTest_ProgramVersion,
                    CONFIG_APPVersion),
            subPage(ENUM_ROW_SelfTest_FPGA, ENUM_PAGE_SelfTestFPGA, MENU_SelfTest_FPGA, CONFIG_SelfTestFPGA),
            subPage(ENUM_ROW_SelfTest_ARM, ENUM_PAGE_SelfTestARM, MENU_SelfTest_ARM, CONFIG_SelfTestARM),
            subPage(ENUM_ROW_SelfTest_MCU, ENUM_PAGE_SelfTestMCU, MENU_SelfTest_MCU, CONFIG_SelfTestMCU),
        }));
    pages[CONFIG_APPVersion] = page(ENUM_PAGE_APPVersion, "APPVersion",
                                    numbered({
                                        row(ENUM_ROW_FPGAVersion, TYPE_INFORMATION, MENU_FPGAVersion),
                                        row(ENUM_ROW_MCUVersion, TYPE_INFORMATION, MENU_MCUVersion),
                                    }));
    pages[CONFIG_SelfTestFPGA] = shortPage(
        ENUM_PAGE_SelfTestFPGA, "FPGA", 2,
        numbered({
            row(ENUM_ROW_SelfTestFPGA_ProgramVersion, TYPE_INFORMATION, MENU_SelfTest_ProgramVersion),
            row(ENUM_ROW_SelfTestFPGA_FPGA, TYPE_INFORMATION, MENU_SelfTest_FPGA),
            row(ENUM_ROW_SelfTestFPGA_ARM, TYPE_INFORMATION, MENU_SelfTest_ARM),
            row(ENUM_ROW_SelfTestFPGA_MCU, TYPE_INFORMATION, MENU_SelfTest_MCU),
        }));
    pages[CONFIG_SelfTestARM] = shortPage(
        ENUM_PAGE_SelfTestARM, "ARM", 2,
        numbered({
            row(ENUM_ROW_SelfTestARM_ProgramVersion, TYPE_INFORMATION, MENU_SelfTest_ProgramVersion),
            row(ENUM_ROW_SelfTestARM_FPGA, TYPE_INFORMATION, MENU_SelfTest_FPGA),
            row(ENUM_ROW_SelfTestARM_ARM, TYPE_INFORMATION, MENU_SelfTest_ARM),
            row(ENUM_ROW_SelfTestARM_MCU, TYPE_INFORMATION, MENU_SelfTest_MCU),
        }));
    pages[CONFIG_SelfTestMCU] = shortPage(
        ENUM_PAGE_SelfTestMCU, "MCU", 2,
        numbered({
            row(ENUM_ROW_SelfTestMCU_ProgramVersion, TYPE_INFORMATION, MENU_SelfTest_ProgramVersion),
            row(ENUM_ROW_SelfTestMCU_FPGA, TYPE_INFORMATION, MENU_SelfTest_FPGA),
            row(ENUM_ROW_SelfTestMCU_ARM, TYPE_INFORMATION, MENU_SelfTest_ARM),
            row(ENUM_ROW_SelfTestMCU_MCU, TYPE_INFORMATION, MENU_SelfTest_MCU),
        }));
}

/// What is told of the device, and the hidden menus.
void addLastPages(Pages &pages)
{
    pages[CONFIG_AboutUs] =
        page(ENUM_PAGE_AboutUs, "AboutUs",
             numbered({
                 row(ENUM_ROW_About_HardwareVersion, TYPE_INFORMATION, MENU_About_HardwareVersion),
                 row(ENUM_ROW_About_VersionValue, TYPE_INFORMATION, MENU_About_VersionValue),
                 row(ENUM_ROW_About_OfficialWebsite, TYPE_INFORMATION, MENU_About_OfficialWebsite),
                 row(ENUM_ROW_About_WebsiteValue, TYPE_INFORMATION, MENU_About_WebsiteValue),
                 row(ENUM_ROW_About_TechnicalSupport, TYPE_INFORMATION, MENU_About_TechnicalSupport),
                 row(ENUM_ROW_About_SupportValue, TYPE_INFORMATION, MENU_About_SupportValue),
             }));
    pages[CONFIG_AboutUsFull] = pages[CONFIG_AboutUs];
    pages[CONFIG_AboutUsShort] = pages[CONFIG_AboutUs];
    pages[CONFIG_AboutUsShort].rows = 2;
    pages[CONFIG_UserHiddenMenu] = page(ENUM_USER_HIDE_MENU, "隐藏菜单",
                                        numbered({
                                            row(ENUM_ROW_HDCPMemory, TYPE_STRINGCOMBOX, MENU_HDCPMemory),
                                        }));
    pages[CONFIG_ProductHiddenMenu] =
        page(ENUM_PRODUCT_HIDE_MENU, "隐藏菜单",
             numbered({
                 row(ENUM_ROW_ClearAllParameters, TYPE_BUTTON, MENU_ClearAllParameters),
                 row(ENUM_ROW_BootLogo, TYPE_STRINGCOMBOX, MENU_BootLogo),
                 row(ENUM_ROW_MakerSign, TYPE_STRINGCOMBOX, MENU_MakerSign),
             }));
}
} // namespace

QMap<ENUM_ConfigIndex, ST_MenuConfig> menuPages()
{
    Pages pages;
    addMainPages(pages);
    addPicturePages(pages);
    addDevicePages(pages);
    addScreenPages(pages);
    addLayerPages(pages);
    addInputPages(pages);
    addTestPages(pages);
    addCustomPicturePages(pages);
    addMosaicPages(pages);
    addFunctionPages(pages);
    addStereoAndNetworkPages(pages);
    addSystemPages(pages);
    addLastPages(pages);
    return pages;
}
} // namespace VASK
