// The item store: what it remembers, what it writes and when.

#include "tests/testprogram.h"
#include "tests/unit/rig/storerig.h"

#include <thread>

using namespace VASK;
using namespace storerig;

class TestMenuAnalysis : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_state = freshState(); }

    void firstStartWritesTheTable()
    {
        Store store;
        const QByteArray file = contents("config.xml");
        QCOMPARE(file.count("<Items Index="), g_MenuXmlConfig.size());
        QVERIFY(file.startsWith("<?xml version='1.0' encoding='UTF-8'?>\n<MenuItemList Version=\"1.0\">\n"
                                "    <Items Index=\"1\">\n        <Icon>"));
        QCOMPARE(contents("config_factory.xml"), file);
        QCOMPARE(contents("config_backup.xml"), file);
        for (const ST_ItemInfo &row : g_MenuXmlConfig) {
            ST_ItemInfo item;
            QVERIFY(store.GetMenuItem(row.index, item));
            QVERIFY(item == row);
        }
    }

    void everyFieldReturns()
    {
        ST_ItemInfo item = g_MenuXmlConfig[MENU_MainLayer_InputSource];
        item.value = QString::fromUtf8("<名称 & \"x\">");
        item.choice = "1";
        item.perBase = "7";
        item.pixValue = "0101";
        item.enableSelect = true;
        item.params["9"] = QString::fromUtf8("输入");
        {
            Store store;
            store.updataMenuItem(item.index, item);
            store.slot_updateXml();
        }
        Store store;
        ST_ItemInfo loaded;
        QVERIFY(store.GetMenuItem(item.index, loaded));
        QVERIFY(loaded == item);
        QVERIFY(contents("config_backup.xml").contains(QString::fromUtf8("名称").toUtf8()));
    }

    void aTextThatXmlCannotHoldDoesNotDamageTheFile()
    {
        const ushort text[] = {'a', 1, 'b', 0xFFFF, 0xD800, 0};
        Store().write(MENU_About_SupportValue, QString::fromUtf16(text));
        QCOMPARE(valueAfterRestart(MENU_About_SupportValue), QString("ab"));
    }

    void elementsInTheFilesOrder()
    {
        Store store;
        const QByteArray file = contents("config.xml");
        int last = 0;
        for (const char *tag :
             {"<Icon", "<Tag", "<Value", "<IconEx", "<Row", "<Col", "<Max", "<Min", "<PerBase", "<PixValue",
              "<Step", "<Unit", "<Choice", "<Enable", "<EnableSelect", "<Params", "<Params1", "</Items>"}) {
            const int at = file.indexOf(tag, last + 1);
            QVERIFY2(at > last && at <= file.indexOf("</Items>"), tag);
            last = at;
        }
    }

    void refusals()
    {
        Store store;
        ST_ItemInfo item;
        QString text = "kept";
        QVERIFY(!store.GetMenuItem(MENU_END, item));
        QVERIFY(!store.GetItemCurValue(MENU_MosaicInput, text));
        QCOMPARE(text, QString("kept"));
        QVERIFY(!store.UpdataItemCurValue(MENU_END, "1"));
        QVERIFY(!store.UpdataItemCurValue(MENU_MosaicInput, "1"));
        QVERIFY(!store.UpdataItemCurValue(MENU_ScreenBrightness, ""));
        QCOMPARE(store.value(MENU_ScreenBrightness), QString("60"));
        QVERIFY(store.UpdataItemCurValue(MENU_Mode3D_RightEyeStart, ""));
        QCOMPARE(store.value(MENU_Mode3D_RightEyeStart), QString());
        QVERIFY(!store.UpdataItemCurChoice(MENU_Normal, ""));
        QVERIFY(!store.changeItem(MENU_END, [](ST_ItemInfo &) {}));
        QVERIFY(!store.AddMenuItem(MENU_END, item));
        QVERIFY(!store.DeleteMenuItem(MENU_MosaicInput));
        // An empty row of the table is no item, whatever key it stands under.
        QVERIFY(store.AddMenuItem(MENU_MosaicInput, ST_ItemInfo()));
        QVERIFY(!store.IsEixstItemFromXMLFile(MENU_MosaicInput));
    }

    void onlyAChangeIsWritten()
    {
        Store store;
        QFile::remove(path("config.xml"));
        store.UpdataItemCurValue(MENU_ScreenBrightness, "60");
        store.UpdataItemEnable(MENU_ScreenBrightness, true);
        store.UPdataItemEnableSelect(MENU_ScreenBrightness, false);
        store.slot_updateXml();
        QVERIFY(!QFile::exists(path("config.xml")));
        for (int value = 1; value <= 10; ++value)
            store.UpdataItemCurValue(MENU_ScreenBrightness, QString::number(value));
        store.slot_updateXml();
        QCOMPARE(valueAfterRestart(MENU_ScreenBrightness), QString("10"));
    }

    void keysPutTheWriteOff()
    {
        Store store;
        auto *timer = store.findChild<QTimer *>();
        QVERIFY(timer && timer->isActive());
        QCOMPARE(timer->interval(), 1000);
        timer->start(1);
        store.restartUpdateTimer();
        QCOMPARE(timer->interval(), 1000);
        QVERIFY(timer->isActive() && !timer->isSingleShot());
    }

    void addedAndDeletedBeforeTheFlush()
    {
        Store store;
        ST_ItemInfo item;
        item.index = MENU_MosaicInput;
        item.value = "old";
        QVERIFY(store.AddMenuItem(MENU_MosaicInput, item));
        QVERIFY(store.UpdataItemCurValue(MENU_MosaicInput, "new"));
        QVERIFY(store.DeleteMenuItem(MENU_ScreenBrightness));
        store.slot_updateXml();
        QCOMPARE(store.value(MENU_MosaicInput), QString("new"));
        // The removal reaches the disk with the next write.
        store.write(MENU_MosaicInput, "newer");
        const QByteArray file = contents("config.xml");
        QVERIFY(file.contains("<Value>newer</Value>"));
        QVERIFY(!file.contains("<Items Index=\"1\">"));
        QCOMPARE(file.count("<Items Index=\"1018\">"), 1);
    }

    void anOlderFileGetsTheNewItems()
    {
        Store().write(MENU_ScreenBrightness, "33");
        QByteArray file = withoutItem(contents("config.xml"), MENU_LowLatency);
        file = withoutItem(file, MENU_ScreenLock);
        // A number that the table no longer has stays.
        file.replace("<Items Index=\"1018\">", "");
        file.replace("</MenuItemList>",
                     "    <Items Index=\"1039\"><Value>of old</Value><Odd>x</Odd></Items>\n</MenuItemList>");
        write("config.xml", file);
        write("config_backup.xml", file);
        Store store;
        QVERIFY(!store.IsEixstItemFromXMLFile(MENU_LowLatency)); // its widget adds it
        QCOMPARE(store.value(MENU_ScreenLock), QString("0"));    // nobody else would
        QCOMPARE(store.value(ENUM_MenuIndex(1039)), QString("of old"));
        QVERIFY(store.AddMenuItem(MENU_LowLatency, g_MenuXmlConfig[MENU_LowLatency]));
        QVERIFY(store.AddMenuItem(MENU_ScreenBrightness, g_MenuXmlConfig[MENU_ScreenBrightness]));
        store.slot_updateXml();
        file = contents("config.xml");
        QCOMPARE(file.count("<Items Index="), g_MenuXmlConfig.size() + 1);
        QVERIFY(file.contains("of old"));
        QCOMPARE(valueAfterRestart(MENU_ScreenBrightness), QString("33"));
    }

    void readsAnyOrderAndSkipsWhatItCannotRead()
    {
        Store();
        write(
            "config.xml",
            "<?xml version='1.0' encoding='UTF-8'?><MenuItemList><Items Index='1'><Params><param>none</param>"
            "<param paramName=''>empty</param><param "
            "paramName='3'>three</param></Params><Enable>TRUE</Enable>"
            "<Strange/><Col>3</Col><Value>1</Value></Items><Items "
            "Index='1'><Value>77</Value><Enable>true</Enable><Col>4000000</Col><Row>-1</Row>"
            "</Items><Items Index='x'><Value>5</Value></Items><Items Index='9999'/></MenuItemList>");
        Store store;
        ST_ItemInfo item;
        QVERIFY(store.GetMenuItem(MENU_ScreenBrightness, item));
        QCOMPARE(item.value, QString("77"));
        QCOMPARE(item.enable, true);
        QCOMPARE(item.col + item.row, 0);
        QVERIFY(item.params.isEmpty());
        QVERIFY(!store.IsEixstItemFromXMLFile(ENUM_MenuIndex(0)));
    }

    void factoryValuesOverACurrentStore()
    {
        Store store;
        ST_ItemInfo late;
        late.index = MENU_MosaicInput;
        late.value = "late";
        store.AddMenuItem(late.index, late);
        store.write(MENU_ScreenBrightness, "5");
        QVERIFY(store.LoadXmlFile(folder + "config_factory.xml"));
        QVERIFY(store.updateActivittyItem());
        QVERIFY(contents("config.xml").contains("<Items Index=\"1\">"));
        store.slot_updateXml();
        QCOMPARE(valueAfterRestart(MENU_ScreenBrightness), QString("60"));
        QCOMPARE(valueAfterRestart(MENU_MosaicInput), QString("late"));
        QVERIFY(!store.LoadXmlFile(folder + "nothing.xml"));
    }

    void withoutAFolderTheStoreWorksInMemory()
    {
        QVERIFY(QDir(path("")).removeRecursively());
        Store store;
        QVERIFY(store.UpdataItemCurValue(MENU_ScreenBrightness, "12"));
        store.slot_updateXml();
        QVERIFY(!store.updateActivittyItem());
        QCOMPARE(store.value(MENU_ScreenBrightness), QString("12"));
        // The folder comes back: the next write has all that was changed.
        QVERIFY(QDir().mkpath(path("")));
        store.slot_updateXml();
        QCOMPARE(valueAfterRestart(MENU_ScreenBrightness), QString("12"));
    }

    void changesFromTwoThreads()
    {
        constexpr int rounds = 5000;
        Store store;
        store.UpdataItemCurValue(MENU_MainLayer_Opacity, "0");
        const auto count = [&store](ENUM_MenuIndex own) {
            for (int i = 1; i <= rounds; ++i) {
                store.changeItem(MENU_MainLayer_Opacity, [](ST_ItemInfo &item) {
                    item.value = QString::number(item.value.toInt() + 1);
                });
                store.UpdataItemCurValue(own, QString::number(i));
                if (own == MENU_ScreenBrightness && i % 1000 == 0)
                    store.slot_updateXml();
                else if (own != MENU_ScreenBrightness)
                    store.restartUpdateTimer();
            }
        };
        std::thread reports(count, MENU_MainLayer_HorWidth);
        count(MENU_ScreenBrightness);
        reports.join();
        QCoreApplication::processEvents();
        store.slot_updateXml();
        QCOMPARE(valueAfterRestart(MENU_MainLayer_Opacity).toInt(), 2 * rounds);
        QCOMPARE(valueAfterRestart(MENU_ScreenBrightness).toInt(), rounds);
        QCOMPARE(valueAfterRestart(MENU_MainLayer_HorWidth).toInt(), rounds);
    }

private:
    std::unique_ptr<QTemporaryDir> m_state;
};

FPD_TEST(TestMenuAnalysis)
#include "tst_menuanalysis.moc"
