// What the device reports becomes values of items, where no report to the running panel shows it; the tables
// of the inputs, and the self test.

#include "framework/input/keypadevent.h"
#include "framework/productiontest/productiontest.h"
#include "framework/productiontest/selfchecklist.h"
#include "framework/protocol/link/proto3rdreceiveparse.h"
#include "framework/protocol/packet/packagerequestproto3rd.h"
#include "framework/protocol/receive/reportdispatch.h"
#include "menu/keycodes.h"
#include "tests/testprogram.h"
#include "tests/unit/rig/enginerig.h"
#include "tests/unit/rig/frames.h"

using namespace VASK;

namespace
{
EngineRig *rig = nullptr;
QStringList told; ///< "item=value" of every value that the engine was told
QStringList logged;
QtMessageHandler nextHandler = nullptr;

void listen(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    static const QString opening = "ReportMsgToParaProcess ";
    if (text.startsWith(opening)) {
        const int blank = text.indexOf(' ', opening.size());
        told << itemnames::line(text.mid(opening.size(), blank - opening.size()).toInt(),
                                text.mid(blank + 1).remove('"'));
    } else {
        logged << text;
    }
    if (type != QtDebugMsg)
        nextHandler(type, context, text);
}

/// A package as it comes out of the queue.
void receive(quint32 address, const QByteArray &payload, int device = 0)
{
    PackageRequestProto3rd package;
    QVERIFY(package.unPackageReply(frames::report(address, payload, device, 0)));
    told.clear();
    logged.clear();
    dispatchReport(package, false);
    rig->settle();
}
} // namespace

class TestReceive : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        rig = new EngineRig;
        rig->reset();
        nextHandler = qInstallMessageHandler(listen);
    }

    void cleanupTestCase()
    {
        qInstallMessageHandler(nextHandler);
        delete rig;
    }

    void init()
    {
        // It keeps the engine that it found when it was made, and the rig makes a new one.
        Proto3rdReceiveParse::deleteInstance();
        rig->reset();
    }

    /// The device lists its inputs once, the synchronisation reference last; what it lists later changes no
    /// table.
    void inputTables()
    {
        const int codes[] = {17, 18, 0, 48, 106, 233, 234, 224, 254};
        for (int n = 0; n < 9; ++n) {
            QByteArray record(27, '\0');
            record[0] = char(codes[n]);
            receive(0x13010001 + 32 * quint32(n), record);
            QCOMPARE(told.size(), 7);
        }
        const auto inputs = Proto3rdReceiveParse::inputSourceCode.entries();
        QCOMPARE(inputs.size(), 9);
        for (int n = 0; n < 9; ++n) {
            QCOMPARE(int(inputs.value(uchar(n)).SourceCode), codes[n]);
            QCOMPARE(int(inputs.value(uchar(n)).index), n);
        }
        const auto edid = Proto3rdReceiveParse::EDIDSourceCode.entries();
        QCOMPARE(edid.size(), 4);
        QCOMPARE(int(edid.value(2).SourceCode), 0);
        QCOMPARE(int(edid.value(3).index), 3);
        const auto mosaic = Proto3rdReceiveParse::MosaicSourceCode.entries();
        QCOMPARE(mosaic.keys(), QList<uchar>({0, 1, 2, 3, 4, 5}));
        QCOMPARE(int(mosaic.value(3).SourceCode), 106);
        QVERIFY(ParaProcess::bHaveSDI);

        receive(0x13010001, QByteArray(27, '\x63'));
        QCOMPARE(int(Proto3rdReceiveParse::inputSourceCode.keyOfCode(17)), 0);
        QCOMPARE(Proto3rdReceiveParse::inputSourceCode.entries().size(), 9);
        QVERIFY(!logged.join(' ').contains("BuildMap"));
    }

    void values_data()
    {
        addColumns<uint, QString, QString>({"address", "payload", "expected"});
        addRow("no synchronisation state", 0x1300009du, "", "GenlockState=0");
        addRow("sound of nobody", 0x1300009eu, "0701", "Audio_AudioOutput= Audio_Volume=1");
        addRow("delay of three bytes, rounded", 0x02002002u, "000001", "Mode3D_SignalDelayTime=524");
        addRow(
            "window, cut", 0x13020040u, "01",
            itemnames::expanded("PIP1_{Status=1 InputSource=0 InitialX=0 InitialY=0 HorWidth=0 VerHeight=0 "
                                "Priority=0 Opacity=0}"));
        // What the panel has just set reaches the engine no more.
        addRow("output mode that is set already", 0x13042007u, "01", "");
        addRow("synchronisation that is set already", 0x1300002au, "0002", "");
    }
    void values()
    {
        const auto [address, payload] = fetched<uint, QString>({"address", "payload"});
        rig->set(MENU_Output_Mode, "1");
        rig->set(MENU_Sync_Source, "1");
        rig->set(MENU_Sync_Status, "0");
        receive(address, QByteArray::fromHex(payload.toLatin1()));
        QTEST(told.join(' '), "expected");
    }

    /// A reply of a receiving card can span registers; the size of the cabinet is not whole in this one.
    void partOfARegisterIsNotRead()
    {
        receive(0x02000016, QByteArray::fromHex("000102"), 1);
        QCOMPARE(told, QStringList());
        QVERIFY(!logged.join('\n').contains("No Hander!"));
    }

    /// The device's records come first, the panel's own behind them: no FPGA, and an MCU of another version.
    void selfTest()
    {
        QFile mcu(rig->statePath("/bin/stm32"));
        QVERIFY(mcu.open(QIODevice::WriteOnly) && mcu.write("#!/bin/sh\necho 'mcu 19'\n") > 0);
        mcu.setPermissions(mcu.permissions() | QFile::ExeOwner);
        mcu.close();
        receive(0x13800000, "HEAD:x;FAN:--:2200:--:normal;TEMP:--:--:--:--;POWER:5.1V:error;" +
                                QByteArray(1, '\0') + "junk;");
        const auto rows = SelfCheckList::rows();
        QCOMPARE(rows.value("0").name, QString("F_VERSION"));
        QCOMPARE(rows.value("0").text, QString("2200"));
        QCOMPARE(rows.value("0").status, QString("normal"));
        QCOMPARE(rows.value("1").text + rows.value("1").status, QString());
        QCOMPARE(rows.value("2").text, QString("5.1V"));
        QCOMPARE(rows.value("2").status, QString("error"));
        for (const char *own : {"3", "4", "5"})
            QVERIFY2(rows.value(own).status == "error", own);
    }
};

FPD_TEST(TestReceive)
#include "tst_receive.moc"
