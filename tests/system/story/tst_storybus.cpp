// The bus misbehaves: a packet that cannot be sent is lost alone, the order stays, and the panel goes on.
#include "tests/system/systemtest.h"
#include "tests/testprogram.h"

#include <QElapsedTimer>

using namespace VASK;

namespace
{
const QList<ENUM_MenuIndex> picturePage{MENU_InputSettings, MENU_HDMI1, MENU_HDMI1_InputColor};
const QString brightness = "13050001", contrast = "13050002", saturation = "13050004";
} // namespace

class TestStoryBus : public SystemTest
{
    Q_OBJECT
protected:
    void begin() override
    {
        SystemTest::begin();
        QVERIFY(m_walk.go(picturePage));
    }

private slots:
    void init() { QVERIFY(clearWrites()); }

    void failedSendIsRepeated()
    {
        QVERIFY(m_panel.ask({"fault", "bus-send", "5"}).ok);
        QVERIFY(touch(MENU_HDMI1_Brightness));
        QVERIFY(m_panel.waitUntil([this] { return rowWrites() == QStringList{brightness}; }));
    }

    void sixFailedSendsLoseOnePacket()
    {
        QVERIFY(m_panel.ask({"fault", "bus-send", "6"}).ok);
        QVERIFY(touch(MENU_HDMI1_Brightness));
        QVERIFY(touch(MENU_HDMI1_Contrast));
        QVERIFY(touch(MENU_HDMI1_Saturation));
        QVERIFY(m_panel.waitUntil([this] { return rowWrites().contains(saturation); }));
        QCOMPARE(rowWrites(), QStringList({contrast, saturation}));
    }

    void packetsKeepTheirOrder()
    {
        QStringList order;
        for (int round = 0; round < 5; ++round) {
            QVERIFY(touch(MENU_HDMI1_Saturation));
            QVERIFY(touch(MENU_HDMI1_Brightness));
            order << saturation << brightness;
        }
        QVERIFY(m_panel.waitUntil([&] { return rowWrites().size() >= order.size(); }));
        QCOMPARE(rowWrites(), order);
    }

    void panelWorksWhileTheBusIsDown()
    {
        QVERIFY(m_panel.ask({"fault", "bus", "down"}).ok);
        QElapsedTimer answer;
        for (ENUM_MenuIndex row : {MENU_HDMI1_Brightness, MENU_HDMI1_Contrast, MENU_HDMI1_Hue}) {
            QVERIFY(m_walk.enter(row));
            const QImage before = m_panel.screen();
            answer.start();
            QVERIFY(m_panel.turn(Right, 1));
            QVERIFY(m_panel.waitUntil([&] { return m_panel.screen() != before; }));
            QVERIFY2(answer.elapsed() < 1000, qPrintable(QString("%1 ms").arg(answer.elapsed())));
            QVERIFY(m_walk.press(keys::Ok));
        }
        QVERIFY(m_panel.ask({"fault", "bus", "up"}).ok);
        QVERIFY(m_panel.waitUntil([this] { return m_panel.ask({"push", "02000001", "80"}).ok; }));
        QVERIFY(touch(MENU_HDMI1_Contrast));
        QVERIFY(
            m_panel.waitUntil([this] { return !rowWrites().isEmpty() && rowWrites().last() == contrast; }));
    }

    void panelStartsWithoutABus()
    {
        QVERIFY(m_panel.ask({"panel", "stop"}).ok);
        QVERIFY(m_panel.ask({"fault", "bus", "down"}).ok);
        QVERIFY(startAgain());
        QVERIFY(m_walk.openMenu());
        QVERIFY(m_panel.turn(Right, 3));
        QVERIFY(m_panel.ask({"fault", "bus", "up"}).ok);
        QVERIFY(m_walk.home());
    }

private:
    /// The pictures' registers so far: what the four rows of the page wrote, as the last byte of the address.
    QStringList rowWrites()
    {
        QStringList addresses;
        for (const QString &write : m_panel.writes())
            if (write.startsWith("130500"))
                addresses << write.section(' ', 0, 0);
        return addresses;
    }

    /// OK and OK again: the value is sent once, as it stands.
    bool touch(ENUM_MenuIndex row) { return m_walk.enter(row) && m_walk.press(keys::Ok); }
};

FPD_TEST(TestStoryBus)
#include "tst_storybus.moc"
