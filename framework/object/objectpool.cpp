#include "framework/object/objectpool.h"

#include "framework/object/vaskobject.h"
#include "menu/objectindex.h"

#include <new>

namespace VASK
{
ObjectPool *ObjectPool::m_pInstance = nullptr;
QMutex ObjectPool::m_mutex;

ObjectPool *ObjectPool::getInstance()
{
    QMutexLocker lock(&m_mutex);
    if (!m_pInstance)
        m_pInstance = new (std::nothrow) ObjectPool;
    return m_pInstance;
}

int ObjectPool::Size() const
{
    QMutexLocker lock(&m_mapMutex);
    return m_objects.size();
}

bool ObjectPool::IsExist(ENUM_ObjectIndex index) const
{
    QMutexLocker lock(&m_mapMutex);
    return index < ENUM_OBJECT_END && m_objects.contains(index);
}

VaskObject *ObjectPool::GetObject(ENUM_ObjectIndex index) const
{
    QMutexLocker lock(&m_mapMutex);
    return m_objects.value(index, nullptr);
}

ENUM_ObjectIndex ObjectPool::GetObjectIndex(VaskObject *object) const
{
    QMutexLocker lock(&m_mapMutex);
    return m_indexes.value(object, ENUM_OBJECT_END);
}

bool ObjectPool::InsertData(ENUM_ObjectIndex index, VaskObject *object)
{
    if (!object || index >= ENUM_OBJECT_END)
        return false;
    QMutexLocker lock(&m_mapMutex);
    m_objects.insert(index, object);
    m_indexes.insert(object, index);
    return true;
}

bool ObjectPool::RemoveByIndex(ENUM_ObjectIndex index)
{
    QMutexLocker lock(&m_mapMutex);
    m_objects.remove(index);
    return true;
}

bool ObjectPool::DeleteObject(ENUM_ObjectIndex index)
{
    VaskObject *object = nullptr;
    {
        QMutexLocker lock(&m_mapMutex);
        if (index >= ENUM_OBJECT_END || !m_objects.contains(index))
            return false;
        object = m_objects.take(index);
        m_indexes.remove(object);
    }
    // Outside the lock: a destructor may look its peers up.
    delete object;
    return true;
}

void ObjectPool::ClearAllObject()
{
    QMap<ENUM_ObjectIndex, VaskObject *> objects;
    {
        QMutexLocker lock(&m_mapMutex);
        objects.swap(m_objects);
        m_indexes.clear();
    }
    qDeleteAll(objects);
}
} // namespace VASK
