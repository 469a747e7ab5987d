#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "menu/objectindex.h"
#include "menu/pageindex.h"
#include "menu/pages/pagerows.h"

namespace VASK::pagerows
{
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
} // namespace VASK::pagerows
