// The routing of the program fpd-rest: every item that the device service can take goes to it, the others
// over the message bus.
#include "menuconfig_k2860.h"

namespace VASK
{
namespace
{
struct Items {
    ENUM_MenuIndex first;
    ENUM_MenuIndex last;
};

constexpr Items routed[] = {
    {MENU_ScreenBrightness, MENU_ScreenBrightness},
    {MENU_LoadCabFiles, MENU_SavetoRVCard},
    {MENU_Normal, MENU_FTB},
    {MENU_LowLatency, MENU_LowLatency},
    {MENU_Quick_CabinetRow, MENU_Quick_FlowWay},
    {MENU_CabinetFile1, MENU_CabinetFile8},
    {MENU_Mapping, MENU_Mapping},
    {MENU_Test_PureColor, MENU_Test_Grid},
    {MENU_Test_Brightness, MENU_Test_Speed},
    {MENU_Advanced_Apply, MENU_Advanced_Apply},
    {MENU_Color_Gamma, MENU_Color_Gamma},
    {MENU_Color_R, MENU_Color_B},
};

QMap<ENUM_MenuIndex, ENUM_ProtocolType> routing()
{
    QMap<ENUM_MenuIndex, ENUM_ProtocolType> table;
    for (const Items &items : routed)
        for (int item = items.first; item <= items.last; ++item)
            table.insert(ENUM_MenuIndex(item), ENUM_PROTOCOL_4RD);
    return table;
}
} // namespace

QMap<ENUM_MenuIndex, ENUM_ProtocolType> g_protocolType = routing();
} // namespace VASK
