#include "framework/engine/homeupdater.h"

#include "framework/engine/device.h"
#include "framework/engine/limits/bandwidth.h"
#include "framework/engine/paraprocess.h"
#include "framework/engine/sourcenames.h"
#include "framework/engine/start/snapshotmirror.h"
#include "framework/ui/home.h"
#include "menu/itemindex.h"
#include "menu/itemvalue.h"
#include "menu/objectindex.h"
#include "menuconfig_k2860.h"

namespace VASK
{
namespace
{
/// The picture of the home screen by the display mode of the process data.
ENUM_MainWindowTESTMode pictureOf(int displayMode)
{
    switch (displayMode) {
    case MODE_Frozen:
        return TESTMODE_FREEZE;
    case MODE_Black:
        return TESTMODE_BLACK;
    case MODE_Testing:
        return TESTMODE_TEST;
    }
    return TESTMODE_NORMAL;
}
} // namespace

void HomeUpdater::find()
{
    m_pMainWindow = poolObject<HomeScreen>(ENUM_MAIN_WINDOW);
}

HomeScreen *HomeUpdater::needed() const
{
    if (!m_pMainWindow)
        qDebug() << "pmenu is null";
    return m_pMainWindow;
}

void HomeUpdater::connectSignals()
{
    HomeScreen *home = needed();
    if (!home)
        return;
    const auto wire = [this, home](auto signal, auto slot) {
        QObject::connect(&m_engine, signal, home, slot, Qt::QueuedConnection);
    };
    wire(qOverload<qint8, QString>(&ParaProcess::signal_sync_state),
         qOverload<qint8, QString>(&HomeScreen::slot_SetSynModeState));
    wire(qOverload<qint32>(&ParaProcess::signal_sync_state),
         qOverload<qint32>(&HomeScreen::slot_SetSynModeState));
    wire(&ParaProcess::signal_window_state, &HomeScreen::slot_SetWinodwState);
    wire(&ParaProcess::signal_factory_reset, &HomeScreen::slot_FactoryRest);
    wire(&ParaProcess::signal_soft_calibrate, &HomeScreen::slot_soft_calibrate);
    wire(&ParaProcess::signal_createdialog, &HomeScreen::slot_CreateDialog);
    wire(&ParaProcess::signal_popup_window, &HomeScreen::slot_popup_window);
    wire(&ParaProcess::signal_return_main, &HomeScreen::slot_ReturnToMainSoft);
    wire(&ParaProcess::signal_Update_LedState, &HomeScreen::UpdateSourceLedStatus);
    wire(&ParaProcess::signal_Layer_state, &HomeScreen::slot_SetLayerState);
    wire(&ParaProcess::signal_SetRes_state, &HomeScreen::slot_SetResState);
}

template <class Work> void HomeUpdater::home(Work work)
{
    toHome(m_pMainWindow, std::move(work));
}

void HomeUpdater::showBrightness(const QString &text)
{
    home([text](HomeScreen &screen) { screen.SetBrightNess(text); });
}

void HomeUpdater::showResolution(const QString &text)
{
    qDebug() << "----------------- Set Sres Res -----------------";
    home([text](HomeScreen &screen) { screen.SetScreenRes(text); });
}

void HomeUpdater::showAddress(const QString &text)
{
    home([text](HomeScreen &screen) { screen.SetIp(text); });
}

void HomeUpdater::showMakerSign(bool shown)
{
    home([shown](HomeScreen &screen) { screen.SetDevNameState(shown ? COMMON_ON : COMMON_OFF); });
}

void HomeUpdater::showSyncSource(const QString &name)
{
    home([name](HomeScreen &screen) { screen.SetSynMode(name); });
}

void HomeUpdater::showLayerName(int layer, const QString &name)
{
    home([layer, name](HomeScreen &screen) { screen.SetLayerName(ENUM_MainWindowLayerIndex(layer), name); });
}

void HomeUpdater::showPort(int port, ENUM_MainWindowNetState state)
{
    home([port, state](HomeScreen &screen) { screen.SetNetState(ENUM_MainWindowNetIndex(port), state); });
}

void HomeUpdater::showDisplayMode(int mode)
{
    home([mode](HomeScreen &screen) { screen.SetTestMode(pictureOf(mode)); });
}

void HomeUpdater::closeWindow(int layer)
{
    home([layer](HomeScreen &screen) {
        screen.SetWindowState(ENUM_MainWindowWindowIndex(layer), COMMON_OFF);
    });
}

void HomeUpdater::noteServicesRun()
{
    if (needed())
        m_pMainWindow->SetdeviceStartComplate();
}

void HomeUpdater::setWindow(int layer, bool shown, bool reported)
{
    const ENUM_CommonState state = shown ? COMMON_ON : COMMON_OFF;
    if (reported && !ParaProcess::init_20m_flg)
        home([layer, state](HomeScreen &screen) {
            screen.SetWindowState(ENUM_MainWindowWindowIndex(layer), state);
        });
    else
        emit m_engine.signal_window_state(layer, state);
}

void HomeUpdater::setSyncState(int state, bool reported)
{
    if (reported && !ParaProcess::init_20m_flg)
        home([state](HomeScreen &screen) { screen.SetSynModeState(ENUM_MainWindowSynState(state)); });
    else
        emit m_engine.signal_sync_state(qint32(state));
}

void HomeUpdater::showSignal(int layer, bool stable)
{
    emit m_engine.signal_Layer_state(layer, stable ? LAYER_ON : LAYER_NO_SIGNAL);
}

void HomeUpdater::showSignalOf(int layer)
{
    if (layer < 0 || layer >= layerCount)
        return;
    const int source =
        m_engine.GetParaFromIndex(nth(MENU_MainLayer_InputSource, layer, STRIDE_Layer)).toInt();
    showSignal(layer, m_engine.processData().input(source).signalState == stableSignal);
}

void HomeUpdater::showSignal(int layer, const InputRecord &input, int rateCentiHz)
{
    const bool stable = input.signalState == stableSignal;
    showSignal(layer, stable);
    if (stable)
        emit m_engine.signal_SetRes_state(layer,
                                          DeviceView::sizeText(input.width, input.height, input.interlaced,
                                                               FrameRateAdj(uint16_t(rateCentiHz))));
}

/// The name of the source of a layer and, if the layer is on, what it carries.
void HomeUpdater::showSource(int layer)
{
    const QString source = m_engine.GetParaFromIndex(nth(MENU_MainLayer_InputSource, layer, STRIDE_Layer));
    showLayerName(layer, inputName(source));
    if (isOff(m_engine.GetParaFromIndex(nth(MENU_MainLayer_Status, layer, STRIDE_Layer))))
        return;
    const InputRecord input = m_engine.processData().input(source.toInt());
    showSignal(layer, input, input.rateCentiHz());
}

void HomeUpdater::showSources()
{
    if (!needed())
        return;
    for (int layer = 0; layer < layerCount; ++layer)
        showSource(layer);
}

void HomeUpdater::showLayer(int layer)
{
    const bool on = !isOff(m_engine.GetParaFromIndex(nth(MENU_MainLayer_Status, layer, STRIDE_Layer)));
    setWindow(layer, on, true);
    showSource(layer);
}

void HomeUpdater::showAll()
{
    const DeviceView device(m_engine);
    showBrightness(m_engine.GetParaFromIndex(MENU_ScreenBrightness) + "%");
    const int rate = device.outputRate();
    m_engine.SaveProcessData(QString::number(rate), PARA_OutputRate);
    showResolution(device.resolutionText(rate));
    setSyncState(device.syncAgrees() ? SYN_OFF : SYN_FAILED, true);
    const int shownLayers = device.workMode() == WORK_SENDER ? 1 : layerCount;
    for (int layer = 0; layer < shownLayers; ++layer)
        showLayer(layer);
    ST_ItemInfo source;
    m_engine.GetInfoFromIndex(MENU_Sync_Source, source);
    showSyncSource(source.params.value(source.value));
    showDisplayMode(m_engine.processData().value(PARA_DisplayMode));
}

void HomeUpdater::showNothing()
{
    for (int layer = 0; layer < layerCount; ++layer)
        showSignal(layer, false);
    if (!needed())
        return;
    for (int port = 0; port < NET_PORT_COUNT; ++port)
        showPort(port, NET_DISABLED);
    home([](HomeScreen &screen) {
        screen.SetSynModeState(SYN_OFF);
        screen.SetConnectState(CONNECT_NONE);
    });
}

void HomeUpdater::showName()
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
    if (!needed())
        return;
    home([name, named = mark == renamedMark](HomeScreen &screen) {
        screen.SetDeviceRename(name);
        // The text of the address gives way to the name in turn: it is shown again as it is.
        if (named)
            screen.SetIp(screen.ip());
    });
}
} // namespace VASK
