// The menu as a user meets it, with rows that note what a page asks of them: the panel with all pages that
// are built at start. Speaks like a user: press a key, turn the knob, look which screen is shown.
#pragma once

#include "framework/engine/brightnessedit.h"
#include "framework/input/keypadevent.h"
#include "framework/input/knobturn.h"
#include "menu/keycodes.h"
#include "menu/pageindex.h"
#include "tests/unit/rig/panelrig.h"
#include "widget/page/menuitemfactory.h"
#include "widget/page/openpage.h"
#include "widget/row/pagerow.h"

namespace VASK
{
inline QStringList &notes()
{
    static QStringList lines;
    return lines;
}

/// Works as the real row of its kind does, and notes every call as a line such as "Up 1 speed 3"; with parts,
/// the cursor walks through them.
class NotingRow : public VaskUiObject, public PageRow
{
public:
    explicit NotingRow(const st_MenuItemInfo &info) : VaskUiObject(info.itemObject)
    {
        const ENUM_ControlType type = info.controlType == TYPE_SUBPAGE ? TYPE_MAINBUTTON : info.controlType;
        const std::unique_ptr<VaskUiObject> real(
            MenuItemFactory::CreateMenuItem(type, info.itemObject, info.menuIndex));
        const auto *row = dynamic_cast<PageRow *>(real.get());
        m_okKind = row->okKind();
        m_hasParts = row->hasParts();
    }

    OkKind okKind() const override { return m_okKind; }
    bool hasParts() const override { return m_hasParts; }
    bool CurrentItemEnabled() override { return optionEnabled; }
    void EnterEntry(ENUM_MenuIndex i, QWidget *, unsigned char edit, unsigned char) override
    {
        note("List", i, edit);
    }
    void EnterEntry(ENUM_MenuIndex i, unsigned char edit, unsigned char entered) override
    {
        note("Number", i, edit, entered);
    }
    void EnterEntry(ENUM_MenuIndex i) override { note("Enter", i); }
    void UpdateTagName(ENUM_MenuIndex i, QString name) override { note("Tag", i, name); }
    void UpdateALLUI(ENUM_MenuIndex i) override { note("Reload", i); }
    void EscEntry(ENUM_MenuIndex i) override { note("EscList", i); }
    void EscEntry(ENUM_MenuIndex i, unsigned char entered) override { note("Esc", i, entered); }
    void UpEntry(ENUM_MenuIndex i) override { note("Up", i); }
    void UpEntry(ENUM_MenuIndex i, unsigned char &speed) override
    {
        note(KnobTurn::runs() ? "UpTurned" : "Up", i, speed);
    }
    void UpEntry(ENUM_MenuIndex, unsigned char &speed, bool first) override { walk(speed, -1, first); }
    void DownEntry(ENUM_MenuIndex i) override { note("Down", i); }
    void DownEntry(ENUM_MenuIndex i, unsigned char &speed) override
    {
        note(KnobTurn::runs() ? "DownTurned" : "Down", i, speed);
    }
    void DownEntry(ENUM_MenuIndex, unsigned char &speed, bool last) override { walk(speed, 1, last); }
    void ChangeStyleEntry(ENUM_MenuIndex i, unsigned char on) override { note("Style", i, on); }
    void SetParaEntry(ENUM_MenuIndex i, QString value, ENUM_MODE_SET_XML mode) override
    {
        note("Set", i, value, int(mode));
    }

    bool optionEnabled = true;
    int parts = 2;
    int part = 0; ///< 1 to parts, 0 none

private:
    template <class... Values> void note(const char *what, ENUM_MenuIndex index, Values... values)
    {
        QStringList words{QString(what), QString::number(int(index))};
        (words.append(QVariant(values).toString()), ...);
        notes() << words.join(' ');
    }
    void walk(unsigned char &speed, int direction, bool end)
    {
        const int outermost = direction < 0 ? 1 : parts;
        if (end && part == outermost) {
            speed = 0;
            return;
        }
        if (part == 0)
            part = direction < 0 ? parts + 1 : 0;
        for (; speed; --speed) {
            part += direction;
            if (part < 1 || part > parts) {
                part = 0;
                return;
            }
        }
    }

    OkKind m_okKind;
    bool m_hasParts;
};

class PageRig : public PanelRig
{
public:
    enum Rows { Noting, Real };
    explicit PageRig(Rows rows = Noting)
    {
        if (rows == Real)
            built = DirectoryEngineer(ENUM_DIRECTORY_ENGINEER).CreateAllMenu();
        else
            for (ENUM_ConfigIndex config : builtPages())
                enter(g_config[config].object, makePage(g_config[config], config));
    }

    /// A page with noting rows.
    static MenuDirectory *makePage(const ST_MenuConfig &info, ENUM_ConfigIndex config = CONFIG_END)
    {
        for (const st_MenuItemInfo &row : info.rowsMap)
            enter(row.itemObject, new NotingRow(row));
        auto *page = new MenuDirectory(info.object);
        page->SetTitleInfo(info.width, info.rows, info.title, info.styleSheet, info.englishStyleSheet);
        page->InsertMenuItem(info.rowsMap);
        page->BuildMenuDirectory(config);
        return page;
    }

    /// The home screen alone, the cursor of every page at the top, the factory items.
    void reset()
    {
        resetItems();
        OpenPage::hideAll();
        for (ENUM_ConfigIndex config : builtPages()) {
            MenuDirectory *shown = page(g_config[config].object);
            if (shown->isEditing())
                shown->keypadEScEvent(nullptr);
            shown->setRowCount(g_config[config].rows);
            shown->setCurrentRow(0);
        }
        OpenPage::set(ENUM_MAIN_MENU);
        BrightnessEdit::end();
        home->show();
        notes().clear();
        device->sent.take();
        messages.clear();
        answer = 1;
        answering = true;
    }

    static MenuDirectory *page(ENUM_ObjectIndex object) { return poolObject<MenuDirectory>(object); }
    static NotingRow *row(ENUM_ObjectIndex object) { return poolObject<NotingRow>(object); }
    void set(ENUM_MenuIndex item, const QString &value)
    {
        if (item >= PARA_CabinetWidth)
            engine->SaveProcessData(value, item);
        else
            store->UpdataItemCurValue(item, value);
    }

    /// A page opened as by OK on the home screen and below, without walking there.
    static MenuDirectory *open(ENUM_ObjectIndex object, QWidget *parent)
    {
        MenuDirectory *shown = page(object);
        shown->setParentScreen(parent);
        parent->hide();
        shown->show();
        OpenPage::set(object);
        return shown;
    }

    // The keypad: short press, long press, knob, to whatever is shown.
    void press(unsigned char key)
    {
        send(KEY_PRESSED, key, 1);
        send(KEY_RELEASED, key, 1);
    }
    void hold(unsigned char key) { send(KEY_LONG_PRESS, key, 1); }
    void turn(int rows)
    {
        send(KEY_PRESSED, rows < 0 ? KEY_KNOB_LEFT : KEY_KNOB_RIGHT, static_cast<unsigned char>(qAbs(rows)));
    }
    void send(KEY_TYPE type, unsigned char key, unsigned char speed)
    {
        KeypadEvent event(type, key, speed, type == KEY_LONG_PRESS);
        QCoreApplication::sendEvent(shown(), &event);
    }

    /// The one screen that is visible; null if there is none or more than one.
    QWidget *shown() const
    {
        QWidget *visible = nullptr;
        const QWidgetList windows = QApplication::topLevelWidgets();
        for (QWidget *window : windows) {
            if (!window->isVisible() || (window != home && !dynamic_cast<MenuDirectory *>(window)))
                continue;
            if (visible)
                return nullptr;
            visible = window;
        }
        return visible;
    }

    bool built = false; ///< real rows: could all be built?
};
} // namespace VASK
