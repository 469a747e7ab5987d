// What the flash snapshot says at start where its fields hold something unusual or can not be read, and what
// the home screen makes of it.

#include "enginerig.h"
#include "framework/engine/presets.h"
#include "menu/itemindex.h"
#include "tests/testprogram.h"

#include <QTextCodec>

using namespace VASK;

class TestSnapshot : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { m_rig = new EngineRig; }
    void cleanupTestCase() { delete m_rig; }
    void init();

    void unknownPatternIsAColour();
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

void TestSnapshot::unknownPatternIsAColour()
{
    put(0x2005, 0x33, 1);
    start();
    QCOMPARE(m_rig->value(PARA_TestPatternFamily), QString("0"));
    QCOMPARE(m_rig->value(MENU_Test_PureColor), QString("5"));
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
    addColumns<QString, int, QString, QString, int>({"workMode", "format", "sync", "resolution", "rate"});
    addRow("frame sequential is not doubled", "0", 24, "0", "1920x1080@59.94", 5994);
    addRow("follows its source", "0", 0, "1", "1920x1080@60", 6000);
    addRow("sending card, free", "2", 40, "0", "1920x1080i@25", 2500);
    addRow("sending card, synchronised", "2", 0, "1", "1920x1080@50", 5000);
}

void TestSnapshot::homeScreen()
{
    QFETCH(QString, workMode);
    QFETCH(int, format);
    QFETCH(QString, sync);
    put(0xF603, 1920, 2);
    put(0xF605, 1080, 2);
    put(0xF607, 5994, 2);
    put(0x2400, format ? 168 : 0, 1);
    put(0x2402, format, 1);
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
    QVERIFY(m_rig->engine->presets().isNamed(0));
    QCOMPARE(m_rig->value(MENU_Net_IPAddress), address);
    QCOMPARE(m_rig->home->deviceName(), QString("n"));
}

void TestSnapshot::deviceName_data()
{
    addColumns<QString, QString>({"name", "shown"});
    addRow("beyond the first plane", QString::fromUtf8("𠀋屏"), QString::fromUtf8("𠀋屏"));
    addRow("full field", QString(40, 'n'), QString(32, 'n'));
}

void TestSnapshot::deviceName()
{
    QFETCH(QString, name);
    put(0xD14000, 154, 1);
    for (int i = 0; i < qMin(name.size(), 32); ++i)
        put(0xD14100 + 2 * i, name.at(i).unicode(), 2);
    start();
    QTEST(m_rig->home->deviceName(), "shown");
}

FPD_TEST(TestSnapshot)

#include "tst_snapshot.moc"
