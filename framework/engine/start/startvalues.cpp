#include "framework/engine/start/startvalues.h"

#include "framework/engine/device.h"
#include "framework/engine/paraprocess.h"
#include "framework/engine/righteye.h"
#include "framework/store/menuanalysis.h"
#include "menu/itemindex.h"
#include "menu/itemvalue.h"
#include "menu/menutypes.h"

namespace VASK
{
namespace
{
struct Reset {
    ENUM_MenuIndex item;
    const char *value;
};

/// Items that show something of the running device and start from these values.
constexpr Reset displayItems[] = {
    {MENU_HDMI1_EDIDChoice, "0"},
    {MENU_HDMI2_EDIDChoice, "0"},
    {MENU_DVI_EDIDChoice, "0"},
    {MENU_DVI2_EDIDChoice, "0"},
    {MENU_HDMI1_ColorSample, "RGB 4:4:4"},
    {MENU_HDMI2_ColorSample, "RGB 4:4:4"},
    {MENU_DVI_ColorSample, "RGB 4:4:4"},
    {MENU_DVI2_ColorSample, "RGB 4:4:4"},
    {MENU_SDI_ColorSample, "YCbCr 4:2:2"},
    {MENU_Test_Type, "0"},
    {MENU_Test_Gradient, "0"},
    {MENU_Test_Grid, "0"},
    {MENU_Test_PureColor, "5"},
    {MENU_Test_Spacing, "5"},
    {MENU_Test_Brightness, "3"},
    {MENU_Test_Speed, "3"},
};

void resetDisplayItems(MenuAnalysis &store)
{
    for (const Reset &reset : displayItems)
        store.UpdataItemCurValue(reset.item, reset.value);
    for (int layer = 0; layer < layerCount; ++layer)
        store.UpdataItemEnable(nth(MENU_MainLayer_InputCrop, layer, STRIDE_Layer), false);
    store.UpdataItemCurChoice(MENU_Normal, SELECTED);
    store.UpdataItemCurChoice(MENU_Freeze, UNSELECTED);
    store.UpdataItemCurChoice(MENU_FTB, UNSELECTED);
    for (ENUM_MenuIndex item : {MENU_Freeze, MENU_FTB, MENU_TestPattern})
        store.UpdataItemEnable(item, true);
}

void markFnFunction(const ParaProcess &engine, MenuAnalysis &store)
{
    const int function = engine.GetParaFromIndex(MENU_FnMode).toInt();
    const ENUM_MenuIndex index = nth(MENU_Fn_Synchronization, function);
    if (index >= MENU_Fn_Synchronization && index <= MENU_Fn_TestPattern)
        store.UpdataItemCurChoice(index, SELECTED);
}
} // namespace

void setStartValues(const ParaProcess &engine, MenuAnalysis &store)
{
    addRightEyeItems(store);
    resetDisplayItems(store);
    if (isOff(engine.GetParaFromIndex(MENU_HDCPMemory)))
        store.UpdataItemCurValue(MENU_HDCP, switchOff);
    markFnFunction(engine, store);
}

void askBeforeOtherConfiguration(const ParaProcess &engine)
{
    const bool advanced = isOff(engine.GetParaFromIndex(MENU_ScreenConfigKind));
    g_dialogConfig[MENU_QuickConfiguration].enabled = !advanced;
    g_dialogConfig[MENU_AdvancedCfg].enabled = advanced;
}
} // namespace VASK
