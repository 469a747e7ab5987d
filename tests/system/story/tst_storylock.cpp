// The lock of the panel's keys: the chord, the lock window, and what survives a restart.
#include "tests/system/systemtest.h"
#include "tests/testprogram.h"

#include <QElapsedTimer>

using namespace VASK;

namespace
{
const QRect lockWindow(90, 71, 140, 98);
constexpr int windowMs = 2000;
constexpr int slackMs = 1500; ///< a loaded machine looks late
constexpr int layerLeds = 3;  ///< the others blink with their inputs
const QString chord = "esc+ok";
} // namespace

class TestStoryLock : public SystemTest
{
    Q_OBJECT
private slots:
    void chordLocksFromADeepPage()
    {
        QVERIFY(m_walk.go({MENU_AdvancedSetting, MENU_Audio, MENU_Audio_Inputs}));
        QVERIFY(m_panel.hold(chord));
        QVERIFY(m_panel.waitUntil([this] { return showsWindow(); }));
        QVERIFY(m_panel.waitUntil([this] { return !showsWindow(); }));
        QVERIFY(waitUntilStored(MENU_ScreenLock, "1"));
    }

    void lockedPanelShowsItsWindowForTwoSeconds_data()
    {
        addNames("key", {"ok", "esc", "pip1", "in1", "test"});
    }
    void lockedPanelShowsItsWindowForTwoSeconds()
    {
        QFETCH(QString, key);
        QVERIFY(clearWrites());
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

    void heldKeysDoNothingEither()
    {
        QVERIFY(clearWrites());
        QVERIFY(m_panel.hold("main+in1+preset"));
        QVERIFY(m_panel.waitUntil([this] { return showsWindow(); }));
        QVERIFY(m_panel.waitUntil([this] { return !showsWindow(); }));
        QCOMPARE(m_panel.writes(), QStringList());
    }

    void lockSurvivesARestart()
    {
        QVERIFY(restart());
        QVERIFY(m_panel.press(keys::Ok));
        QVERIFY(m_panel.waitUntil([this] { return showsWindow(); }));
    }

    void chordUnlocks()
    {
        QVERIFY(m_panel.hold(chord));
        QVERIFY(m_panel.waitFor(m_walk.text("Unlocked"), lockWindow));
        QVERIFY(waitUntilStored(MENU_ScreenLock, "0"));
        QVERIFY(m_panel.waitUntilGone(m_walk.text("Unlocked")));
        QVERIFY(m_walk.openMenu());
        QVERIFY(m_walk.showsTitle());
    }

private:
    /// In its one font: the window is up for two seconds only, and a loaded machine looks slowly.
    bool showsWindow() { return m_panel.draws(m_walk.text("Locked"), 16, lockWindow); }
};

FPD_TEST(TestStoryLock)
#include "tst_storylock.moc"
