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

    void selfTest_data()
    {
        addColumns<QString, QString, QString, QString>({"fpga", "memory", "mcu", "expected"});
        const char *const version = "FPGA version is V1.2";
        addRow("all well", version, "0x01", "mcu 20", "normal normal normal");
        addRow("memory fails", version, "0x00", "mcu 20", "normal error normal");
        addRow("no FPGA", "", "0x01", "mcu 20", "error error normal");
        addRow("wrong MCU", version, "0x01", "mcu 19", "normal normal error");
    }

    /// The device's records come first, the panel's own behind them.
    void selfTest()
    {
        const auto [fpga, memory, mcu, expected] =
            fetched<QString, QString, QString, QString>({"fpga", "memory", "mcu", "expected"});
        const auto tool = [](const QString &name, const QString &script) {
            QFile file(rig->statePath("/bin/" + name));
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write(("#!/bin/sh\n" + script + "\n").toUtf8());
            file.setPermissions(file.permissions() | QFile::ExeOwner);
        };
        tool("fpga", QString("if [ \"$1\" = -v ]; then echo '%1'; else echo '%2'; fi").arg(fpga, memory));
        tool("stm32", QString("echo '%1'").arg(mcu));

        receive(0x13800000, "HEAD:x;FAN:--:2200:--:normal;TEMP:--:--:--:--;POWER:5.1V:error;" +
                                QByteArray(1, '\0') + "junk;");
        const auto rows = SelfCheckList::rows();
        QCOMPARE(rows.value("0").name, QString("F_VERSION"));
        QCOMPARE(rows.value("0").text, QString("2200"));
        QCOMPARE(rows.value("0").status, QString("normal"));
        QCOMPARE(rows.value("1").text + rows.value("1").status, QString());
        QCOMPARE(rows.value("2").text, QString("5.1V"));
        QCOMPARE(rows.value("2").status, QString("error"));
        QStringList own;
        for (const char *number : {"3", "4", "5"})
            own << rows.value(number).status;
        QCOMPARE(own.join(' '), expected);
    }

    void selfTestTellsTheProductionTest()
    {
        class Window : public QWidget
        {
        public:
            QList<int> types;
            bool event(QEvent *event) override
            {
                if (event->type() == KeypadEvent::eventType)
                    types << static_cast<KeypadEvent *>(event)->type() * 100 +
                                 static_cast<KeypadEvent *>(event)->key();
                return QWidget::event(event);
            }
        } window;
        window.show();
        QApplication::setActiveWindow(&window);
        QFile::remove(rig->statePath("/bin/stm32"));
        QFile::remove(rig->statePath("/bin/fpga"));

        receive(0x13800000, "HEAD;");
        QCOMPARE(window.types, QList<int>());
        ProductionTest::m_cur_step = FACTORY_STEP_SELF_TEST;
        receive(0x13800000, "HEAD;");
        ProductionTest::m_cur_step = FACTORY_STEP_NONE;
        rig->settle();
        QCOMPARE(window.types, QList<int>({KEY_PRESSED * 100 + KEY_SELF_TEST_DONE}));
    }
};

FPD_TEST(TestReceive)
#include "tst_receive.moc"
