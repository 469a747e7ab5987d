// Each dedicated key, short and long, from the home screen and from a deep page, in the three work modes:
// where the panel ends, by which way ESC leads back, and which LEDs tell of it.
#include "tests/system/menuwalk.h"

#include <QTest>

using namespace VASK;

class TestStoryKeys : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void cleanup();
    void cleanupTestCase();
    void keyLeadsToItsPage_data();
    void keyLeadsToItsPage();
    void sourceKeyChangesTheMainLayer();
    void layerKeyTurnsItsLayerOnAndOff();
    void freezeKeyHoldsThePicture();

private:
    bool setMode(const QString &mode);

    Panel m_panel;
    MenuWalk m_walk{m_panel};
    QString m_mode = "0";
};

namespace
{
using Chain = QList<ENUM_ConfigIndex>;
} // namespace

void TestStoryKeys::initTestCase()
{
    QVERIFY(m_panel.startReady());
    QVERIFY(m_panel.waitForLog("StartComplate: 2"));
    m_walk.speak("fpd_ZH");
}

void TestStoryKeys::cleanup()
{
    if (QTest::currentTestFailed())
        m_panel.keepEvidence(QString("keys-%1").arg(QTest::currentTestFunction()));
    QVERIFY(m_walk.home());
}

void TestStoryKeys::cleanupTestCase()
{
    QCOMPARE(m_panel.damage(), QString());
}

/// The work mode is the device's: it stands in the store when the panel starts.
bool TestStoryKeys::setMode(const QString &mode)
{
    if (mode == m_mode)
        return true;
    m_mode = mode;
    return m_panel.ask({"panel", "stop"}).ok && m_panel.setStored(MENU_WorkMode, mode) && m_panel.start() &&
           m_panel.ask({"wait", "ready"}).ok && m_panel.waitForLog("StartComplate: 2");
}

void TestStoryKeys::keyLeadsToItsPage_data()
{
    QTest::addColumn<QString>("mode");
    QTest::addColumn<QString>("key");
    QTest::addColumn<bool>("held");
    QTest::addColumn<bool>("fromPage");
    QTest::addColumn<QList<int>>("chain"); // empty: the screen stays
    struct Row {
        const char *key;
        bool held;
        Chain controller, sendingCardHome, sendingCardPage;
    };
    const Chain mainLayer{CONFIG_MainMenu, CONFIG_LayerSettings, CONFIG_MainLayer};
    const Chain inputs{CONFIG_MainMenu, CONFIG_InputSettings};
    const Chain test{CONFIG_MainMenu, CONFIG_DisplayControl, CONFIG_TestPattern};
    const Chain synchronization{CONFIG_MainMenu, CONFIG_AdvancedSetting, CONFIG_Synchronization};
    const QList<Row> rows = {
        {"main", false, mainLayer, mainLayer, {}},
        {"pip1", false, {CONFIG_MainMenu, CONFIG_LayerSettings, CONFIG_PIP1}, {}, {}},
        {"pip2", false, {CONFIG_MainMenu, CONFIG_LayerSettings, CONFIG_PIP2}, {}, {}},
        {"in1", true, inputs + Chain{CONFIG_HDMI1}, inputs, inputs},
        {"in2", true, inputs + Chain{CONFIG_HDMI2}, inputs, inputs},
        {"in3", true, inputs + Chain{CONFIG_DVI}, inputs, inputs},
        {"in4", true, inputs + Chain{CONFIG_SDI}, inputs, inputs},
        {"fn", false, synchronization, synchronization, synchronization},
        {"preset", false, {CONFIG_MainMenu, CONFIG_PresetSettings}, {}, {}},
        {"test", false, test, test, test},
        {"scale", false, {}, {}, {}},
        {"in1", false, {}, {}, {}},
    };
    // A fiber converter, mode "1", shows no home screen: there is nothing that a key could come to.
    for (const char *mode : {"0", "2"}) {
        for (const Row &row : rows) {
            for (bool fromPage : {false, true}) {
                // A long press takes its time: of twins only one is tried in every way.
                const bool twin = (row.held && QString(row.key) != "in1") || QString(row.key) == "pip2";
                if (twin && (*mode != '0' || fromPage))
                    continue;
                Chain chain = row.controller;
                if (*mode == '2')
                    chain = fromPage ? row.sendingCardPage : row.sendingCardHome;
                QList<int> numbers;
                for (ENUM_ConfigIndex config : qAsConst(chain))
                    numbers << config;
                QTest::addRow("mode %s, %s%s from %s", mode, row.key, row.held ? " held" : "",
                              fromPage ? "a page" : "home")
                    << QString(mode) << QString(row.key) << row.held << fromPage << numbers;
            }
        }
    }
}

void TestStoryKeys::keyLeadsToItsPage()
{
    QFETCH(QString, mode);
    QFETCH(QString, key);
    QFETCH(bool, held);
    QFETCH(bool, fromPage);
    QFETCH(QList<int>, chain);
    QVERIFY(setMode(mode));
    if (fromPage)
        QVERIFY(m_walk.go({MENU_CommunicationSettings, MENU_NetworkSettings}));
    QVERIFY(held ? m_panel.hold(key) : m_walk.press(key));
    QVERIFY(m_panel.settle());
    if (chain.isEmpty()) {
        QVERIFY(fromPage ? m_walk.showsTitle() : m_walk.isHome());
        return;
    }
    Chain path;
    for (int config : qAsConst(chain))
        path << ENUM_ConfigIndex(config);
    m_walk.assume(path);
    // ESC leads back as if the user had walked here.
    while (m_walk.page() != CONFIG_END) {
        QVERIFY2(m_walk.showsTitle(), qPrintable(m_walk.table().title));
        QVERIFY(m_walk.back());
    }
    QVERIFY(m_walk.isHome());
    if (key == "test")
        QVERIFY(m_walk.press(key)); // ends the pattern
}

void TestStoryKeys::sourceKeyChangesTheMainLayer()
{
    QVERIFY(setMode("0"));
    QVERIFY(m_panel.ask({"writes", "--clear"}).ok);
    const QRect layer(55, 30, 265, 34);
    for (const auto &[key, source] : {std::pair("in2", "1"), std::pair("in1", "0")}) {
        const QImage before = m_panel.screen().copy(layer);
        QVERIFY(m_walk.press(key));
        QVERIFY(m_panel.waitUntil([&] { return m_panel.stored(MENU_MainLayer_InputSource) == source; }));
        QVERIFY(m_panel.screen().copy(layer) != before);
    }
    QVERIFY(m_panel.waitFor("1920x1080@60", layer)); // HDMI 1 has a signal
    QVERIFY2(m_panel.writes().filter("130200").size() >= 2, qPrintable(m_panel.writes().join('\n')));
    // HDMI 1 has a signal and is in use: its LED blinks; HDMI 2 has none.
    QVERIFY(m_panel.waitUntil([this] { return m_panel.leds()[6] == '1'; }));
    QVERIFY(m_panel.waitUntil([this] { return m_panel.leds()[6] == '0'; }));
    QCOMPARE(m_panel.leds()[7], QChar('0'));
}

void TestStoryKeys::layerKeyTurnsItsLayerOnAndOff()
{
    QVERIFY(setMode("0"));
    QVERIFY(m_panel.hold("pip1"));
    QVERIFY(m_panel.waitUntil([this] { return m_panel.leds()[1] == '0'; }));
    QVERIFY(m_walk.press("pip1"));
    m_walk.assume({CONFIG_MainMenu, CONFIG_LayerSettings, CONFIG_PIP1});
    QVERIFY(m_walk.showsTitle());
    QVERIFY(m_panel.waitUntil([this] { return m_panel.stored(MENU_PIP1_Status) == "1"; }));
    QVERIFY(m_walk.home());
    QVERIFY(m_panel.waitUntil([this] { return m_panel.leds()[1] == '1'; }));
    QVERIFY(m_panel.hold("pip1"));
    QVERIFY(m_panel.waitUntil([this] { return m_panel.stored(MENU_PIP1_Status) == "0"; }));
    QVERIFY(m_panel.waitUntil([this] { return m_panel.leds()[1] == '0'; }));
}

void TestStoryKeys::freezeKeyHoldsThePicture()
{
    QVERIFY(setMode("0"));
    const QRect modePicture(194, 208, 46, 30);
    const QImage normal = m_panel.screen().copy(modePicture);
    QVERIFY(m_walk.press(keys::Freeze));
    QVERIFY(m_panel.waitUntil([&] { return m_panel.screen().copy(modePicture) != normal; }));
    QVERIFY(m_panel.waitUntil([this] { return m_panel.stored(MENU_Freeze, "Choice") == SELECTED; }));
    QVERIFY(m_walk.press(keys::Freeze));
    QVERIFY(m_panel.waitUntil([&] { return m_panel.screen().copy(modePicture) == normal; }));
}

QTEST_MAIN(TestStoryKeys)
#include "tst_storykeys.moc"
