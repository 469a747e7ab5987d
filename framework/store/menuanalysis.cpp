// The store in memory: look-ups, changes and the lists of what the file does not have yet.
#include "framework/store/menuanalysis.h"

#include "framework/thread/handover.h"
#include "menu/itemindex.h"
#include "menu/objectindex.h"

#include <QDebug>

namespace VASK
{
namespace
{
constexpr int writeDelayMs = 1000;
/// The one item that may be set to nothing.
constexpr ENUM_MenuIndex clearableItem = MENU_Mode3D_RightEyeStart;
} // namespace

MenuAnalysis::MenuAnalysis(ENUM_ObjectIndex index) : VaskObject(index) {}

bool MenuAnalysis::initlize()
{
    m_path = StoreFiles::folder();
    qDebug() << "xml path:" << StoreFiles::config();
    StoreFiles::tidy();
    StoreText config;
    if (IsEixstFile(config))
        loadFiles(config);
    else
        createFromTable();
    if (!m_updateTimer) {
        m_updateTimer = new QTimer(this);
        m_updateTimer->setObjectName("store write");
        connect(m_updateTimer, &QTimer::timeout, this, [this] {
            if (hasChanges())
                m_save.ask();
        });
    }
    m_updateTimer->start(writeDelayMs);
    return true;
}

void MenuAnalysis::restartUpdateTimer()
{
    runOnGui(this, [this] {
        if (m_updateTimer)
            m_updateTimer->start(writeDelayMs);
    });
}

bool MenuAnalysis::GetMenuItem(ENUM_MenuIndex index, ST_ItemInfo &item) const
{
    if (!conditionCheckMenuIndex(index)) {
        qDebug() << "GetMenuItem conditionCheckMenuIndex false!";
        return false;
    }
    const bool found = readItem(index, [&item](const ST_ItemInfo &stored) { item = stored; });
    if (!found)
        qDebug() << "GetMenuItem conditionCheckMenuIndex isExistItem false:" << int(index);
    return found;
}

bool MenuAnalysis::GetItemCurValue(ENUM_MenuIndex index, QString &value) const
{
    return readItem(index, [&value](const ST_ItemInfo &item) { value = item.value; });
}

bool MenuAnalysis::GetItemCurChoice(ENUM_MenuIndex index, QString &choice) const
{
    return readItem(index, [&choice](const ST_ItemInfo &item) { choice = item.choice; });
}

bool MenuAnalysis::GetItemEnable(ENUM_MenuIndex index, bool &enable) const
{
    return readItem(index, [&enable](const ST_ItemInfo &item) { enable = item.enable; });
}

bool MenuAnalysis::GetItemEnableSelect(ENUM_MenuIndex index, bool &enableSelect) const
{
    return readItem(index, [&enableSelect](const ST_ItemInfo &item) { enableSelect = item.enableSelect; });
}

bool MenuAnalysis::IsEixstItemFromXMLFile(ENUM_MenuIndex index) const
{
    return readItem(index, [](const ST_ItemInfo &) {});
}

bool MenuAnalysis::UpdataItemCurValue(ENUM_MenuIndex index, QString value)
{
    if (value.isEmpty() && index != clearableItem)
        return false;
    return changeItem(index, [&value](ST_ItemInfo &item) { item.value = value; });
}

bool MenuAnalysis::UpdataItemCurChoice(ENUM_MenuIndex index, QString choice)
{
    if (choice.isEmpty())
        return false;
    return changeItem(index, [&choice](ST_ItemInfo &item) { item.choice = choice; });
}

bool MenuAnalysis::UpdataItemEnable(ENUM_MenuIndex index, bool enable)
{
    return changeItem(index, [enable](ST_ItemInfo &item) { item.enable = enable; });
}

bool MenuAnalysis::UPdataItemEnableSelect(ENUM_MenuIndex index, bool enableSelect)
{
    return changeItem(index, [enableSelect](ST_ItemInfo &item) {
        if (enableSelect)
            item.enableSelect = true;
    });
}

bool MenuAnalysis::changeItem(ENUM_MenuIndex index, const std::function<void(ST_ItemInfo &)> &change)
{
    QMutexLocker lock(&m_mutex);
    if (!conditionCheckMenuIndex(index) || !isExistItem(index))
        return false;
    ST_ItemInfo item = *m_items.constFind(index);
    change(item);
    storeChanged(index, item);
    return true;
}

bool MenuAnalysis::updataMenuItem(ENUM_MenuIndex index, ST_ItemInfo &item)
{
    return changeItem(index, [&item](ST_ItemInfo &stored) { stored = item; });
}

bool MenuAnalysis::AddMenuItem(ENUM_MenuIndex index, ST_ItemInfo item)
{
    if (!conditionCheckMenuIndex(index))
        return false;
    QMutexLocker lock(&m_mutex);
    if (!isExistItem(index))
        addMenuItem(index, item);
    return true;
}

bool MenuAnalysis::DeleteMenuItem(ENUM_MenuIndex index)
{
    QMutexLocker lock(&m_mutex);
    if (!conditionCheckMenuIndex(index) || !isExistItem(index))
        return false;
    deleteMenuItem(index);
    return true;
}

bool MenuAnalysis::conditionCheckMenuIndex(ENUM_MenuIndex index)
{
    return index < MENU_END;
}

/// A row whose own number is another one does not count. Called under the lock.
bool MenuAnalysis::isExistItem(ENUM_MenuIndex index) const
{
    const auto item = m_items.constFind(index);
    return item != m_items.constEnd() && item->index == index;
}

bool MenuAnalysis::readItem(ENUM_MenuIndex index, const std::function<void(const ST_ItemInfo &)> &read) const
{
    QMutexLocker lock(&m_mutex);
    if (!conditionCheckMenuIndex(index) || !isExistItem(index))
        return false;
    read(*m_items.constFind(index));
    return true;
}

void MenuAnalysis::storeChanged(ENUM_MenuIndex index, const ST_ItemInfo &item)
{
    ST_ItemInfo &stored = m_items[index];
    if (item == stored)
        return;
    stored = item;
    if (!m_activityElementList.contains(index))
        m_activityElementList.append(index);
}

void MenuAnalysis::addMenuItem(ENUM_MenuIndex index, const ST_ItemInfo &item)
{
    m_items.insert(index, item);
    cacheList.insert(index, item);
}

void MenuAnalysis::deleteMenuItem(ENUM_MenuIndex index)
{
    m_items.remove(index);
    // An item that never reached the document needs no removal there.
    if (cacheList.remove(index) == 0)
        m_deleteItemList.append(index);
}
} // namespace VASK
