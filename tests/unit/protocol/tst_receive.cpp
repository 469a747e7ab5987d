// What the device reports becomes values of items: every register of the report table, from the bytes on the
// bus to what the engine is told, and the tables of the inputs.

#include "../engine/enginerig.h"
#include "frames.h"
#include "framework/keypadevent.h"
#include "framework/protocol/packagerequestproto3rd.h"
#include "framework/protocol/proto3rdreceiveparse.h"
#include "framework/protocol/receive/reportdispatch.h"
#include "framework/selfchecklist.h"
#include "widget/dialog_factory.h"

#include <QtTest>

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
        told << text.mid(opening.size(), blank - opening.size()) + "=" + text.mid(blank + 1).remove('"');
    } else {
        logged << text;
    }
    if (type != QtDebugMsg)
        nextHandler(type, context, text);
}

QByteArray bytes(const char *hex)
{
    return QByteArray::fromHex(hex);
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

QStringList list(const char *text)
{
    return QString(text).split(' ', Qt::SkipEmptyParts);
}
} // namespace

class TestReceive : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void cleanupTestCase();
    void init();

    void inputTables();
    void values_data();
    void values();
    void onlyWhatIsNew();
    void loadAreaCountsWhileSplicing();
    void cardReplyIsCutIntoRegisters();
    void foreignOrShortReportsChangeNothing();
    void cropReachesTheStoreFirst();
    void positionIsWrittenBack();
    void selfTest_data();
    void selfTest();
    void selfTestTellsTheProductionTest();
};

void TestReceive::initTestCase()
{
    rig = new EngineRig;
    rig->reset();
    nextHandler = qInstallMessageHandler(listen);
}

void TestReceive::cleanupTestCase()
{
    qInstallMessageHandler(nextHandler);
    delete rig;
}

void TestReceive::init()
{
    // It keeps the engine that it found when it was made, and the rig makes a new one.
    Proto3rdReceiveParse::deleteInstance();
    rig->reset();
}

/// The device lists its inputs once, the synchronisation reference last; what it lists later changes no
/// table.
void TestReceive::inputTables()
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

void TestReceive::values_data()
{
    QTest::addColumn<uint>("address");
    QTest::addColumn<QByteArray>("payload");
    QTest::addColumn<QStringList>("expected");
    const auto row = [](uint address, const char *hex, const char *expected) {
        QTest::addRow("%08x %s", address, hex) << address << bytes(hex) << list(expected);
    };
    // Inputs
    row(0x13010021, "120103800738041a410000000000000000000000000000000000020000000000",
        "3254=18 3255=1 3256=3 3257=1920 3258=1080 3259=16666 3260=2");
    row(0x13010101, "fe0003", "3303=254 3304=0 3305=3 3306=0 3307=0 3308=0 3309=0");
    row(0x13019015, "01", "3080=0");
    row(0x13019025, "02", "3081=1");
    row(0x13019025, "00", "3081=1");
    row(0x13019035, "00", "3082=0");
    row(0x13019085, "01", "3087=1");
    row(0x13019085, "03", "");
    row(0x13050000, "113c3200461e00", "3025=60 3026=50 3027=70 3028=30");
    row(0x13050014, "110102000304", "3037=1 3038=2 3039=3 3040=4");
    row(0x13050028, "11010200032c01", "3049=1 3050=2 3051=3 3052=300");
    row(0x13050050, "113232001ef6ff", "3066=50 3067=50 3068=30 3069=-10");
    row(0x1305003c, "1101020003", "3061=1 3062=2 3063=3 3064=0");
    row(0x13050050, "11", "3066=0 3067=0 3068=0 3069=0");
    row(0x13050064, "110102000304", "");
    row(0x13060000, "0201010201010000000000000000000011000000000080073804000000000000000000000000000000", "");
    // Output and wall
    row(0x13040003, "800738047017", "3241=6000 3237=1920 3238=1080");
    row(0x13040010, "000000000a200370170000000000", "3246=6000 3243=2560 3244=800");
    row(0x13041401, "800738047017", "");
    row(0x02100006, "80008000", "3235=128 3236=128");
    row(0x01000088, "05", "2013=1");
    row(0x01000088, "ff", "2013=0");
    row(0x13042007, "01", "2352=1");
    row(0x1300009d, "04", "3393=4");
    row(0x1300009d, "05", "");
    row(0x1300009d, "", "3393=0");
    // Layers
    row(0x13020010,
        "0100020700"
        "0a000000"
        "f6ffffff"
        "80070000"
        "38040000"
        "0000000000000000000000000000000000000000000000000000"
        "5a",
        "2100=1 2101=2 2105=10 2106=-10 2103=1920 2104=1080 2107=7 2109=90");
    row(0x13020040, "01", "2110=1 2111=0 2115=0 2116=0 2113=0 2114=0 2117=0 2119=0");
    row(0x13020070, "00000300", "2120=0 2121=3 2125=0 2126=0 2123=0 2124=0 2127=0 2129=0");
    row(0x13024014, "61000110002000400130020000000000", "3000=1 3001=320 3002=560 3003=16 3004=32");
    row(0x13024094, "61000110002000400130020000000000", "3000=1 3001=320 3002=560 3003=16 3004=32");
    row(0x13024098, "61000010002000400130020000000000", "3006=0 3007=320 3008=560 3009=16 3010=32");
    row(0x130240a8, "61000010002000400130020000000000", "3006=0 3007=320 3008=560 3009=16 3010=32");
    row(0x1302416c, "61000010002000400130020000000000", "3012=0 3013=320 3014=560 3015=16 3016=32");
    // Ports
    row(0x0200001f, "05", "3310=1 3311=0 3312=1 3313=0");
    row(0x0200009f, "08", "3314=0 3315=0 3316=0 3317=1");
    row(0x02000126, "ff", "3318=1 3319=1");
    row(0x02000018, "80008001", "3320=1 3321=0 3322=1 3323=0");
    row(0x02000098, "00000080", "3324=0 3325=0 3326=0 3327=1");
    row(0x02000100, "8080", "3328=1 3329=1");
    row(0x0200001e, "82", "3330=1 3331=0 3332=0 3333=1");
    row(0x0200009e, "08", "3334=0 3335=1 3336=0 3337=0");
    row(0x02000120, "0a", "3338=1 3339=1");
    row(0x020001f6, "02", "3340=1 3341=0 3342=0 3343=0");
    row(0x020001f7, "80", "3344=0 3345=0 3346=0 3347=1");
    row(0x020001f8, "05", "3348=0 3349=0");
    row(0x020001f9, "02", "3350=1 3351=0 3352=0 3353=0");
    row(0x020001fa, "20", "3354=0 3355=0 3356=1 3357=0");
    row(0x020001fb, "08", "3358=0 3359=1");
    row(0x020001d7, "02", "3395=0 3396=1");
    row(0x020001f2, "81", "3370=1 3371=0 3372=0 3373=0 3374=0 3375=0 3376=0 3377=1");
    row(0x020001f3, "02", "3378=0 3379=1");
    row(0x020001f4, "10", "3380=0 3381=0 3382=0 3383=0 3384=1 3385=0 3386=0 3387=0");
    row(0x020001f5, "01", "3388=1 3389=0");
    row(0x020001e0, "fe", "3360=1 3361=0 3362=0 3363=0 3364=0 3365=0 3366=0 3367=0");
    row(0x020001e1, "02", "3368=1 3369=0");
    // Network
    row(0x13000006, "c000a80005000000ff00ff00ff0000000a010203",
        "2375=192.168.5.0 2376=255.255.255.0 2377=10.1.2.3");
    row(0x1300001a, "a8", "2374=1");
    row(0x1300001a, "00", "2374=0");
    // Audio, on-screen display, latency
    row(0x1300009e, "f050", "2356=4 2357=80");
    row(0x1300009e, "03", "2356=3 2357=0");
    row(0x1300009e, "0701", "2356= 2357=1");
    row(0x1300009f, "32", "2357=50");
    row(0x13411000, "010e0003000000000000000000000000000000000000000000000000000000006400000038ffffff",
        "1008=1 1009=3 1010=100 1011=-200 1012=1");
    row(0x13411000, "000f", "1008=0 1009=0 1010=0 1011=0 1012=0");
    row(0x13412000, "01", "3412=1");
    row(0x13412007, "00", "3419=0");
    row(0x02000074, "78", "1055=1");
    row(0x02000074, "01", "1055=0");
    // 3D
    row(0x02002001, "01", "3079=1");
    row(0x02002002, "e80300", "3078=8");
    row(0x02002002, "000001", "3078=524");
    row(0x02000039, "a8", "2359=1");
    row(0x02000039, "28", "2359=0");
    row(0x02000041, "64", "2361=0");
    row(0x02000041, "32", "2361=1");
    row(0x02000041, "33", "");
    row(0x02000042, "28", "2360=0");
    row(0x02000042, "08", "2360=1");
    row(0x02000042, "18", "2360=2");
    row(0x02000089, "c003", "3077=960");
    row(0x0200008b, "1c02", "3077=540");
    // The device as a whole
    row(0x01000002, "00", "1061=");
    row(0x01000002, "02", "1062=");
    row(0x01000002, "03", "");
    row(0x0ff00000, "01", "3429=");
    row(0x0ff00000, "02", "");
    row(0x0200004a, "00", "3211=1");
    row(0x1300002c, "00", "1067=");
    row(0x1300002c, "10", "1069=");
    row(0x1300002c, "01", "");
    row(0x0200009c, "a8", "3408=1");
    row(0x0200009c, "00", "3408=0");
    row(0x0200009c, "01", "");
    row(0x14000000, "01", "3427=1");
    row(0x14000000, "02", "3428=2");
    row(0x14000000, "03", "");
}

void TestReceive::values()
{
    QFETCH(uint, address);
    QFETCH(QByteArray, payload);
    QFETCH(QStringList, expected);
    if (address == 0x13060000)
        expected = list("3071=1 3072=1920 3073=1080 3074=0/2");
    if (address == 0x13041401)
        expected = QStringList{"2353=" + rig->info(MENU_Output_Resolution).params.key("1920*1080"),
                               "2354=" + rig->info(MENU_Output_FrameRate).params.key("60"), "2355="};
    receive(address, payload);
    QCOMPARE(told, expected);
}

/// Some reports repeat what the panel has just set: only what differs reaches the engine.
void TestReceive::onlyWhatIsNew()
{
    rig->set(MENU_Sync_Source, "1");
    rig->set(MENU_Sync_Status, "0");
    receive(0x1300002a, bytes("0002"));
    QCOMPARE(told, QStringList());
    receive(0x1300002a, bytes("0001"));
    QCOMPARE(told, list("2351=0"));
    receive(0x1300002a, bytes("00"));
    QCOMPARE(told, list("2351=255"));
    rig->set(MENU_Output_Mode, "1");
    receive(0x13042007, bytes("01"));
    QCOMPARE(told, QStringList());

    rig->process(PARA_DisplayMode, 0);
    receive(0x13000004, bytes("03"));
    QCOMPARE(rig->value(PARA_DisplayMode), QString("0"));
    receive(0x13000004, bytes("04"));
    QCOMPARE(rig->value(PARA_DisplayMode), QString("1"));
}

void TestReceive::loadAreaCountsWhileSplicing()
{
    const QByteArray record = bytes("00000000000000000000000000000000640000002c01000080073804");
    rig->set(MENU_ImageMosaic_Status, "0");
    receive(0x13030000, record);
    QCOMPARE(told, QStringList());
    rig->set(MENU_ImageMosaic_Status, "1");
    receive(0x13030000, record);
    QCOMPARE(told, list("1041=3840 1042=2160 1043=1920 1044=1080 1045=100 1046=300"));
}

/// A reply of a receiving card can span registers; those that lie whole inside it are read.
void TestReceive::cardReplyIsCutIntoRegisters()
{
    receive(0x02000000, bytes("1c80"), 1);
    QCOMPARE(told, list("1=50"));
    QVERIFY(logged.join('\n').contains("No Hander! enMenuIndex:"));
    receive(0x02000001, bytes("ff"), 1);
    QCOMPARE(told, list("1=100"));
    receive(0x02000001, bytes("00"), 1);
    QCOMPARE(told, list("1=0"));
    receive(0x01000088, bytes("05"), 1);
    QCOMPARE(told, list("2013=1"));
    receive(0x02000016, bytes("000102"), 1);
    QCOMPARE(told, QStringList());
    QVERIFY(!logged.join('\n').contains("No Hander!"));
}

void TestReceive::foreignOrShortReportsChangeNothing()
{
    receive(0x02002001, bytes("01"), 4);
    QCOMPARE(told, QStringList());
    receive(0x12345678, bytes("01"));
    QCOMPARE(told, QStringList());
    QVERIFY(logged.join('\n').contains("No Hander! enMenuIndex:"));
    for (uint address : {0x13040003U, 0x13000006U, 0x13024014U, 0x02000018U, 0x02000001U, 0x020001f0U}) {
        receive(address, QByteArray());
        QCOMPARE(told, QStringList());
    }
}

void TestReceive::cropReachesTheStoreFirst()
{
    rig->forget();
    receive(0x13024014, bytes("61000110002000400130020000000000"));
    QCOMPARE(rig->value(MENU_MainLayerCrop_HorWidth), QString("320"));
    QCOMPARE(rig->value(MENU_MainLayerCrop_InitialY), QString("32"));
}

void TestReceive::positionIsWrittenBack()
{
    rig->forget();
    receive(0x020001f0, bytes("64000000c8000000"));
    QCOMPARE(told, list("2105=100 2106=200"));
    const QStringList sent = rig->device->sent.take();
    QVERIFY(sent.contains("2105=100"));
    QVERIFY(sent.contains("2106=200"));
}

void TestReceive::selfTest_data()
{
    QTest::addColumn<QString>("fpga");
    QTest::addColumn<QString>("memory");
    QTest::addColumn<QString>("mcu");
    QTest::addColumn<QString>("expected");
    QTest::newRow("all well") << "FPGA version is V1.2"
                              << "0x01"
                              << "mcu 20"
                              << "normal normal normal";
    QTest::newRow("memory fails") << "FPGA version is V1.2"
                                  << "0x00"
                                  << "mcu 20"
                                  << "normal error normal";
    QTest::newRow("no FPGA") << ""
                             << "0x01"
                             << "mcu 20"
                             << "error error normal";
    QTest::newRow("wrong MCU") << "FPGA version is V1.2"
                               << "0x01"
                               << "mcu 19"
                               << "normal normal error";
}

/// The device's records come first, the panel's own behind them.
void TestReceive::selfTest()
{
    QFETCH(QString, fpga);
    QFETCH(QString, memory);
    QFETCH(QString, mcu);
    QFETCH(QString, expected);
    const auto tool = [](const QString &name, const QString &script) {
        QFile file(rig->statePath("/bin/" + name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(("#!/bin/sh\n" + script + "\n").toUtf8());
        file.setPermissions(file.permissions() | QFile::ExeOwner);
    };
    tool("fpga", QString("if [ \"$1\" = -v ]; then echo '%1'; else echo '%2'; fi").arg(fpga, memory));
    tool("stm32", QString("echo '%1'").arg(mcu));

    SelfCheckList::setRow("0", {"Fan", "", ""});
    receive(0x13800000, "HEAD:x;FAN:--:2200:--:normal;TEMP:--:--:--:--;POWER:5.1V:error;" +
                            QByteArray(1, '\0') + "junk;");
    const auto rows = SelfCheckList::rows();
    QCOMPARE(rows.value("0").name, QString("Fan"));
    QCOMPARE(rows.value("0").text, QString("2200"));
    QCOMPARE(rows.value("0").status, QString("normal"));
    QVERIFY(!rows.contains("1"));
    QCOMPARE(rows.value("2").text, QString("5.1V"));
    QCOMPARE(rows.value("2").status, QString("error"));
    QStringList own;
    for (const char *number : {"3", "4", "5"})
        own << rows.value(number).status;
    QCOMPARE(own.join(' '), expected);
}

void TestReceive::selfTestTellsTheProductionTest()
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
    Factory::m_cur_step = FACTORY_STEP_SELF_TEST;
    receive(0x13800000, "HEAD;");
    Factory::m_cur_step = FACTORY_STEP_NONE;
    rig->settle();
    QCOMPARE(window.types, QList<int>({KEY_PRESSED * 100 + KEY_SELF_TEST_DONE}));
}

QTEST_MAIN(TestReceive)
#include "tst_receive.moc"
