// The dedicated keys while the device changes its work mode under the panel, and in a panel that has started
// as a fiber converter: it shows nothing and takes no key until the device calls it back.
#include "client/loglines.h"
#include "menu/keycodes.h"
#include "tests/system/keys/keycheck.h"
#include "tests/system/systemtest.h"
#include "tests/testprogram.h"

using namespace VASK;
using namespace keytable;

namespace
{
const QStringList allKeys = {"main", "pip1", "pip2", "scale", "in1", "in2",    "in3",  "in4",    "in5",
                             "in6",  "in7",  "in8",  "fn",    "ok",  "freeze", "test", "preset", "esc"};
const QString chord = "esc+ok";
const QRect lockWindow(90, 71, 140, 98);
const QRect mainLayerRow(55, 30, 265, 34);

bool isBlack(const QImage &screen)
{
    for (int y = 0; y < screen.height(); ++y)
        for (int x = 0; x < screen.width(); ++x)
            if ((screen.pixel(x, y) & 0xffffff) != 0)
                return false;
    return true;
}
} // namespace

class TestStoryKeysModes : public SystemTest
{
    Q_OBJECT
protected:
    void begin() override { QCOMPARE(m_check.start(), QString()); }

    void leave() override { QVERIFY(m_walk.home()); }

private slots:
    void openPageStaysWhenPipsGo()
    {
        // Two layers, the lowest in full screen, and a function of the Fn key that goes with the video path.
        const Given busy = Given().with("110").key(FnFunction::HDMIOutput).inFullScreen();
        QCOMPARE(m_check.prepare(busy, Controller), QString());
        QCOMPARE(m_check.goTo(Pip1Page), QString());
        QCOMPARE(m_check.ledsShow("1B01 B001 0000 0000"), QString());

        m_check.leds().mark();
        QVERIFY(m_check.changeMode(Sender));
        QVERIFY(m_walk.showsTitle());
        QCOMPARE(m_check.deviceShows("PIP 1: off"), QString());
        QCOMPARE(m_check.ledsShow("1B00 10B1 0000 0000"), QString()); // on DVI now, the sending card's input

        // A source is the main layer's now, a layer key and the presets are nobody's.
        QVERIFY(m_walk.press("in4"));
        QCOMPARE(m_check.deviceShows("main layer: on, sdi"), QString());
        QVERIFY(m_walk.press("pip2+scale+preset"));
        QVERIFY(m_walk.showsTitle());
        QCOMPARE(m_check.wayBack(), QString());
        QCOMPARE(m_check.ledsShow("1000 100B 0000 0000"), QString());
        QVERIFY(m_walk.press("fn"));
        m_walk.assume({CONFIG_MainMenu, CONFIG_AdvancedSetting, CONFIG_Synchronization});
        QVERIFY(m_walk.showsTitle());
        QCOMPARE(m_check.wayBack(), QString());

        QVERIFY(m_check.changeMode(Controller));
        QVERIFY(m_walk.press("pip1"));
        m_walk.assume({CONFIG_MainMenu, CONFIG_LayerSettings, CONFIG_PIP1});
        QVERIFY(m_walk.showsTitle());
        QCOMPARE(m_check.ledsShow("1B00 B0B1 0000 0000"), QString());
        QCOMPARE(m_check.wayBack(), QString());
    }

    void sendingCardCanBeLocked()
    {
        QCOMPARE(m_check.prepare(Given(), Sender), QString());
        QCOMPARE(m_check.goTo(DeepPage), QString());
        QVERIFY(m_panel.hold(chord));
        QVERIFY(m_panel.waitFor(m_walk.text("Locked"), lockWindow));
        QVERIFY(waitUntilStored(MENU_ScreenLock, "1"));
        QVERIFY(m_panel.hold(chord));
        QVERIFY(m_panel.waitFor(m_walk.text("Unlocked"), lockWindow));
        QVERIFY(m_panel.waitUntilGone(m_walk.text("Unlocked")));
        QVERIFY(m_walk.isHome());
    }

    void converterIsDarkAndDeaf_data()
    {
        const DataRows<int> row{"mode"};
        row("to a sending card", Sender);
        row("to a video controller", Controller);
    }
    void converterIsDarkAndDeaf()
    {
        QFETCH(int, mode);
        QCOMPARE(m_check.prepare(Given(), Controller), QString());
        QVERIFY(startAsConverter());
        // No home screen, so no way home either.
        QCOMPARE(m_panel.logLines("m_returnMainWindow").size(), 0);
        m_check.leds().mark();
        QVERIFY(clearWrites());
        m_panel.mark();
        for (const QString &key : allKeys)
            QVERIFY(m_panel.press(key));
        QVERIFY(m_panel.turn(Right));
        QVERIFY(m_panel.hold(allKeys.join('+')));
        // Pressed and released, pressed and held, and the two chords; each finds nobody.
        for (int key : {KEY_MAIN, KEY_INPUT8, KEY_PRESET, KEY_KNOB_RIGHT, KEY_LOCK, KEY_SERVICE})
            QVERIFY2(m_panel.waitForLog(QString(loglines::nobodysKey).arg(key)),
                     qPrintable(QString::number(key)));
        QCOMPARE(m_panel.logLines("key:"), QStringList());
        QCOMPARE(m_panel.writes(), QStringList());
        // A source that comes meanwhile is told later.
        QVERIFY(m_panel.ask({"signal", "hdmi2", "on"}).ok);
        QCOMPARE(m_check.ledsShow("0000 0000 0000 0000"), QString());
        QVERIFY(isBlack(m_panel.screen()));
        // A message is a window that opens and closes: the panel outlives it.
        QVERIFY(m_panel.ask({"calibrate", "on"}).ok && m_panel.waitForLog(loglines::messageUp));
        QVERIFY(m_panel.ask({"calibrate", "off"}).ok && m_panel.waitForLog(loglines::messageClosed));

        m_check.leds().mark();
        QVERIFY(m_check.changeMode(Mode(mode)));
        const bool toSender = mode == Sender;
        QVERIFY(m_panel.waitFor(toSender ? m_walk.text("No Signal") : "1920x1080@60", mainLayerRow));
        QVERIFY(m_walk.isHome());
        QCOMPARE(m_check.ledsShow(toSender ? "1000 11B1 0000 0000" : "1000 B101 0000 0000"), QString());
        QVERIFY(m_panel.ask({"signal", "hdmi2", "off"}).ok);

        // From now on the keys are those of the mode.
        const QStringList samples = {"main", "pip1", "in2", "fn"};
        for (const Case &item : cases(Press::Tap)) {
            const bool isSample = item.mode == Mode(mode) && item.place == Home &&
                                  item.row->given.name.isEmpty() && samples.contains(item.row->key);
            if (isSample)
                QCOMPARE(item.text() + m_check.check(item), item.text());
        }
    }

private:
    bool startAsConverter()
    {
        return m_panel.ask({"panel", "stop"}).ok && m_panel.setStored(MENU_WorkMode, "1") &&
               m_panel.start() && m_panel.ask({"wait", "ready"}).ok;
    }

    KeyCheck m_check{m_panel, m_walk};
};

FPD_TEST(TestStoryKeysModes)
#include "tst_storykeysmodes.moc"
