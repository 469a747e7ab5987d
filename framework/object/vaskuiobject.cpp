#include "framework/object/vaskobject.h"
#include "framework/protocol/link/protocolinterface.h"
#include "framework/store/menuanalysis.h"
#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "menu/objectindex.h"

#include <new>

namespace VASK
{
namespace
{
/// The protocol object that serves an item; null, with a log line, if it is not there.
ProtocolInterface *protocolOf(ENUM_MenuIndex index)
{
    static const QMap<ENUM_ProtocolType, ENUM_ObjectIndex> objects{
        {ENUM_PROTOCOL_3RD, ENUM_PROTOCOINTERFER_3RD},
        {ENUM_PROTOCOL_4RD, ENUM_PROTOCOINTERFER_4RD},
    };
    // Not operator[]: two threads come here, and a read must not change the table.
    const ENUM_ProtocolType type = g_protocolType.value(index, ENUM_PROTOCOL_3RD);
    VaskObject *object = ObjectPool::getInstance()->GetObject(objects.value(type, ENUM_OBJECT_END));
    auto *protocol = dynamic_cast<ProtocolInterface *>(object);
    if (!protocol)
        qDebug() << "VaskUiObject get PROTOCOINTERFER fail!";
    return protocol;
}
} // namespace

bool VaskUiObject::CreateMenuAnalysisObject(ENUM_ObjectIndex index)
{
    if (index >= ENUM_OBJECT_END)
        return false;
    // Lives until the process ends, like all that the pool holds.
    auto *store = new (std::nothrow) MenuAnalysis(index);
    return store && CreateObjectToPool(index, store);
}

bool VaskUiObject::CreateMenuXml(ENUM_MenuIndex index)
{
    if (!GetObjectFromPool(ENUM_MENUANALYSIS) && !CreateMenuAnalysisObject(ENUM_MENUANALYSIS))
        return false;
    auto *store = poolObject<MenuAnalysis>(ENUM_MENUANALYSIS);
    if (!store)
        return false;
    return store->IsEixstItemFromXMLFile(index) || store->AddMenuItem(index, g_MenuXmlConfig.value(index));
}

void VaskUiObject::CallProtocol(QString value, ENUM_MenuIndex index)
{
    qDebug() << "CallProtocol,index:" << int(index) << ",strValue:" << value;
    if (ProtocolInterface *protocol = protocolOf(index))
        protocol->slot_ValueChanged(value, index);
}

void VaskUiObject::CallProtocolSynGet(QString &value, ENUM_MenuIndex index)
{
    qDebug() << "CallProtocol syn get,index:" << int(index);
    if (ProtocolInterface *protocol = protocolOf(index))
        protocol->GetValueByIndexSYN(index, &value);
}
} // namespace VASK
