// The LED screen behind the ports: brightness, colour channels, cabinets, their wiring and their files.

#include "framework/protocol/send/sendrow.h"
#include "menu/itemindex.h"
#include "menu/itemvalue.h"

#include <QDebug>
#include <QVector>

namespace VASK
{
namespace
{
using P = TGProtocolParser3rd;

constexpr int routeWayCount = 8;
/// Takes over what was written for the ports.
constexpr quint8 applyAdvanced = 185;

int ScannerMapping(const SendChange &change)
{
    const QByteArray data = littleEndian(isOff(change.value) ? 255 : mappingOn, 1);
    change.log(data);
    return change.send(P::Set_ScannerCommonWrite(data, data.size(), MappingAddr));
}

/// The value is the path of the picture that shows the way, or its bare number.
int sendRouteWay(const SendChange &change, QString way, int port)
{
    way.remove(QStringLiteral(":/resource/image/041_ScreenTracesWay")).remove(QStringLiteral(".png"));
    const int number = way.toInt();
    if (number < 0 || number >= routeWayCount)
        return SEND_BadValue;
    const QByteArray data = littleEndian(number, 1);
    change.log(data);
    return change.send(toAllBoards(P::Set_SettingScreenRouteWayValue, data, change.tag(), port));
}

int ScreenLineValueChanged(const SendChange &change)
{
    constexpr int quickConfiguration = 0;
    return sendRouteWay(change, change.value, quickConfiguration);
}

/// The value lists the number of the file and its name; the register wants the number.
int LoadBoxCFGFile(const SendChange &change)
{
    const QByteArray data = littleEndian(1, 1);
    change.log(data);
    return change.send(change.package(data, change.value.section('+', 0, 0).toInt()));
}

int AdvancedTurnOnNetPortValueChanged(const SendChange &change)
{
    const int port = QString(change.value).remove(QStringLiteral("Port")).toInt();
    if (port < 1 || port > FAMILY_AdvancedPort.count)
        return SEND_BadValue;
    Proto3rdSend::m_usNetPortIndex = static_cast<unsigned short>(port);
    return SEND_Done;
}

/// One port's share of the screen.
struct PortArea {
    int rows;
    int columns;
    int x;
    int y;
    QString route;
};

PortArea readPort(const SendChange &change, int port)
{
    auto at = [port](ENUM_MenuIndex ofPort1) { return nth(ofPort1, port - 1, STRIDE_AdvancedPort); };
    PortArea area{change.number(at(MENU_AdvancedPort1_Rows)), change.number(at(MENU_AdvancedPort1_Cols)),
                  change.number(at(MENU_AdvancedPort1_X)), change.number(at(MENU_AdvancedPort1_Y)),
                  change.item(at(MENU_AdvancedPort1_FlowWay))};
    qDebug() << "network" << port << area.rows << area.columns << area.x << area.y << area.route;
    return area;
}

int ChangeAdvancedPostion(const SendChange &change, const PortArea &area, int port)
{
    const QByteArray data = littleEndian(area.rows, 1) + littleEndian(area.columns, 1) +
                            littleEndian(area.rows * area.columns, 2) + littleEndian(area.x, 2) +
                            littleEndian(area.y, 2);
    change.log(data);
    return change.send(toAllBoards(P::SetAdvancedPostion, data, change.tag(), port));
}

int AdvancedTurnOnApply(const SendChange &change)
{
    for (int port = 1; port <= FAMILY_AdvancedPort.count; ++port) {
        const PortArea area = readPort(change, port);
        int result = ChangeAdvancedPostion(change, area, port);
        if (result == SEND_Done)
            result = sendRouteWay(change, area.route, port);
        if (result != SEND_Done)
            return result;
    }
    return change.sendBytes(littleEndian(applyAdvanced, 1));
}

constexpr SendRow rows[] = {
    plain(MENU_ScreenBrightness, percent(), P::Set_AcceptCardLightnessData),
    plain(MENU_SavetoRVCard, fixed(0), P::Set_SolidifyScanner),

    plain(MENU_Quick_CabinetRow, number(), P::Set_SettingScreenRowsValue),
    plain(MENU_Quick_CabinetCol, number(), P::Set_SettingScreenColsValue),
    plain(MENU_Quick_PortOneCab, number(2), P::Set_QuickSettingScreenContainerCapacityValue),
    own(MENU_Quick_FlowWay, ScreenLineValueChanged),
    own(range(MENU_CabinetFile1, MENU_CabinetFile8), LoadBoxCFGFile, P::Set_LoadBoxCFGFile),
    own(MENU_Mapping, ScannerMapping),

    plain(MENU_Advanced_Status, onOff(deviceOn, 184), P::Set_AdvancedSettingScreenSwitchValue),
    own(MENU_Advanced_EthernetPort, AdvancedTurnOnNetPortValueChanged),
    own(MENU_Advanced_Apply, AdvancedTurnOnApply, P::Set_AdvancedSettingScreenSwitchValue),

    plain(MENU_Color_R, number(), P::Set_AcceptCardRedLightnessData),
    plain(MENU_Color_G, number(), P::Set_AcceptCardGreenLightnessData),
    plain(MENU_Color_B, number(), P::Set_AcceptCardBlueLightnessData),
};
} // namespace

Table<SendRow> screenRows()
{
    return rows;
}
} // namespace VASK
