// The ten presets: OK on a row of the preset page opens their dialog, OK on the page of copy targets copies.

#include "framework/engine/pages.h"
#include "framework/engine/parachange.h"

#include "framework/input/keypadevent.h"
#include "framework/store/menuanalysis.h"
#include "menu/itemindex.h"
#include "menu/keycodes.h"
#include "menu/menutypes.h"
#include "menu/objectindex.h"
#include "menu/pageindex.h"
#include "widget/dialog/dialog_scene.h"
#include "widget/language.h"
#include "widget/page/menudirectoty.h"

#include <QApplication>
#include <memory>

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

    static bool exists(int number) { return number >= 0 && number < ParaProcess::presetCount; }
    int number() const { return m_number; }
    ENUM_MenuIndex item() const { return nth(MENU_Preset1, m_number); }
    QString state() const { return m_change.item(item()); }
    QString name() const { return m_change.info(item()).tag; }
    QString factoryName() const { return QStringLiteral("Preset%1").arg(m_number + 1); }
    bool isNamed() const { return m_change.engine.presetNamed(m_number); }

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
        m_change.engine.setPresetNamed(m_number, named);
    }
    void enable(bool on) const
    {
        m_change.enable(item(), on);
        reload();
    }
    void reload() const
    {
        for (ENUM_ObjectIndex first : {ENUM_ROW_PresetCopy1, ENUM_ROW_Preset1})
            if (auto *row = poolObject<VaskUiObject>(nth(first, m_number)))
                row->UpdateALLUI(item());
    }
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

std::unique_ptr<QDialog> createMessage(ParaChange &change, ENUM_MenuIndex message, const QString &text = {})
{
    std::unique_ptr<QDialog> box(change.engine.CreateDialog(message, text));
    if (!box)
        qDebug() << "qDialog create faild! index:" << int(message);
    return box;
}

/// Shows one message after the other. False if one cannot be made, which ends the case.
bool tell(ParaChange &change, std::initializer_list<ENUM_MenuIndex> messages)
{
    for (ENUM_MenuIndex message : messages) {
        const auto box = createMessage(change, message);
        if (!box)
            return false;
        box->exec();
    }
    return true;
}

/// Only the user's own yes counts: a question that is closed by a PC's taking over has another result.
bool confirmed(ParaChange &change, ENUM_MenuIndex question, const Preset &preset)
{
    const QString name = translated(preset.name()) + "?";
    const auto box = createMessage(change, question, englishChosen() ? " " + name : name);
    return box && box->exec() == QDialog::Accepted;
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
    if (last != preset.number() && Preset::exists(last) && Preset(change, last).state() != blank)
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
bool openCopyPage(ParaChange &change, const Preset &preset)
{
    auto *presets = poolObject<MenuDirectory>(ENUM_PAGE_PresetSettings);
    MenuDirectory *targets = pageOrBuild(change.engine, ENUM_PAGE_PresetCopyTo, CONFIG_PresetCopyTo);
    if (!presets || !targets)
        return true;
    ParaProcess::m_CopySceneNum = preset.number();
    preset.enable(false);
    targets->m_pparerentdirectory = presets;
    targets->setCurrentRow(0);
    // The new page comes up before the old one goes, so that the LCD never shows what lies below.
    targets->show();
    presets->hide();
    MenuDirectory::setCurrentPage(ENUM_PAGE_PresetCopyTo);
    return true;
}

void runPresetDialog(ParaChange &change, const Preset &preset)
{
    constexpr bool (*actions[])(ParaChange &, const Preset &) = {savePreset, loadPreset, clearPreset,
                                                                 openCopyPage};
    constexpr unsigned char saveFirst = 1, loadFirst = 2;
    const bool empty = preset.state() == blank;
    if (empty)
        qDebug() << "kongbai";
    const QString pictures = imgPath + "sceneSetting/";
    const auto dialog = std::make_unique<Dialog_scene>(
        &change.engine, preset.name(), pictures + "save.png", "Save", pictures + "load.png", "Load",
        pictures + "delete.png", "Clear", pictures + "copy.png", "CopyTo", empty ? "2.3.4" : "",
        empty ? saveFirst : loadFirst);
    const int chosen = dialog->exec();
    if (chosen > 0 && !actions[chosen - 1](change, preset))
        return;
    change.tail();
}

void copyTo(ParaChange &change, const Preset &target)
{
    const Preset source(change, ParaProcess::m_CopySceneNum);
    if (!Preset::exists(source.number()) || source.number() == target.number())
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
    auto *targets = poolObject<MenuDirectory>(ENUM_PAGE_PresetCopyTo);
    if (targets && targets->isVisible())
        QCoreApplication::postEvent(targets, new KeypadEvent(KEY_RELEASED, KEY_ESC, 1, false));
}

void applyPreset(ParaChange &change)
{
    if (!change.fromUser())
        return change.tail();
    const Preset preset(change, change.index - MENU_Preset1);
    const auto *targets = poolObject<MenuDirectory>(ENUM_PAGE_PresetCopyTo);
    if (targets && QApplication::activeWindow() == targets)
        copyTo(change, preset);
    else
        runPresetDialog(change, preset);
}

constexpr ApplyCase cases[] = {
    {MENU_Preset1, MENU_Preset10, applyPreset},
};
} // namespace

ApplyFamily presetFamily()
{
    return {cases, int(std::size(cases))};
}

void ParaProcess::QuickLoadScene(int number)
{
    MenuAnalysis *store = neededStore();
    if (!store || !Preset::exists(number))
        return;
    ParaChange change(*this, *store, QString(), nth(MENU_Preset1, number), SET_XML_USER);
    const Preset preset(change, number);
    if (preset.state() == blank)
        change.dialog(MSG_PresetLoadEmpty);
    else
        loadPreset(change, preset);
}
} // namespace VASK
