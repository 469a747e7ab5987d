// What the device tells of its inputs, its ports and its work mode, as a user sees it on the home screen.
#include "tests/system/homescreen.h"

#include <QTest>

namespace
{
constexpr int itemWorkMode = 3210;
constexpr const char *workModeRegister = "1300002C";
/// The write that tells the sender whether the device works as a sending card.
constexpr const char *senderOn = "020001f8 00 a5";
constexpr const char *senderOff = "020001f8 00 00";
} // namespace

class TestSystemReports : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void cleanup();
    void cleanupTestCase();
    void layerShowsWhatItsSourceCarries_data();
    void layerShowsWhatItsSourceCarries();
    void layerTellsOfALostSource();
    void portsShowTheirLinks_data();
    void portsShowTheirLinks();
    void engagedBackupBlinks();
    void sendingCardFollowsItsInput();
    void fiberConverterGetsItsScreenBack();

private:
    QString portColour(int port) const { return homescreen::portColour(m_panel, port); }
    bool portTurns(int port, const QString &colour)
    {
        return m_panel.waitUntil([=] { return portColour(port) == colour; });
    }
    bool sees(const QString &sight) { return homescreen::waitToSee(m_panel, sight); }
    bool wasWritten(const QString &line)
    {
        return m_panel.waitUntil([=] { return m_panel.writes().contains(line); });
    }
    Panel m_panel;
};

void TestSystemReports::initTestCase()
{
    QVERIFY(m_panel.startReady());
    QVERIFY(m_panel.waitForLog("StartComplate: 2"));
}

void TestSystemReports::cleanup()
{
    if (QTest::currentTestFailed())
        m_panel.keepEvidence(QTest::currentTestFunction());
}

void TestSystemReports::cleanupTestCase()
{
    m_panel.keepEvidence("reports");
    QCOMPARE(m_panel.damage(), QString());
}

void TestSystemReports::layerShowsWhatItsSourceCarries_data()
{
    QTest::addColumn<QString>("mode");
    QTest::newRow("progressive") << "1280x720@50";
    QTest::newRow("interlaced") << "1920x1080i@60";
    QTest::newRow("fractional") << "1024x768@59.94";
}

void TestSystemReports::layerShowsWhatItsSourceCarries()
{
    QFETCH(QString, mode);
    QVERIFY(m_panel.ask({"signal", "hdmi1", "on", mode}).ok);
    QVERIFY(sees("main:" + mode));
}

void TestSystemReports::layerTellsOfALostSource()
{
    QVERIFY(m_panel.ask({"signal", "hdmi1", "on", "1280x720@50"}).ok);
    QVERIFY(sees("main:1280x720@50"));
    QVERIFY(m_panel.ask({"signal", "hdmi2", "on", "800x600@60"}).ok); // nobody shows it
    QVERIFY(m_panel.ask({"signal", "hdmi1", "off"}).ok);
    QVERIFY(m_panel.waitUntil([this] { return !homescreen::sees(m_panel, "main:1280x720@50"); }));
    QVERIFY(!homescreen::sees(m_panel, "main:800x600@60"));
}

void TestSystemReports::portsShowTheirLinks_data()
{
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<QString>("colour");
    QTest::newRow("cable in") << QStringList{"6", "link", "on"} << "green";
    QTest::newRow("backup") << QStringList{"6", "backup", "on"} << "yellow";
    QTest::newRow("primary again") << QStringList{"6", "backup", "off"} << "green";
    QTest::newRow("cable out") << QStringList{"6", "link", "off"} << "dark";
}

void TestSystemReports::portsShowTheirLinks()
{
    QFETCH(QStringList, words);
    QFETCH(QString, colour);
    QVERIFY(m_panel.ask(QStringList{"port"} + words).ok);
    QVERIFY(portTurns(6, colour));
    QCOMPARE(portColour(1), QString("green"));
}

void TestSystemReports::engagedBackupBlinks()
{
    QVERIFY(m_panel.ask({"port", "1", "engaged", "on"}).ok);
    for (const char *colour : {"yellow", "green", "yellow"})
        QVERIFY(portTurns(1, colour));
    QCOMPARE(portColour(2), QString("green"));
    QVERIFY(m_panel.ask({"port", "1", "engaged", "off"}).ok);
    QVERIFY(portTurns(1, "green"));
}

void TestSystemReports::sendingCardFollowsItsInput()
{
    QVERIFY(m_panel.ask({"signal", "dvi", "on", "1280x1024@75"}).ok);
    QVERIFY(m_panel.ask({"push", workModeRegister, "10"}).ok);
    QVERIFY(wasWritten(senderOn));
    QVERIFY(sees("main:1280x1024@75"));
    QVERIFY(sees("screen:1920x1080@75"));
    QVERIFY(m_panel.ask({"push", workModeRegister, "00"}).ok);
    QVERIFY(wasWritten(senderOff));
    QVERIFY(sees("screen:1920x1080@60"));
}

void TestSystemReports::fiberConverterGetsItsScreenBack()
{
    QVERIFY(m_panel.ask({"panel", "stop"}).ok);
    QVERIFY(m_panel.setStored(itemWorkMode, "1"));
    m_panel.mark();
    QVERIFY(m_panel.ask({"panel", "start"}).ok);
    QVERIFY(m_panel.waitForLog("StartComplate: 2"));
    QVERIFY(!homescreen::sees(m_panel, "bright:60%"));
    QCOMPARE(m_panel.leds(), QString(16, '0'));
    QVERIFY(m_panel.ask({"push", workModeRegister, "00"}).ok);
    QVERIFY(sees("bright:60%"));
    QVERIFY(m_panel.press(keys::Ok));
    QVERIFY(m_panel.waitUntilGone("192.168.0.10"));
}

QTEST_MAIN(TestSystemReports)
#include "tst_systemreports.moc"
