// The panel in a real browser: what a user at the page sees and does.
#include "client/browser.h"
#include "tests/system/systemtest.h"
#include "tests/testprogram.h"

#include <QRegularExpression>
#include <QTcpServer>

namespace
{
/// The LCD in the page, as it is drawn.
constexpr const char *canvas = "document.getElementById('lcd').toDataURL()";
constexpr const char *isAlive = "document.body.classList.contains('running')";
constexpr const char *reason = "document.getElementById('reason').textContent";
/// Stands on the home screen alone.
constexpr const char *home = "Screen";
const QSize desktop(1000, 800);

/// One that is free now; the emulator is to come back at the same.
int freePort()
{
    QTcpServer server;
    return server.listen(QHostAddress::LocalHost) ? server.serverPort() : 0;
}
} // namespace

class TestWeb : public SystemTest
{
    Q_OBJECT
protected:
    void begin() override
    {
        m_panel.setOptions({"--web", QString::number(m_port)});
        SystemTest::begin();
        QVERIFY(m_browser.start());
        m_page = m_browser.open(link(), desktop);
        QVERIFY(m_page && m_page->becomes(isAlive));
        QVERIFY(isSame(*m_page));
    }

    void leave() override
    {
        if (QTest::currentTestFailed())
            keepPicture(*m_page, QString("web-") + QTest::currentTestFunction());
        const QStringList errors = m_page->takeErrors();
        QVERIFY2(errors.isEmpty(), qPrintable(errors.join('\n')));
    }

private slots:
    void keysDoTheirWork_data() { addNames("way", {"mouse", "touch", "keyboard"}); }
    void keysDoTheirWork()
    {
        QFETCH(QString, way);
        QVERIFY(m_page->setScreen(desktop, 1, way == "touch"));
        // Knob, a key at the side, and one of the rows; and what they open.
        const struct {
            const char *selector, *place, *typed, *opens;
        } keys[] = {{"#cap", "Enter", "Enter", "亮度"},
                    {"[data-key=esc]", "Escape", "Escape", home},
                    {"[data-key=preset]", "Digit8", "!", "Concert"},
                    {"[data-key=esc]", "Backspace", "Backspace", "亮度"},
                    {"[data-key=esc]", "Escape", "Escape", home}};
        for (const auto &key : keys) {
            if (way == "mouse") {
                m_page->click(key.selector);
            } else if (way == "touch") {
                m_page->touch({m_page->middle(key.selector)});
                m_page->touch({});
            } else {
                m_page->tapKey(key.place, key.typed);
            }
            QVERIFY2(m_panel.ask({"wait", "text", key.opens, "20"}).ok, key.opens);
            QVERIFY(isSame(*m_page));
        }
        constexpr int ctrl = 2, alt = 1;
        m_page->tapKey("Digit8", "8", ctrl);
        m_page->tapKey("Enter", "Enter", alt);
        QVERIFY(m_panel.settle() && m_panel.ask({"wait", "text", home, "1"}).ok);
        QVERIFY(m_page->setScreen(desktop, 1, false));
    }

    void aHeldKeyLocks_data() { addNames("way", {"latched", "fingers", "keyboard"}); }
    void aHeldKeyLocks()
    {
        QFETCH(QString, way);
        for (const char *told : {"Locked", "Unlocked"}) {
            if (way == "latched") {
                m_page->click("[data-key=esc]", true);
                m_page->click("#cap", true);
            } else if (way == "fingers") {
                m_page->touch({m_page->middle("[data-key=esc]")});
                m_page->touch({m_page->middle("[data-key=esc]"), m_page->middle("#cap")});
            } else {
                m_page->key(true, "Escape", "Escape");
                m_page->key(true, "Enter", "Enter");
            }
            QVERIFY2(m_panel.ask({"wait", "text", m_walk.text(told), "20"}).ok, told);
            if (way == "latched") {
                m_page->click("#cap");
                m_page->click("[data-key=esc]");
            } else if (way == "fingers") {
                m_page->touch({});
            } else {
                m_page->key(false, "Escape", "Escape");
                m_page->key(false, "Enter", "Enter");
            }
            QVERIFY(m_panel.ask({"wait", "text", m_walk.text(told), "--gone", "20"}).ok);
        }
    }

    void aNotchIsAStep()
    {
        constexpr int notch = 120;
        const QString session = m_panel.file("/turns.txt");
        // The LCD says how far; the words of the keypad say how many steps that was, however fast.
        const auto turned = [&](const std::function<void()> &turn, int right, int left) {
            QVERIFY(m_panel.ask({"record", session}).ok);
            turn();
            m_page->tapKey("KeyT", "t"); // IN 5 behind all of them, which does nothing
            const auto words = [&](const char *form) {
                QFile file(session);
                const bool read = file.open(QIODevice::ReadOnly);
                return read ? QString(file.readAll()).count(QRegularExpression(form)) : -1;
            };
            QVERIFY(m_panel.waitUntil([&] { return words("# in5 released") == 1; }));
            QVERIFY(m_panel.ask({"record", "stop"}).ok);
            QCOMPARE(words(" key 0[1-4]21"), right);
            QCOMPARE(words(" key 0[1-4]20"), left);
        };
        QVERIFY(m_panel.ask({"go", "屏幕亮度"}).ok);
        const QPointF lcd = m_page->middle("#lcd"), knob = m_page->middle("#knob");
        turned([&] { m_page->wheel(lcd, notch); }, 1, 0);
        QVERIFY(m_panel.settle());
        QCOMPARE(m_panel.ask({"screen", "text"}).lines.filter("focused").filter("图层设置").size(), 1);
        turned([&] { m_page->wheel(knob, notch); }, 1, 0);
        turned([&] { m_page->wheel(lcd, -notch); }, 0, 1);
        turned(
            [&] {
                for (int notches = 0; notches < 3; ++notches)
                    m_page->wheel(knob, notch);
            },
            3, 0);
        turned([&] { m_page->tapKey("ArrowRight", "ArrowRight"); }, 1, 0);
        turned([&] { m_page->tapKey("ArrowUp", "ArrowUp"); }, 0, 1);
        const auto drag = [this](const QPointF &from, const QPointF &by) {
            m_page->mouse("mousePressed", from);
            m_page->mouse("mouseMoved", from + by);
            m_page->mouse("mouseReleased", from + by);
        };
        turned([&] { drag(lcd, QPointF(-50, 0)); }, 0, 2);
        const QPointF rim(m_page->value("document.getElementById('rim').offsetWidth / 2 - 4").toDouble(), 0);
        turned([&] { drag(knob + rim, QPointF(0, 0.6 * rim.x())); }, 2, 0);
        QVERIFY(isSame(*m_page));
        m_page->tapKey("Escape", "Escape");
        QVERIFY(m_panel.ask({"wait", "text", home, "20"}).ok);
    }

    void viewersAgree()
    {
        const auto other = m_browser.open(link(), desktop);
        QVERIFY(other && other->becomes(isAlive));
        other->key(true, "Digit6", "6"); // the other's key is seen, and stays down for who holds it
        QVERIFY(m_page->becomes("document.querySelector('[data-key=freeze]').classList.contains('down')"));
        m_page->tapKey("Digit6", "6");
        QVERIFY(
            m_page->value("document.querySelector('[data-key=freeze]').classList.contains('down')").toBool());
        other->key(false, "Digit6", "6");
        QVERIFY(m_page->becomes("!document.querySelector('[data-key=freeze]').classList.contains('down')"));
        m_page->click("#cap");
        QVERIFY(m_panel.settle() && isSame(*m_page) && isSame(*other));
        const QString lit =
            "[...document.querySelectorAll('.led.lit')].map(led => led.parentNode.dataset.key).join()";
        QVERIFY(m_panel.waitUntil([&] { return m_page->value(lit) == other->value(lit); }));
        QVERIFY(!m_page->value(lit).toString().isEmpty());
        other->click("[data-key=esc]");
        QVERIFY(m_panel.ask({"wait", "text", home, "20"}).ok);
        // One that goes away with a key down lets it go.
        other->key(true, "KeyW", "w");
        QVERIFY(m_page->becomes("document.querySelector('[data-key=in2]').classList.contains('down')"));
        QVERIFY(other->load("about:blank"));
        QVERIFY(m_page->becomes("!document.querySelector('[data-key=in2]').classList.contains('down')"));
        QCOMPARE(other->takeErrors(), QStringList());
    }

    void whoLooksDoesNothing()
    {
        const auto looker = m_browser.open(link("?view"), desktop);
        QVERIFY(looker && looker->becomes(isAlive) && isSame(*looker));
        looker->click("#cap");
        looker->tapKey("Enter", "Enter");
        looker->wheel(looker->middle("#lcd"), 120);
        QVERIFY(m_panel.settle() && m_panel.ask({"wait", "text", home, "1"}).ok);
        QVERIFY(looker->becomes(isAlive) && isSame(*looker));
        QCOMPARE(looker->takeErrors(), QStringList());
    }

    void phonesShowAll_data()
    {
        const DataRows<QSize, double> row{"size", "ratio"};
        row("upright", {390, 844}, 3);
        row("across", {844, 390}, 3);
        row("small, upright", {360, 640}, 2);
        row("small, across", {640, 360}, 2);
        row("desktop, small", {800, 620}, 1);
        row("desktop, dense", {1400, 900}, 1.5);
    }
    void phonesShowAll()
    {
        const auto [size, ratio] = fetched<QSize, double>({"size", "ratio"});
        QVERIFY(m_page->setScreen(size, ratio, ratio > 1));
        keepPicture(*m_page, QString("web-%1x%2").arg(size.width()).arg(size.height()));
        // Nothing lies outside or over another thing, and a pixel of the LCD is a whole number of the
        // screen's.
        const QString hidden =
            "[...document.querySelectorAll('.key, #cap, #lcd, #power')].filter(part => {"
            " const { left, top, right, bottom } = part.getBoundingClientRect();"
            " const hit = document.elementFromPoint((left + right) / 2, (top + bottom) / 2);"
            " return left < 0 || top < 0 || right > innerWidth || bottom > innerHeight || "
            "!part.contains(hit);"
            "}).map(part => part.id || part.dataset.key).join()";
        QVERIFY(m_page->becomes("(" + hidden + ") === ''"));
        const double zoom = m_page
                                ->value("document.getElementById('lcd').getBoundingClientRect().width"
                                        " * devicePixelRatio / 320")
                                .toDouble();
        QVERIFY2(zoom >= 1 && qAbs(zoom - qRound(zoom)) < 1e-6, qPrintable(QString::number(zoom)));
        QVERIFY(m_page->setScreen(desktop, 1, false));
    }

    void whatIsSeenIsRecorded()
    {
        m_page->value(
            "URL.createObjectURL = (make => file => { window.files = [...(window.files || []), file];"
            " return make.call(URL, file); })(URL.createObjectURL)");
        m_page->tapKey("F3", "F3");
        QVERIFY(m_page->becomes("document.getElementById('record').getAttribute('aria-pressed') === 'true'"));
        m_page->click("#cap");
        QVERIFY(m_panel.settle() && isSame(*m_page));
        const QImage last = m_panel.screen();
        m_page->click("#record");
        QVERIFY(m_page->becomes("document.querySelectorAll('#told a').length === 2"));
        const QString text = m_page->value("files[1].text()").toString();
        QCOMPARE(text.count("# ok pressed"), 1);
        // The browser's own reader of animated pictures gets to the same last picture.
        const QImage seen = QImage::fromData(m_page->data(
            "(async () => {"
            " const decoder = new ImageDecoder({ data: await files[0].arrayBuffer(), type: 'image/png' });"
            " await decoder.completed; await decoder.tracks.ready; const count = "
            "decoder.tracks.selectedTrack.frameCount;"
            " const { image } = await decoder.decode({ frameIndex: count - 1 });"
            " const canvas = document.createElement('canvas'); canvas.width = 320; canvas.height = 240;"
            " canvas.getContext('2d', { alpha: false }).drawImage(image, 0, 0);"
            " image.close(); return count > 1 ? canvas.toDataURL() : ''; })()"));
        QVERIFY(seen.convertToFormat(QImage::Format_RGB32) == last);
        m_page->tapKey("Escape", "Escape");
    }

    void thePaneFollowsAndPlugs()
    {
        QVERIFY(m_panel.ask({"wait", "text", home, "20"}).ok);
        m_page->click("#open-pane");
        m_page->click("[data-view=log]");
        m_page->tapKey("KeyT", "t");
        QVERIFY(m_page->becomes("document.getElementById('log').textContent.includes('uKey ==')"));
        m_page->click("[data-view=device]");
        const QString button = "document.querySelector('[data-plug=hdmi1]')";
        QVERIFY(m_page->becomes(button + "?.textContent === 'Pull'"));
        keepPicture(*m_page, "web-pane");
        m_page->value(button + ".click()");
        QVERIFY(m_panel.ask({"wait", "text", m_walk.text("No Signal"), "20"}).ok);
        QVERIFY(m_page->becomes(button + "?.textContent === 'Plug'"));
        m_page->value(button + ".click()");
        QVERIFY(m_page->becomes(button + "?.textContent === 'Pull'"));
        m_page->click("[data-view=writes]");
        m_page->tapKey("Digit6", "6");
        QVERIFY(m_page->becomes("document.getElementById('writes').textContent !== ''"));
        m_page->tapKey("Digit6", "6");
        m_page->click("#close-pane");
        QVERIFY(isSame(*m_page));
    }

    void aKilledEmulatorIsSeen()
    {
        QVERIFY(m_panel.ask({"panel", "kill"}).ok);
        QVERIFY(m_page->becomes(QString(reason) + " === 'The panel is off.'"));
        keepPicture(*m_page, "web-off");
        m_page->click("#start");
        QVERIFY(m_page->becomes(isAlive) && m_panel.ask({"wait", "ready", "60"}).ok && isSame(*m_page));
        m_panel.kill();
        QVERIFY(m_page->becomes(QString(reason) + ".startsWith('The emulator does not answer')"));
        QVERIFY(m_panel.startReady());
        QVERIFY(m_page->becomes(isAlive) && isSame(*m_page));
        for (const QString &error : m_page->takeErrors()) // of the connection alone
            QVERIFY2(error.contains("ERR_CONNECTION") || error.contains("WebSocket connection"),
                     qPrintable(error));
    }

private:
    QString link(const QString &query = QString()) const
    {
        return QString("http://127.0.0.1:%1/%2").arg(m_port).arg(query);
    }
    /// The same picture in panel and page.
    bool isSame(BrowserPage &page)
    {
        return m_panel.waitUntil([&] {
            const QImage shown = QImage::fromData(page.data(canvas)).convertToFormat(QImage::Format_RGB32);
            return shown == m_panel.screen();
        });
    }

    void keepPicture(BrowserPage &page, const QString &name)
    {
        const QDir folder(QCoreApplication::applicationDirPath() + "/../screens");
        folder.mkpath(".");
        page.picture().save(folder.filePath(name + ".png"));
    }

    const int m_port = freePort();
    Browser m_browser;
    std::unique_ptr<BrowserPage> m_page;
};

FPD_TEST(TestWeb)
#include "tst_web.moc"
