#include "client/storerules.h"

#include "client/names/itemnames.h"
#include "menu/itemfamilies.h"

using namespace VASK;

namespace storerules
{
namespace
{
struct Exception {
    Span<ENUM_MenuIndex> items;
    enum { Below, Empty } how; ///< what the value may be
    const char *reason;
};

constexpr Exception exceptions[] = {
    {each(FAMILY_Crop, MENU_MainLayerCrop_HorWidth, MENU_MainLayerCrop_VerHeight), Exception::Below,
     "of an input without a size, or behind a start at its rim, nothing is left to cut"},
    {each({STRIDE_CustomScaling, 3}, MENU_MainLayer_CustomX, MENU_MainLayer_CustomY), Exception::Below,
     "the start of a layer, which it remembers, reaches one pixel further"},
    {MENU_Mode3D_RightEyeStart, Exception::Empty, "the start of the format in use can be unknown"},
};

bool mayBe(decltype(Exception::how) how, ENUM_MenuIndex index)
{
    bool found = false;
    for (const Exception &row : exceptions)
        if (row.how == how)
            row.items.forEach([&](ENUM_MenuIndex item, int, int) { found |= item == index; });
    return found;
}

bool isNumber(const ST_ItemInfo &factory)
{
    return factory.min != factory.max;
}

bool isInside(const ST_ItemInfo &item)
{
    bool ok = false;
    const double value = item.value.toDouble(&ok);
    if (item.value.isEmpty() && mayBe(Exception::Empty, item.index))
        return true;
    return ok && value <= item.max.toDouble() &&
           (value >= item.min.toDouble() || mayBe(Exception::Below, item.index));
}
} // namespace

bool isRuled(ENUM_MenuIndex index)
{
    const ST_ItemInfo factory = g_MenuXmlConfig.value(index);
    return isNumber(factory) || !factory.params.isEmpty() || !factory.choice.isEmpty();
}

QString fault(const ST_ItemInfo &item)
{
    const ST_ItemInfo &factory = *g_MenuXmlConfig.constFind(item.index);
    const auto is = [&item](const QString &what) {
        return itemnames::line(item.index, item.value) + " is " + what;
    };
    if (!factory.choice.isEmpty() && item.choice != SELECTED && item.choice != UNSELECTED)
        return is("marked " + item.choice);
    if (isNumber(factory) && (item.min != factory.min || item.max != factory.max || !isInside(item)))
        return is("not within " + item.min + " to " + item.max);
    if (!item.params.isEmpty() && !item.params.contains(item.value))
        return is("no option");
    return QString();
}
} // namespace storerules
