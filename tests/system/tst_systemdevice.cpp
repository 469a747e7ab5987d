// The device by the words of its console, with the panel on its bus: what happens at the device is in its
// state, the panel takes it over, and a session can be played again.
#include "client/homescreen.h"
#include "client/mirrored.h"
#include "tests/system/systemtest.h"
#include "tests/testprogram.h"

#include <QFile>

using namespace VASK;

class TestSystemDevice : public SystemTest
{
    Q_OBJECT
private slots:
    void startFallsSilent()
    {
        // Whatever the panel corrects after the reports of the start, panel and device come to rest with it.
        QVERIFY(m_panel.waitUntil([this] {
            const int before = m_panel.writes().size();
            QTest::qWait(700);
            return m_panel.writes().size() == before;
        }));
        QVERIFY2(m_panel.writes().size() < 20, qPrintable(m_panel.writes().join('\n')));
    }

    void panelAndDeviceAgreeFromDelivery()
    {
        m_panel.waitUntil([this] { return mirrored::differences(m_panel).isEmpty(); });
        QCOMPARE(mirrored::differences(m_panel).join('\n'), QString());
    }

    /// Neither the device's answer to the window nor its start is taken for a hand on it.
    void aLayerStaysFullScreen()
    {
        QVERIFY(m_panel.press("scale"));
        QVERIFY(waitUntilStored(MENU_MainLayer_ScalingMode, "0"));
        QVERIFY(restart());
        QVERIFY(m_panel.settle());
        QVERIFY(homescreen::waitToSee(m_panel, "led3:on"));
        m_panel.waitUntil([this] { return mirrored::differences(m_panel).isEmpty(); });
        QCOMPARE(mirrored::differences(m_panel).join('\n'), QString());
        QCOMPARE(m_panel.stored(MENU_MainLayer_ScalingMode), QString("0"));
    }

    void theyAgreeOnWhatIsChosen()
    {
        QVERIFY(m_walk.go({MENU_CommunicationSettings, MENU_CommunicationMode}));
        QVERIFY(m_walk.turn(Right, 1) && m_walk.press(keys::Ok));
        QVERIFY(waitUntilStored(MENU_CommunicationMode, "1"));
        QVERIFY(shown().contains("  communication: USB preferred"));
        QVERIFY(m_walk.home());
    }

    void wordsChangeTheDevice_data()
    {
        const DataRows<QString, QString> row{"words", "line"};
        row("signal sdi on 1920x1080i@50 ycc422", "  sdi: 1920x1080i@50 ycc422");
        row("signal sdi on", "  sdi: 1920x1080i@50 ycc422");
        row("signal sdi off", "  sdi: no signal");
        row("signal sdi on", "  sdi: 1920x1080i@50 ycc422");
        row("signal dvi on", "  dvi: 1920x1080@60 rgb444");
        row("signal reference on 1920x1080@59.94", "  reference: 1920x1080@59.94 rgb444");
        row("port 6 link on", "  port 6: link on, backup off, engaged off");
        row("port 6 backup on", "  port 6: link on, backup on, engaged off");
        row("port 6 engaged on", "  port 6: link on, backup on, engaged on");
        row("rename Stage", "  name: Stage");
        row("link priority 1", "  communication: LAN preferred");
        row("calibrate on", "  soft calibration: on");
        row("calibrate off", "  soft calibration: off");
        row("push 1300009E 0214", "  volume: 20");
        row("push 1300009E 0215 --ack 1", "  volume: 20"); // an answer that failed tells nothing
        row("flash write 209F 16", "  volume: 22");
    }
    void wordsChangeTheDevice()
    {
        const auto [words, line] = fetched<QString, QString>({"words", "line"});
        const Answer answer = m_panel.ask(words.split(' '));
        QVERIFY2(answer.ok, qPrintable(answer.error));
        QVERIFY2(shown().contains(line), qPrintable(shown().join('\n')));
    }

    void aNameThatIsCutIsTold()
    {
        const QString name(31, 'x'), two = QString::fromUtf8("😀");
        QCOMPARE(m_panel.ask({"rename", name + 'y'}).lines, QStringList());
        QCOMPARE(m_panel.ask({"rename", name + two + 'z'}).lines, QStringList{"the name is cut to " + name});
        QVERIFY(shown().contains("  name: " + name));
    }

    void aPushedServerSwitchBringsAnAddress()
    {
        QVERIFY(m_panel.ask({"push", "1300001A", "A8"}).ok);
        QVERIFY(m_panel.waitFor("192.168.0.137"));
        QVERIFY(shown().contains("  address: 192.168.0.137"));
        QVERIFY(waitUntilStored(MENU_Net_IPAddress, "192.168.0.137"));
    }

    void panelAndDeviceAgreeAfterAReplay()
    {
        QFile session(m_panel.statePath() + "/session.txt");
        QVERIFY(session.open(QIODevice::WriteOnly));
        session.write("0 report 1300009e 0 0141\n"
                      "4000 report 13411000 0 010e0000" +
                      QByteArray(72, '0') +
                      "\n"
                      "8000 key 0121  # knob right\n");
        session.close();
        QVERIFY(!m_panel.ask({"replay", session.fileName(), "0"}).ok);
        const Answer answer = m_panel.ask({"replay", session.fileName(), "50"});
        QVERIFY2(answer.ok, qPrintable(answer.error));
        QCOMPARE(answer.lines, QStringList{"played 1 keys and 2 reports"});
        QVERIFY(shown().contains("  volume: 65"));
        QVERIFY(shown().contains("  OSD: on, picture 0 at 0,0, in front"));
        QVERIFY(waitUntilStored(MENU_Audio_Volume, "65"));
        QVERIFY(waitUntilStored(MENU_OSDState, "1"));
    }

    void recordedKeysReachThePanelAgain()
    {
        const QString file = m_panel.statePath() + "/keys.txt";
        QVERIFY(m_panel.ask({"record", file}).ok);
        QVERIFY(m_panel.turn(Right, 2));
        QVERIFY(m_panel.press(keys::Esc));
        QCOMPARE(m_panel.ask({"record", "stop"}).lines, QStringList{"4 events"});
        m_panel.mark();
        const Answer answer = m_panel.ask({"replay", file, "2"});
        QVERIFY2(answer.ok, qPrintable(answer.error));
        QCOMPARE(answer.lines, QStringList{"played 4 keys and 0 reports"});
        QVERIFY(m_panel.waitForLog("TIMER_CancelTimer ==  35"));
    }

private:
    QStringList shown() { return m_panel.ask({"device", "show"}).lines; }
};

FPD_TEST(TestSystemDevice)
#include "tst_systemdevice.moc"
