// The ten presets: OK on a row of the preset page opens their dialog, OK on the page of copy targets copies.

#include "framework/engine/parachange.h"
#include "framework/engine/presets.h"

#include "framework/input/keypadevent.h"
#include "framework/store/menuanalysis.h"
#include "framework/ui/dialogs.h"
#include "framework/ui/language.h"
#include "framework/ui/pages.h"
#include "menu/itemindex.h"
#include "menu/keycodes.h"
#include "menu/menutypes.h"
#include "menu/objectindex.h"
#include "menu/pageindex.h"

namespace VASK
{
namespace
{
const QString blank = QStringLiteral("Blank"); ///< nothing stored
const QString saved = QStringLiteral("Saved"); ///< stored, not loaded
const QString used = QStringLiteral("Used");   ///< stored and loaded
constexpr int noPreset = 255;                  ///< in PARA_PresetInUse

/// One of the presets, from 0, with its row on each of the two pages.
class Preset
{
public:
    Preset(ParaChange &change, int number) : m_change(change), m_number(number) {}

    int number() const { return m_number; }
    ENUM_MenuIndex item() const { return nth(MENU_Preset1, m_number); }
    QString state() const { return m_change.item(item()); }
    QString name() const { return m_change.info(item()).tag; }
    QString factoryName() const { return QStringLiteral("Preset%1").arg(m_number + 1); }
    bool isNamed() const { return m_change.engine.presets().isNamed(m_number); }

    void become(const QString &state) const
    {
        const bool loaded = state == used;
        m_change.store.changeItem(item(), [&state, loaded](ST_ItemInfo &information) {
            information.value = state;
            information.icon =
                imgPath + (loaded ? "sceneSetting/sceneused.png" : "sceneSetting/sceneunused.png");
        });
        reload();
    }
    void rename(const QString &name, bool named) const
    {
        m_change.store.changeItem(item(), [&name](ST_ItemInfo &information) { information.tag = name; });
        m_change.engine.presets().setNamed(m_number, named);
    }
    void enable(bool on) const
    {
        m_change.enable(item(), on);
        reload();
    }
    void reload() const { Presets::reloadRows(m_number); }
    /// The commands have no item of their own: the preset's row hands them over.
    void send(ENUM_MenuIndex command, const QString &value) const
    {
        if (auto *row = poolObject<VaskUiObject>(nth(ENUM_ROW_Preset1, m_number)))
            row->CallProtocol(value, command);
    }
    void send(ENUM_MenuIndex command) const { send(command, QString::number(m_number)); }

private:
    ParaChange &m_change;
    int m_number;
};

/// Shows one message after the other. False if one cannot be made, which ends the case.
bool tell(ParaChange &change, std::initializer_list<ENUM_MenuIndex> messages)
{
    for (ENUM_MenuIndex message : messages)
        if (!runMessage(&change.engine, message))
            return false;
    return true;
}

/// Only the user's own yes counts: a question that is closed by a PC's taking over has another result.
bool confirmed(ParaChange &change, ENUM_MenuIndex question, const Preset &preset)
{
    const QString name = translated(preset.name()) + "?";
    return runMessage(&change.engine, question, englishChosen() ? " " + name : name) == QDialog::Accepted;
}

// The actions of the dialog. False where the case ends early.

bool savePreset(ParaChange &change, const Preset &preset)
{
    if (preset.state() == saved && !confirmed(change, MSG_IfCoverPreset, preset))
        return false;
    preset.send(EVENT_PresetSave);
    if (!tell(change, {MSG_Waiting, MSG_PresetSaveSucceed}))
        return false;
    preset.become(saved);
    return true;
}

bool loadPreset(ParaChange &change, const Preset &preset)
{
    preset.send(EVENT_PresetLoad);
    if (!tell(change, {MSG_Waiting, MSG_PresetLoadSucceed}))
        return false;
    preset.become(used);
    const int last = change.number(PARA_PresetInUse);
    // One that a reset has emptied in the meantime stays empty.
    if (last != preset.number() && Presets::exists(last) && Preset(change, last).state() != blank)
        Preset(change, last).become(saved);
    change.set(PARA_PresetInUse, QString::number(preset.number()));
    return true;
}

bool clearPreset(ParaChange &change, const Preset &preset)
{
    if (!confirmed(change, MSG_DeletePresetConfirm, preset))
        return false;
    preset.send(EVENT_PresetDelete);
    if (!tell(change, {MSG_Waiting, MSG_PresetDeleteSucceed}))
        return false;
    if (change.number(PARA_PresetInUse) == preset.number())
        change.set(PARA_PresetInUse, QString::number(noPreset));
    preset.rename(preset.factoryName(), false);
    preset.become(blank);
    return true;
}

/// The source cannot be chosen as its own target.
bool openCopyPage(ParaChange &, const Preset &preset)
{
    auto *presets = poolObject<Page>(ENUM_PAGE_PresetSettings);
    Page *targets = pageOrBuild(ENUM_PAGE_PresetCopyTo, CONFIG_PresetCopyTo);
    if (!presets || !targets)
        return true;
    ParaProcess::m_CopySceneNum = preset.number();
    preset.enable(false);
    targets->setParentScreen(presets);
    targets->setCurrentRow(0);
    // The new page comes up before the old one goes, so that the LCD never shows what lies below.
    targets->show();
    presets->hide();
    Pages::instance()->noteOpen(ENUM_PAGE_PresetCopyTo);
    return true;
}

void runPresetDialog(ParaChange &change, const Preset &preset)
{
    constexpr bool (*actions[])(ParaChange &, const Preset &) = {savePreset, loadPreset, clearPreset,
                                                                 openCopyPage};
    const bool empty = preset.state() == blank;
    if (empty)
        qDebug() << "kongbai";
    Dialogs *dialogs = Dialogs::instance();
    const int chosen = dialogs ? dialogs->presetAction(&change.engine, preset.name(), empty) : 0;
    if (chosen > 0 && !actions[chosen - 1](change, preset))
        return;
    change.tail();
}

void copyTo(ParaChange &change, const Preset &target)
{
    const Preset source(change, ParaProcess::m_CopySceneNum);
    if (!Presets::exists(source.number()) || source.number() == target.number())
        return;
    if (target.state() == saved && !confirmed(change, MSG_IfCoverPreset, target))
        return;
    target.send(EVENT_PresetCopy, QStringLiteral("%1_%2").arg(source.number()).arg(target.number()));
    // One that the device keeps without a name stands under its own number.
    if (source.isNamed())
        target.rename(source.name() == source.factoryName() ? target.factoryName() : source.name(), true);
    target.become(saved);
    if (!tell(change, {MSG_Waiting, MSG_PresetCopySucceed}))
        return;
    source.enable(true);
    // Back as by ESC, unless a PC's taking over has led home already.
    auto *targets = poolObject<Page>(ENUM_PAGE_PresetCopyTo);
    if (targets && targets->isVisible())
        postEsc(*targets);
}

void applyPreset(ParaChange &change)
{
    if (!change.fromUser())
        return change.tail();
    const Preset preset(change, change.member);
    const auto *targets = poolObject<Page>(ENUM_PAGE_PresetCopyTo);
    if (targets && frontWindow() == targets)
        copyTo(change, preset);
    else
        runPresetDialog(change, preset);
}

constexpr ApplyCase cases[] = {
    {each(FAMILY_Preset, MENU_Preset1), applyPreset},
};
} // namespace

Table<ApplyCase> presetCases()
{
    return cases;
}

void quickLoadPreset(ParaProcess &engine, MenuAnalysis &store, int number)
{
    if (!Presets::exists(number))
        return;
    ParaChange change(engine, store, QString(), nth(MENU_Preset1, number), SET_XML_USER);
    const Preset preset(change, number);
    if (preset.state() == blank)
        change.dialog(MSG_PresetLoadEmpty);
    else
        loadPreset(change, preset);
}
} // namespace VASK
