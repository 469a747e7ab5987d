// Reports about the device as a whole: it has started, was reset or renamed, has changed its mode, or was set
// up by a host.
#include "framework/engine/paraprocess.h"
#include "framework/protocol/devicecodes.h"
#include "framework/protocol/link/proto3rdreceiveparse.h"
#include "framework/protocol/receive/selftest.h"
#include "menu/itemindex.h"

#include <QDebug>

namespace VASK
{
namespace
{
struct Event {
    int code;
    ENUM_MenuIndex item;
};

/// Presses the item that belongs to a code; a code that no event has does nothing.
template <size_t count> int press(const Report &report, const Event (&events)[count])
{
    for (const Event &event : events)
        if (event.code == report.u8()) {
            report.parse.ReportMsgToParaProcess(event.item, QString());
            return 0;
        }
    return 2;
}

int StartComplate(const Report &report)
{
    const int service = report.u8();
    qDebug() << "StartComplate:" << service;
    if (service != 1 && service != 2) {
        qDebug() << "StartComplate param invalid!";
        return 2;
    }
    report.parse.report(service == 1 ? EVENT_VideoServiceStarted : EVENT_SenderServiceStarted, service);
    return 0;
}

int FactoryReset(const Report &report)
{
    static constexpr Event events[] = {{0, MENU_SaveIP}, {1, MENU_ResetAll}, {2, MENU_SaveUserData}};
    return press(report, events);
}

int ChangeWorkMode(const Report &report)
{
    static constexpr Event events[] = {{0, MENU_VideoController}, {16, MENU_SendingCard}};
    return press(report, events);
}

int Prase_LoadCabCfgOver(const Report &report)
{
    static constexpr Event events[] = {{1, EVENT_CabinetListLoaded}};
    return press(report, events);
}

int DeviceRename(const Report &report)
{
    report.parse.engine().UpdataDevRename();
    return 0;
}

int SoftConfigLfg(const Report &report)
{
    report.parse.report(MENU_SoftwareConfigured, 1);
    return 0;
}

int SoftCalibrate(const Report &report)
{
    constexpr int began = deviceOn;
    constexpr int ended = 0;
    if (report.u8() != began && report.u8() != ended)
        return 2;
    report.parse.report(EVENT_SoftCalibrate, report.u8() == began ? 1 : 0);
    return 0;
}

constexpr ReportRow rows[] = {
    report(REG_Set_SelfTest, ParseSelfTestInfo),
    report(REG_Set_ReturnFactoryData, FactoryReset).needs(1),
    report(REG_DeviceRenamed, DeviceRename),
    report(REG_CabinetFilesListed, Prase_LoadCabCfgOver).needs(1),
    report(REG_SoftwareConfigured, SoftConfigLfg),
    report(REG_Set_SendcardModeValue, ChangeWorkMode).needs(1),
    report(REG_SoftCalibration, SoftCalibrate).needs(1),
    report(REG_ServiceStarted, StartComplate).needs(1),
};
} // namespace

Table<ReportRow> deviceReports()
{
    return rows;
}
} // namespace VASK
