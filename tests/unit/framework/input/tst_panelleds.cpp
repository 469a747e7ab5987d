// The LED commands as the driver gets them.

#include "framework/input/panelleds.h"
#include "menu/ledindex.h"
#include "tests/testprogram.h"

using namespace VASK;

namespace
{
/// Keeps the blocks and plays them onto 16 LEDs, as the driver does.
class Panel
{
public:
    Panel()
        : leds([this](void *block) {
              blocks << QByteArray(static_cast<const char *>(block), 76);
              apply(blocks.last());
              return result;
          })
    {
        leds.setDriverReady();
    }

    static quint32 word(const QByteArray &block, int offset)
    {
        return qFromLittleEndian<quint32>(block.constData() + offset);
    }

    PanelLeds leds;
    QList<QByteArray> blocks;
    QString lit = QString(16, '0');
    int result = 0;

private:
    void apply(const QByteArray &block)
    {
        const quint32 mask = word(block, 24) | word(block, 28) << 8;
        for (int led = 0; led < 16; ++led)
            if (mask & 1u << led)
                lit[led] = word(block, 40) == 6 ? '1' : '0';
    }
};

QString lit(const QList<int> &leds)
{
    QString text(16, '0');
    for (int led : leds)
        text[led] = '1';
    return text;
}
} // namespace

class TestPanelLeds : public QObject
{
    Q_OBJECT

private slots:
    void nothingWithoutADriver()
    {
        int sent = 0;
        PanelLeds leds([&sent](void *) {
            ++sent;
            return 1;
        });
        leds.clear();
        QCOMPARE(leds.set(LED_MAIN, LED_ON), 0);
        QCOMPARE(sent, 0);
        leds.setDriverReady();
        QCOMPARE(leds.set(LED_MAIN, LED_ON), 1);
        QCOMPARE(sent, 1);
    }

    /// Steps as play() takes them, behind an x how often the driver was told, behind a = the LEDs that are
    /// lit.
    void stories_data()
    {
        const DataRows<QString> row{"story"};
        row("the same state is sent once", "6- x1; 6- x0; 6~ x1; 6+ x0; 6? x1; 6+ x1; 6~ x0; tick x1; 6~ x1; "
                                           "fail; 6- x1; 6- x1; well; 6- x1; 6- x0");
        row("LEDs that do not exist", "16+ 255! 40^ x0 =; 2+ = 2");
        row("in step and nothing else", "tick x0; 1+ 3~ tick 9~; tick x1 = 1; tick x1 = 1 3 9; tick x1 = 1; "
                                        "tick x1 = 1 3 9; 3- 9+ tick tick = 1 9");
        row("a flash is not remembered", "4~ 5! 4? = 5; fiber video = 4");
        row("a fiber keeps them for later",
            "0+ 1~ 2+ fiber =; 2- 14+ tick fiber =; video = 0 1 14; video x0; "
            "14- = 0 1");
        row("the factory test has them to itself", "0+ test =; 1+ =; 7^ = 7; test =; fiber video = 0 1");
    }
    void stories()
    {
        QFETCH(QString, story);
        Panel panel;
        static const QRegularExpression part("^(.*?)(?: x(\\d+))?(?: =(.*))?$");
        for (const QString &text : story.split("; ")) {
            const QRegularExpressionMatch step = part.match(text);
            const int before = panel.blocks.size();
            for (const QString &word : step.captured(1).split(' '))
                play(panel, word);
            if (!step.captured(2).isEmpty())
                QVERIFY2(panel.blocks.size() - before == step.captured(2).toInt(), qPrintable(text));
            QList<int> leds;
            for (const QString &led : step.captured(3).split(' ', Qt::SkipEmptyParts))
                leds << led.toInt();
            if (text.contains('='))
                QVERIFY2(panel.lit == lit(leds), qPrintable(text));
        }
    }
    void bitMapTakesItsStateAndBlinking()
    {
        Panel panel;
        const QList<LedStatus> list{{0, LED_ON}, {1, LED_OFF}, {2, LED_BLINK}, {10, LED_ON}, {16, LED_ON}};
        panel.leds.sendBitMap(LED_ON, list);
        QCOMPARE(panel.lit, lit({0, 2, 10}));
        panel.leds.sendBitMap(LED_OFF, list);
        QCOMPARE(panel.lit, lit({0, 10}));
        QCOMPARE(panel.blocks.size(), 2);
    }

private:
    /// An LED on (+), off (-), blinking (~), flashed on (!) or off (?), on in the test (^); or a word.
    static void play(Panel &panel, const QString &word)
    {
        const auto led = static_cast<unsigned char>(word.chopped(1).toInt());
        const QMap<QString, std::function<void()>> acts{
            {"tick", [&] { panel.leds.blink(); }},
            {"fiber", [&] { panel.leds.giveToFiber(true); }},
            {"video", [&] { panel.leds.giveToFiber(false); }},
            {"test", [&] { panel.leds.giveToTest(); }},
            {"fail", [&] { panel.result = 1; }},
            {"well", [&] { panel.result = 0; }},
            {"+", [&] { panel.leds.set(led, LED_ON); }},
            {"-", [&] { panel.leds.set(led, LED_OFF); }},
            {"~", [&] { panel.leds.set(led, LED_BLINK); }},
            {"!", [&] { panel.leds.flash(led, LED_ON); }},
            {"?", [&] { panel.leds.flash(led, LED_OFF); }},
            {"^", [&] { panel.leds.setInTest(led, LED_ON); }},
        };
        const auto act = acts.find(word[0].isDigit() ? word.right(1) : word);
        QVERIFY2(act != acts.end(), qPrintable(word));
        (*act)();
    }
};

FPD_TEST_GUILESS(TestPanelLeds)
#include "tst_panelleds.moc"
