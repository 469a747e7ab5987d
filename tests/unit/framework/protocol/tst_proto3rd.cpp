// The protocol object between bus, engine and home screen: who makes the panel return home, what reaches the
// reader of the reports, and which requests an answer retires.

#include "boardio.h"
#include "fpd_hostlink.h"
#include "fpd_hostvalues.h"
#include "framework/engine/paraprocess.h"
#include "framework/productiontest/productiontest.h"
#include "framework/protocol/link/proto3rd.h"
#include "framework/protocol/link/proto3rdreceiveparse.h"
#include "framework/protocol/packet/packagerequestreaddata3rd.h"
#include "framework/protocol/packet/packagerequestwritedata.h"
#include "framework/protocol/packet/tgprotocolparser3rd.h"
#include "framework/protocol/snapshot/protomemory20m.h"
#include "framework/store/menuanalysis.h"
#include "menu/itemindex.h"
#include "menu/objectindex.h"
#include "platform/host/statefile.h"
#include "tests/testprogram.h"
#include "tests/unit/rig/frames.h"
#include "widget/page/menudirectoty.h"

#include <QDir>
#include <QFileInfo>
#include <QSignalSpy>

using namespace VASK;

namespace
{
const QString controller = "0", fiber = "1", sendingCard = "2";

QByteArray pushedWrite(quint32 address)
{
    frames::Fields f;
    f.address = address;
    f.payload = "\x01";
    return frames::frame(f);
}

QByteArray heartbeat()
{
    return pushedWrite(0x13001004);
}

/// A packet in a message of the bus, as a device may answer to a write, too.
QByteArray inMessage(const QByteArray &packet)
{
    return frames::number(0x01070300, 4) + frames::number(1, 4) + frames::number(packet.size() + 28, 4) +
           QByteArray(8, '\0') + frames::number(1, 2) + frames::number(28, 2) +
           frames::number(packet.size(), 4) + packet;
}

struct Bench {
    explicit Bench(const QString &workMode)
    {
        auto *pool = ObjectPool::getInstance();
        pool->InsertData(ENUM_MENUANALYSIS, &store);
        pool->InsertData(ENUM_PARAPROCESS, &engine);
        pool->InsertData(ENUM_MAIN_MENU, &mainMenu);
        pool->InsertData(ENUM_PROTOCOINTERFER_3RD, protocolObject.get());
        keep(MENU_WorkMode, workMode);
        keep(MENU_ScreenBrightness, "7");
    }
    ~Bench()
    {
        protocolObject.reset(); // ends the report thread first
        Proto3rdReceiveParse::deleteInstance();
        for (ENUM_ObjectIndex index :
             {ENUM_MENUANALYSIS, ENUM_PARAPROCESS, ENUM_MAIN_MENU, ENUM_PROTOCOINTERFER_3RD})
            ObjectPool::getInstance()->RemoveByIndex(index);
    }
    void keep(ENUM_MenuIndex index, const QString &value)
    {
        ST_ItemInfo item = g_MenuXmlConfig.value(index);
        item.index = index;
        item.value = value;
        store.DeleteMenuItem(index);
        store.AddMenuItem(index, item);
    }
    QList<bool> returns() const
    {
        QList<bool> modes;
        for (const auto &call : home)
            modes += call.first().toBool();
        return modes;
    }

    MenuAnalysis store{ENUM_MENUANALYSIS};
    ParaProcess engine{ENUM_PARAPROCESS};
    MenuDirectory mainMenu{ENUM_MAIN_MENU};
    std::unique_ptr<Proto3rd> protocolObject = std::make_unique<Proto3rd>(ENUM_PROTOCOINTERFER_3RD);
    Proto3rd &protocol = *protocolObject;
    QSignalSpy home{&protocol, &Proto3rd::signal_return_main};
};

void setCables(int usb, int ethernet)
{
    const QString file = host::stateFile(hostlink::linkFile);
    hostlink::changeValue(file, hostlink::linkUsb, QByteArray::number(usb));
    hostlink::changeValue(file, hostlink::linkEthernet, QByteArray::number(ethernet));
}
} // namespace

class TestProto3rd : public QObject
{
    Q_OBJECT
private slots:
    void hostTakesOver_data()
    {
        addColumns<QString, QByteArray, int>({"workMode", "datagram", "returns"});
        addRow("heartbeat, controller", controller, heartbeat(), 1);
        addRow("heartbeat, sending card", sendingCard, heartbeat(), 1);
        addRow("heartbeat, fiber converter", fiber, heartbeat(), 0);
        addRow("pushed write, controller", controller, pushedWrite(0x13000001), 1);
        addRow("pushed write, fiber converter", fiber, pushedWrite(0x13000001), 0);
        addRow("pushed write that says nothing", controller, pushedWrite(0x0200003F), 0);
        addRow("damaged", controller, pushedWrite(0x13000001).replace(19, 1, "x"), 0);
        addRow("report", controller, frames::report(0x13000001, "\x01"), 0);
    }
    void hostTakesOver()
    {
        const auto [workMode, datagram, returns] =
            fetched<QString, QByteArray, int>({"workMode", "datagram", "returns"});
        Bench bench(workMode);
        setCables(0, 0);
        bench.protocol.initialize();
        bench.protocol.slot_ReceivePackHandle(datagram);
        bench.protocol.slot_notifyThreadFun(false);
        QCOMPARE(bench.returns(), QList<bool>{false}.mid(0, returns));
    }

    /// Before there is an engine a host is believed.
    void hostWithoutEngine()
    {
        Proto3rd protocol(ENUM_PROTOCOINTERFER_3RD);
        QSignalSpy home(&protocol, &Proto3rd::signal_return_main);
        protocol.slot_ReceivePackHandle(heartbeat());
        QCOMPARE(home.count(), 1);
        QCOMPARE(home.first().first().toBool(), false);
    }

    void unpluggedInSession()
    {
        Bench bench(controller);
        setCables(1, 0);
        bench.protocol.initialize();
        QVERIFY(
            QTest::qWaitFor([&] { return bench.returns() == QList<bool>{true}; }, 3000)); // the cable is in
        bench.protocol.slot_ReceivePackHandle(heartbeat());
        QVERIFY(QTest::qWaitFor([&] { return bench.home.count() == 2; }, 1000));
        bench.home.clear();
        setCables(0, 0);
        // One for the lost cable, one for the session that ends with it.
        QVERIFY(QTest::qWaitFor([&] { return bench.home.count() == 2; }, 4000));
        QCOMPARE(bench.returns(), QList<bool>({true, true}));
    }

    void answersAndRequests()
    {
        Bench bench(controller);
        setCables(0, 0);
        bench.protocol.initialize();
        PackageBase::serialNum = 10;
        using P = TGProtocolParser3rd;
        bench.protocol.InsertPackToRequestList(P::Set_CommonWrite("\x01", 0x13000001, "a")); // 10
        bench.protocol.InsertReadPackToRequestList(P::Get_ScannerParam(0x02000001, 1, 0));   // 11
        bench.protocol.InsertPackToRequestList(P::Set_CommonWrite("\x01", 0x13000001, "b")); // 12
        bench.protocol.InsertReadPackToRequestList(P::Get_ScannerParam(0x02000001, 1, 0));   // 13
        QCOMPARE(bench.protocol.matchRequest(12), 2);

        // A report that answers nothing leaves the list alone; it reaches the engine, as the brightness in
        // per cent.
        bench.protocol.slot_ReceivePackHandle(frames::report(0x02000001, "\x80", 1, 200));
        QVERIFY(QTest::qWaitFor(
            [&] { return bench.engine.GetParaFromIndex(MENU_ScreenBrightness) == QString("50"); }, 3000));
        QCOMPARE(bench.protocol.matchRequest(10), 0);

        // An answer to a read retires it and all that is older.
        bench.protocol.slot_ReceivePackHandle(frames::report(0x02000001, "\xFF", 1, 11));
        QVERIFY(QTest::qWaitFor(
            [&] { return bench.engine.GetParaFromIndex(MENU_ScreenBrightness) == QString("100"); }, 3000));
        QCOMPARE(bench.protocol.matchRequest(10), -1);
        QCOMPARE(bench.protocol.matchRequest(11), -1);
        QCOMPARE(bench.protocol.matchRequest(12), 0);

        // So does an answer to a write that comes in a message; by itself it is dropped.
        frames::Fields f;
        f.header = QByteArray::fromHex("aa55");
        f.serial = 12;
        f.address = 0x13000001;
        bench.protocol.slot_ReceivePackHandle(frames::frame(f));
        bench.protocol.slot_notifyThreadFun(false);
        QCOMPARE(bench.protocol.matchRequest(12), 0);
        bench.protocol.slot_ReceivePackHandle(inMessage(frames::frame(f)));
        bench.protocol.slot_notifyThreadFun(false);
        QCOMPARE(bench.protocol.matchRequest(12), -1);
        QCOMPARE(bench.protocol.matchRequest(13), 0);
    }

    void snapshotObjectNeedsEngine()
    {
        ProtoMemory20M memory(ENUM_PROTOMEMORY_20M);
        QCOMPARE(memory.initialize(), 0);
        Bench bench(controller);
        QCOMPARE(memory.initialize(), 1);
    }
};

FPD_TEST(TestProto3rd)
#include "tst_proto3rd.moc"
