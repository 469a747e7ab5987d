// The fixed layouts: the three layers side by side over the whole output.

#include "framework/engine/layers.h"
#include "menu/itemindex.h"

namespace VASK
{
namespace
{
struct Column {
    int width; ///< pixels
    int x;     ///< pixels
};

/// The layer fills a column of the output. A sending card keeps its size for later, and does not show it.
void fillColumn(ParaChange &change, const LayerItems &layer, Column column)
{
    const int values[] = {column.width, outputSize(change).height, column.x, 0};
    const bool hideSize = layer.isMain() && isSendingCard(change);
    for (size_t field = 0; field < std::size(values); ++field) {
        const ENUM_MenuIndex item = layer.geometry()[field];
        const QString value = QString::number(values[field]);
        if (hideSize && (item == layer.width || item == layer.height)) {
            change.set(item, value);
            change.set(layer.customOf(item), value);
            continue;
        }
        if (!change.info(item).enable)
            change.enable(item, true);
        change.show(item, value);
    }
    change.send(layer.y, "0");
    switchLayer(change, layer, true);
}

void applyFixedLayout(ParaChange &change)
{
    constexpr int equalColumns = 3; // 1:1:1
    constexpr int wideMiddle = 4;   // 1:2:1
    const int output = outputSize(change).width;
    const int side = output / (change.value == equalLayout ? equalColumns : wideMiddle);
    for (const LayerItems &layer : layers)
        if (change.item(layer.scaling) != customScaling)
            change.show(layer.scaling, customScaling);
    const Column columns[] = {{output - 2 * side, side}, {side, 0}, {side, output - side}};
    for (const LayerItems &layer : layers)
        fillColumn(change, layer, columns[layer.number]);
    offerMosaic(change, false);
    lockTransition(change);
    change.lowLayerUpdate();
}

void applyLayout(ParaChange &change)
{
    if (change.fromDevice())
        change.tail();
    else if (change.fromUser() && change.value != customLayout)
        applyFixedLayout(change);
}

constexpr ApplyCase cases[] = {
    {MENU_Layout, applyLayout},
};
} // namespace

Table<ApplyCase> layoutCases()
{
    return cases;
}
} // namespace VASK
