#include "framework/vaskobject.h"

#include "framework/menuanalysis.h"
#include "framework/protocol/protocolinterface.h"
#include "menuconfig_k2860.h"

#include <new>

namespace VASK
{
VaskObject::VaskObject(ENUM_ObjectIndex index, QWidget *parent) : QWidget(parent), m_objectIndex(index) {}

bool VaskObject::CreateObjectToPool(ENUM_ObjectIndex index, VaskObject *object)
{
    return ObjectPool::getInstance()->InsertData(index, object);
}

bool VaskObject::DeleteObjectFromPool(ENUM_ObjectIndex index)
{
    VaskObject *object = GetObjectFromPool(index);
    if (!object) {
        qDebug() << "Pool no this obj";
        return false;
    }
    delete object;
    return true;
}

VaskObject *VaskObject::GetObjectFromPool(ENUM_ObjectIndex index) const
{
    return index < ENUM_OBJECT_END ? ObjectPool::getInstance()->GetObject(index) : nullptr;
}

ENUM_ObjectIndex VaskObject::GetObjectIndexFromPool(VaskObject *object) const
{
    return ObjectPool::getInstance()->GetObjectIndex(object);
}

bool VaskObject::GetObectIndex(ENUM_ObjectIndex &index) const
{
    if (m_objectIndex >= ENUM_OBJECT_END)
        return false;
    index = m_objectIndex;
    return true;
}

bool VaskObject::IsExistFromPool(ENUM_ObjectIndex index) const
{
    return ObjectPool::getInstance()->IsExist(index);
}

namespace
{
/// The protocol object that serves an item; null, with a log line, if there is none.
ProtocolInterface *protocolOf(ENUM_MenuIndex index)
{
    ProtocolInterface *protocol = nullptr;
    switch (g_protocolType.value(index, ENUM_PROTOCOL_3RD)) {
    case ENUM_PROTOCOL_3RD:
        protocol = poolObject<ProtocolInterface>(ENUM_PROTOCOINTERFER_3RD);
        break;
    case ENUM_PROTOCOL_4RD:
        protocol = poolObject<ProtocolInterface>(ENUM_PROTOCOINTERFER_4RD);
        break;
    }
    if (!protocol)
        qDebug() << "VaskUiObject get PROTOCOINTERFER fail!";
    return protocol;
}
} // namespace

bool VaskUiObject::CreateMenuAnalysisObject(ENUM_ObjectIndex index)
{
    if (index >= ENUM_OBJECT_END)
        return false;
    auto *store = new (std::nothrow) MenuAnalysis(index);
    return CreateObjectToPool(index, store);
}

bool VaskUiObject::CreateMenuXml(ENUM_MenuIndex index)
{
    if (!IsExistFromPool(ENUM_MENUANALYSIS) && !CreateMenuAnalysisObject(ENUM_MENUANALYSIS))
        return false;
    auto *store = poolObject<MenuAnalysis>(ENUM_MENUANALYSIS);
    if (!store)
        return false;
    if (store->IsEixstItemFromXMLFile(index))
        return true;
    return store->AddMenuItem(index, g_MenuXmlConfig.value(index));
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
