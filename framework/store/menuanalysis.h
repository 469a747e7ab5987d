// The item store: the current state of every menu item, in memory and in config.xml, with a backup copy and a
// factory copy beside it. A change counts in memory at once and reaches the file a second after the last key;
// a damaged file is repaired from the copies at start. A flush makes a snapshot of the document under the
// store's lock; writing it is the business of StoreFiles. Items may be read and changed from any thread.
#pragma once

#include "framework/object/vaskobject.h"
#include "framework/store/menuxml.h"
#include "framework/store/storefiles.h"
#include "framework/store/storetext.h"
#include "menu/itemindex.h"
#include "menu/objectindex.h"

#include <QDomDocument>
#include <QHash>
#include <QList>
#include <QMap>
#include <QMutex>
#include <QTimer>
#include <atomic>
#include <functional>

namespace VASK
{
class MenuAnalysis : public VaskObject
{
    Q_OBJECT
public:
    explicit MenuAnalysis(ENUM_ObjectIndex index);
    int BuildHandshake(VaskObject const *, QMap<QString, QString>) override { return 0; }

    /// Repairs the files, loads them or makes new ones from the table, and starts the write timer. True. GUI
    /// thread.
    bool initlize();
    /// Puts the next write off to a second from now: called for every key. From any thread.
    void restartUpdateTimer();

    /// Readers: false, with the target as it was, for an item that the store does not hold. Any thread.
    /// @{
    bool GetMenuItem(ENUM_MenuIndex index, ST_ItemInfo &item) const;
    bool GetItemCurValue(ENUM_MenuIndex index, QString &value) const;
    bool GetItemCurChoice(ENUM_MenuIndex index, QString &choice) const;
    bool GetItemEnable(ENUM_MenuIndex index, bool &enable) const;
    bool GetItemEnableSelect(ENUM_MenuIndex index, bool &enableSelect) const;
    bool IsEixstItemFromXMLFile(ENUM_MenuIndex index) const;
    /// @}

    /// Writers: false for an item that the store does not hold. Setting what is there already changes
    /// nothing. Any thread.
    /// @{
    /// An empty value is refused, but for the one item that may be cleared.
    bool UpdataItemCurValue(ENUM_MenuIndex index, QString value);
    bool UpdataItemCurChoice(ENUM_MenuIndex index, QString choice);
    bool UpdataItemEnable(ENUM_MenuIndex index, bool enable);
    /// Stores the flag only when it is set to true.
    bool UPdataItemEnableSelect(ENUM_MenuIndex index, bool enableSelect);
    /// Changes what a function changes of the record, with no other change in between. The function runs
    /// under the store's lock and calls nothing of the store.
    bool changeItem(ENUM_MenuIndex index, const std::function<void(ST_ItemInfo &)> &change);
    /// Replaces the whole record.
    bool updataMenuItem(ENUM_MenuIndex index, ST_ItemInfo &item);
    /// Adds an item; one that is there already keeps what it has.
    bool AddMenuItem(ENUM_MenuIndex index, ST_ItemInfo item);
    bool DeleteMenuItem(ENUM_MenuIndex index);
    /// @}

    /// Reads a file into document and memory, over what is there. False, with a log line, if it cannot be
    /// read.
    bool LoadXmlFile(const QString &name);
    /// Writes what has changed since the last write. False if it could not be written: it is tried again with
    /// every timeout.
    bool updateActivittyItem();
    /// Waits until what has been asked to be saved is on the disk and not only in its file. GUI thread.
    void endSync();
    /// Does something to the store's files themselves, and loads what they hold then: no save comes between.
    void replaceFiles(const std::function<void()> &change) { m_files.whileNoneWrites(change); }

public slots:
    /// The flush: added items, changed items, deleted items. Without any of them, a write that has failed.
    /// Any thread; the panel leaves it to one of its own, so that no key waits for the disk.
    void slot_updateXml();

private:
    static bool conditionCheckMenuIndex(ENUM_MenuIndex index);
    bool isExistItem(ENUM_MenuIndex index) const;
    bool readItem(ENUM_MenuIndex index, const std::function<void(const ST_ItemInfo &)> &read) const;
    void storeChanged(ENUM_MenuIndex index, const ST_ItemInfo &item);
    void addMenuItem(ENUM_MenuIndex index, const ST_ItemInfo &item);
    void deleteMenuItem(ENUM_MenuIndex index);

    /// Brings config.xml in order; what is found in it, if it needed no repair.
    bool IsEixstFile(StoreText &config);
    static bool CheckXmlfileIsVaild(const QString &name, StoreText &store);
    static bool checkStore(const QString &name, StoreText &store);
    void loadFiles(const StoreText &config);
    bool loadStore(const QString &name, StoreText store);
    void createFromTable();
    void addItemsOfTable();
    void repairFactoryFile();
    void addHiddenItems();
    void addItemsOfBackup();
    void takeFilesBack();

    void readDocument();
    bool tidy(StoreText &store) const;
    void tidyDocument(QDomDocument &document) const;
    void takeItems(const QMap<ENUM_MenuIndex, ST_ItemInfo> &loaded);
    bool CreateMeunFile();
    bool createXmlFile();
    bool saveDataToFile(const QString &name);
    void offerDocument();
    bool saveFile();
    bool hasChanges();

    void ensureDocument();
    bool updateCacheList();
    void updateDeleteItem();
    void addItemToXML(ENUM_MenuIndex index, const ST_ItemInfo &item);
    void modityItemToXML(ENUM_MenuIndex index, const ST_ItemInfo &item, QHash<int, QDomElement> &elements);
    QHash<int, QDomElement> elementsByIndex() const;

    StoreFiles m_files;
    QString m_path;
    QTimer *m_updateTimer = nullptr;
    const XmlNames m_elementNames = menuXmlNames();

    /// The files were out of reach at the start, and the memory holds the table: nothing is written over
    /// them.
    std::atomic<bool> m_isBlind{false};
    /// Nobody has looked yet whether the factory copy is whole: that waits until the panel stands.
    std::atomic<bool> m_isFactoryUnseen{false};

    /// Guards the document for the length of a load or a snapshot, never while the disk is waited for. Taken
    /// before m_mutex, never inside it.
    QMutex m_documentMutex;
    QDomDocument m_xmldoc;
    /// What the document is to be made of, once something of it is to be changed; empty by then.
    QString m_documentText;

    /// Guards the item map and the three lists for one access.
    mutable QMutex m_mutex;
    QMap<ENUM_MenuIndex, ST_ItemInfo> m_items;
    /// Added since the last flush.
    QMap<ENUM_MenuIndex, ST_ItemInfo> cacheList;
    /// Changed since the last flush, each once: while keys put the flush off, reports change the same items
    /// again and again.
    QList<ENUM_MenuIndex> m_activityElementList;
    QList<ENUM_MenuIndex> m_deleteItemList;

    /// Ends before all that it works with.
    Errand m_save{"save", [this] { slot_updateXml(); }};
};
} // namespace VASK
