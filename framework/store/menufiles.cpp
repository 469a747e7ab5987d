// The store on disk: recovery at start, loading, and the flush. The order of truncation, writing, copy and
// "sync" is what keeps one of the three files whole at every moment.
#include "framework/store/menuanalysis.h"

#include "boardio.h"
#include "framework/store/menushown.h"
#include "menu/itemindex.h"

#include <QDebug>
#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <QTextCodec>
#include <QTextStream>
#include <QTime>
#include <unistd.h>

namespace VASK
{
namespace
{
constexpr const char *configToBackup =
    "cp /usr/vask/etc/fpd/config/config.xml /usr/vask/etc/fpd/config/config_backup.xml";
constexpr const char *backupToConfig =
    "cp /usr/vask/etc/fpd/config/config_backup.xml /usr/vask/etc/fpd/config/config.xml";
constexpr const char *factoryToConfig =
    "cp /usr/vask/etc/fpd/config/config_factory.xml /usr/vask/etc/fpd/config/config.xml";
constexpr const char *configToFactory =
    "cp /usr/vask/etc/fpd/config/config.xml /usr/vask/etc/fpd/config/config_factory.xml";
constexpr const char *sync = "sync";
constexpr int indent = 4;
/// More than any store; what is longer is none, whatever it is.
constexpr qint64 sizeLimit = 16 * 1024 * 1024;

QByteArray contents(const QString &boardPath)
{
    QFile file(board::filePath(boardPath));
    return file.open(QIODevice::ReadOnly) ? file.read(sizeLimit) : QByteArray();
}

/// The parser takes broken UTF-8 and control characters without a word; no well-formed file has them.
bool isCleanText(const QByteArray &bytes)
{
    QTextCodec::ConverterState state;
    const QString text =
        QTextCodec::codecForName("UTF-8")->toUnicode(bytes.constData(), bytes.size(), &state);
    if (state.invalidChars > 0 || state.remainingChars > 0)
        return false;
    for (const QChar c : text)
        if (c.unicode() < 0x20 && c != '\n' && c != '\r' && c != '\t')
            return false;
    return true;
}

QByteArray asUtf8(const QDomDocument &document)
{
    QByteArray bytes;
    QTextStream stream(&bytes);
    stream.setCodec("UTF-8");
    document.save(stream, indent);
    stream.flush();
    return bytes;
}

/// Truncates and writes a file. The bytes are on the disk when it returns: whatever is done to another file
/// after that can rely on this one.
bool writeFile(const QString &boardPath, const QDomDocument &document)
{
    const QByteArray bytes = asUtf8(document);
    QFile file(board::filePath(boardPath));
    if (!file.open(QIODevice::ReadWrite | QIODevice::Truncate))
        return false;
    const bool written = file.write(bytes) == bytes.size() && file.flush() && fsync(file.handle()) == 0;
    file.close();
    return written && file.error() == QFileDevice::NoError;
}

void logTime()
{
    qDebug() << QTime::currentTime().toString("hh:mm:ss.zzz");
}
} // namespace

bool MenuAnalysis::IsEixstFile()
{
    const QString config = m_path + m_fileName;
    const QString backup = m_path + m_backupName;
    if (CheckXmlfileIsVaild(config)) {
        // A backup that differs is damaged, or one save behind: the last save was cut between file and copy.
        // Left so, the next save would have nothing, or only that old state, to fall back on.
        if (contents(config) != contents(backup)) {
            board::runCommand(configToBackup);
            board::runCommand(sync);
        }
        return true;
    }
    if (CheckXmlfileIsVaild(backup)) {
        board::runCommand(backupToConfig);
        board::runCommand(sync);
        return true;
    }
    if (CheckXmlfileIsVaild(m_path + m_factoryName)) {
        board::runCommand(factoryToConfig);
        board::runCommand(configToBackup);
        board::runCommand(sync);
        return true;
    }
    return false;
}

bool MenuAnalysis::CheckXmlfileIsVaild(const QString &name) const
{
    QFile file(board::filePath(name));
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        qDebug() << "Open config file failed";
        return false;
    }
    const QByteArray bytes = file.read(sizeLimit);
    QDomDocument document;
    if (!isCleanText(bytes) || !document.setContent(bytes, true)) {
        qDebug() << "setContent config file failed";
        return false;
    }
    if (document.isNull()) {
        qDebug() << "xml file is null";
        return false;
    }
    qDebug() << "Open config file sucessful, and the xml file: " << name << "is valid...";
    return true;
}

void MenuAnalysis::createFromTable()
{
    m_creating = true;
    CreateMeunFile();
    for (auto item = g_MenuXmlConfig.cbegin(); item != g_MenuXmlConfig.cend(); ++item)
        AddMenuItem(item.key(), item.value());
    slot_updateXml();
    m_creating = false;
    board::runCommand(configToFactory);
    board::runCommand(sync);
}

/// A damaged factory copy is made anew from the table, which it was a copy of.
void MenuAnalysis::repairFactoryFile()
{
    if (CheckXmlfileIsVaild(m_path + m_factoryName))
        return;
    QDomDocument document = emptyMenuDocument();
    for (auto item = g_MenuXmlConfig.cbegin(); item != g_MenuXmlConfig.cend(); ++item)
        document.documentElement().appendChild(
            CreateMenuItemConfig(document, m_elementNames, item.key(), item.value()));
    if (!writeFile(m_path + m_factoryName, document))
        qDebug() << m_path + m_factoryName << "open fail!";
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
    m_xmldoc = emptyMenuDocument();
    return saveDataToFile(m_path + m_fileName);
}

bool MenuAnalysis::saveDataToFile(const QString &name)
{
    if (m_xmldoc.isNull()) {
        qDebug() << "m_xmldoc is null";
        return false;
    }
    if (!writeFile(name, m_xmldoc)) {
        qDebug() << name << "open fail!";
        return false;
    }
    if (QFileInfo(board::filePath(name)).size() < 1) {
        board::runCommand(backupToConfig);
        board::runCommand(sync);
        return false;
    }
    return true;
}

bool MenuAnalysis::LoadXmlFile(const QString &name)
{
    qDebug() << "load xml:" << name;
    QMutexLocker documentLock(&m_documentMutex);
    QFile file(board::filePath(name));
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        qDebug() << "open file fail!" << name;
        return false;
    }
    QString error;
    int line = 0;
    int column = 0;
    QDomDocument document;
    if (!document.setContent(&file, &error, &line, &column)) {
        qDebug() << "m_xmldoc open fail!" << name << "errorStr:" << error << ",errorLine" << line
                 << "errorCol" << column;
        return false;
    }
    if (document.isNull()) {
        qDebug() << "xml file is null";
        return false;
    }
    m_xmldoc = document;
    takeItemsFromDocument();
    return true;
}

void MenuAnalysis::takeItemsFromDocument()
{
    const QDomNodeList elements = m_xmldoc.documentElement().elementsByTagName(m_elementNames[XML_ITEMS]);
    const int count = elements.count();
    qDebug() << "xmlNodeList.count()" << count;
    QMap<ENUM_MenuIndex, ST_ItemInfo> loaded;
    for (int i = 0; i < count; ++i) {
        const QDomElement element = elements.at(i).toElement();
        bool isNumber = false;
        ST_ItemInfo item;
        item.index = ENUM_MenuIndex(element.attribute(m_elementNames[XML_INDEX]).toInt(&isNumber));
        if (!isNumber || !conditionCheckMenuIndex(item.index)) {
            qDebug() << "no item of that number:" << element.attribute(m_elementNames[XML_INDEX]);
            continue;
        }
        menuItemFromXml(element, m_elementNames, item);
        loaded.insert(item.index, item);
    }
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

void MenuAnalysis::slot_updateXml()
{
    const auto hasEntries = [this](const auto &list) {
        QMutexLocker lock(&m_mutex);
        return !list.isEmpty();
    };
    if (hasEntries(cacheList)) {
        qDebug() << "slot_updateXml updateCacheList";
        updateCacheList();
    }
    if (hasEntries(m_activityElementList)) {
        qDebug() << "slot_updateXml m_activityElementList";
        updateActivittyItem();
    }
    if (hasEntries(m_deleteItemList)) {
        qDebug() << "slot_updateXml m_deleteItemList";
        updateDeleteItem();
    }
}

bool MenuAnalysis::updateCacheList()
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
    return saveFile();
}

bool MenuAnalysis::updateActivittyItem()
{
    logTime();
    QMutexLocker documentLock(&m_documentMutex);
    QList<QPair<ENUM_MenuIndex, ST_ItemInfo>> changed;
    {
        QMutexLocker lock(&m_mutex);
        for (ENUM_MenuIndex index : qAsConst(m_activityElementList))
            if (isExistItem(index))
                changed.append({index, m_items[index]});
        m_activityElementList.clear();
    }
    QHash<int, QDomElement> elements = elementsByIndex();
    for (const auto &item : qAsConst(changed))
        modityItemToXML(item.first, item.second, elements);
    return saveFile();
}

void MenuAnalysis::updateDeleteItem()
{
    QMutexLocker documentLock(&m_documentMutex);
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

/// The first element of every number, in one walk for a whole flush.
QHash<int, QDomElement> MenuAnalysis::elementsByIndex() const
{
    QHash<int, QDomElement> elements;
    const QString tag = m_elementNames[XML_ITEMS];
    for (QDomElement element = m_xmldoc.documentElement().firstChildElement(tag); !element.isNull();
         element = element.nextSiblingElement(tag)) {
        const int index = element.attribute(m_elementNames[XML_INDEX]).toInt();
        if (!elements.contains(index))
            elements.insert(index, element);
    }
    return elements;
}

void MenuAnalysis::startSync()
{
    m_sync.reset(QThread::create([] { board::runCommand(sync); }));
    m_sync->setObjectName("sync");
    m_sync->start();
}

void MenuAnalysis::endSync()
{
    if (m_sync)
        m_sync->wait();
}

/// Called under the document's lock, which orders the saves of different threads.
bool MenuAnalysis::saveFile()
{
    logTime();
    qDebug() << "MenuAnalysis::saveFile";
    if (m_path.isEmpty())
        return false;
    const QString config = m_path + m_fileName;
    endSync(); // the backup of the save before is on the disk now
    // The file is truncated in a moment: the backup must hold what it holds.
    if (!m_creating && contents(config) != contents(m_path + m_backupName) && CheckXmlfileIsVaild(config)) {
        board::runCommand(configToBackup);
        board::runCommand(sync);
    }
    // A file that could not be written whole must not replace the backup.
    if (!writeFile(config, m_xmldoc))
        return false;
    board::runCommand(configToBackup);
    startSync();
    logTime();
    return true;
}
} // namespace VASK
