#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "menu/objectindex.h"
#include "menu/pageindex.h"
#include "menu/pages/pagerows.h"

namespace VASK::pagerows
{
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
} // namespace VASK::pagerows
