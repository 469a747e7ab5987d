// The flush: what has changed in memory goes into the document, and a snapshot of that to the files.
#include "framework/store/menuanalysis.h"
#include "menu/itemindex.h"

#include <QDebug>
#include <QTime>

namespace VASK
{
namespace
{
void logTime()
{
    qDebug() << QTime::currentTime().toString("hh:mm:ss.zzz");
}
} // namespace

bool MenuAnalysis::hasChanges()
{
    QMutexLocker lock(&m_mutex);
    return m_isBlind || m_isFactoryUnseen || m_files.hasWork() || !cacheList.isEmpty() ||
           !m_activityElementList.isEmpty() || !m_deleteItemList.isEmpty();
}

void MenuAnalysis::slot_updateXml()
{
    if (m_isBlind)
        takeFilesBack();
    if (m_isFactoryUnseen.exchange(false))
        repairFactoryFile();
    const auto hasEntries = [this](const auto &list) {
        QMutexLocker lock(&m_mutex);
        return !list.isEmpty();
    };
    bool isSaved = false;
    if (hasEntries(cacheList)) {
        qDebug() << "slot_updateXml updateCacheList";
        updateCacheList();
        isSaved = true;
    }
    if (hasEntries(m_activityElementList)) {
        qDebug() << "slot_updateXml m_activityElementList";
        updateActivittyItem();
        isSaved = true;
    }
    if (hasEntries(m_deleteItemList)) {
        qDebug() << "slot_updateXml m_deleteItemList";
        updateDeleteItem();
    }
    if (!isSaved && !m_isBlind && m_files.hasWork())
        m_files.write();
}

bool MenuAnalysis::updateCacheList()
{
    {
        QMutexLocker documentLock(&m_documentMutex);
        QMap<ENUM_MenuIndex, ST_ItemInfo> added;
        {
            QMutexLocker lock(&m_mutex);
            // As they are now: an item can have changed since it was added.
            for (auto item = cacheList.cbegin(); item != cacheList.cend(); ++item)
                added.insert(item.key(), m_items.value(item.key(), item.value()));
            cacheList.clear();
        }
        for (auto item = added.cbegin(); item != added.cend(); ++item) {
            qDebug() << "MenuAnalysis::updateCacheList:cacheList:" << int(item.key());
            addItemToXML(item.key(), item.value());
        }
        offerDocument();
    }
    return saveFile();
}

bool MenuAnalysis::updateActivittyItem()
{
    logTime();
    {
        QMutexLocker documentLock(&m_documentMutex);
        QList<QPair<ENUM_MenuIndex, ST_ItemInfo>> changed;
        {
            QMutexLocker lock(&m_mutex);
            for (ENUM_MenuIndex index : qAsConst(m_activityElementList))
                if (isExistItem(index))
                    changed.append({index, m_items[index]});
            m_activityElementList.clear();
        }
        readDocument();
        QHash<int, QDomElement> elements = elementsByIndex();
        for (const auto &item : qAsConst(changed))
            modityItemToXML(item.first, item.second, elements);
        offerDocument();
    }
    return saveFile();
}

void MenuAnalysis::updateDeleteItem()
{
    QMutexLocker documentLock(&m_documentMutex);
    readDocument();
    QList<ENUM_MenuIndex> deleted;
    {
        QMutexLocker lock(&m_mutex);
        deleted.swap(m_deleteItemList);
    }
    for (ENUM_MenuIndex index : qAsConst(deleted)) {
        const QDomElement element = elementsByIndex().value(index);
        if (!element.isNull())
            element.parentNode().removeChild(element);
    }
}

/// After a load that failed there is no document yet; the items of the widgets grow into a new one.
void MenuAnalysis::ensureDocument()
{
    readDocument();
    if (m_xmldoc.documentElement().isNull())
        m_xmldoc = emptyMenuDocument();
}

void MenuAnalysis::addItemToXML(ENUM_MenuIndex index, const ST_ItemInfo &item)
{
    ensureDocument();
    m_xmldoc.documentElement().appendChild(CreateMenuItemConfig(m_xmldoc, m_elementNames, index, item));
}

void MenuAnalysis::modityItemToXML(ENUM_MenuIndex index, const ST_ItemInfo &item,
                                   QHash<int, QDomElement> &elements)
{
    const QDomElement old = elements.value(index);
    if (old.isNull()) {
        qDebug() << "Xml No this Index:" << int(index);
        return;
    }
    QDomElement element = CreateMenuItemConfig(m_xmldoc, m_elementNames, index, item);
    old.parentNode().replaceChild(element, old);
    elements.insert(index, element);
}

/// The element of every number, in one walk for a whole flush.
QHash<int, QDomElement> MenuAnalysis::elementsByIndex() const
{
    QHash<int, QDomElement> elements;
    const QString tag = m_elementNames[XML_ITEMS];
    for (QDomElement element = m_xmldoc.documentElement().firstChildElement(tag); !element.isNull();
         element = element.nextSiblingElement(tag)) {
        ENUM_MenuIndex index = MENU_END;
        if (isItemNumber(element.attribute(m_elementNames[XML_INDEX]), index))
            elements.insert(index, element);
    }
    return elements;
}

/// Called under the document's lock: the order of the snapshots is that of the changes.
void MenuAnalysis::offerDocument()
{
    readDocument();
    if (!m_xmldoc.isNull())
        m_files.offer(menuDocumentText(m_xmldoc));
}

void MenuAnalysis::endSync()
{
    m_save.finish();
    m_files.endSync();
}

bool MenuAnalysis::saveFile()
{
    logTime();
    qDebug() << "MenuAnalysis::saveFile";
    const bool isWritten = !m_path.isEmpty() && !m_isBlind && m_files.write();
    logTime();
    return isWritten;
}
} // namespace VASK
