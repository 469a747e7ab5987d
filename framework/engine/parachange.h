// One change of one parameter on its way through the engine, with the verbs of which every case is made.
// Lives for one call of SetParaToXml, on the thread of its caller; what touches a widget brings itself to the
// GUI thread.
#pragma once

#include "framework/engine/device.h"
#include "framework/engine/homeupdater.h"
#include "framework/engine/paraprocess.h"
#include "framework/table.h"
#include "menu/itemfamilies.h"
#include "menu/itemindex.h"
#include "menu/itemvalue.h"
#include "menu/menutypes.h"
#include "menuconfig_k2860.h"

#include <QVector>
#include <functional>

namespace VASK
{
class MenuAnalysis;

struct ParaChange {
    ParaChange(ParaProcess &paraProcess, MenuAnalysis &menuStore, const QString &newValue,
               ENUM_MenuIndex menuIndex, ENUM_MODE_SET_XML setMode);

    ParaProcess &engine;
    MenuAnalysis &store;
    QString value;
    QString oldValue; ///< what the item held before the call
    ENUM_MenuIndex index;
    ENUM_MODE_SET_XML mode;
    int member = 0; ///< number of the layer, input or port that the item belongs to, as its case counts them

    bool fromUser() const { return mode == SET_XML_USER; }
    bool fromDevice() const { return mode == SET_XML_DEVICE; }
    bool turnsOn() const { return VASK::isOn(value); }
    bool turnsOff() const { return VASK::isOff(value); }
    bool changed() const { return value != oldValue; }
    HomeUpdater &home() const;

    // Readers
    QString item(ENUM_MenuIndex item) const;
    int number(ENUM_MenuIndex item) const;
    bool isOn(ENUM_MenuIndex item) const { return VASK::isOn(this->item(item)); }
    bool isOff(ENUM_MenuIndex item) const { return VASK::isOff(this->item(item)); }
    ST_ItemInfo info(ENUM_MenuIndex item) const;
    /// The text of the option that a list has chosen.
    QString chosenOption(ENUM_MenuIndex list) const;

    // Verbs. Those of a widget pass by an item that has none: no page of this model is built with it.
    void set(ENUM_MenuIndex item, const QString &newValue);
    void choice(ENUM_MenuIndex item, bool chosen);
    void enable(ENUM_MenuIndex item, bool on);
    /// The widget reloads the item.
    void refresh(ENUM_MenuIndex item);
    /// The widget stores and shows the value, and sends nothing.
    void show(ENUM_MenuIndex item, const QString &newValue);
    /// The value goes to the device.
    void send(ENUM_MenuIndex item, const QString &newValue);
    /// Runs the message of an item and gives its result; 0 if there is none. From the report thread the home
    /// screen shows it instead.
    int dialog(ENUM_MenuIndex item);
    /// The same for a question. Only the user's own yes counts: one that is closed from outside has another
    /// result.
    bool confirmed(ENUM_MenuIndex question);
    /// No row of a page that is built shows the item, so that none brings a reported value inside its limits.
    bool hasNoRow() const;
    /// Does something with every widget of an item that is built.
    void eachWidget(ENUM_MenuIndex item, const std::function<void(VaskUiObject &)> &work) const;
    /// Makes options of a list available or not, and reloads its widget.
    void enableRow(ENUM_MenuIndex list, int row, bool on);
    /// The same for every option with that text, without reloading the widget.
    void enableRowsWithText(ENUM_MenuIndex list, const QString &text, bool on);
    /// Shows or hides a layer on the home screen.
    void windowState(int layer, bool shown);
    void syncState(int state);
    void lowLayerUpdate();
    /// Writes the home screen's resolution text for an output rate in hundredths of a hertz, which 3D may
    /// double.
    void redoResolution(int rateCentiHz);
    /// Last step of a case: the value goes to the protocol, or a reported one to the widget.
    void tail();
};

/// All that is shown speaks that language from now on; its choice stands in the store already.
void speakLanguage(ParaProcess &engine, bool english);

/// A case of the engine: the items that it serves and what it does.
struct ApplyCase {
    ItemSpan span;
    void (*apply)(ParaChange &change);
};

/// The case of an item, without a row for a plain one, which has nothing but a tail.
TableEntry<ApplyCase> findApplyCase(ENUM_MenuIndex index);
/// All of them; no item stands in two.
const QVector<Table<ApplyCase>> &applyFamilies();

#define FPD_FAMILY(name) Table<ApplyCase> name##Cases();
#include "framework/engine/apply/families.def"
#undef FPD_FAMILY
} // namespace VASK
