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

    void sameStateIsSentOnce()
    {
        Panel panel;
        const auto sends = [&panel](enLedStatus state) {
            const int before = panel.blocks.size();
            panel.leds.set(6, state);
            return panel.blocks.size() - before;
        };
        QCOMPARE(sends(LED_OFF), 1); // nobody knows how the driver starts
        QCOMPARE(sends(LED_OFF), 0);
        QCOMPARE(sends(LED_BLINK), 1);
        QCOMPARE(sends(LED_ON), 0);
        panel.leds.flash(6, LED_OFF);
        QCOMPARE(sends(LED_ON), 1);
        QCOMPARE(sends(LED_BLINK), 0);
        panel.leds.blink(); // dark by now
        QCOMPARE(sends(LED_BLINK), 1);
        panel.result = 1;
        QCOMPARE(sends(LED_OFF), 1);
        QCOMPARE(sends(LED_OFF), 1); // the driver did not take it
        panel.result = 0;
        QCOMPARE(sends(LED_OFF), 1);
        QCOMPARE(sends(LED_OFF), 0);
    }

    void ledsThatDoNotExist()
    {
        Panel panel;
        QCOMPARE(panel.leds.set(16, LED_ON), 0);
        QCOMPARE(panel.leds.flash(255, LED_ON), 0);
        QCOMPARE(panel.leds.setInTest(40, LED_ON), 0);
        panel.leds.sendBitMap(LED_ON, {{16, LED_ON}, {2, LED_ON}});
        QCOMPARE(panel.lit, lit({2}));
    }

    void blinkingInStepAndNothingElse()
    {
        Panel panel;
        panel.leds.blink();
        QVERIFY(panel.blocks.isEmpty());
        panel.leds.set(1, LED_ON);
        panel.leds.set(3, LED_BLINK);
        panel.leds.blink();
        panel.leds.set(9, LED_BLINK);
        for (int second = 0; second < 6; ++second) {
            const bool first = panel.lit[3] == '1';
            const int sent = panel.blocks.size();
            panel.leds.blink();
            QCOMPARE(panel.blocks.size(), sent + 1);
            QCOMPARE(panel.lit, first ? lit({1}) : lit({1, 3, 9}));
        }
        panel.leds.set(3, LED_OFF);
        panel.leds.set(9, LED_ON);
        panel.leds.blink();
        panel.leds.blink();
        QCOMPARE(panel.lit, lit({1, 9}));
    }

    void aFlashIsNotRemembered()
    {
        Panel panel;
        panel.leds.set(4, LED_BLINK);
        panel.leds.flash(5, LED_ON);
        panel.leds.flash(4, LED_OFF);
        QCOMPARE(panel.lit, lit({5}));
        panel.leds.giveToFiber(true);
        panel.leds.giveToFiber(false);
        QCOMPARE(panel.lit, lit({4}));
    }

    void bitMapTakesItsStateAndBlinking()
    {
        Panel panel;
        const QList<LedStatus> list{{0, LED_ON}, {1, LED_OFF}, {2, LED_BLINK}, {10, LED_ON}};
        panel.leds.sendBitMap(LED_ON, list);
        QCOMPARE(panel.lit, lit({0, 2, 10}));
        panel.leds.sendBitMap(LED_OFF, list);
        QCOMPARE(panel.lit, lit({0, 10}));
        QCOMPARE(panel.blocks.size(), 2);
    }

    void fiberModeKeepsTheLedsForLater()
    {
        Panel panel;
        panel.leds.set(0, LED_ON);
        panel.leds.set(1, LED_BLINK);
        panel.leds.set(2, LED_ON);
        panel.leds.giveToFiber(true);
        QCOMPARE(panel.lit, lit({}));
        QCOMPARE(panel.leds.set(2, LED_OFF), 0);
        panel.leds.set(14, LED_ON);
        panel.leds.blink();
        panel.leds.giveToFiber(true);
        QCOMPARE(panel.lit, lit({}));
        panel.leds.giveToFiber(false);
        QCOMPARE(panel.lit, lit({0, 1, 14}));
        const int sent = panel.blocks.size();
        panel.leds.giveToFiber(false);
        QCOMPARE(panel.blocks.size(), sent);
        panel.leds.set(14, LED_OFF);
        QCOMPARE(panel.lit, lit({0, 1}));
    }

    void theFactoryTestHasTheLedsToItself()
    {
        Panel panel;
        panel.leds.set(0, LED_ON);
        panel.leds.giveToTest();
        QCOMPARE(panel.lit, lit({}));
        panel.leds.set(1, LED_ON);
        QCOMPARE(panel.lit, lit({}));
        panel.leds.setInTest(7, LED_ON);
        QCOMPARE(panel.lit, lit({7}));
        panel.leds.giveToTest();
        QCOMPARE(panel.lit, lit({}));
        // What was remembered is the state before the test.
        panel.leds.giveToFiber(true);
        panel.leds.giveToFiber(false);
        QCOMPARE(panel.lit, lit({0, 1}));
    }
};

FPD_TEST_GUILESS(TestPanelLeds)
#include "tst_panelleds.moc"
