// The home screen as the engine sets it at start-up, and the device's own name.

#include "framework/engine/device.h"
#include "framework/engine/limits/bandwidth.h"
#include "framework/engine/paraprocess.h"
#include "framework/engine/start/snapshotmirror.h"
#include "menu/itemindex.h"
#include "widget/home/mainwindow_k2860.h"

namespace VASK
{
void ParaProcess::showLayer(int layer)
{
    const bool on = GetParaFromIndex(nth(MENU_MainLayer_Status, layer, STRIDE_Layer)) != QLatin1String("0");
    const QString source = GetParaFromIndex(nth(MENU_MainLayer_InputSource, layer, STRIDE_Layer));
    if (init_20m_flg)
        emit signal_window_state(layer, on ? 0 : 1);
    else
        m_pMainWindow->SetWindowState(ENUM_MainWindowWindowIndex(layer), ENUM_CommonState(on ? 0 : 1));
    m_pMainWindow->SetLayerName(ENUM_MainWindowLayerIndex(layer), GetInputNameByIndex(source));
    if (!on)
        return;
    const InputRecord input = m_processData.input(source.toInt());
    showLayerSignal(layer, input, input.rateCentiHz());
}

void ParaProcess::showLayerSignal(int layer, const InputRecord &input, int rateCentiHz)
{
    const bool stable = input.signalState == stableSignal;
    emit signal_Layer_state(layer, stable ? LAYER_ON : LAYER_NO_SIGNAL);
    if (stable)
        emit signal_SetRes_state(layer, DeviceView::sizeText(input.width, input.height, input.interlaced,
                                                             FrameRateAdj(uint16_t(rateCentiHz))));
}

void ParaProcess::ChangeLayerSrc()
{
    if (!neededHome())
        return;
    for (int layer = 0; layer < layerCount; ++layer) {
        const QString source = GetParaFromIndex(nth(MENU_MainLayer_InputSource, layer, STRIDE_Layer));
        m_pMainWindow->SetLayerName(ENUM_MainWindowLayerIndex(layer), GetInputNameByIndex(source));
        if (GetParaFromIndex(nth(MENU_MainLayer_Status, layer, STRIDE_Layer)) == QLatin1String("0"))
            continue;
        const InputRecord input = m_processData.input(source.toInt());
        showLayerSignal(layer, input, input.rateCentiHz());
    }
}

void ParaProcess::showSyncState()
{
    const auto state = DeviceView(*this).syncAgrees() ? SYN_OFF : SYN_FAILED;
    if (init_20m_flg)
        emit signal_sync_state(qint32(state));
    else
        m_pMainWindow->SetSynModeState(state);
}

void ParaProcess::InitializeMainWindow()
{
    if (!neededHome() || !neededStore())
        return;
    InitParaFrom20M();
    UpdataDevRename();

    const DeviceView device(*this);
    m_pMainWindow->SetBrightNess(GetParaFromIndex(MENU_ScreenBrightness) + "%");
    const int rate = device.outputRate();
    SaveProcessData(QString::number(rate), PARA_OutputRate);
    qDebug() << "----------------- Set Sres Res -----------------";
    m_pMainWindow->SetScreenRes(device.resolutionText(rate));
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
    for (int layer = 0; layer < layerCount; ++layer)
        emit signal_Layer_state(layer, 1);
    if (!neededHome())
        return;
    for (int port = 0; port < NET_PORT_COUNT; ++port)
        m_pMainWindow->SetNetState(ENUM_MainWindowNetIndex(port), NET_DISABLED);
    m_pMainWindow->SetSynModeState(SYN_OFF);
    m_pMainWindow->SetConnectState(CONNECT_NONE);
}

void ParaProcess::UpdataDevRename()
{
    SnapshotBlock flag(SNAPSHOT_RenameFlag, 1);
    if (!flag.read())
        return; // whether it has a name is not known: what is shown stays
    const int mark = flag.u8(0);
    qDebug() << "rename_flg ==" << mark;
    QString name;
    if (mark == renamedMark) {
        SnapshotBlock block(SNAPSHOT_Name, LENGTH_Name);
        if (!block.read())
            return;
        name = utf16Text(block.bytes(0, int(LENGTH_Name)));
    }
    qDebug() << "name ==" << name;
    if (!neededHome())
        return;
    m_pMainWindow->SetDeviceRename(name);
    if (mark != renamedMark)
        return;
    // The text of the address gives way to the name in turn: it is shown again as it is.
    m_pMainWindow->SetIp(m_pMainWindow->ip());
}
} // namespace VASK
