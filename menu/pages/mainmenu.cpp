#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "menu/objectindex.h"
#include "menu/pageindex.h"
#include "menu/pages/pagerows.h"

namespace VASK::pagerows
{
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
} // namespace VASK::pagerows
