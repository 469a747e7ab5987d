#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "menu/objectindex.h"
#include "menu/pageindex.h"
#include "menu/pages/pagerows.h"

namespace VASK::pagerows
{
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
} // namespace VASK::pagerows
