// A user changes a value of every kind with the knob, and finds it on the screen, on the bus and in the
// store.
#include "client/lcdtext.h"
#include "client/loglines.h"
#include "tests/system/systemtest.h"
#include "tests/testprogram.h"

#include <QElapsedTimer>

using namespace VASK;

class TestStoryValues : public SystemTest
{
    Q_OBJECT
protected:
    void leave() override { QVERIFY(m_walk.home()); }

private slots:
    void init() { QVERIFY(clearWrites()); }

    void brightnessReachesRegisterAndFile()
    {
        QVERIFY(m_walk.go({MENU_ScreenBrightness}));
        QVERIFY(m_walk.turn(Right, 3));
        QVERIFY(m_panel.waitUntil([this] { return !m_panel.writes().filter("02000001").isEmpty(); }));
        QElapsedTimer sinceLastKey;
        sinceLastKey.start();
        QVERIFY(waitUntilStored(MENU_ScreenBrightness, "63"));
        // A second after the last key, not before and not much later.
        QVERIFY2(sinceLastKey.elapsed() > 500 && sinceLastKey.elapsed() < 3000,
                 qPrintable(QString("%1 ms").arg(sinceLastKey.elapsed())));
        // 63 % of 255, to all sending cards.
        QVERIFY2(
            m_panel.waitUntil([this] { return m_panel.writes().filter("02000001").last().endsWith("a0"); }),
            qPrintable(m_panel.writes().join('\n')));
        QVERIFY(m_walk.press(keys::Esc));
        QVERIFY(m_panel.waitForLog(loglines::messageClosed)); // "saving"
        QVERIFY(m_walk.home());
        QVERIFY(m_panel.waitFor("63%", QRect(240, 135, 80, 30)));
    }

    void numberFollowsTheKnob_data()
    {
        const DataRows<QList<ENUM_MenuIndex>, int, int, QString> row{"path", "steps", "speed", "value"};
        using Path = QList<ENUM_MenuIndex>;
        row("whole", Path{MENU_AdvancedSetting, MENU_Audio, MENU_Audio_Volume}, 2, 1, "52");
        row("fast", Path{MENU_SystemSetting, MENU_ReturntoHome}, 2, 8, "76");
        row("decimal", Path{MENU_DisplayControl, MENU_TransitionDuration}, 3, 1, "0.8");
    }
    void numberFollowsTheKnob()
    {
        const auto [path, steps, speed, value] =
            fetched<QList<ENUM_MenuIndex>, int, int, QString>({"path", "steps", "speed", "value"});
        QVERIFY(m_walk.go(path));
        QVERIFY(m_walk.turn(Right, steps, speed));
        QVERIFY(m_panel.waitFor(value, QRect(200, 24, 120, 216)));
        QVERIFY(m_walk.press(keys::Ok));
        QVERIFY(waitUntilStored(path.last(), value));
    }

    void listIsChosenOrLeft()
    {
        QVERIFY(m_walk.go({MENU_DisplayControl, MENU_MainLayerTransition}));
        const QString before = m_panel.stored(MENU_MainLayerTransition);
        const QString other = before == "0" ? "1" : "0";
        QVERIFY(m_walk.turn(Right, 1));
        QVERIFY(m_walk.press(keys::Esc));
        QVERIFY(m_walk.press(keys::Ok));
        QVERIFY(m_walk.turn(Right, 1));
        QCOMPARE(m_panel.stored(MENU_MainLayerTransition), before);
        QVERIFY(m_walk.press(keys::Ok));
        QVERIFY(waitUntilStored(MENU_MainLayerTransition, other));
    }

    void reversedListStoresWhatItShows()
    {
        QVERIFY(m_walk.go({MENU_AdvancedSetting, MENU_Synchronization, MENU_Sync_Status}));
        // What is on stands first, though its number is the higher one.
        const QRect table(130, 24, 190, 216);
        const QImage open = m_panel.screen();
        const QRect on = lcdtext::find(open, m_walk.text("On"), table);
        const QRect off = lcdtext::find(open, m_walk.text("Off"), table);
        QVERIFY(!on.isEmpty() && !off.isEmpty() && on.top() < off.top());
        QVERIFY(m_walk.turn(Right, 1));
        QVERIFY(m_walk.press(keys::Ok));
        QVERIFY(waitUntilStored(MENU_Sync_Status, "1"));
    }

    void picturesArePreviewedAndTakenBack()
    {
        QVERIFY(m_walk.go(
            {MENU_AdvancedSetting, MENU_ScreenSetting, MENU_QuickConfiguration, MENU_Quick_FlowWay}));
        const QString before = m_panel.stored(MENU_Quick_FlowWay);
        QVERIFY(m_walk.turn(Right, 2));
        QVERIFY(waitUntilStored(MENU_Quick_FlowWay, QString::number((before.toInt() + 2) % 8)));
        QVERIFY(m_walk.press(keys::Esc));
        QVERIFY(waitUntilStored(MENU_Quick_FlowWay, before));
        QVERIFY(m_walk.press(keys::Ok));
        QVERIFY(m_walk.turn(Right, 1));
        QVERIFY(m_walk.press(keys::Ok));
        QVERIFY(waitUntilStored(MENU_Quick_FlowWay, QString::number((before.toInt() + 1) % 8)));
    }

    void addressIsDialledNumberByNumber()
    {
        QVERIFY(m_walk.go({MENU_CommunicationSettings, MENU_NetworkSettings, MENU_Net_IPAddress}));
        QVERIFY(m_walk.turn(Right, 100)); // the first number ends at 223
        for (int number = 1; number < 4; ++number) {
            QVERIFY(m_walk.press(keys::Ok));
            QVERIFY(m_walk.turn(Right, number));
        }
        QVERIFY(m_walk.press(keys::Esc));
        QVERIFY(waitUntilStored(MENU_Net_IPAddress, "223.169.2.13"));
        QVERIFY(m_walk.enter(MENU_Net_SubnetMask));
        QVERIFY(m_walk.turn(Left, 5)); // the mask's first number stands
        QVERIFY(m_walk.press(keys::Esc));
        QVERIFY(waitUntilStored(MENU_Net_SubnetMask, "255.255.255.0"));
    }

    void checkRowTakesTheTick()
    {
        QVERIFY(m_walk.go({MENU_SystemSetting, MENU_Fn, MENU_Fn_Freeze}));
        QVERIFY(waitUntilStored(MENU_Fn_Freeze, SELECTED, "Choice"));
        QVERIFY(waitUntilStored(MENU_Fn_Synchronization, UNSELECTED, "Choice"));
    }
};

FPD_TEST(TestStoryValues)
#include "tst_storyvalues.moc"
