// The registry through which the objects of the program find each other by number, and the one helper that
// every look-up uses. Filled on the main thread during start-up; look-ups come from any thread and take a
// short lock.
#pragma once

#include "menu/objectindex.h"

#include <QDebug>
#include <QMap>
#include <QMutex>

namespace VASK
{
class VaskObject;

class ObjectPool
{
public:
    /// The singleton; created on first use, kept for the life of the process.
    static ObjectPool *getInstance();

    int Size() const;
    bool IsExist(ENUM_ObjectIndex index) const;
    /// The object under the number, null if there is none.
    VaskObject *GetObject(ENUM_ObjectIndex index) const;
    /// The object's number; ENUM_OBJECT_END if it has none.
    ENUM_ObjectIndex GetObjectIndex(VaskObject *object) const;
    /// False for a null object or a number of ENUM_OBJECT_END or more; a number in use takes the new object.
    bool InsertData(ENUM_ObjectIndex index, VaskObject *object);
    bool RemoveByIndex(ENUM_ObjectIndex index);
    /// Removes the entry and destroys the object; false for a number without an entry.
    bool DeleteObject(ENUM_ObjectIndex index);
    void ClearAllObject();

private:
    ObjectPool() = default;

    static ObjectPool *m_pInstance;
    static QMutex m_mutex;

    mutable QMutex m_mapMutex;
    QMap<ENUM_ObjectIndex, VaskObject *> m_objects;
    QMap<VaskObject *, ENUM_ObjectIndex> m_indexes;
};

/// The peer under a number as the class that the caller expects: look-up, null test and checked downcast in
/// one. Null, with a log line, if any of them fails.
template <class Peer> Peer *poolObject(ENUM_ObjectIndex index)
{
    VaskObject *object = ObjectPool::getInstance()->GetObject(index);
    Peer *peer = dynamic_cast<Peer *>(object);
    if (!peer)
        qDebug() << "no such object in the pool:" << int(index);
    return peer;
}
} // namespace VASK
