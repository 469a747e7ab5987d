// A user changes a value of every kind with the knob, and finds it on the screen, on the bus and in the
// store.
#include "tests/system/lcdtext.h"
#include "tests/system/menuwalk.h"

#include <QElapsedTimer>
#include <QTest>

using namespace VASK;

class TestStoryValues : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void init();
    void cleanup();
    void cleanupTestCase();
    void brightnessReachesRegisterAndFile();
    void numberFollowsTheKnob_data();
    void numberFollowsTheKnob();
    void numberStopsAtItsLimits_data();
    void numberStopsAtItsLimits();
    void listIsChosenOrLeft();
    void reversedListStoresWhatItShows();
    void picturesArePreviewedAndTakenBack();
    void addressIsDialledNumberByNumber();
    void checkRowTakesTheTick();

private:
    /// Waits for the store and says how long after the last key it was written.
    bool storedInTime(int item, const QString &value, const QString &field = "Value");

    Panel m_panel;
    MenuWalk m_walk{m_panel};
    QElapsedTimer m_sinceLastKey;
};

void TestStoryValues::initTestCase()
{
    QVERIFY(m_panel.startReady());
    m_walk.speak("fpd_ZH");
}

void TestStoryValues::init()
{
    QVERIFY(m_panel.ask({"writes", "--clear"}).ok);
}

void TestStoryValues::cleanup()
{
    if (QTest::currentTestFailed())
        m_panel.keepEvidence(QString("values-%1").arg(QTest::currentTestFunction()));
    QVERIFY(m_walk.home());
}

void TestStoryValues::cleanupTestCase()
{
    QCOMPARE(m_panel.damage(), QString());
}

bool TestStoryValues::storedInTime(int item, const QString &value, const QString &field)
{
    m_sinceLastKey.start();
    const bool found = m_panel.waitUntil([&] { return m_panel.stored(item, field) == value; });
    if (!found)
        qWarning("the store holds %s", qPrintable(m_panel.stored(item, field)));
    return found;
}

void TestStoryValues::brightnessReachesRegisterAndFile()
{
    QVERIFY(m_walk.go({MENU_ScreenBrightness}));
    QVERIFY(m_walk.turn(Right, 3));
    QVERIFY(m_panel.waitUntil([this] { return !m_panel.writes().filter("02000001").isEmpty(); }));
    QVERIFY(storedInTime(MENU_ScreenBrightness, "63"));
    // A second after the last key, not before and not much later.
    QVERIFY2(m_sinceLastKey.elapsed() > 500 && m_sinceLastKey.elapsed() < 3000,
             qPrintable(QString("%1 ms").arg(m_sinceLastKey.elapsed())));
    // 63 % of 255, to all sending cards.
    QVERIFY2(m_panel.waitUntil([this] { return m_panel.writes().filter("02000001").last().endsWith("a0"); }),
             qPrintable(m_panel.writes().join('\n')));
    QVERIFY(m_walk.press(keys::Esc));
    QVERIFY(m_panel.waitForLog("slot_CloseDialog:")); // "saving"
    QVERIFY(m_walk.home());
    QVERIFY(m_panel.waitFor("63%", QRect(240, 135, 80, 30)));
}

void TestStoryValues::numberFollowsTheKnob_data()
{
    QTest::addColumn<QList<ENUM_MenuIndex>>("path");
    QTest::addColumn<int>("steps");
    QTest::addColumn<int>("speed");
    QTest::addColumn<QString>("value");
    using Path = QList<ENUM_MenuIndex>;
    QTest::newRow("whole") << Path{MENU_AdvancedSetting, MENU_Audio, MENU_Audio_Volume} << 2 << 1 << "52";
    QTest::newRow("fast") << Path{MENU_SystemSetting, MENU_ReturntoHome} << 2 << 8 << "76";
    QTest::newRow("decimal") << Path{MENU_DisplayControl, MENU_TransitionDuration} << 3 << 1 << "0.8";
}

void TestStoryValues::numberFollowsTheKnob()
{
    QFETCH(QList<ENUM_MenuIndex>, path);
    QFETCH(int, steps);
    QFETCH(int, speed);
    QFETCH(QString, value);
    QVERIFY(m_walk.go(path));
    QVERIFY(m_walk.turn(Right, steps, speed));
    QVERIFY(m_panel.waitFor(value, QRect(200, 24, 120, 216)));
    QVERIFY(m_walk.press(keys::Ok));
    QVERIFY(storedInTime(path.last(), value));
}

void TestStoryValues::numberStopsAtItsLimits_data()
{
    QTest::addColumn<QList<ENUM_MenuIndex>>("path");
    QTest::addColumn<QString>("least");
    QTest::addColumn<QString>("most");
    using Path = QList<ENUM_MenuIndex>;
    QTest::newRow("whole") << Path{MENU_AdvancedSetting, MENU_Audio, MENU_Audio_Volume} << "0"
                           << "100";
    QTest::newRow("decimal") << Path{MENU_DisplayControl, MENU_TransitionDuration} << "0.5"
                             << "2.0";
}

void TestStoryValues::numberStopsAtItsLimits()
{
    QFETCH(QList<ENUM_MenuIndex>, path);
    QFETCH(QString, least);
    QFETCH(QString, most);
    QVERIFY(m_walk.go(path));
    QVERIFY(m_walk.turn(Right, 20, 7)); // 7 does not divide the way to the limit
    QVERIFY(storedInTime(path.last(), most));
    QVERIFY(m_walk.turn(Left, 20, 7));
    // ESC keeps what the knob has set.
    QVERIFY(m_walk.press(keys::Esc));
    QVERIFY(storedInTime(path.last(), least));
}

void TestStoryValues::listIsChosenOrLeft()
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
    QVERIFY(storedInTime(MENU_MainLayerTransition, other));
}

void TestStoryValues::reversedListStoresWhatItShows()
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
    QVERIFY(storedInTime(MENU_Sync_Status, "1"));
}

void TestStoryValues::picturesArePreviewedAndTakenBack()
{
    QVERIFY(
        m_walk.go({MENU_AdvancedSetting, MENU_ScreenSetting, MENU_QuickConfiguration, MENU_Quick_FlowWay}));
    const QString before = m_panel.stored(MENU_Quick_FlowWay);
    QVERIFY(m_walk.turn(Right, 2));
    QVERIFY(storedInTime(MENU_Quick_FlowWay, QString::number((before.toInt() + 2) % 8)));
    QVERIFY(m_walk.press(keys::Esc));
    QVERIFY(storedInTime(MENU_Quick_FlowWay, before));
    QVERIFY(m_walk.press(keys::Ok));
    QVERIFY(m_walk.turn(Right, 1));
    QVERIFY(m_walk.press(keys::Ok));
    QVERIFY(storedInTime(MENU_Quick_FlowWay, QString::number((before.toInt() + 1) % 8)));
}

void TestStoryValues::addressIsDialledNumberByNumber()
{
    QVERIFY(m_walk.go({MENU_CommunicationSettings, MENU_NetworkSettings, MENU_Net_IPAddress}));
    QVERIFY(m_walk.turn(Right, 100)); // the first number ends at 223
    for (int number = 1; number < 4; ++number) {
        QVERIFY(m_walk.press(keys::Ok));
        QVERIFY(m_walk.turn(Right, number));
    }
    QVERIFY(m_walk.press(keys::Esc));
    QVERIFY(storedInTime(MENU_Net_IPAddress, "223.169.2.13"));
    QVERIFY(m_walk.enter(MENU_Net_SubnetMask));
    QVERIFY(m_walk.turn(Left, 5)); // the mask's first number stands
    QVERIFY(m_walk.press(keys::Esc));
    QVERIFY(storedInTime(MENU_Net_SubnetMask, "255.255.255.0"));
}

void TestStoryValues::checkRowTakesTheTick()
{
    QVERIFY(m_walk.go({MENU_SystemSetting, MENU_Fn, MENU_Fn_Freeze}));
    QVERIFY(storedInTime(MENU_Fn_Freeze, SELECTED, "Choice"));
    QVERIFY(storedInTime(MENU_Fn_Synchronization, UNSELECTED, "Choice"));
}

QTEST_MAIN(TestStoryValues)
#include "tst_storyvalues.moc"
