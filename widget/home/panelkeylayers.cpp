// The keys of the layers and of the scaling.

#include "widget/home/panelkeys.h"

#include "framework/engine/keyleds.h"
#include "framework/engine/paraprocess.h"
#include "menu/itemindex.h"
#include "menu/itemvalue.h"
#include "menu/menutypes.h"
#include "menu/objectindex.h"
#include "menuconfig_k2860.h"
#include "widget/home/panellayers.h"
#include "widget/page/openpage.h"

namespace VASK
{
namespace
{

int layerOfKey(unsigned char key)
{
    for (size_t layer = 0; layer < panelLayers.size(); ++layer)
        if (panelLayers[layer].key == key)
            return int(layer);
    return -1;
}

bool isOn(const ParaProcess &engine, const PanelLayer &layer)
{
    return !isOff(engine.GetParaFromIndex(layer.items.status));
}

void setRow(ENUM_ObjectIndex row, ENUM_MenuIndex item, const QString &value)
{
    if (auto *widget = poolObject<VaskUiObject>(row))
        widget->SetParaEntry(item, value, SET_XML_USER);
}

/// The mosaic takes the whole picture: no layer can be put over it.
bool mainLayerShowsMosaic(const ParaProcess &engine)
{
    ST_ItemInfo source;
    engine.GetInfoFromIndex(panelLayers[mainLayer].items.source, source);
    return source.params.value(source.value) == mosaicOption;
}
} // namespace

void keypadLayerEvent(QWidget *screen, unsigned char key)
{
    const int number = layerOfKey(key);
    auto *engine = poolObject<ParaProcess>(ENUM_PARAPROCESS);
    if (number < 0 || !engine)
        return;
    // A sending card has one layer only.
    if (number != mainLayer && currentWorkMode() == WORK_SENDER)
        return;
    const PanelLayer &layer = panelLayers[size_t(number)];
    if (!isOn(*engine, layer) && (number == mainLayer || !mainLayerShowsMosaic(*engine)))
        setRow(layer.statusRow, layer.items.status, switchOn);
    openMenuPath(screen, {ENUM_MAIN_MENU, ENUM_PAGE_LayerSettings, layer.page});
}

void keypadLayerLongEvent(QWidget *, unsigned char key)
{
    const int number = layerOfKey(key);
    auto *engine = poolObject<ParaProcess>(ENUM_PARAPROCESS);
    if (number < 0 || !engine)
        return;
    const PanelLayer &layer = panelLayers[size_t(number)];
    if (!isOn(*engine, layer))
        return;
    setRow(layer.statusRow, layer.items.status, switchOff);
    showLayerLeds(OpenPage::layer());
}

void keypadScaleEvent(QWidget *, unsigned char)
{
    auto *engine = poolObject<ParaProcess>(ENUM_PARAPROCESS);
    if (!engine || isOn(engine->GetParaFromIndex(MENU_ImageMosaic_Status)))
        return;
    const size_t lowest = engine->GetParaFromIndex(PARA_LowestLayer).toUInt();
    if (lowest >= panelLayers.size())
        return;
    const PanelLayer &layer = panelLayers[lowest];
    ST_ItemInfo scaling;
    engine->GetInfoFromIndex(layer.items.scaling, scaling);
    const QString next = scaling.value == fullScreen ? customScaling : fullScreen;
    if (next == fullScreen && scaling.params1.value(fullScreen) == optionDisable)
        return;
    setRow(layer.scalingRow, layer.items.scaling, next);
}
} // namespace VASK
