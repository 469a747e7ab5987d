#include "framework/engine/start/servicestart.h"

#include "framework/engine/device.h"
#include "framework/engine/homeupdater.h"
#include "framework/engine/paraprocess.h"
#include "framework/store/menuanalysis.h"
#include "menu/itemindex.h"
#include "menu/itemvalue.h"
#include "menu/menutypes.h"
#include "menu/objectindex.h"
#include "sysconf.h"

namespace VASK
{
QString ServiceStart::readRootVersion()
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

void ServiceStart::started(ENUM_MenuIndex event)
{
    if (event == EVENT_VideoServiceStarted)
        videodStarted = true;
    else
        senderdStarted = true;
    startComplete();
}

void ServiceStart::startComplete()
{
    qDebug() << "DeviceStartComplateHandle, videod:" << videodStarted << "senderd:" << senderdStarted;
    if (!videodStarted || !senderdStarted)
        return;
    switchHdcp();
    checkSync();
    askForAddress();
    m_engine.home().noteServicesRun();
    const QString version = readRootVersion();
    if (!version.isEmpty())
        m_engine.SetParaToXml(version, MENU_About_VersionValue, SET_XML_DEVICE);
}

void ServiceStart::switchHdcp()
{
    if (!isOff(m_engine.GetParaFromIndex(MENU_HDCPMemory)))
        return;
    if (auto *row = poolObject<VaskUiObject>(ENUM_ROW_HDCP))
        row->CallProtocol("0", MENU_HDCP);
}

void ServiceStart::checkSync()
{
    const DeviceView device(m_engine);
    if (!device.syncOn())
        return;
    const InputRecord source = device.input(device.syncInput());
    const int rate = source.measuredRateCentiHz();
    if (m_engine.OutputFrameAdj(rate, device.syncReference()) != rate || source.signalState == 0)
        emit m_engine.signal_sync_state(qint8(source.signalState), QString("4"));
}

void ServiceStart::askForAddress()
{
    if (m_engine.GetParaFromIndex(MENU_Net_NetMode) == automaticAddress)
        m_engine.SetParaToXml("1", MENU_Net_NetMode, SET_XML_USER);
}
} // namespace VASK
