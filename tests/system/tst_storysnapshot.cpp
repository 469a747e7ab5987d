// What the device's parameter flash holds is what the panel shows after a start: a row a block.
#include "tests/system/menuwalk.h"

#include <QTest>

using namespace VASK;

class TestStorySnapshot : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void cleanupTestCase();
    void blockReachesItsItem_data();
    void blockReachesItsItem();
    void presetHasTheNameOfTheFlash();

private:
    Panel m_panel;
    MenuWalk m_walk{m_panel};
};

namespace
{
struct Bytes {
    const char *what;
    const char *address;
    const char *hex;
    ENUM_MenuIndex item;
    const char *value;
};

// Addresses and bytes as the device writes them, by hand.
constexpr Bytes blocks[] = {
    {"fade time", "2002", "7800", MENU_TransitionDuration, "1.2"},
    {"volume", "209F", "21", MENU_Audio_Volume, "33"},
    {"test brightness", "2042", "02", MENU_Test_Brightness, "2"},
    {"address", "2006", "0A0001000200C800", MENU_Net_IPAddress, "10.1.2.200"},
    {"mask", "200E", "FF00FF0000000000", MENU_Net_SubnetMask, "255.255.0.0"},
    {"gateway", "2016", "0A010203", MENU_Net_Gateway, "10.1.2.3"},
    {"picture of HDMI 1", "EA01", "2F", MENU_HDMI1_Brightness, "47"},
    {"picture of HDMI 2", "EA16", "30", MENU_HDMI2_Contrast, "48"},
    {"HDCP", "15630", "00", MENU_HDCP, "1"},
};
} // namespace

void TestStorySnapshot::initTestCase()
{
    // All blocks change at once, while the panel is off; its reports say nothing of them.
    QVERIFY(m_panel.powerDevice());
    QVERIFY(m_panel.ask({"reports", "off"}).ok);
    for (const Bytes &block : blocks)
        QVERIFY2(m_panel.ask({"flash", "write", block.address, block.hex}).ok, block.what);
    QVERIFY(m_panel.ask({"flash", "write", "4400", "4F70657261000000"}).ok); // "Opera", preset 2
    QVERIFY(m_panel.start());
    QVERIFY(m_panel.ask({"wait", "ready"}).ok);
    m_walk.speak("fpd_ZH");
    // A key has the store written.
    QVERIFY(m_walk.openMenu());
    QVERIFY(m_walk.home());
}

void TestStorySnapshot::cleanupTestCase()
{
    m_panel.keepEvidence("snapshot");
    QCOMPARE(m_panel.damage(), QString());
}

void TestStorySnapshot::blockReachesItsItem_data()
{
    QTest::addColumn<int>("item");
    QTest::addColumn<QString>("value");
    for (const Bytes &block : blocks)
        QTest::newRow(block.what) << int(block.item) << QString(block.value);
}

void TestStorySnapshot::blockReachesItsItem()
{
    QFETCH(int, item);
    QFETCH(QString, value);
    QTRY_COMPARE_WITH_TIMEOUT(m_panel.stored(item), value, 5000);
}

void TestStorySnapshot::presetHasTheNameOfTheFlash()
{
    QVERIFY(m_walk.go({MENU_PresetSettings}));
    QVERIFY(m_panel.waitFor("Opera", QRect(0, 24, 200, 216)));
    QVERIFY(m_walk.home());
    QVERIFY(m_panel.waitFor("10.1.2.200", QRect(180, 0, 140, 26)));
}

QTEST_MAIN(TestStorySnapshot)
#include "tst_storysnapshot.moc"
