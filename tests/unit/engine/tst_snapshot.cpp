// What the flash snapshot says at start: every block of it, changed byte by byte, and what the home screen
// makes of it.

#include "enginerig.h"
#include "framework/protocol/snapshotmap.h"

#include <QTextCodec>

using namespace VASK;

using Values = QMap<int, QString>;
Q_DECLARE_METATYPE(Values)

class TestSnapshot : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { m_rig = new EngineRig; }
    void cleanupTestCase() { delete m_rig; }
    void init();

    void bytesBecomeValues_data();
    void bytesBecomeValues();
    void automaticAddressLeavesItemsAlone();
    void keptHdcpIsNotOverwritten();
    void presets();
    void homeScreen_data();
    void homeScreen();
    void layersOfTheHomeScreen();
    void unreadableBlockKeepsWhatWasRead();
    void cutImageTakesNothingAway();
    void deviceName_data();
    void deviceName();

private:
    /// Little-endian bytes at an address of the image.
    void put(int address, int value, int width)
    {
        for (int i = 0; i < width; ++i)
            m_image[address + i] = char(value >> 8 * i);
    }
    void start()
    {
        QFile flash(m_rig->statePath(hostlink::flashFile));
        QVERIFY(flash.open(QIODevice::WriteOnly));
        flash.write(m_image);
        flash.close();
        m_rig->engine->InitReadParaFrom20M();
        m_rig->engine->InitializeMainWindow();
        m_rig->settle();
    }
    QByteArray m_image;
    EngineRig *m_rig = nullptr;
};

void TestSnapshot::init()
{
    m_rig->reset();
    m_image = QByteArray(0xD14140, '\0');
}

namespace
{
struct Bytes {
    int address, value, width;
};
using Block = QVector<Bytes>;
} // namespace
Q_DECLARE_METATYPE(Block)

void TestSnapshot::bytesBecomeValues_data()
{
    QTest::addColumn<Block>("bytes");
    QTest::addColumn<Values>("values");
    auto row = [](const char *name, const Block &bytes, const Values &values) {
        QTest::newRow(name) << bytes << values;
    };
    row("cut", {{0x2001, 0, 1}, {0x2002, 50, 2}, {0x2033, 125, 2}},
        {{1019, "1"}, {1020, "0.5"}, {1024, "1.3"}});
    row("fade", {{0x2001, 3, 1}, {0x2002, 310, 2}}, {{1019, "0"}, {1020, "3.1"}});
    row("pure colour", {{0x2005, 0x07, 1}}, {{3391, "0"}, {2326, "7"}});
    row("grid", {{0x2005, 0x12, 1}}, {{3391, "2"}, {2328, "2"}});
    row("gradient", {{0x2005, 0x23, 1}}, {{3391, "1"}, {2327, "3"}});
    row("another family", {{0x2005, 0x33, 1}}, {{3391, "0"}, {2326, "5"}});
    row("pattern", {{0x2042, 4, 1}, {0x2043, 6, 1}, {0x2044, 2, 1}}, {{2331, "4"}, {2332, "6"}, {2333, "2"}});
    row("address",
        {{0x2006, 10, 2},
         {0x2008, 1, 2},
         {0x200A, 2, 2},
         {0x200C, 3, 2},
         {0x200E, 255, 2},
         {0x2010, 255, 2},
         {0x2016, 10, 1},
         {0x2017, 1, 1},
         {0x2018, 0, 1},
         {0x2019, 254, 1}},
        {{2374, "0"}, {2375, "10.1.2.3"}, {2376, "255.255.0.0"}, {2377, "10.1.0.254"}});
    row("picture of the first input",
        {{0xEA01, 51, 1}, {0xEA02, 52, 1}, {0xEA04, 53, 1}, {0xEA05, 54, 2}, {0xEA13, 1, 1}},
        {{3025, "51"}, {3026, "52"}, {3027, "53"}, {3028, "54"}, {2302, "1"}});
    row("picture of the fourth input", {{0xEA3C + 1, 61, 1}, {0xEA3C + 5, -90, 2}, {0xEA3C + 19, 1, 1}},
        {{3061, "61"}, {3064, "-90"}, {2317, "1"}});
    row("picture of the mosaic", {{0xEA50 + 2, 71, 1}}, {{3067, "71"}});
    // Layer 1 shows input 2: its crop stands at 0xEE14 + 132 + 32.
    row("crop of the layer's input",
        {{0xE840 + 2, 2, 1},
         {0xEEB8 + 2, 1, 1},
         {0xEEB8 + 3, 11, 2},
         {0xEEB8 + 5, 12, 2},
         {0xEEB8 + 7, 900, 2},
         {0xEEB8 + 9, 700, 2}},
        {{3006, "1"}, {3007, "900"}, {3008, "700"}, {3009, "11"}, {3010, "12"}});
    row("audio", {{0x209E, 2, 1}, {0x209F, 77, 1}}, {{2356, "2"}, {2357, "77"}});
    row("line in", {{0x209E, 240, 1}}, {{2356, "4"}});
    row("own output", {{0xF603, 1280, 2}, {0xF605, 720, 2}, {0xF60A, 1920, 2}, {0xF60C, 1080, 2}},
        {{3209, "0"}, {3239, "1280"}, {3240, "720"}});
    row("output of the software", {{0x2F00, 1, 1}, {0xF603, 1280, 2}, {0xF60A, 1920, 2}, {0xF60C, 1080, 2}},
        {{3209, "1"}, {3239, "1920"}, {3240, "1080"}});
    row("splicing off", {{0x12618, 800, 2}},
        {{1040, "0"}, {1043, g_MenuXmlConfig.value(MENU_ImageMosaic_LoadAreaWidth).value}});
    row("splicing on",
        {{0x2053, 168, 1},
         {0xE810 + 13, 3840, 4},
         {0xE810 + 17, 2160, 4},
         {0x12610, 5, 4},
         {0x12614, 6, 4},
         {0x12618, 800, 2},
         {0x1261A, 600, 2}},
        {{1040, "1"},
         {1041, "3840"},
         {1042, "2160"},
         {1043, "800"},
         {1044, "600"},
         {1045, "5"},
         {1046, "6"}});
    row("3D side by side",
        {{0x2400, 168, 1},
         {0x2401, 50, 1},
         {0x2402, 40, 1},
         {0x2403, 1000, 2},
         {0x2405, 1100, 2},
         {0x2407, 1, 1},
         {0x2408, 70000 * 125 / 125 * 125, 3}},
        {{2359, "1"},
         {2360, "0"},
         {2361, "1"},
         {3077, "1000"},
         {3214, "1100"},
         {3079, "1"},
         {3078, "70000"}});
    row("3D top and bottom", {{0x2400, 1, 1}, {0x2401, 100, 1}, {0x2402, 8, 1}, {0x2405, 1100, 2}},
        {{2359, "0"}, {2360, "1"}, {2361, "0"}, {3077, "1100"}});
    row("3D frame sequential", {{0x2402, 24, 1}}, {{2360, "2"}});
    row("rates", {{0xF607, 5994, 2}, {0xF60A, 1024, 2}, {0xF60C, 768, 2}, {0xF60E, 7500, 2}},
        {{2015, "8"}, {2353, "0"}, {2354, "4"}});
    row("backup on", {{0x10600, 0x5B, 1}, {0x10612, 254, 1}, {0x10616, 255, 1}, {0x1061A, 3, 1}},
        {{2340, "1"}, {2341, "1"}, {2342, "0"}, {2343, "1"}});
    row("backup off", {{0x10600, 0x5A, 1}, {0x10612, 255, 1}, {0x10616, 254, 1}, {0x1061A, 255, 1}},
        {{2340, "0"}, {2341, "0"}, {2342, "1"}, {2343, "0"}});
    row("HDCP on the device is off here", {{0x15630, 1, 1}}, {{1054, "0"}});
    row("HDCP off", {{0x15630, 2, 1}}, {{1054, "1"}});
    row("audio of the inputs",
        {{0x15631, 1, 1}, {0x15633, 0, 1}, {0x15635, 1, 1}, {0x15637, 0, 1}, {0x1563F, 9, 1}},
        {{3080, "0"}, {3081, "1"}, {3082, "1"}, {3083, "0"}, {3087, "1"}});
    row("preset in use", {{0x2F10, 4, 1}}, {{3394, "4"}});
}

void TestSnapshot::bytesBecomeValues()
{
    QFETCH(Block, bytes);
    QFETCH(Values, values);
    for (const Bytes &value : bytes)
        put(value.address, value.value, value.width);
    start();
    for (auto value = values.cbegin(); value != values.cend(); ++value)
        QVERIFY2(
            m_rig->value(ENUM_MenuIndex(value.key())) == value.value(),
            qPrintable(QString("%1 is %2").arg(value.key()).arg(m_rig->value(ENUM_MenuIndex(value.key())))));
}

void TestSnapshot::automaticAddressLeavesItemsAlone()
{
    m_rig->set(MENU_Net_NetMode, "1");
    m_rig->set(MENU_Net_IPAddress, "172.16.0.9");
    put(0x2006, 10, 2);
    put(0x201A, 168, 1);
    start();
    QCOMPARE(m_rig->value(MENU_Net_NetMode), QString("1"));
    QCOMPARE(m_rig->value(MENU_Net_IPAddress), QString("172.16.0.9"));
}

void TestSnapshot::keptHdcpIsNotOverwritten()
{
    m_rig->set(MENU_HDCPMemory, "0");
    m_rig->set(MENU_HDCP, "0");
    put(0x15630, 0, 1);
    start();
    QCOMPARE(m_rig->value(MENU_HDCP), QString("0"));
}

void TestSnapshot::presets()
{
    auto preset = [this](int number, const QByteArray &name) {
        const int record = 0x3000 + 0x1200 * number;
        put(record + 10, 168, 1);
        m_image.replace(record + 512, name.size(), name);
    };
    preset(0, "Evening show");
    preset(2, QTextCodec::codecForName("GB2312")->fromUnicode(QString::fromUtf8("会议室")));
    preset(9, QByteArray());
    preset(4, QByteArray(40, 'x'));
    put(0x2F10, 2, 1);
    m_rig->store->UpdataItemEnable(MENU_Preset1, false); // its copy was never ended
    start();
    QVERIFY(m_rig->enabled(MENU_Preset1));
    const QString used = ":/resource/image/sceneSetting/sceneused.png";
    const QString unused = ":/resource/image/sceneSetting/sceneunused.png";
    const struct {
        int number;
        QString tag, value, icon;
    } rows[] = {
        {0, "Evening show", "Saved", unused},
        {1, "Preset2", "Blank", unused},
        {2, QString::fromUtf8("会议室"), "Used", used},
        {4, QString(19, 'x'), "Saved", unused},
        {9, "Preset10", "Saved", unused},
    };
    for (const auto &row : rows) {
        const ST_ItemInfo item = m_rig->info(ENUM_MenuIndex(MENU_Preset1 + row.number));
        QCOMPARE(item.tag, row.tag);
        QCOMPARE(item.value, row.value);
        QCOMPARE(item.icon, row.icon);
    }
    QCOMPARE(m_rig->value(PARA_PresetInUse), QString("2"));
}

void TestSnapshot::homeScreen_data()
{
    QTest::addColumn<QString>("workMode");
    QTest::addColumn<int>("outputMode");
    QTest::addColumn<int>("stereo"); ///< format byte, 0 off
    QTest::addColumn<QString>("sync");
    QTest::addColumn<QString>("resolution");
    QTest::addColumn<int>("rate");
    QTest::newRow("own rate") << "0" << 0 << 0 << "0"
                              << "1920x1080@59.94" << 5994;
    QTest::newRow("software configuration") << "0" << 1 << 0 << "0"
                                            << "1024x768@75" << 7500;
    QTest::newRow("3D doubles what is shown") << "0" << 0 << 40 << "0"
                                              << "1920x1080@119.88" << 5994;
    QTest::newRow("frame sequential does not") << "0" << 0 << 24 << "0"
                                               << "1920x1080@59.94" << 5994;
    QTest::newRow("follows its source") << "0" << 0 << 0 << "1"
                                        << "1920x1080@60" << 6000;
    QTest::newRow("sending card, free") << "2" << 0 << 40 << "0"
                                        << "1920x1080i@25" << 2500;
    QTest::newRow("sending card, synchronised") << "2" << 0 << 0 << "1"
                                                << "1920x1080@50" << 5000;
}

void TestSnapshot::homeScreen()
{
    QFETCH(QString, workMode);
    QFETCH(int, outputMode);
    QFETCH(int, stereo);
    QFETCH(QString, sync);
    put(0xF603, 1920, 2);
    put(0xF605, 1080, 2);
    put(0xF607, 5994, 2);
    put(0xF60A, 1024, 2);
    put(0xF60C, 768, 2);
    put(0xF60E, 7500, 2);
    put(0x2F00, outputMode, 1);
    put(0x2400, stereo ? 168 : 0, 1);
    put(0x2402, stereo, 1);
    m_rig->set(MENU_WorkMode, workMode);
    m_rig->set(MENU_Sync_Status, sync);
    m_rig->set(MENU_Sync_Source, "1");
    m_rig->set(MENU_MainLayer_InputSource, "0");
    m_rig->input(0, 97, 3, 1920, 1080, 40000);
    m_rig->process(ENUM_MenuIndex(PARA_InputRecordFirst + 1), 1);
    m_rig->input(1, 98, 3, 1920, 1080, 16667);
    m_rig->input(8, 254, 3, 1920, 1080, 20000);
    m_rig->set(MENU_ScreenBrightness, "42");
    start();
    QTEST(m_rig->shown("labScreenRes"), "resolution");
    QTEST(m_rig->value(PARA_OutputRate).toInt(), "rate");
    QCOMPARE(m_rig->shown("labBright"), QString("42%"));
    QCOMPARE(m_rig->shown("labSynName"), QString("HDMI2"));
    QVERIFY(ParaProcess::init_20m_flg);
}

void TestSnapshot::layersOfTheHomeScreen()
{
    m_rig->set(MENU_MainLayer_Status, "1");
    m_rig->set(MENU_MainLayer_InputSource, "1");
    m_rig->set(MENU_PIP1_Status, "0");
    m_rig->set(MENU_PIP2_Status, "1");
    m_rig->set(MENU_PIP2_InputSource, "2");
    m_rig->input(1, 98, 3, 1920, 1080, 20000);
    m_rig->input(2, 105, 1, 800, 600, 16667);
    start();
    QCOMPARE(m_rig->shown("labLayerSrc1_Name"), QString("HDMI2"));
    QCOMPARE(m_rig->shown("labLayerSrc1_Res"), QString("1920x1080@50"));
    QVERIFY(!m_rig->home->findChild<QLabel *>("labWindowOffDisplay_2")->isHidden());
    QCOMPARE(m_rig->shown("labLayerSrc3_Name"), QString("DVI"));
    QCOMPARE(m_rig->shown("labLayerSrc3_Res"), QString("No Signal"));
}

void TestSnapshot::unreadableBlockKeepsWhatWasRead()
{
    put(0x209F, 33, 1);
    start();
    QFile fault(m_rig->statePath(hostlink::flashFaultFile));
    QVERIFY(fault.open(QIODevice::WriteOnly));
    fault.write("3"); // three tries for the first block
    fault.close();
    put(0x209F, 44, 1);
    put(0x2F10, 7, 1);
    start();
    QCOMPARE(m_rig->value(MENU_Audio_Volume), QString("33"));
    QCOMPARE(m_rig->value(PARA_PresetInUse), QString("7"));
}

/// Presets, address and name are read from the flash anew: of one that ends too early they stay as they are.
void TestSnapshot::cutImageTakesNothingAway()
{
    put(0x2F10, 3, 1); // another one is in use
    put(0x3000 + 10, 168, 1);
    for (int part : {0, 1, 2, 3})
        put(0x2006 + 2 * part, part == 0 ? 10 : part, 2);
    put(0xD14000, 154, 1);
    put(0xD14100, 'n', 2);
    start();
    const QString preset = m_rig->value(MENU_Preset1);
    QCOMPARE(preset, QString("Saved"));
    const QString address = m_rig->value(MENU_Net_IPAddress);
    QCOMPARE(address, QString("10.1.2.3"));

    m_image.truncate(0x2010);
    start();
    m_rig->set(MENU_Net_IPAddress, "10.9.9.9");
    m_rig->engine->UpdateIp();
    QCOMPARE(m_rig->value(MENU_Preset1), preset);
    QVERIFY(m_rig->engine->presetNamed(0));
    QCOMPARE(m_rig->value(MENU_Net_IPAddress), address);
    QCOMPARE(MainWindow::m_strDeviceRename, QString("n"));
}

void TestSnapshot::deviceName_data()
{
    QTest::addColumn<int>("mark");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("shown");
    QTest::newRow("named") << 154 << "Hall 7"
                           << "Hall 7";
    QTest::newRow("Chinese") << 154 << QString::fromUtf8("大厅 屏幕") << QString::fromUtf8("大厅 屏幕");
    QTest::newRow("beyond the first plane") << 154 << QString::fromUtf8("𠀋屏") << QString::fromUtf8("𠀋屏");
    QTest::newRow("full field") << 154 << QString(40, 'n') << QString(32, 'n');
    QTest::newRow("not named") << 0 << "Hall 7"
                               << "";
}

void TestSnapshot::deviceName()
{
    QFETCH(int, mark);
    QFETCH(QString, name);
    put(0xD14000, mark, 1);
    for (int i = 0; i < qMin(name.size(), 32); ++i)
        put(0xD14100 + 2 * i, name.at(i).unicode(), 2);
    start();
    QTEST(MainWindow::m_strDeviceRename, "shown");
}

QTEST_MAIN(TestSnapshot)
#include "tst_snapshot.moc"
