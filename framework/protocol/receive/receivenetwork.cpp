// Reports about the device's address.
#include "framework/protocol/devicecodes.h"
#include "framework/protocol/link/proto3rdreceiveparse.h"
#include "framework/protocol/snapshot/snapshotmap.h"
#include "menu/itemindex.h"

#include <QDebug>
#include <QStringList>

namespace VASK
{
namespace
{
/// Four numbers that stand two bytes or one apart, as a dotted quad.
QString wideQuad(const Report &report, int offset)
{
    QStringList numbers;
    for (int i = 0; i < 4; ++i)
        numbers << QString::number(report.u16(offset + 2 * i));
    return numbers.join(QLatin1Char('.'));
}

QString narrowQuad(const Report &report, int offset)
{
    QStringList numbers;
    for (int i = 0; i < 4; ++i)
        numbers << QString::number(report.u8(offset + i));
    return numbers.join(QLatin1Char('.'));
}

int ParseIPAddress(const Report &report)
{
    constexpr int first = DEVICE_IpAddress; // the report is that part of the device block
    const QString address = wideQuad(report, DEVICE_IpAddress - first);
    const QString mask = wideQuad(report, DEVICE_SubnetMask - first);
    const QString gateway = narrowQuad(report, DEVICE_Gateway - first);
    qDebug() << "Proto3rdReceiveParse::ParseIPAddress###: IP:" << address << " strMask:" << mask
             << " strGw:" << gateway;
    report.parse.ReportMsgToParaProcess(MENU_Net_IPAddress, address);
    report.parse.ReportMsgToParaProcess(MENU_Net_SubnetMask, mask);
    report.parse.ReportMsgToParaProcess(MENU_Net_Gateway, gateway);
    return 0;
}

int ParseIPMode(const Report &report)
{
    report.parse.report(MENU_Net_NetMode, report.u8() == deviceOn ? 1 : 0);
    return 0;
}

constexpr ReportRow rows[] = {
    report(REG_Set_NetCommunicateData, ParseIPAddress).needs(20),
    report(REG_Set_DHCPSwitchData, ParseIPMode).needs(1),
};
} // namespace

Table<ReportRow> networkReports()
{
    return rows;
}
} // namespace VASK
