#include "framework/engine/parachange.h"

#include "framework/store/menuanalysis.h"
#include "framework/ui/home.h"
#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "menu/objectindex.h"

#include <QDialog>

namespace VASK
{
namespace
{
/// The widgets that show an item, in the order of the pages; several pages may show one.
const QMap<ENUM_MenuIndex, QVector<ENUM_ObjectIndex>> &widgetTable()
{
    static const QMap<ENUM_MenuIndex, QVector<ENUM_ObjectIndex>> table = [] {
        QMap<ENUM_MenuIndex, QVector<ENUM_ObjectIndex>> widgets;
        for (const ST_MenuConfig &page : qAsConst(g_config))
            for (const st_MenuItemInfo &row : page.rowsMap)
                if (!widgets[row.menuIndex].contains(row.itemObject))
                    widgets[row.menuIndex] << row.itemObject;
        return widgets;
    }();
    return table;
}

/// Does something with every widget of an item that is built.
template <class Work> void forWidgets(ENUM_MenuIndex item, Work work)
{
    for (ENUM_ObjectIndex object : widgetTable().value(item))
        if (auto *widget = dynamic_cast<VaskUiObject *>(ObjectPool::getInstance()->GetObject(object)))
            work(widget);
}

/// The first widget of an item that is built, null if none is.
VaskUiObject *widgetOf(ENUM_MenuIndex item)
{
    VaskUiObject *first = nullptr;
    forWidgets(item, [&first](VaskUiObject *widget) {
        if (!first)
            first = widget;
    });
    return first;
}
} // namespace

ParaChange::ParaChange(ParaProcess &paraProcess, MenuAnalysis &menuStore, const QString &newValue,
                       ENUM_MenuIndex menuIndex, ENUM_MODE_SET_XML setMode)
    : engine(paraProcess), store(menuStore), value(newValue),
      oldValue(paraProcess.GetParaFromIndex(menuIndex)), index(menuIndex), mode(setMode)
{
}

HomeUpdater &ParaChange::home() const
{
    return engine.home();
}

QString ParaChange::item(ENUM_MenuIndex item) const
{
    return engine.GetParaFromIndex(item);
}

int ParaChange::number(ENUM_MenuIndex item) const
{
    return engine.GetParaFromIndex(item).toInt();
}

ST_ItemInfo ParaChange::info(ENUM_MenuIndex item) const
{
    ST_ItemInfo information;
    store.GetMenuItem(item, information);
    return information;
}

QString ParaChange::chosenOption(ENUM_MenuIndex list) const
{
    const ST_ItemInfo information = info(list);
    return information.params.value(information.value);
}

void ParaChange::set(ENUM_MenuIndex item, const QString &newValue)
{
    if (ProcessData::contains(item))
        engine.SaveProcessData(newValue, item);
    else
        store.UpdataItemCurValue(item, newValue);
}

void ParaChange::choice(ENUM_MenuIndex item, bool chosen)
{
    store.UpdataItemCurChoice(item, chosen ? SELECTED : UNSELECTED);
}

void ParaChange::enable(ENUM_MenuIndex item, bool on)
{
    store.UpdataItemEnable(item, on);
}

void ParaChange::refresh(ENUM_MenuIndex item)
{
    show(item, QString());
}

void ParaChange::show(ENUM_MenuIndex item, const QString &newValue)
{
    // Like send: an item without a row changes neither here nor in the device. The store comes first, since a
    // widget may still be on its way to the GUI thread.
    if (!newValue.isEmpty() && widgetOf(item))
        set(item, newValue);
    forWidgets(item, [&](VaskUiObject *widget) { widget->SetParaEntry(item, newValue, SET_XML_STORE); });
}

void ParaChange::send(ENUM_MenuIndex item, const QString &newValue)
{
    // A command to the device has no item and no row: the home screen is there for it.
    VaskUiObject *widget = item >= PARA_END ? home().screen() : widgetOf(item);
    if (widget)
        widget->CallProtocol(newValue, item);
}

bool ParaChange::hasNoRow() const
{
    return !widgetOf(index);
}

int ParaChange::dialog(ENUM_MenuIndex item)
{
    return engine.runMessage(item);
}

bool ParaChange::confirmed(ENUM_MenuIndex question)
{
    return dialog(question) == QDialog::Accepted;
}

void ParaChange::eachWidget(ENUM_MenuIndex item, const std::function<void(VaskUiObject &)> &work) const
{
    forWidgets(item, [&work](VaskUiObject *widget) { work(*widget); });
}

void ParaChange::enableRow(ENUM_MenuIndex list, int row, bool on)
{
    store.changeItem(list, [row, on](ST_ItemInfo &information) {
        information.params1[QString::number(row)] = on ? optionEnable : optionDisable;
    });
    refresh(list);
}

void ParaChange::enableRowsWithText(ENUM_MenuIndex list, const QString &text, bool on)
{
    store.changeItem(list, [&text, on](ST_ItemInfo &information) {
        for (auto option = information.params.cbegin(); option != information.params.cend(); ++option)
            if (option.value() == text)
                information.params1[option.key()] = on ? optionEnable : optionDisable;
    });
}

void ParaChange::windowState(int layer, bool shown)
{
    home().setWindow(layer, shown, fromDevice());
}

void ParaChange::syncState(int state)
{
    home().setSyncState(state, fromDevice());
}

void ParaChange::lowLayerUpdate()
{
    engine.SaveProcessData(QString::number(engine.GetLowLayerNum()), PARA_LowestLayer);
}

void ParaChange::redoResolution(int rateCentiHz)
{
    home().showResolution(DeviceView(engine).resolutionText(rateCentiHz));
}

void ParaChange::tail()
{
    if (fromUser()) {
        send(index, value);
    } else if (fromDevice()) {
        forWidgets(index,
                   [this](VaskUiObject *widget) { widget->SetParaEntry(index, value, SET_XML_DEVICE); });
    }
}

const QVector<Table<ApplyCase>> &applyFamilies()
{
    static const QVector<Table<ApplyCase>> families{
#define FPD_FAMILY(name) name##Cases(),
#include "framework/engine/apply/families.def"
#undef FPD_FAMILY
    };
    return families;
}

TableEntry<ApplyCase> findApplyCase(ENUM_MenuIndex index)
{
    static const TableIndex<ENUM_MenuIndex, ApplyCase> cases(applyFamilies());
    return cases.find(index);
}
} // namespace VASK
