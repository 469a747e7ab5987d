// The home screen as a user sees it after the start, and what the device's reports change on it.
#include "tests/system/panel.h"

#include <QTest>

class TestSystemHome : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void cleanup();
    void cleanupTestCase();
    void showsTheDevicesState();
    void panelIsOnTheBus();
    void busComesAndGoes();
    void flashIsReadAtTheStart();
    void makersSignCanBeLeftOut();

private:
    Panel m_panel;
};

namespace
{
const QString model = "K2860";
const QRect modelPlace(25, 0, 118, 24);
constexpr int itemMakersSign = 3091;
} // namespace

void TestSystemHome::initTestCase()
{
    QVERIFY(m_panel.startReady());
}

void TestSystemHome::cleanup()
{
    if (QTest::currentTestFailed())
        m_panel.keepEvidence(QTest::currentTestFunction());
}

void TestSystemHome::cleanupTestCase()
{
    m_panel.keepEvidence("home");
    QCOMPARE(m_panel.damage(), QString());
}

void TestSystemHome::showsTheDevicesState()
{
    QVERIFY(m_panel.waitFor("60%"));
    QVERIFY(m_panel.waitFor(model, modelPlace));
    QVERIFY(m_panel.waitFor("192.168.0.10"));
    QVERIFY(!m_panel.shows("61%"));
}

void TestSystemHome::panelIsOnTheBus()
{
    m_panel.mark();
    QVERIFY(m_panel.ask({"push", "02000001", "80", "--device", "1"}).ok);
    // The device's own reports may come between.
    QVERIFY(m_panel.waitForLog("0100000201008"));
    QCOMPARE(m_panel.logLines("0100000201008").size(), 1);
}

void TestSystemHome::busComesAndGoes()
{
    QVERIFY(m_panel.ask({"fault", "bus", "down"}).ok);
    QVERIFY(!m_panel.ask({"push", "02000001", "80"}).ok);
    QVERIFY(m_panel.press(keys::Esc));
    QVERIFY(m_panel.waitForLog("TIMER_CancelTimer ==  35"));
    QVERIFY(m_panel.ask({"fault", "bus", "up"}).ok);
    QVERIFY(m_panel.waitUntil([this] { return m_panel.ask({"push", "02000001", "80"}).ok; }));
}

void TestSystemHome::flashIsReadAtTheStart()
{
    QVERIFY(m_panel.ask({"panel", "stop"}).ok);
    QVERIFY(m_panel.ask({"flash", "write", "200C", "6300"}).ok);
    QVERIFY(m_panel.start());
    QVERIFY(m_panel.waitFor("192.168.0.99"));
}

void TestSystemHome::makersSignCanBeLeftOut()
{
    QVERIFY(m_panel.ask({"panel", "stop"}).ok);
    QVERIFY(m_panel.setStored(itemMakersSign, "0"));
    QVERIFY(m_panel.start());
    QVERIFY(m_panel.waitFor("60%"));
    QVERIFY(!m_panel.shows(model, modelPlace));
}

QTEST_MAIN(TestSystemHome)
#include "tst_systemhome.moc"
