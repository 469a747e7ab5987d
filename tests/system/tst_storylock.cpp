// The lock of the panel's keys: the chord, the lock window, and what survives a restart.
#include "tests/system/menuwalk.h"

#include <QElapsedTimer>
#include <QTest>

using namespace VASK;

class TestStoryLock : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void cleanup();
    void cleanupTestCase();
    void chordLocksFromADeepPage();
    void lockedPanelShowsItsWindowForTwoSeconds_data();
    void lockedPanelShowsItsWindowForTwoSeconds();
    void lockSurvivesARestart();
    void chordUnlocks();

private:
    bool showsWindow();

    Panel m_panel;
    MenuWalk m_walk{m_panel};
};

namespace
{
const QRect lockWindow(90, 71, 140, 98);
constexpr int windowMs = 2000;
constexpr int slackMs = 1500; ///< a loaded machine looks late
constexpr int layerLeds = 3;  ///< the others blink with their inputs
const QString chord = "esc+ok";
} // namespace

void TestStoryLock::initTestCase()
{
    QVERIFY(m_panel.startReady());
    m_walk.speak("fpd_ZH");
}

void TestStoryLock::cleanup()
{
    if (QTest::currentTestFailed())
        m_panel.keepEvidence(QString("lock-%1").arg(QTest::currentTestFunction()));
}

void TestStoryLock::cleanupTestCase()
{
    QCOMPARE(m_panel.damage(), QString());
}

bool TestStoryLock::showsWindow()
{
    return m_panel.shows(m_walk.text("Locked"), lockWindow);
}

void TestStoryLock::chordLocksFromADeepPage()
{
    QVERIFY(m_walk.go({MENU_AdvancedSetting, MENU_Audio, MENU_Audio_Inputs}));
    QVERIFY(m_panel.hold(chord));
    QVERIFY(m_panel.waitUntil([this] { return showsWindow(); }));
    QVERIFY(m_panel.waitUntil([this] { return !showsWindow(); }));
    QVERIFY(m_panel.waitUntil([this] { return m_panel.stored(MENU_ScreenLock) == "1"; }));
}

void TestStoryLock::lockedPanelShowsItsWindowForTwoSeconds_data()
{
    QTest::addColumn<QString>("key");
    for (const char *key : {"ok", "esc", "pip1", "in1", "test"})
        QTest::newRow(key) << QString(key);
}

void TestStoryLock::lockedPanelShowsItsWindowForTwoSeconds()
{
    QFETCH(QString, key);
    QVERIFY(m_panel.ask({"writes", "--clear"}).ok);
    const QString leds = m_panel.leds().left(layerLeds);
    QVERIFY(m_panel.settle());
    const QImage before = m_panel.screen();
    QVERIFY(m_panel.press(key));
    QElapsedTimer shown;
    shown.start();
    QVERIFY(m_panel.waitUntil([this] { return showsWindow(); }));
    QVERIFY(m_panel.waitUntil(
        [this, &before] { return m_panel.screen().copy(lockWindow) == before.copy(lockWindow); }));
    QVERIFY2(shown.elapsed() > windowMs - 300 && shown.elapsed() < windowMs + slackMs,
             qPrintable(QString("%1 ms").arg(shown.elapsed())));
    // And does nothing else.
    QCOMPARE(m_panel.writes(), QStringList());
    QCOMPARE(m_panel.leds().left(layerLeds), leds);
    QVERIFY(m_panel.turn(Right));
    QVERIFY(m_panel.waitUntil([this] { return showsWindow(); }));
    QVERIFY(m_panel.waitUntil([this] { return !showsWindow(); }));
}

void TestStoryLock::lockSurvivesARestart()
{
    QVERIFY(m_panel.ask({"panel", "stop"}).ok);
    QVERIFY(m_panel.start());
    QVERIFY(m_panel.ask({"wait", "ready"}).ok);
    QVERIFY(m_panel.press(keys::Ok));
    QVERIFY(m_panel.waitUntil([this] { return showsWindow(); }));
}

void TestStoryLock::chordUnlocks()
{
    QVERIFY(m_panel.hold(chord));
    QVERIFY(m_panel.waitFor(m_walk.text("Unlocked"), lockWindow));
    QVERIFY(m_panel.waitUntil([this] { return m_panel.stored(MENU_ScreenLock) == "0"; }));
    QVERIFY(m_panel.waitUntilGone(m_walk.text("Unlocked")));
    QVERIFY(m_walk.openMenu());
    QVERIFY(m_walk.showsTitle());
}

QTEST_MAIN(TestStoryLock)
#include "tst_storylock.moc"
