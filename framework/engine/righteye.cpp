#include "framework/engine/righteye.h"

#include "framework/engine/modes.h"
#include "framework/engine/paraprocess.h"
#include "framework/store/menuanalysis.h"
#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "menuconfig_k2860.h"

namespace VASK
{
namespace
{
ENUM_MenuIndex keptItem(int format)
{
    return format == SideBySide ? MENU_RightEyeStartSide : MENU_RightEyeStartTop;
}
} // namespace

int rightEyeStart(const ParaProcess &engine, int format)
{
    return engine.GetParaFromIndex(keptItem(format)).toInt();
}

void keepRightEyeStart(MenuAnalysis &store, int format, int pixels)
{
    store.UpdataItemCurValue(keptItem(format), QString::number(pixels));
}

void addRightEyeItems(MenuAnalysis &store)
{
    for (ENUM_MenuIndex index : {MENU_RightEyeStartSide, MENU_RightEyeStartTop}) {
        ST_ItemInfo item = g_MenuXmlConfig.value(MENU_Mode3D_RightEyeStart);
        item.index = index;
        store.AddMenuItem(index, item);
    }
}
} // namespace VASK
