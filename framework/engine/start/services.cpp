// What runs when the device's two services have started: HDCP, synchronisation, DHCP and the version.

#include "framework/engine/device.h"
#include "framework/engine/paraprocess.h"
#include "framework/store/menuanalysis.h"
#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "menu/objectindex.h"
#include "sysconf.h"
#include "widget/home/mainwindow_k2860.h"

namespace VASK
{
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
        sysconf_closeenv();
    }
    return version;
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
    if (neededHome())
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
    const int rate = source.measuredRateCentiHz();
    if (OutputFrameAdj(rate, device.syncReference()) != rate || source.signalState == 0)
        emit signal_sync_state(qint8(source.signalState), QString("4"));
}

void ParaProcess::DhcpInit()
{
    if (GetParaFromIndex(MENU_Net_NetMode) == QLatin1String("1"))
        SetParaToXml("1", MENU_Net_NetMode, SET_XML_USER);
}
} // namespace VASK
