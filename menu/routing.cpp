// Which protocol object serves an item. An item without an entry goes over the message bus; on this device
// model all of them do. A program that links another table in front of this one routes differently
// (menu/rest).
#include "menuconfig_k2860.h"

namespace VASK
{
QMap<ENUM_MenuIndex, ENUM_ProtocolType> g_protocolType;
} // namespace VASK
