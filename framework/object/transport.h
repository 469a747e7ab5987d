// A thin facade over the object pool, for places where only the facade is at hand. Main thread for
// insertions.
#pragma once

#include "framework/object/vaskobject.h"
#include "menu/objectindex.h"

namespace VASK
{
class transport : public VaskObject
{
    Q_OBJECT
public:
    explicit transport(ENUM_ObjectIndex index) : VaskObject(index) {}
    int BuildHandshake(VaskObject const *, QMap<QString, QString>) override { return 0; }

    bool InsertObject(ENUM_ObjectIndex index, VaskObject *object)
    {
        return CreateObjectToPool(index, object);
    }
    VaskObject *GetObjectFromPoolFromTran(ENUM_ObjectIndex index) const { return GetObjectFromPool(index); }
};
} // namespace VASK
