// The registry, and how a row finds store and protocol through it.

#include "client/names/itemnames.h"
#include "framework/object/transport.h"
#include "framework/protocol/link/protocolinterface.h"
#include "framework/store/menuanalysis.h"
#include "menu/menutypes.h"
#include "menu/objectindex.h"
#include "tests/testprogram.h"

#include <QPointer>
#include <thread>

using namespace VASK;

namespace
{
class Row : public VaskUiObject
{
public:
    using VaskUiObject::VaskUiObject;
};

/// Notes what it is handed and answers with a fixed value.
class Protocol : public ProtocolInterface
{
public:
    using ProtocolInterface::ProtocolInterface;
    int GetValueByIndexSYN(ENUM_MenuIndex index, QString *value) override
    {
        *value = QString("answer %1").arg(index);
        return 1;
    }
    void slot_ValueChanged(QString value, ENUM_MenuIndex index) override
    {
        calls << itemnames::line(index, value);
    }
    QStringList calls;
};
} // namespace

class TestObjectPool : public QObject
{
    Q_OBJECT

private slots:
    void cleanup()
    {
        ObjectPool::getInstance()->ClearAllObject();
        g_protocolType.clear();
    }

    void numbersBeyondTheEndAreRefused()
    {
        Row row(ENUM_OBJECT_END);
        auto *pool = ObjectPool::getInstance();
        ENUM_ObjectIndex own = ENUM_MAIN_WINDOW;
        QVERIFY(!row.GetObectIndex(own));
        QCOMPARE(own, ENUM_MAIN_WINDOW);
        QVERIFY(!pool->InsertData(ENUM_OBJECT_END, &row));
        QVERIFY(!pool->InsertData(ENUM_MAIN_MENU, nullptr));
        QVERIFY(!row.CreateObjectToPool(ENUM_OBJECT_END, &row));
        QVERIFY(!row.GetObjectFromPool(ENUM_OBJECT_END));
        QVERIFY(!row.IsExistFromPool(ENUM_OBJECT_END));
        QVERIFY(!pool->DeleteObject(ENUM_OBJECT_END));
        QVERIFY(!row.CreateMenuAnalysisObject(ENUM_OBJECT_END));
        QCOMPARE(pool->Size(), 0);
        QCOMPARE(row.GetObjectIndexFromPool(&row), ENUM_OBJECT_END);
    }

    void aNumberInUseTakesTheNewObject()
    {
        Row first(ENUM_MAIN_MENU);
        auto *second = new Row(ENUM_MAIN_MENU);
        auto *tran = new transport(ENUM_TRANSPORT);
        QVERIFY(tran->InsertObject(ENUM_TRANSPORT, tran));
        QVERIFY(tran->InsertObject(ENUM_MAIN_MENU, &first));
        QVERIFY(tran->InsertObject(ENUM_MAIN_MENU, second));
        QCOMPARE(tran->GetObjectFromPoolFromTran(ENUM_MAIN_MENU), second);
        QCOMPARE(tran->GetObjectIndexFromPool(&first), ENUM_MAIN_MENU);
        QCOMPARE(ObjectPool::getInstance()->Size(), 2);
        QVERIFY(!poolObject<transport>(ENUM_MAIN_MENU));
        QCOMPARE(poolObject<Row>(ENUM_MAIN_MENU), second);
    }

    void destroying()
    {
        auto *pool = ObjectPool::getInstance();
        Row row(ENUM_MAIN_MENU);
        QTest::ignoreMessage(QtDebugMsg, "Pool no this obj");
        QVERIFY(!row.DeleteObjectFromPool(ENUM_MAIN_MENU));
        QPointer<Row> removed = new Row(ENUM_MAIN_MENU);
        pool->InsertData(ENUM_MAIN_MENU, removed);
        QVERIFY(pool->DeleteObject(ENUM_MAIN_MENU));
        QVERIFY(removed.isNull());
        QVERIFY(!pool->DeleteObject(ENUM_MAIN_MENU));
        QPointer<Row> replaced = new Row(ENUM_MAIN_MENU);
        pool->InsertData(ENUM_MAIN_MENU, replaced);
        QVERIFY(row.DeleteObjectFromPool(ENUM_MAIN_MENU));
        QVERIFY(replaced.isNull());
        QVERIFY(pool->InsertData(ENUM_MAIN_MENU, new Row(ENUM_MAIN_MENU)));
    }

    void lookedUpWhileAPageIsInserted()
    {
        auto *pool = ObjectPool::getInstance();
        pool->InsertData(ENUM_MAIN_MENU, new Row(ENUM_MAIN_MENU));
        std::thread reports([pool] {
            for (int i = 0; i < 20000; ++i)
                if (!pool->GetObject(ENUM_MAIN_MENU))
                    abort();
        });
        for (int number = 100; number < 400; ++number)
            pool->InsertData(ENUM_ObjectIndex(number), new Row(ENUM_ObjectIndex(number)));
        reports.join();
        QCOMPARE(pool->Size(), 301);
    }

    void aRowReachesTheProtocolOfItsItem()
    {
        Row row(ENUM_MAIN_MENU);
        QTest::ignoreMessage(QtDebugMsg, "VaskUiObject get PROTOCOINTERFER fail!");
        row.CallProtocol("1", MENU_Freeze);
        auto *third = new Protocol(ENUM_PROTOCOINTERFER_3RD);
        auto *fourth = new Protocol(ENUM_PROTOCOINTERFER_4RD);
        row.CreateObjectToPool(ENUM_PROTOCOINTERFER_3RD, third);
        row.CreateObjectToPool(ENUM_PROTOCOINTERFER_4RD, fourth);
        g_protocolType[MENU_FTB] = ENUM_PROTOCOL_4RD;
        row.CallProtocol("1", MENU_Freeze);
        row.CallProtocol("0", MENU_FTB);
        QCOMPARE(third->calls, QStringList{"Freeze=1"});
        QCOMPARE(fourth->calls, QStringList{"FTB=0"});
        QString value;
        row.CallProtocolSynGet(value, MENU_Freeze);
        QCOMPARE(value, QString("answer 1022"));
    }

    void aRowAddsItsItemToTheStore()
    {
        Row row(ENUM_MAIN_MENU);
        QVERIFY(row.CreateMenuXml(MENU_ScreenBrightness)); // makes the store as well
        auto *store = poolObject<MenuAnalysis>(ENUM_MENUANALYSIS);
        QVERIFY(store);
        QVERIFY(store->UpdataItemCurValue(MENU_ScreenBrightness, "7"));
        QVERIFY(row.CreateMenuXml(MENU_ScreenBrightness));
        QString value;
        QVERIFY(store->GetItemCurValue(MENU_ScreenBrightness, value));
        QCOMPARE(value, QString("7"));
        row.CreateMenuXml(MENU_MosaicInput);
        QVERIFY(!store->IsEixstItemFromXMLFile(MENU_MosaicInput));
    }
};

FPD_TEST(TestObjectPool)
#include "tst_objectpool.moc"
