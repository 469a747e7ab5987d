#include "framework/engine/limits/limits.h"

#include "framework/object/vaskobject.h"
#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "menu/objectindex.h"
#include "menuconfig_k2860.h"

namespace VASK
{
QString withinLimits(const ST_ItemInfo &item, const QString &value)
{
    if (value.toDouble() < item.min.toDouble())
        return item.min;
    return value.toDouble() > item.max.toDouble() ? item.max : value;
}

QString knownOption(const ST_ItemInfo &item, const QString &value)
{
    return item.params.contains(value) ? value : QStringLiteral("0");
}

void repaintList(ENUM_ObjectIndex row, ENUM_MenuIndex list)
{
    if (auto *widget = dynamic_cast<VaskUiObject *>(ObjectPool::getInstance()->GetObject(row)))
        widget->SetParaEntry(list, QString(), SET_XML_STORE);
}

TableEntry<LimitCase> findLimitCase(ENUM_MenuIndex index)
{
    static const Table<LimitCase> families[] = {
#define FPD_FAMILY(name) name##Limits(),
#include "framework/engine/limits/families.def"
#undef FPD_FAMILY
    };
    static const TableIndex<ENUM_MenuIndex, LimitCase> cases(families);
    return cases.find(index);
}
} // namespace VASK
