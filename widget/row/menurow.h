// One row of a menu page: what all kinds of rows have in common. A row shows one item of the store and turns
// keys into changes of it; the store stays the truth, and the row's copy is loaded again whenever something
// tells it to. Rows live on the GUI thread; the operations that the report thread may call say so.
#pragma once

#include "framework/object/vaskobject.h"
#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "menu/objectindex.h"
#include "menuconfig_k2860.h"
#include "widget/row/pagerow.h"

namespace VASK
{
class ParaProcess;

class MenuRow : public VaskUiObject, public PageRow
{
    Q_OBJECT
public:
    /// Makes sure that the store holds the item, and loads it.
    MenuRow(ENUM_MenuIndex menuIndex, ENUM_ObjectIndex objectIndex);

    /// A value arrives from the engine; an empty one asks for a reload. From any thread: the work is done on
    /// the GUI thread, with the value that the store holds by then.
    void SetParaEntry(ENUM_MenuIndex index, QString value, ENUM_MODE_SET_XML mode) final;
    /// From any thread.
    void UpdateALLUI(ENUM_MenuIndex index) override;

protected:
    /// The widgets that the row consists of. Called once, for a row that is about to be seen for the first
    /// time or that is asked for something that only they know: a panel has some four hundred rows, and most
    /// of them are not seen in a day.
    virtual void CreatEntry() = 0;
    /// Draws the row from its copy of the item.
    virtual void draw() = 0;
    /// Makes the widgets now, drawn, unless they are there.
    void ensureBuilt();
    bool isBuilt() const { return m_built; }
    /// Draws what is there to be drawn on; else it is drawn when it is made.
    void redraw();
    bool event(QEvent *event) override;

    /// The value that SetParaEntry brings, with the item already loaded. May be empty.
    virtual void takeValue(ENUM_MenuIndex index, const QString &value, ENUM_MODE_SET_XML mode) = 0;

    ENUM_MenuIndex ownIndex() const { return m_ownIndex; }
    ENUM_ObjectIndex objectIndex() const;
    /// An item as the store has it; empty if it is not there.
    ST_ItemInfo storedItem(ENUM_MenuIndex index) const;
    /// Copies the item from the store; an item that is not there leaves the copy as it is.
    void UpdataEntry(ENUM_MenuIndex index);

    /// The two steps of every change: the value that may be used, and its use. Without an engine the value
    /// stays and nothing happens.
    /// @{
    QString limited(const QString &value, ENUM_MenuIndex index) const;
    void apply(const QString &value, ENUM_MenuIndex index, ENUM_MODE_SET_XML mode = SET_XML_USER) const;
    /// Takes an option of a list, an unknown one as "0", and moves the open drop-down to it. What differs
    /// from the value given is sent back to the device.
    void takeOption(ENUM_MenuIndex index, const QString &value, ENUM_MODE_SET_XML mode,
                    VaskUiObject *dropDown);
    /// Both, as a button does it.
    void act(ENUM_MenuIndex index) const { apply(limited(QString(), index), index); }
    /// @}

    /// The row's copy of its item.
    ST_ItemInfo m_item;

private:
    void loadAndTake(ENUM_MenuIndex index, QString value, ENUM_MODE_SET_XML mode, bool late);
    ParaProcess *engine() const;

    ENUM_MenuIndex m_ownIndex;
    bool m_built = false;
};
} // namespace VASK
