#include "framework/engine/presets.h"

#include "framework/engine/paraprocess.h"
#include "framework/engine/start/snapshotmirror.h"
#include "framework/store/menuanalysis.h"
#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "menu/objectindex.h"

#include <QTextCodec>

namespace VASK
{
namespace
{
ENUM_MenuIndex itemOf(int preset)
{
    return nth(MENU_Preset1, preset);
}

/// Name and state of a preset, from 0, as its record tells them. True if the device keeps the preset.
bool decodePreset(const SnapshotBlock &record, int preset, ST_ItemInfo &item)
{
    static QTextCodec *const codec = QTextCodec::codecForName("GB2312");
    const bool stored = record.u8(PRESET_Stored) == deviceOn;
    item.tag = QString("Preset%1").arg(preset + 1);
    item.value = stored ? "Saved" : "Blank";
    if (stored) {
        const QByteArray name = record.bytes(PRESET_Name, presetNameLength);
        const QString text = codec->toUnicode(name.left(int(qstrnlen(name.constData(), uint(name.size())))));
        if (!text.isEmpty())
            item.tag = text;
    }
    return stored;
}
} // namespace

void Presets::load(MenuAnalysis &store, int inUse)
{
    for (int preset = 0; preset < count; ++preset) {
        const ENUM_MenuIndex index = itemOf(preset);
        ST_ItemInfo item;
        store.GetMenuItem(index, item);
        // The panel may have gone off while a copy had the preset as its source.
        item.enable = true;
        SnapshotBlock record(SNAPSHOT_FirstPreset + unsigned(preset) * LENGTH_Preset, LENGTH_Preset);
        if (record.read())
            m_named[size_t(preset)] = decodePreset(record, preset, item);
        else if (item.value == "Used")
            item.value = "Saved"; // which one is in use now is known
        item.icon =
            imgPath + (preset == inUse ? "sceneSetting/sceneused.png" : "sceneSetting/sceneunused.png");
        if (preset == inUse)
            item.value = "Used";
        store.updataMenuItem(index, item);
        reloadRows(preset);
    }
    m_engine.SaveProcessData(QString::number(inUse), PARA_PresetInUse);
}

void Presets::reloadRows(int preset)
{
    for (ENUM_ObjectIndex first : {ENUM_ROW_PresetCopy1, ENUM_ROW_Preset1})
        if (auto *row = poolObject<VaskUiObject>(nth(first, preset)))
            row->UpdateALLUI(itemOf(preset));
}

void Presets::giveBackCopied()
{
    const int preset = ParaProcess::m_CopySceneNum;
    if (preset < 0)
        return;
    if (auto *store = poolObject<MenuAnalysis>(ENUM_MENUANALYSIS))
        store->UpdataItemEnable(itemOf(preset), true);
    // Both pages have shown it as off.
    reloadRows(preset);
}
} // namespace VASK
