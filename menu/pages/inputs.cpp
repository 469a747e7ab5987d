#include "menu/itemfamilies.h"
#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "menu/objectindex.h"
#include "menu/pageindex.h"
#include "menu/pages/pagerows.h"

namespace VASK::pagerows
{
namespace
{
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
} // namespace

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
} // namespace VASK::pagerows
