// What the engine does first: names of inputs and sources, display-only items, connections to the home
// screen.

#include "framework/engine/device.h"
#include "framework/engine/paraprocess.h"
#include "framework/store/menuanalysis.h"
#include "menu/itemindex.h"
#include "menu/objectindex.h"
#include "widget/home/mainwindow_k2860.h"

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

struct SourceName {
    unsigned char code; ///< its upper four bits
    const char *name;
};

/// A mosaic of SDI inputs has a code of its own, though the look-up by the upper four bits finds plain SDI.
constexpr SourceName sourceNames[] = {
    {0x00, "DVI"},     {0x10, "HDMI1.0"},   {0x20, "VGA"},     {0x30, "SDI "},   {0x34, "SDI MOSAIC"},
    {0x40, "CVBS"},    {0x50, "Dual DVI"},  {0x60, "HDMI1.4"}, {0x70, "DP1.1"},  {0x80, "DP1.2"},
    {0x90, "HDMI2.0"}, {0xA0, "USB-DRIVE"}, {0xB0, "EXT"},     {0xE0, "MOSAIC"}, {0xF0, "Demo"},
};

constexpr const char *inputNames[] = {"HDMI1", "HDMI2", "DVI", "SDI"};
} // namespace

bool ParaProcess::Initialize()
{
    qDebug() << "<- ParaProcess::Initialize start";
    m_pMainWindow = poolObject<MainWindow>(ENUM_MAIN_WINDOW);
    nameInputsAndSources();
    MenuAnalysis *store = neededStore();
    if (!store)
        return false;
    askBeforeQuickConfiguration();
    readRootVersion();
    keepRightEyeStarts(*store);
    resetDisplayItems(*store);
    if (GetParaFromIndex(MENU_HDCPMemory) == QLatin1String("0"))
        store->UpdataItemCurValue(MENU_HDCP, "0");
    markFnFunction(*store);
    connectHomeScreen();
    m_processData.clear();
    qDebug() << "<- ParaProcess::Initialize end";
    return true;
}

void ParaProcess::nameInputsAndSources()
{
    for (int input = 0; input < int(std::size(inputNames)); ++input)
        m_inputNames[QString::number(input)] = inputNames[input];
    for (const SourceName &source : sourceNames)
        m_sourceNames[source.code] = source.name;
}

/// Whoever leaves the kind of screen configuration that is in force is asked first.
void ParaProcess::askBeforeQuickConfiguration()
{
    const bool advanced = GetParaFromIndex(MENU_ScreenConfigKind) == QLatin1String("0");
    g_dialogConfig[MENU_QuickConfiguration].enabled = !advanced;
    g_dialogConfig[MENU_AdvancedCfg].enabled = advanced;
}

/// The starts of the right eye that the other 3D formats keep; the menu table has no rows for them.
void ParaProcess::keepRightEyeStarts(MenuAnalysis &store)
{
    for (ENUM_MenuIndex index : {MENU_RightEyeStartSide, MENU_RightEyeStartTop}) {
        ST_ItemInfo item = g_MenuXmlConfig.value(MENU_Mode3D_RightEyeStart);
        item.index = index;
        store.AddMenuItem(index, item);
    }
}

void ParaProcess::markFnFunction(MenuAnalysis &store)
{
    const int function = GetParaFromIndex(MENU_FnMode).toInt();
    const ENUM_MenuIndex index = nth(MENU_Fn_Synchronization, function);
    if (index >= MENU_Fn_Synchronization && index <= MENU_Fn_TestPattern)
        store.UpdataItemCurChoice(index, SELECTED);
}

void ParaProcess::resetDisplayItems(MenuAnalysis &store)
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

void ParaProcess::connectHomeScreen()
{
    MainWindow *home = neededHome();
    if (!home)
        return;
    constexpr auto queued = Qt::QueuedConnection;
    connect(this, SIGNAL(signal_sync_state(qint8, QString)), home, SLOT(slot_SetSynModeState(qint8, QString)),
            queued);
    connect(this, SIGNAL(signal_sync_state(qint32)), home, SLOT(slot_SetSynModeState(qint32)), queued);
    connect(this, SIGNAL(signal_window_state(qint32, qint32)), home,
            SLOT(slot_SetWinodwState(qint32, qint32)), queued);
    connect(this, SIGNAL(signal_factory_reset()), home, SLOT(slot_FactoryRest()), queued);
    connect(this, SIGNAL(signal_soft_calibrate(quint8)), home, SLOT(slot_soft_calibrate(quint8)), queued);
    connect(this, SIGNAL(signal_createdialog()), home, SLOT(slot_CreateDialog()), queued);
    connect(this, SIGNAL(signal_popup_window(quint32)), home, SLOT(slot_popup_window(quint32)), queued);
    connect(this, SIGNAL(signal_return_main(bool)), home, SLOT(slot_ReturnToMainSoft(bool)), queued);
    connect(this, SIGNAL(signal_Update_LedState()), home, SLOT(UpdateSourceLedStatus()), queued);
    connect(this, SIGNAL(signal_Layer_state(qint32, qint32)), home, SLOT(slot_SetLayerState(qint32, qint32)),
            queued);
    connect(this, SIGNAL(signal_SetRes_state(qint32, QString)), home, SLOT(slot_SetResState(qint32, QString)),
            queued);
}
} // namespace VASK
