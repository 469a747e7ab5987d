#include "widget/row/menurow.h"

#include "framework/engine/limits/limits.h"
#include "framework/engine/paraprocess.h"
#include "framework/thread/handover.h"
#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "menu/objectindex.h"

#include <QDebug>
#include <QEvent>

namespace VASK
{
namespace
{
bool standsForOwn(ENUM_MenuIndex index)
{
    return index == MENU_OWN || index == MENU_OWN_ALT;
}
} // namespace

MenuRow::MenuRow(ENUM_MenuIndex menuIndex, ENUM_ObjectIndex objectIndex)
    : VaskUiObject(objectIndex), m_ownIndex(menuIndex)
{
    CreateMenuXml(menuIndex);
    UpdataEntry(menuIndex);
    setEnabled(m_item.enable);
}

void MenuRow::ensureBuilt()
{
    if (m_built)
        return;
    m_built = true;
    CreatEntry();
    draw();
}

void MenuRow::redraw()
{
    if (m_built)
        draw();
}

/// A widget is polished once, before it is shown or drawn in any other way, and its children after it. Qt
/// also asks for it as soon as the event loop runs; a row that nobody sees lets that pass.
bool MenuRow::event(QEvent *event)
{
    if (event->type() == QEvent::PolishRequest)
        return true;
    if (event->type() == QEvent::Polish)
        ensureBuilt();
    return VaskUiObject::event(event);
}

ENUM_ObjectIndex MenuRow::objectIndex() const
{
    ENUM_ObjectIndex index = ENUM_OBJECT_END;
    GetObectIndex(index);
    return index;
}

ParaProcess *MenuRow::engine() const
{
    auto *engine = dynamic_cast<ParaProcess *>(GetObjectFromPool(ENUM_PARAPROCESS));
    if (!engine)
        qDebug() << "ParaProcess OBJ faild!";
    return engine;
}

void MenuRow::UpdataEntry(ENUM_MenuIndex index)
{
    if (ParaProcess *paraProcess = engine())
        paraProcess->GetInfoFromIndex(index, m_item);
}

ST_ItemInfo MenuRow::storedItem(ENUM_MenuIndex index) const
{
    ST_ItemInfo item;
    if (ParaProcess *paraProcess = engine())
        paraProcess->GetInfoFromIndex(index, item);
    return item;
}

QString MenuRow::limited(const QString &value, ENUM_MenuIndex index) const
{
    ParaProcess *paraProcess = engine();
    return paraProcess ? paraProcess->CalParaLimit(value, index) : value;
}

void MenuRow::apply(const QString &value, ENUM_MenuIndex index, ENUM_MODE_SET_XML mode) const
{
    if (ParaProcess *paraProcess = engine())
        paraProcess->SetParaToXml(value, index, mode);
}

void MenuRow::takeOption(ENUM_MenuIndex index, const QString &value, ENUM_MODE_SET_XML mode,
                         VaskUiObject *dropDown)
{
    m_item.value = knownOption(m_item, value);
    if (dropDown)
        dropDown->SetParaEntry(index, m_item.value, mode);
    const QString taken = limited(m_item.value, index);
    m_item.value = taken;
    if (taken != value)
        mode = SET_XML_USER;
    if (mode != SET_XML_DEVICE)
        apply(taken, index, mode);
}

void MenuRow::SetParaEntry(ENUM_MenuIndex index, QString value, ENUM_MODE_SET_XML mode)
{
    const bool late = thread() != QThread::currentThread();
    runOnGui(this, [=] { loadAndTake(index, value, mode, late); });
}

void MenuRow::loadAndTake(ENUM_MenuIndex index, QString value, ENUM_MODE_SET_XML mode, bool late)
{
    if (standsForOwn(index))
        index = m_ownIndex;
    if (standsForOwn(index))
        return;
    UpdataEntry(index);
    setEnabled(m_item.enable);
    // A reported value stood in the store before it was sent here. If the user has turned it further in the
    // meantime, the store knows better than the message.
    if (late && !value.isEmpty() && !m_item.value.isEmpty())
        value = m_item.value;
    takeValue(index, value, mode);
}

void MenuRow::UpdateALLUI(ENUM_MenuIndex index)
{
    runOnGui(this, [=] {
        UpdataEntry(standsForOwn(index) ? m_ownIndex : index);
        setEnabled(m_item.enable);
        redraw();
    });
}
} // namespace VASK
