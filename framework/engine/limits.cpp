#include "framework/engine/limits.h"

#include <algorithm>
#include <array>

namespace VASK
{
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
