// The test pattern pages, which take each other's place, and the custom pictures.

#include "framework/engine/parachange.h"
#include "framework/thread/handover.h"
#include "framework/ui/pages.h"

#include "framework/input/keypadevent.h"
#include "menu/itemindex.h"
#include "menu/keycodes.h"
#include "menu/objectindex.h"
#include "menu/pageindex.h"

namespace VASK
{
namespace
{
void applyType(ParaChange &change)
{
    static const ENUM_MenuIndex patterns[] = {MENU_Test_PureColor, MENU_Test_Gradient, MENU_Test_Grid};
    qDebug() << "ParaProcess::SetParaToXml===ENUM_MENUINDEX_SCREEN_CONTROL_PIC_TEST_TYPE_MENU:para=="
             << change.value;
    constexpr int typeCount = 5;
    const int type = change.value.toInt();
    if (type < 0 || type >= typeCount) {
        qDebug() << "param is invalid!";
        return;
    }
    if (type < int(std::size(patterns)) && change.fromUser())
        change.send(patterns[type], change.item(patterns[type]));
    change.set(PARA_TestPatternFamily, QString::number(type));
    swapPage({ENUM_PAGE_TestPattern, nth(ENUM_PAGE_TestPureColor, type), nth(CONFIG_TestPureColor, type),
              ENUM_PAGE_DisplayControl});
    change.tail();
}

void applyPattern(ParaChange &change)
{
    change.set(PARA_TestPatternFamily, QString::number(change.index - MENU_Test_PureColor));
    change.tail();
}

void openSnapshotPage(ParaChange &change)
{
    runOnGui(&change.engine, [] {
        Page *page = pageOrBuild(ENUM_PAGE_SnapshotSlots, CONFIG_SnapshotSlots);
        if (page)
            openBelow(page, poolObject<Page>(ENUM_PAGE_CustomPictures));
    });
}

void leaveCustomPicture(ParaChange &change)
{
    runOnGui(&change.engine, [] {
        if (QWidget *front = frontWindow())
            postEsc(*front);
    });
}

constexpr ApplyCase cases[] = {
    {MENU_Test_Type, applyType},
    {range(MENU_Test_PureColor, MENU_Test_Grid), applyPattern},
    {MENU_Test_Snapshot, openSnapshotPage},
    {range(MENU_Test_CustomPicture1, MENU_Test_CustomPicture4), leaveCustomPicture},
};
} // namespace

Table<ApplyCase> testPatternCases()
{
    return cases;
}
} // namespace VASK
