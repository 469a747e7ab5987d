#include "framework/object/vaskobject.h"
#include "menu/objectindex.h"

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
} // namespace VASK
