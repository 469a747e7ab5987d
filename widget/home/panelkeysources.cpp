// The keys of the inputs.

#include "widget/home/panelkeys.h"

#include "framework/engine/paraprocess.h"
#include "framework/engine/processdata.h"
#include "menu/itemindex.h"
#include "menu/keycodes.h"
#include "menu/menutypes.h"
#include "menu/objectindex.h"
#include "menuconfig_k2860.h"
#include "widget/home/panellayers.h"
#include "widget/page/openpage.h"

namespace VASK
{
namespace
{
struct SourceKey {
    ENUM_KeyCode key;
    unsigned char source;
    /// The input's own page; inputs that this model lacks have none in the pool.
    ENUM_ObjectIndex page;
};

constexpr SourceKey sourceKeys[] = {
    {KEY_INPUT1, 0, ENUM_PAGE_HDMI1},       {KEY_INPUT2, 1, ENUM_PAGE_HDMI2},
    {KEY_INPUT3, 2, ENUM_PAGE_DVI},         {KEY_INPUT4, 3, ENUM_PAGE_SDI},
    {KEY_INPUT6, 5, ENUM_PAGE_DVI2},        {KEY_INPUT7, 6, ENUM_OBJECT_END},
    {KEY_INPUT8, 7, ENUM_PAGE_MosaicSplit},
};

constexpr unsigned char sdiSource = 3;
constexpr ENUM_MenuIndex sdiSourceCode = inputItem(sdiSource, FIELD_SourceCode);
const QString noSuchInput = QStringLiteral("255");

const SourceKey *findSource(unsigned char key)
{
    for (const SourceKey &entry : sourceKeys)
        if (entry.key == key)
            return &entry;
    return nullptr;
}

void setSource(const ParaProcess &engine, const PanelLayer &layer, const QString &source)
{
    ST_ItemInfo item;
    engine.GetInfoFromIndex(layer.items.source, item);
    if (!item.params1.contains(source) || item.params1.value(source) == optionDisable)
        return;
    if (auto *row = poolObject<VaskUiObject>(layer.sourceRow))
        row->SetParaEntry(layer.items.source, source, SET_XML_USER);
}
} // namespace

unsigned char GetSourceNum(unsigned char key)
{
    const SourceKey *entry = findSource(key);
    if (!entry)
        return noSource;
    const auto *engine = poolObject<ParaProcess>(ENUM_PARAPROCESS);
    if (entry->source == sdiSource && engine && engine->GetParaFromIndex(sdiSourceCode) == noSuchInput)
        return noSource;
    return entry->source;
}

void keypadSourceEvent(QWidget *, unsigned char key)
{
    const unsigned char number = GetSourceNum(key);
    const auto *engine = poolObject<ParaProcess>(ENUM_PARAPROCESS);
    if (number == noSource || !engine)
        return;
    const unsigned char open = OpenPage::layer();
    qDebug() << "m_currentLayer == " << open;
    const QString source = QString::number(number);
    if (OpenPage::number() == ENUM_PAGE_MosaicSplit) {
        if (auto *row = poolObject<VaskUiObject>(ENUM_ROW_Mosaic_Arrangement))
            row->SetParaEntry(MENU_Mosaic_Arrangement, source, SET_XML_USER);
        return;
    }
    const bool toOpenLayer = open < panelLayers.size() && currentWorkMode() != WORK_SENDER;
    setSource(*engine, panelLayers[toOpenLayer ? open : size_t(mainLayer)], source);
}

void keypadSourceLongEvent(QWidget *screen, unsigned char key)
{
    if (currentWorkMode() == WORK_SENDER) {
        openMenuPath(screen, {ENUM_MAIN_MENU, ENUM_PAGE_InputSettings});
        return;
    }
    const SourceKey *entry = findSource(key);
    if (entry && entry->page != ENUM_OBJECT_END && GetSourceNum(key) != noSource)
        openMenuPath(screen, {ENUM_MAIN_MENU, ENUM_PAGE_InputSettings, entry->page});
}
} // namespace VASK
