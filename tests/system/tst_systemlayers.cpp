// The keys of inputs, layers and scaling: one press reaches the home screen, the LEDs and the device alike.
#include "tests/system/panel.h"

#include <QTest>

class TestSystemLayers : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void cleanup();
    void cleanupTestCase();
    void inputKeyReachesAll();
    void pipKeyShowsALayerMore();
    void fullScreenOutlastsTheDevicesAnswer();

private:
    bool deviceShows(const QString &layer);
    /// The LED blinks: it is seen on and off.
    bool blinks(int led);
    Panel m_panel;
};

namespace
{
// The panel starts in Chinese.
const QString noSignal = QString::fromUtf8("无信号");
const QString widthRow = QString::fromUtf8("水平宽度");
constexpr int ledOfHdmi2 = 7;
constexpr int ledOfPip1 = 1;
constexpr int ledOfScaling = 3;
} // namespace

bool TestSystemLayers::deviceShows(const QString &layer)
{
    return m_panel.waitUntil([this, &layer] {
        return !m_panel.ask({"device", "show"}).lines.filter(layer).isEmpty();
    });
}

bool TestSystemLayers::blinks(int led)
{
    return m_panel.waitUntil([=] { return m_panel.leds()[led] == '1'; }) &&
           m_panel.waitUntil([=] { return m_panel.leds()[led] == '0'; });
}

void TestSystemLayers::initTestCase()
{
    QVERIFY(m_panel.startReady());
    QVERIFY(m_panel.waitForLog("DeviceStartComplateHandle")); // the last that the device tells at the start
    QVERIFY(deviceShows("main layer: on, hdmi1"));
    QVERIFY(m_panel.waitFor("1920x1080@60"));
    QVERIFY(m_panel.waitUntilGone(noSignal));
}

void TestSystemLayers::cleanup()
{
    if (QTest::currentTestFailed())
        m_panel.keepEvidence(QTest::currentTestFunction());
}

void TestSystemLayers::cleanupTestCase()
{
    m_panel.keepEvidence("layers");
    QCOMPARE(m_panel.damage(), QString());
}

void TestSystemLayers::inputKeyReachesAll()
{
    QVERIFY(m_panel.press("in2"));
    QVERIFY(m_panel.waitFor(noSignal));
    QVERIFY(deviceShows("main layer: on, hdmi2"));
    QVERIFY(blinks(ledOfHdmi2));
    QVERIFY(m_panel.press("in1"));
    QVERIFY(m_panel.waitUntilGone(noSignal));
    QVERIFY(deviceShows("main layer: on, hdmi1"));
    QVERIFY(m_panel.waitUntil([this] { return m_panel.leds()[ledOfHdmi2] == '0'; }));
}

void TestSystemLayers::pipKeyShowsALayerMore()
{
    QVERIFY(m_panel.press(keys::Pip1));
    QVERIFY(deviceShows("PIP 1: on"));
    QVERIFY(m_panel.press("in2")); // for the layer whose page is open
    QVERIFY(deviceShows("PIP 1: on, hdmi2"));
    QVERIFY(deviceShows("main layer: on, hdmi1"));
    QVERIFY(blinks(ledOfPip1));
    for (int page = 0; page < 3; ++page)
        QVERIFY(m_panel.press(keys::Esc));
    QVERIFY(m_panel.waitFor(noSignal));
}

void TestSystemLayers::fullScreenOutlastsTheDevicesAnswer()
{
    QVERIFY(m_panel.press(keys::Main));
    QVERIFY(m_panel.waitFor(widthRow));
    QVERIFY(m_panel.turn(Right, 3));
    QVERIFY(m_panel.press(keys::Ok));
    QVERIFY(m_panel.turn(Left, 5));
    QVERIFY(m_panel.press(keys::Ok));
    QVERIFY(deviceShows("main layer: on, hdmi1, 1915x1080 at 0,0"));
    QVERIFY(m_panel.press("scale"));
    QVERIFY(deviceShows("main layer: on, hdmi1, 1920x1080 at 0,0"));
    QVERIFY(m_panel.waitUntil([this] { return m_panel.leds()[ledOfScaling] == '1'; }));
    QTest::qWait(2000); // the device answers when its window has come to rest
    QCOMPARE(m_panel.leds()[ledOfScaling], QChar('1'));
}

QTEST_MAIN(TestSystemLayers)
#include "tst_systemlayers.moc"
