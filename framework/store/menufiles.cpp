// The store's files at start: which of them is taken, how the others are repaired from it, and what a file
// brings into memory.
#include "framework/store/menuanalysis.h"

#include "boardio.h"
#include "framework/store/menushown.h"
#include "menu/itemindex.h"

#include <QDebug>
#include <QFileInfo>
#include <QSet>

namespace VASK
{
namespace
{
void syncAfter(bool isCopied)
{
    if (isCopied)
        StoreFiles::sync();
}
} // namespace

bool MenuAnalysis::IsEixstFile(StoreText &config)
{
    StoreText backup;
    if (checkStore(StoreFiles::config(), config)) {
        if (StoreFiles::contents(StoreFiles::config()) == StoreFiles::contents(StoreFiles::backup()))
            return true;
        // A backup that differs is damaged, or one save behind. But what lacks an item that the backup has,
        // or has one twice, was written by no save: the backup waits for the first one. What cannot be loaded
        // replaces nothing, either.
        if (QDomDocument().setContent(config.text) &&
            (!checkStore(StoreFiles::backup(), backup) ||
             (config.isTidy && config.items.contains(backup.items))))
            syncAfter(StoreFiles::copyConfigToBackup());
        return true;
    }
    config = StoreText();
    if (checkStore(StoreFiles::backup(), backup)) {
        syncAfter(StoreFiles::copyBackupToConfig());
        return true;
    }
    StoreText factory;
    if (checkStore(StoreFiles::factory(), factory)) {
        syncAfter(StoreFiles::copyFactoryToConfig() && StoreFiles::copyConfigToBackup());
        return true;
    }
    return false;
}

bool MenuAnalysis::CheckXmlfileIsVaild(const QString &name, StoreText &store)
{
    QByteArray bytes;
    if (StoreFiles::read(name, bytes) != StoreFiles::READ) {
        qDebug() << "Open config file failed";
        return false;
    }
    store = readStoreText(bytes);
    if (!store.isWellFormed()) {
        qDebug() << "setContent config file failed";
        return false;
    }
    qDebug() << "Open config file sucessful, and the xml file: " << name << "is valid...";
    return true;
}

/// A document of another kind is well-formed, too, and has nothing to repair a file with.
bool MenuAnalysis::checkStore(const QString &name, StoreText &store)
{
    if (!CheckXmlfileIsVaild(name, store))
        return false;
    if (!store.isStore())
        qDebug() << name << "holds no items";
    return store.isStore();
}

void MenuAnalysis::addItemsOfTable()
{
    for (auto item = g_MenuXmlConfig.cbegin(); item != g_MenuXmlConfig.cend(); ++item)
        AddMenuItem(item.key(), item.value());
}

void MenuAnalysis::createFromTable()
{
    m_isBlind = StoreFiles::areOutOfReach();
    CreateMeunFile();
    addItemsOfTable();
    if (m_isBlind)
        return;
    slot_updateXml();
    if (!m_files.hasWork())
        syncAfter(StoreFiles::copyConfigToFactory());
}

/// The files that were out of reach at the start are there: what they hold counts, but for what was changed
/// since.
void MenuAnalysis::takeFilesBack()
{
    StoreText config;
    if (!IsEixstFile(config)) {
        m_isBlind = StoreFiles::areOutOfReach();
        return;
    }
    QMap<ENUM_MenuIndex, ST_ItemInfo> current;
    {
        QMutexLocker lock(&m_mutex);
        current = m_items;
    }
    m_isBlind = false;
    loadFiles(config);
    for (auto item = current.begin(); item != current.end(); ++item)
        if (!(g_MenuXmlConfig.value(item.key()) == *item) && !updataMenuItem(item.key(), *item))
            AddMenuItem(item.key(), *item);
}

/// If config.xml could not be brought back, a copy counts until there is room for it.
void MenuAnalysis::loadFiles(const StoreText &config)
{
    if (loadStore(StoreFiles::config(), config)) {
        addItemsOfBackup();
    } else {
        qDebug() << "LoadXmlFile fail!" << StoreFiles::config();
        if (!LoadXmlFile(StoreFiles::backup()) && !LoadXmlFile(StoreFiles::factory())) {
            m_isBlind = true; // a moment ago one of them was whole
            addItemsOfTable();
            return;
        }
        QMutexLocker lock(&m_documentMutex);
        offerDocument();
    }
    m_isFactoryUnseen = true;
    addHiddenItems();
}

/// What config.xml has lost the backup may still have; a start that has copied one to the other finds
/// nothing.
void MenuAnalysis::addItemsOfBackup()
{
    StoreText store;
    if (StoreFiles::contents(StoreFiles::config()) == StoreFiles::contents(StoreFiles::backup()) ||
        !checkStore(StoreFiles::backup(), store) || !tidy(store))
        return;
    for (auto item = store.records.cbegin(); item != store.records.cend(); ++item)
        AddMenuItem(item.key(), item.value());
}

/// A damaged factory copy is made anew from the table, which it was a copy of.
void MenuAnalysis::repairFactoryFile()
{
    StoreText factory;
    if (checkStore(StoreFiles::factory(), factory))
        return;
    QDomDocument document = emptyMenuDocument();
    for (auto item = g_MenuXmlConfig.cbegin(); item != g_MenuXmlConfig.cend(); ++item)
        document.documentElement().appendChild(
            CreateMenuItemConfig(document, m_elementNames, item.key(), item.value()));
    if (!StoreFiles::replace(StoreFiles::factory(), menuDocumentText(document)))
        qDebug() << StoreFiles::factory() << "open fail!";
}

/// A new item that a page shows is added by its widget; the others have nobody else to add them to an older
/// file.
void MenuAnalysis::addHiddenItems()
{
    const QSet<ENUM_MenuIndex> shown = itemsOfBuiltPages();
    for (auto item = g_MenuXmlConfig.cbegin(); item != g_MenuXmlConfig.cend(); ++item)
        if (!shown.contains(item.key()))
            AddMenuItem(item.key(), item.value());
}

bool MenuAnalysis::CreateMeunFile()
{
    if (!QFileInfo(board::filePath(m_path)).isDir()) {
        qDebug() << m_path << "is not a Dir";
        return false;
    }
    return createXmlFile();
}

bool MenuAnalysis::createXmlFile()
{
    QMutexLocker lock(&m_documentMutex);
    m_documentText.clear();
    m_xmldoc = emptyMenuDocument();
    return !m_isBlind && saveDataToFile(StoreFiles::config());
}

bool MenuAnalysis::saveDataToFile(const QString &name)
{
    if (m_xmldoc.isNull()) {
        qDebug() << "m_xmldoc is null";
        return false;
    }
    if (!StoreFiles::replace(name, menuDocumentText(m_xmldoc))) {
        qDebug() << name << "open fail!";
        return false;
    }
    return true;
}

bool MenuAnalysis::LoadXmlFile(const QString &name)
{
    return loadStore(name, StoreText());
}

/// With what has just been found in the file, if that is known.
bool MenuAnalysis::loadStore(const QString &name, StoreText store)
{
    qDebug() << "load xml:" << name;
    QByteArray bytes;
    if (!store.isStore() && StoreFiles::read(name, bytes) != StoreFiles::READ) {
        qDebug() << "open file fail!" << name;
        return false;
    }
    if (!store.isStore())
        store = readStoreText(bytes);
    const bool isTidy = store.isTidy;
    if (!store.isWellFormed() || !tidy(store)) {
        qDebug() << "m_xmldoc open fail!" << name << "errorStr:" << store.error << ",errorLine" << store.line
                 << "errorCol" << store.column;
        return false;
    }
    if (!store.isStore()) {
        qDebug() << "xml file is null";
        return false;
    }
    QMutexLocker documentLock(&m_documentMutex);
    m_files.withdraw(); // of the document before this one
    m_xmldoc = QDomDocument();
    m_documentText = store.text;
    if (!isTidy)
        offerDocument();
    qDebug() << "xmlNodeList.count()" << store.elements;
    for (const XmlComplaint &complaint : qAsConst(store.complaints))
        qDebug() << complaint.what << complaint.text;
    takeItems(store.records);
    return true;
}

/// A document takes its time and many times the memory of its text, and nobody needs it before something is
/// saved. Called under the document's lock.
void MenuAnalysis::readDocument()
{
    if (m_documentText.isEmpty())
        return;
    QString error;
    if (!m_xmldoc.setContent(m_documentText, &error)) {
        qDebug() << "m_xmldoc open fail!" << error;
        m_xmldoc = emptyMenuDocument(); // the items are known, and go into a new one
        QMutexLocker lock(&m_mutex);
        for (auto item = m_items.cbegin(); item != m_items.cend(); ++item)
            cacheList.insert(item.key(), item.value());
    }
    m_documentText.clear();
}

/// A store that is not as a save writes it becomes one that is, by its document. False if it cannot be read.
bool MenuAnalysis::tidy(StoreText &store) const
{
    if (store.isTidy || !store.isStore())
        return true;
    QDomDocument document;
    int line = 0, column = 0;
    if (!document.setContent(store.text, &store.error, &line, &column)) {
        store.line = line;
        store.column = column;
        return false;
    }
    tidyDocument(document);
    store = readStoreText(menuDocumentText(document));
    return store.isWellFormed();
}

/// Of several elements with one number the last counts, here and in every later save: the others go. One that
/// stands in another would go with that at its first change.
void MenuAnalysis::tidyDocument(QDomDocument &document) const
{
    QDomElement root = document.documentElement();
    const QDomNodeList found = root.elementsByTagName(m_elementNames[XML_ITEMS]);
    QVector<QDomElement> elements;
    for (int i = 0; i < found.count(); ++i)
        elements << found.at(i).toElement();
    QHash<int, QDomElement> last;
    for (QDomElement &element : elements) {
        ENUM_MenuIndex index = MENU_END;
        if (!isItemNumber(element.attribute(m_elementNames[XML_INDEX]), index))
            continue;
        if (element.parentNode() != root)
            root.appendChild(element);
        QDomElement &old = last[index];
        if (!old.isNull())
            root.removeChild(old);
        old = element;
    }
}

void MenuAnalysis::takeItems(const QMap<ENUM_MenuIndex, ST_ItemInfo> &loaded)
{
    QMutexLocker lock(&m_mutex);
    // What this document does not have must get into it with the next flush.
    for (auto item = m_items.cbegin(); item != m_items.cend(); ++item)
        if (!loaded.contains(item.key()))
            cacheList.insert(item.key(), item.value());
    for (auto item = loaded.cbegin(); item != loaded.cend(); ++item) {
        m_items.insert(item.key(), item.value());
        cacheList.remove(item.key());
    }
}
} // namespace VASK
