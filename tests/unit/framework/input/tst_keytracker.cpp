// What a stream of key words means, on a clock that the test turns.

#include "framework/input/keytracker.h"
#include "menu/keycodes.h"
#include "tests/testprogram.h"

#include <atomic>
#include <thread>

using namespace VASK;

namespace
{
CTimeValue testTime;
std::atomic<long> racingSeconds;

void testClock(CTimeValue &time)
{
    time = testTime;
}

/// A panel whose events are read as text: "34p" pressed, "34r" released, "34L" held.
class Keys
{
public:
    Keys()
        : m_timer(testClock), m_tracker(
                                  [this](KEY_TYPE type, unsigned char key, unsigned char speed, bool held) {
                                      m_events << QString::number(key) + "prL"[type];
                                      m_speed = speed;
                                      m_longPress = held;
                                  },
                                  m_timer)
    {
        testTime = {5000, 0};
    }

    void press(unsigned char key, unsigned char speed = 1) { m_tracker.press(key, speed); }
    void release(unsigned char key) { m_tracker.release(key, 1); }
    void wait(unsigned int ms)
    {
        for (unsigned int passed = 0; passed < ms; passed += 10) {
            testTime = testTime.plusMs(10);
            m_timer.tick();
        }
    }
    QString events()
    {
        const QString text = m_events.join(' ');
        m_events.clear();
        return text;
    }
    int runningTimers() { return m_timer.queue().GetCurSize(); }
    int m_speed = -1;
    bool m_longPress = false;

private:
    CTimer m_timer;
    KeyTracker m_tracker;
    QStringList m_events;
};

} // namespace

class TestKeyTracker : public QObject
{
    Q_OBJECT

private slots:
    /// 'p' presses and 'r' releases a key, 'w' waits so many milliseconds.
    void stories_data()
    {
        const DataRows<QString, QString> row{"story", "events"};
        row("short press", "p34 w200 r34", "34p 34r");
        row("just short", "p34 w2990 r34 w4000", "34p 34r");
        row("long press, release swallowed", "p34 w3000 w5000 r34", "34p 34L");
        row("the next press is a new one", "p34 w3000 r34 p34 w100 r34", "34p 34L 34p 34r");
        row("the preset key lets its release through", "p17 w3000 r17", "17p 17L 17r");
        row("the knob is never held", "p32 p33 w9000", "32p 33p");
        row("a release of the knob goes out", "r32", "32r");
        row("codes without a key", "p0 p1 p36 p127 w4000 r1 r127", "0p 1p 36p 127p 1r 127r");
        row("a release out of nothing", "r34", "34r");
        row("a press whose release was lost", "p34 w2000 p34 w2000 r34", "34p 34p 34r");
        row("lock chord", "p35 w100 p34 w3000 r34 r35 w5000", "35p 34p 18L");
        row("lock chord, the other way", "p34 w900 p35 w3000 r34 r35", "34p 35p 18L");
        row("lock chord twice", "p34 p35 w3000 r34 r35 p35 p34 w3000", "34p 35p 18L 35p 34p 18L");
        row("partner let go before the time", "p34 p35 w1000 r35 w2000 r34", "34p 35p 35r 34L");
        row("fired and let go before the partner", "p34 w500 p35 w2600 r34 w1000 r35", "34p 35p 35L");
        row("partner comes after the long press", "p34 w3000 p35 w3000 r35 r34", "34p 34L 35p 35L");
        row("service chord", "p13 p14 w50 p16 w3000 r13 r14 r16 w4000", "13p 14p 16p 19L");
        row("two of three are no chord", "p14 p16 w3000 r14 r16", "14p 16p 14L 16L");
        row("keys of no chord", "p2 p3 w3000 r2 r3", "2p 3p 2L 3L");
        row("a held key beside the chord", "p2 p34 p35 w3000 r2", "2p 34p 35p 2L 18L");
    }
    void stories()
    {
        QFETCH(QString, story);
        Keys keys;
        for (const QString &act : story.split(' ')) {
            const unsigned int value = act.mid(1).toUInt();
            if (act[0] == 'p')
                keys.press(static_cast<unsigned char>(value));
            else if (act[0] == 'r')
                keys.release(static_cast<unsigned char>(value));
            else
                keys.wait(value);
        }
        QTEST(keys.events(), "events");
        keys.wait(4000);
        QCOMPARE(keys.runningTimers(), 0);
    }

    void speedAndHeldFlag()
    {
        Keys keys;
        keys.press(KEY_KNOB_RIGHT, 7);
        QCOMPARE(keys.m_speed, 7);
        keys.press(KEY_MAIN, 0);
        QVERIFY(!keys.m_longPress);
        keys.wait(3000);
        QCOMPARE(keys.m_speed, 1);
        QVERIFY(keys.m_longPress);
    }

    void everyPressIsLetGoAgainWhateverTheTimerDoes()
    {
        // The timers come due while the keypad thread lets go: each press must end in exactly one of a
        // release and a long press.
        racingSeconds = 5000;
        CTimer timer([](CTimeValue &time) { time = {racingSeconds, 0}; });
        std::atomic<bool> stop{false};
        std::thread ticker([&] {
            while (!stop)
                timer.tick();
        });
        std::atomic<int> pressed{0};
        std::atomic<int> ended{0};
        KeyTracker tracker([&](KEY_TYPE type, unsigned char, unsigned char,
                               bool) { ++(type == KEY_PRESSED ? pressed : ended); },
                           timer);
        for (int i = 0; i < 2000; ++i) {
            tracker.press(KEY_MAIN, 1);
            racingSeconds += 3;
            for (volatile int wait = i % 50 * 20; wait > 0; wait = wait - 1)
                ;
            tracker.release(KEY_MAIN, 1);
        }
        stop = true;
        ticker.join();
        QCOMPARE(timer.queue().GetCurSize(), 0);
        QCOMPARE(ended.load(), pressed.load());
    }
};

FPD_TEST_GUILESS(TestKeyTracker)
#include "tst_keytracker.moc"
