// What the engine does at start-up and when the device's services have started.

#include "framework/engine/change.h"
#include "framework/globaltimer.h"
#include "framework/handover.h"
#include "framework/keyevent.h"
#include "framework/menuanalysis.h"
#include "framework/protocol/driverutil.h"
#include "sysconf.h"
#include "widget/mainwindow_k2860.h"

namespace VASK
{
namespace
{
constexpr int layerCount = 3;

ENUM_MenuIndex layerItem(ENUM_MenuIndex ofMain, int layer)
{
    return ENUM_MenuIndex(ofMain + layer * STRIDE_Layer);
}

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
} // namespace

QString ParaProcess::readRootVersion()
{
    QString version;
    if (sysconf_openenv() == 0) {
        const char *text = sysconf_getenv("ver_rootfs");
        version = QString::fromUtf8(text ? text : "");
        qDebug() << "strRootfsVersion" << version;
        auto *store = poolObject<MenuAnalysis>(ENUM_MENUANALYSIS);
        if (store && !version.isEmpty())
            store->UpdataItemCurValue(MENU_About_VersionValue, version);
    }
    sysconf_closeenv();
    return version;
}

void ParaProcess::resetDisplayItems(MenuAnalysis &store)
{
    for (const Reset &reset : displayItems)
        store.UpdataItemCurValue(reset.item, reset.value);
    for (int layer = 0; layer < layerCount; ++layer)
        store.UpdataItemEnable(layerItem(MENU_MainLayer_InputCrop, layer), false);
    store.UpdataItemCurChoice(MENU_Normal, SELECTED);
    store.UpdataItemCurChoice(MENU_Freeze, UNSELECTED);
    store.UpdataItemCurChoice(MENU_FTB, UNSELECTED);
    for (ENUM_MenuIndex item : {MENU_Freeze, MENU_FTB, MENU_TestPattern})
        store.UpdataItemEnable(item, true);
}

void ParaProcess::connectHomeScreen()
{
    MainWindow *home = m_pMainWindow;
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

void ParaProcess::showLayer(int layer)
{
    const bool on = GetParaFromIndex(layerItem(MENU_MainLayer_Status, layer)) != QLatin1String("0");
    const QString source = GetParaFromIndex(layerItem(MENU_MainLayer_InputSource, layer));
    if (init_20m_flg)
        emit signal_window_state(layer, on ? 0 : 1);
    else
        m_pMainWindow->SetWindowState(ENUM_MainWindowWindowIndex(layer), ENUM_CommonState(on ? 0 : 1));
    m_pMainWindow->SetLayerName(ENUM_MainWindowLayerIndex(layer), GetInputNameByIndex(source));
    if (!on)
        return;
    const InputRecord input = m_processData.input(source.toInt());
    if (input.signalState != stableSignal) {
        emit signal_Layer_state(layer, 1);
        return;
    }
    emit signal_Layer_state(layer, 0);
    emit signal_SetRes_state(
        layer, DeviceView::sizeText(input.width, input.height, input.interlaced, input.rateCentiHz()));
}

void ParaProcess::showSyncState()
{
    const DeviceView device(*this);
    const bool agrees =
        !device.syncOn() || device.outputRate() == device.input(device.syncInput()).rateCentiHz();
    const int state = agrees ? 1 : 3;
    if (init_20m_flg)
        emit signal_sync_state(qint32(state));
    else
        m_pMainWindow->SetSynModeState(ENUM_MainWindowSynState(state));
}

void ParaProcess::InitializeMainWindow()
{
    if (!m_pMainWindow || !IsExistFromPool(ENUM_MENUANALYSIS)) {
        qDebug() << "pmenu is null";
        return;
    }
    InitParaFrom20M();
    UpdataDevRename();

    const DeviceView device(*this);
    m_pMainWindow->SetBrightNess(GetParaFromIndex(MENU_ScreenBrightness) + "%");
    SaveProcessData(QString::number(device.outputRate()), PARA_OutputRate);
    qDebug() << "----------------- Set Sres Res -----------------";
    m_pMainWindow->SetScreenRes(device.resolutionText());
    showSyncState();
    const int shownLayers = device.workMode() == WORK_SENDER ? 1 : layerCount;
    for (int layer = 0; layer < shownLayers; ++layer)
        showLayer(layer);
    ST_ItemInfo source;
    GetInfoFromIndex(MENU_Sync_Source, source);
    m_pMainWindow->SetSynMode(source.params.value(source.value));
    SaveProcessData(GetParaFromIndex(PARA_DisplayMode), PARA_DisplayMode);
    SaveProcessData(QString::number(GetLowLayerNum()), PARA_LowestLayer);
    init_20m_flg = true;
}

void ParaProcess::InitdefaultValue()
{
    constexpr int portCount = 6;
    for (int layer = 0; layer < layerCount; ++layer)
        emit signal_Layer_state(layer, 1);
    if (!m_pMainWindow)
        return;
    for (int port = 0; port < portCount; ++port)
        m_pMainWindow->SetNetState(ENUM_MainWindowNetIndex(port), ENUM_MainWindowNetState(0));
    m_pMainWindow->SetSynModeState(ENUM_MainWindowSynState(1));
    m_pMainWindow->SetConnectState(ENUM_MainWindowConnectState(2));
}

void ParaProcess::UpdataDevRename()
{
    SnapshotBlock flag(SNAPSHOT_RenameFlag, 1);
    flag.read();
    const int mark = flag.u8(0);
    qDebug() << "rename_flg ==" << mark;
    QString name;
    if (mark == renamedMark) {
        SnapshotBlock block(SNAPSHOT_Name, LENGTH_Name);
        block.read();
        for (int unit = 0; unit < int(LENGTH_Name) && block.u16(unit) != 0; unit += 2)
            name += QChar(ushort(block.u16(unit)));
    }
    qDebug() << "name ==" << name;
    if (!m_pMainWindow)
        return;
    runOnGui(m_pMainWindow, [window = m_pMainWindow, name, mark] {
        window->SetDeviceRename(name);
        if (mark == renamedMark)
            window->SetIp(MainWindow::m_strIp);
    });
}

void ParaProcess::serviceStarted(ENUM_MenuIndex event)
{
    if (event == EVENT_VideoServiceStarted)
        videodStarted = true;
    else
        senderdStarted = true;
    DeviceStartComplateHandle();
}

void ParaProcess::DeviceStartComplateHandle()
{
    qDebug() << "DeviceStartComplateHandle, videod:" << videodStarted << "senderd:" << senderdStarted;
    if (!videodStarted || !senderdStarted)
        return;
    HdcpPoweronHandle();
    SyncInit();
    DhcpInit();
    if (m_pMainWindow)
        m_pMainWindow->SetdeviceStartComplate();
    const QString version = readRootVersion();
    if (!version.isEmpty())
        SetParaToXml(version, MENU_About_VersionValue, SET_XML_DEVICE);
}

void ParaProcess::HdcpPoweronHandle()
{
    if (GetParaFromIndex(MENU_HDCPMemory) != QLatin1String("0"))
        return;
    if (auto *row = poolObject<VaskUiObject>(ENUM_ROW_HDCP))
        row->CallProtocol("0", MENU_HDCP);
}

void ParaProcess::SyncInit()
{
    const DeviceView device(*this);
    if (!device.syncOn())
        return;
    const InputRecord source = device.input(device.syncInput());
    const int reference =
        device.workMode() == WORK_SENDER ? m_processData.value(PARA_OutputRate) : device.outputRowRate();
    const int rate = source.framePeriodUs ? source.rateCentiHz() : 0;
    if (OutputFrameAdj(rate, reference) != rate || source.signalState == 0)
        emit signal_sync_state(qint8(source.signalState), QString("4"));
}

void ParaProcess::DhcpInit()
{
    if (GetParaFromIndex(MENU_Net_NetMode) == QLatin1String("1"))
        SetParaToXml("1", MENU_Net_NetMode, SET_XML_USER);
}
} // namespace VASK
