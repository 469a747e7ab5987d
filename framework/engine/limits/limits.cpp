#include "framework/engine/limits/limits.h"

#include "framework/object/vaskobject.h"
#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "menu/objectindex.h"

#include <algorithm>
#include <array>

namespace VASK
{
void repaintList(ENUM_ObjectIndex row, ENUM_MenuIndex list)
{
    if (auto *widget = dynamic_cast<VaskUiObject *>(ObjectPool::getInstance()->GetObject(row)))
        widget->SetParaEntry(list, QString(), SET_XML_STORE);
}

const LimitCase *findLimitCase(ENUM_MenuIndex index)
{
    static const std::array<LimitFamily, 3> families{screenLimits(), layerLimits(), edidLimits()};
    for (const LimitFamily &family : families) {
        const LimitCase *end = family.cases + family.count;
        const LimitCase *found = std::find_if(family.cases, end, [index](const LimitCase &row) {
            return index >= row.first && index <= row.last;
        });
        if (found != end)
            return found;
    }
    return nullptr;
}
} // namespace VASK
