#include "framework/protocol/link/proto4rdrequests.h"

#include "framework/engine/advancedports.h"
#include "framework/table.h"
#include "menu/itemvalue.h"

#include <QDebug>
#include <QStringList>
#include <algorithm>
#include <cmath>
#include <iterator>

namespace VASK
{
namespace
{
template <int value> bool number(const RestChange &, ST_Protocol4rdMsg &message, const char *name)
{
    return message.parameters.body.insert(name, value);
}

template <int mode> bool displayMode(const RestChange &change, ST_Protocol4rdMsg &message)
{
    return number<mode>(change, message, "value");
}

bool saveToCards(const RestChange &change, ST_Protocol4rdMsg &message)
{
    constexpr int everything = 0;
    return number<everything>(change, message, "type");
}

bool onOff(const RestChange &change, ST_Protocol4rdMsg &message)
{
    return message.parameters.body.insert("enable", isOn(change.value));
}

/// Percent on the menu, a byte on the wire.
bool brightness(const RestChange &change, ST_Protocol4rdMsg &message)
{
    const int scaled = change.value.toInt() * 255 / 100;
    qDebug() << "BRIGHTNESS value:" << change.value << "exchange:" << scaled;
    return message.parameters.body.insert("value", scaled);
}

/// One decimal. Read in single precision, so that 2.85 is a little less.
bool gamma(const RestChange &change, ST_Protocol4rdMsg &message)
{
    constexpr int plainCurve = 3;
    message.parameters.body.insert("type", plainCurve);
    return message.parameters.body.insert("value",
                                          std::trunc((double(change.value.toFloat()) + 0.05) * 10) / 10);
}

bool colours(const RestChange &change, ST_Protocol4rdMsg &message)
{
    message.parameters.body.insert("r", change.number(MENU_Color_R));
    message.parameters.body.insert("g", change.number(MENU_Color_G));
    return message.parameters.body.insert("b", change.number(MENU_Color_B));
}

/// The whole value names the file; its second piece is what a person would call it.
bool cabinetFile(const RestChange &change, ST_Protocol4rdMsg &message)
{
    qDebug() << "load file:" << change.value.split('+', Qt::SkipEmptyParts).value(1);
    return message.parameters.body.insert("fileName", change.value.toStdString());
}

bool quickConfiguration(const RestChange &change, ST_Protocol4rdMsg &message)
{
    Parameters_ &body = message.parameters.body;
    body.insert("rowCount", change.natural(MENU_Quick_CabinetRow));
    body.insert("colCount", change.natural(MENU_Quick_CabinetCol));
    body.insert("port1CabinetCount", change.natural(MENU_Quick_PortOneCab));
    return body.insert("LayoutType", change.natural(MENU_Quick_FlowWay)); // the service's own capital
}

/// All ports, whether they differ from their defaults or not.
bool advancedConfiguration(const RestChange &change, ST_Protocol4rdMsg &message)
{
    for (int port = 0; port < AdvancedPorts::count; ++port) {
        const auto value = [&](ENUM_MenuIndex ofFirstPort) {
            return change.natural(nth(ofFirstPort, port, STRIDE_AdvancedPort));
        };
        Parameters parameters;
        parameters.body.insert("rowCount", value(MENU_AdvancedPort1_Rows));
        parameters.body.insert("colCount", value(MENU_AdvancedPort1_Cols));
        parameters.body.insert("layoutType", value(MENU_AdvancedPort1_FlowWay));
        parameters.body.insert("offsetX", value(MENU_AdvancedPort1_X));
        parameters.body.insert("offsetY", value(MENU_AdvancedPort1_Y));
        parameters.body.insert("portID", port);
        qDebug() << "network" << port << value(MENU_AdvancedPort1_Rows) << value(MENU_AdvancedPort1_Cols)
                 << value(MENU_AdvancedPort1_FlowWay) << value(MENU_AdvancedPort1_X)
                 << value(MENU_AdvancedPort1_Y);
        message.parameterList.push_back(parameters);
    }
    return true;
}

/// The icons of the three pattern lists, by their place in the list.
constexpr int colourIcons[] = {0, 1, 2, 3, 4, 5, 6, 7};
constexpr int gradientIcons[] = {104, 105, 106, 107, 100, 101, 102, 103};
constexpr int gridIcons[] = {201, 200, 203, 202, 204, 205};

/// Levels 1 to 4 of the menu as 1, 65, 130 and 195 on the wire.
unsigned int grayOf(int level)
{
    return static_cast<unsigned int>(std::max(0, level + ((level * 255 - 255) >> 2)));
}

template <const auto &icons> bool testPattern(const RestChange &change, ST_Protocol4rdMsg &message)
{
    const int icon = change.value.toInt();
    if (icon < 0 || icon >= int(std::size(icons))) {
        qDebug() << "No this color" << change.value;
        return false;
    }
    const ST_TestPattern pattern = change.patterns.value(icons[icon]);
    Parameters_ &body = message.parameters.body;
    body.insert("modeType", pattern.mode);
    body.insert("red", pattern.red);
    body.insert("green", pattern.green);
    body.insert("blue", pattern.blue);
    body.insert("gray", grayOf(change.number(MENU_Test_Brightness)));
    body.insert("lineWidth", pattern.lineWidth);
    body.insert("moveDirection", pattern.moveDirection);
    body.insert("moveSpeed", static_cast<unsigned char>(change.natural(MENU_Test_Speed)));
    return body.insert("spaceValue", static_cast<unsigned char>(change.natural(MENU_Test_Spacing)));
}

// clang-format off
const RestRow rows[] = {
    {MENU_ScreenBrightness, "Device_CabinetSingleBrightness", METHOD_PutId, allCabinets, brightness, "http return : brightness set faild error"},
    {MENU_SavetoRVCard, "Device_S_CabinetSolid", METHOD_PutId, allCabinets, saveToCards, "http return : ScreenSolid set faild error"},
    {MENU_Normal, "ScreenDisplayMode", METHOD_PutId, thisScreen, displayMode<0>, "http return : SCREEN Mode faild error"},
    {MENU_Freeze, "ScreenDisplayMode", METHOD_PutId, thisScreen, displayMode<2>, "http return : SCREEN Mode faild error"},
    {MENU_FTB, "ScreenDisplayMode", METHOD_PutId, thisScreen, displayMode<1>, "http return : SCREEN Mode faild error"},
    {MENU_LowLatency, "ScreenLowLatency", METHOD_PutId, thisScreen, onOff, "http return : low delay set faild error"},
    {range(MENU_Quick_CabinetRow, MENU_Quick_FlowWay), "ScreenQuickTouch", METHOD_Put, 0, quickConfiguration, "http return : quick screen set faild error"},
    {range(MENU_CabinetFile1, MENU_CabinetFile8), "Device_Sendcfgfile", METHOD_PutId, allCabinets, cabinetFile, "http return : brightness set faild error"},
    {MENU_Mapping, "Device_CabMapping", METHOD_PutId, allCabinets, onOff, "http return : Mapping set faild error"},
    {MENU_Test_PureColor, "SenderTestMode", METHOD_PutId, thisScreen, testPattern<colourIcons>, "http return : Test pure faild error"},
    {MENU_Test_Gradient, "SenderTestMode", METHOD_PutId, thisScreen, testPattern<gradientIcons>, "http return : Test grad faild error"},
    {MENU_Test_Grid, "SenderTestMode", METHOD_PutId, thisScreen, testPattern<gridIcons>, "http return : Test grid faild error"},
    {MENU_Advanced_Apply, "ScreenAdvancedTouch", METHOD_PostList, 0, advancedConfiguration, "http return : quick screen set faild error"},
    {MENU_Color_Gamma, "Device_CabinetSingleGamma", METHOD_PutId, allCabinets, gamma, "http return : ScreenSolid set faild error"},
    {range(MENU_Color_R, MENU_Color_B), "Device_CabinetRGBBrightness", METHOD_PutId, allCabinets, colours, "http return : SCREEN color faild error"},
};
// clang-format on
} // namespace

QMap<int, ST_TestPattern> testPatterns()
{
    return {
        {0, {1, 0, 0, 0, 0, 0, 0}},         {1, {1, 255, 0, 0, 0, 0, 0}},
        {2, {1, 0, 255, 0, 0, 0, 0}},       {3, {1, 0, 0, 255, 0, 0, 0}},
        {4, {1, 255, 255, 255, 0, 0, 0}},   {5, {11, 255, 255, 255, 0, 1, 0}},
        {6, {12, 255, 255, 255, 0, 1, 0}},  {7, {10, 255, 255, 255, 0, 1, 0}},
        {100, {2, 255, 0, 0, 0, 0, 0}},     {101, {2, 0, 255, 0, 0, 0, 0}},
        {102, {2, 0, 0, 255, 0, 0, 0}},     {103, {2, 255, 255, 255, 0, 0, 0}},
        {104, {3, 255, 0, 0, 0, 0, 0}},     {105, {3, 0, 255, 0, 0, 0, 0}},
        {106, {3, 0, 0, 255, 0, 0, 0}},     {107, {3, 255, 255, 255, 0, 0, 0}},
        {200, {4, 255, 255, 255, 0, 1, 0}}, {201, {5, 255, 255, 255, 0, 1, 0}},
        {202, {8, 255, 255, 255, 0, 1, 0}}, {203, {7, 255, 255, 255, 0, 1, 0}},
        {204, {6, 255, 255, 255, 0, 1, 0}}, {205, {9, 255, 255, 255, 0, 1, 0}},
    };
}

const RestRow *restRow(ENUM_MenuIndex index)
{
    static const TableIndex<ENUM_MenuIndex, RestRow> items(std::initializer_list<Table<RestRow>>{rows});
    return items.find(index).row;
}
} // namespace VASK
