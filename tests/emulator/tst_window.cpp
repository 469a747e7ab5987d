// The emulator's window under the keys and the mouse of a real X server, with the panel itself.
#include "client/procfs.h"
#include "emulator/window/helpsheet.h"
#include "emulator/window/keybutton.h"
#include "emulator/window/knob.h"
#include "emulator/window/powerswitch.h"
#include "tests/testprogram.h"
#include "windowrig.h"

#include <QKeyEvent>

namespace
{
constexpr const char *tapOfOk = "22 a2";

/// Counts the keys that the window system says go down.
class Presses : public QObject
{
public:
    explicit Presses(QWidget *window) : QObject(window) { window->installEventFilter(this); }
    int count = 0;

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        count += event->type() == QEvent::KeyPress;
        return false;
    }
};

/// How many of its pixels have a colour.
int colourful(const QImage &image)
{
    int found = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor colour = image.pixelColor(x, y);
            found += qMax(qAbs(colour.red() - colour.green()), qAbs(colour.green() - colour.blue())) > 20;
        }
    }
    return found;
}
} // namespace

class TestWindow : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        m_rig = std::make_unique<WindowRig>();
        QVERIFY(m_rig->openWindow());
        const QString title = m_rig->window->windowTitle();
        QVERIFY2(title.endsWith(m_rig->emulator->folder.path()), qPrintable(title));
    }

    void keysGoByTheirPlaces_data() { addNames("layout", {"de", "fr", "ru", "us"}); }
    void keysGoByTheirPlaces()
    {
        QFETCH(QString, layout);
        QVERIFY(xserver::run("setxkbmap", {"-layout", layout}));
        // 10 is the key of the digit 1, 24 that of the letter Q on a US keyboard.
        QVERIFY(m_rig->act("key 10 11 12 13 14 15 16 17 24 25 26 27 28 29 30 31 Return Escape"));
        QCOMPARE(codes(36), QByteArray("02 82 03 83 04 84 05 85 0d 8d 0e 8e 10 90 11 91 "
                                       "06 86 07 87 08 88 09 89 0a 8a 0c 8c 0f 8f 0b 8b 22 a2 23 a3"));
    }

    void aHeldKeyIsHeld()
    {
        constexpr int repeated = 8;
        const Presses presses(m_rig->window.get());
        QVERIFY(m_rig->act("keydown Return"));
        QVERIFY(QTest::qWaitFor([&] { return presses.count > repeated; }, 10000));
        QCOMPARE(codes(1), QByteArray("22"));
        QVERIFY(m_rig->act("keyup Return"));
        QCOMPARE(codes(1), QByteArray("a2"));
    }

    void aNotchIsAStep()
    {
        for (const QWidget *part : {static_cast<QWidget *>(m_rig->window->findChild<Knob *>()),
                                    static_cast<QWidget *>(m_rig->window->findChild<LcdView *>())}) {
            QVERIFY(m_rig->act(WindowRig::over(part) + " click 5"));
            QCOMPARE(codes(1), QByteArray("21"));
            QVERIFY(m_rig->act("click 4"));
            QCOMPARE(codes(1), QByteArray("20"));
        }
        QVERIFY(m_rig->act("key Right Left Down Up"));
        QCOMPARE(codes(4), QByteArray("21 20 21 20"));
    }

    void modifiersPressNothing()
    {
        QVERIFY(m_rig->act("key ctrl+1 alt+q super+Return ctrl+Right alt+Escape ctrl+r"));
        QVERIFY(m_rig->act("key Return"));
        QCOMPARE(codes(2), QByteArray(tapOfOk));
        QVERIFY(m_rig->act("keydown Return keydown ctrl keyup Return keyup ctrl")); // let go under a modifier
        QCOMPARE(codes(2), QByteArray(tapOfOk));
    }

    void aLatchedKeyStaysDown()
    {
        const QString overEsc = WindowRig::over(button("esc"));
        const QString overKnob = WindowRig::over(m_rig->window->findChild<Knob *>());
        QVERIFY(m_rig->act("keydown shift " + overEsc + " click 1 " + overKnob + " click 1 keyup shift"));
        QCOMPARE(codes(2), QByteArray("23 22"));
        QVERIFY(m_rig->act("keydown Return keyup Return")); // it is down already, and stays so
        QCOMPARE(codes(0), QByteArray());
        QVERIFY(m_rig->act("click 1 " + overEsc + " click 1"));
        QCOMPARE(codes(2), QByteArray("a2 a3"));
        QVERIFY(m_rig->act("click 1"));
        QCOMPARE(codes(2), QByteArray("23 a3"));
    }

    void theLcdKeepsItsPixels()
    {
        QVERIFY(m_rig->act("key ctrl+minus ctrl+minus"));
        for (int zoom = EmulatorWindow::smallestZoom; zoom <= EmulatorWindow::largestZoom; ++zoom) {
            QVERIFY2(m_rig->showsLcd(zoom), qPrintable(QString::number(zoom)));
            QVERIFY(m_rig->act("key ctrl+plus"));
        }
        QVERIFY(m_rig->showsLcd(EmulatorWindow::largestZoom));
        QVERIFY(m_rig->act("key ctrl+0"));
        QVERIFY(m_rig->showsLcd(2));
        QCOMPARE(codes(0), QByteArray());
    }

    void pictureAndSessionAreKept()
    {
        QVERIFY(m_rig->act("key F2"));
        QVERIFY(QTest::qWaitFor([this] { return files("pictures").size() == 1; }));
        QCOMPARE(QImage(files("pictures")[0]).size(), m_rig->emulator->lcd.picture().size());
        QVERIFY(colourful(QImage(files("pictures")[0])) > 1000);
        QVERIFY(m_rig->act("key F3 Escape F3"));
        QCOMPARE(codes(2), QByteArray("23 a3"));
        QVERIFY(QTest::qWaitFor([this] { return !m_rig->emulator->recorder.isRecording(); }));
        QCOMPARE(files("sessions").size(), 1);
        QFile session(files("sessions")[0]);
        QVERIFY(session.open(QIODevice::ReadOnly));
        QCOMPARE(session.readAll().count("# esc"), 2);
    }

    void theSheetTakesTheNextKey()
    {
        const auto *sheet = m_rig->window->findChild<HelpSheet *>();
        for (const char *key : {"question", "F1"}) {
            QVERIFY(m_rig->act(QString("key ") + key));
            QVERIFY(QTest::qWaitFor([&] { return sheet->isVisible(); }));
            QVERIFY(m_rig->act("key Return"));
            QVERIFY(QTest::qWaitFor([&] { return !sheet->isVisible(); }));
            QCOMPARE(codes(0), QByteArray());
        }
        QVERIFY(m_rig->act("key F1 " + WindowRig::over(button("esc")) + " click 1"));
        QVERIFY(QTest::qWaitFor([&] { return !sheet->isVisible(); }));
        QCOMPARE(codes(0), QByteArray());
    }

    void aDeadPanelLooksDead()
    {
        QVERIFY(m_rig->emulator->keypad.leds() != 0 && colourful(m_rig->lcdOnScreen(2)) > 1000);
        const int panel = procfs::panelOf(m_rig->emulator->folder.path());
        QVERIFY(panel > 0 && kill(panel, SIGKILL) == 0);
        QVERIFY(isTitled("(crashed with signal 9)"));
        QVERIFY(QTest::qWaitFor([this] { return colourful(m_rig->lcdOnScreen(2)) == 0; }));
        QVERIFY(m_rig->act("key F5"));
        QVERIFY(m_rig->waitReady());
        QVERIFY(isTitled(m_rig->emulator->folder.path()));
        QVERIFY(m_rig->showsLcd(2));
    }

    void theSwitchEndsAndStartsThePanel()
    {
        const QString click = WindowRig::over(m_rig->window->findChild<PowerSwitch *>()) + " click 1";
        QVERIFY(m_rig->act(click));
        QVERIFY(isTitled("(off)"));
        QVERIFY(!m_rig->emulator->panel.isRunning());
        QVERIFY(m_rig->act(click));
        QVERIFY(m_rig->waitReady());
        QVERIFY(m_rig->showsLcd(2));
    }

    void ctrlQEnds()
    {
        constexpr int notAtAll = 1;
        QTimer::singleShot(0, this, [this] { m_rig->act("key ctrl+q"); });
        QTimer::singleShot(30000, this, [] { QCoreApplication::exit(notAtAll); });
        QCOMPARE(QCoreApplication::exec(), 0);
    }

    void cleanupTestCase() { m_rig.reset(); }

private:
    KeyButton *button(const QByteArray &name) const
    {
        for (KeyButton *button : m_rig->window->findChildren<KeyButton *>()) {
            if (name == button->key().name)
                return button;
        }
        return nullptr;
    }

    /// The codes that have come from the keypad, waiting for so many and a moment longer; "22 a2" is a tap of
    /// OK.
    QByteArray codes(int count)
    {
        constexpr int settledMs = 60; // longer than a key takes to count as let go
        QByteArrayList list;
        const auto take = [&] {
            for (const QByteArray &word : m_rig->panel->keys())
                list += word.left(1).toHex();
            return list.size() >= count;
        };
        (void)QTest::qWaitFor(take);
        QTest::qWait(settledMs);
        take();
        return list.join(' ');
    }

    /// Files that the user has asked for.
    QStringList files(const QString &folder) const
    {
        const QDir dir(m_rig->emulator->folder.path() + '/' + folder);
        QStringList paths;
        for (const QString &name : dir.entryList(QDir::Files))
            paths += dir.filePath(name);
        return paths;
    }

    bool isTitled(const QString &end) const
    {
        return QTest::qWaitFor([&] { return m_rig->window->windowTitle().endsWith(end); });
    }

    std::unique_ptr<WindowRig> m_rig;
};

FPD_TEST_IN(TestWindow, Gui, xserver::start)
#include "tst_window.moc"
