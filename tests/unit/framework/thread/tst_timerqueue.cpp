// The timer service on a clock that the test turns.

#include "framework/thread/ctimer.h"
#include "tests/testprogram.h"

#include <QMap>
#include <QSemaphore>
#include <thread>

using namespace VASK;

namespace
{
CTimeValue testTime;

void testClock(CTimeValue &time)
{
    time = testTime;
}

void nothing(int, void *) {}

void note(int id, void *fired)
{
    static_cast<QList<int> *>(fired)->append(id);
}

/// The heap as it must always be, and every id where the table says.
void checkHeap(CTimerQueue &queue)
{
    QSet<int> ids;
    for (int slot = 0; slot < queue.GetCurSize(); ++slot) {
        QVERIFY(!(queue.Get(slot)->m_dueTime < queue.Get((slot - 1) / 2)->m_dueTime));
        ids << queue.Get(slot)->GetTimerId();
    }
    QCOMPARE(ids.size(), queue.GetCurSize());
    QVERIFY(!queue.Get(queue.GetCurSize()));
    QVERIFY(!queue.Get(-1));
}

void pass(CTimer &timer, unsigned ms)
{
    testTime = testTime.plusMs(ms);
    timer.tick();
}

/// What a callback does to the service that runs it.
struct Meddler {
    CTimer *timer;
    QList<int> fired;
    int cancelId = 0;
    bool rearm = false;
};

void meddle(int id, void *argument)
{
    auto *meddler = static_cast<Meddler *>(argument);
    meddler->fired << id;
    if (meddler->cancelId)
        meddler->timer->CancelTimer(meddler->cancelId);
    if (meddler->rearm)
        meddler->timer->SetTimer(5000, 1, nothing, nullptr);
}
} // namespace

class TestTimerQueue : public QObject
{
    Q_OBJECT

private slots:
    void init() { testTime = {1000000, 0}; }

    void idsComeFromTheChain()
    {
        CTimerQueue queue(64, testClock);
        QCOMPARE(queue.Schedule(10, 1, nothing, nullptr), 1);
        QCOMPARE(queue.Schedule(10, 1, nothing, nullptr), 2);
        QCOMPARE(queue.Schedule(10, 1, nothing, nullptr), 3);
        QVERIFY(queue.Cancel(1));
        QVERIFY(queue.Cancel(3));
        // The one freed last comes first.
        QCOMPARE(queue.Schedule(10, 1, nothing, nullptr), 3);
        QCOMPARE(queue.Schedule(10, 1, nothing, nullptr), 1);
        QCOMPARE(queue.Schedule(10, 1, nothing, nullptr), 4);
        for (int id : {0, -1, 5, 63, 64, 1000})
            QVERIFY(!queue.Cancel(id));
        QVERIFY(queue.Cancel(2));
        QVERIFY(!queue.Cancel(2));
        checkHeap(queue);
    }

    void growsBeforeTheIdsRunOut()
    {
        CTimerQueue queue(64, testClock);
        for (int i = 1; i <= 62; ++i)
            QCOMPARE(queue.Schedule(unsigned(1000 - i), 1, nothing, nullptr), i);
        QCOMPARE(queue.GetCapacity(), 64);
        QCOMPARE(queue.Schedule(10, 1, nothing, nullptr), 63);
        QCOMPARE(queue.GetCapacity(), 128);
        for (int i = 64; i <= 300; ++i)
            QCOMPARE(queue.Schedule(unsigned(i * 7 % 500), 1, nothing, nullptr), i);
        checkHeap(queue);
        QCOMPARE(queue.GetCapacity(), 320);
        QVERIFY(queue.Cancel(64));
        QCOMPARE(queue.Schedule(10, 1, nothing, nullptr), 64);
    }

    void anyOrderOfArmingAndCancelling()
    {
        CTimerQueue queue(64, testClock);
        QMap<int, unsigned> armed;
        unsigned random = 1;
        for (int i = 0; i < 3000; ++i) {
            random = random * 1103515245 + 12345;
            if (armed.size() > 100 || (random >> 16) % 3 == 0) {
                if (armed.isEmpty())
                    continue;
                const int id = (armed.begin() + int((random >> 8) % unsigned(armed.size()))).key();
                QVERIFY(queue.Cancel(id));
                armed.remove(id);
            } else {
                const unsigned interval = (random >> 10) % 40;
                const int id = queue.Schedule(interval, 1, nothing, nullptr);
                QVERIFY(id > 0 && !armed.contains(id));
                armed[id] = interval;
            }
            QCOMPARE(queue.GetCurSize(), armed.size());
        }
        checkHeap(queue);
        // Out they come, the earliest first.
        unsigned last = 0;
        while (CTimerNode *node = queue.Get(0)) {
            QVERIFY(node->m_interval >= last);
            QCOMPARE(node->m_interval, armed.value(node->GetTimerId()));
            last = node->m_interval;
            queue.Cancel(node->GetTimerId());
        }
    }

    void equalDueTimesDoNotPass()
    {
        CTimerQueue queue(64, testClock);
        const int first = queue.Schedule(10, 1, nothing, nullptr);
        const int second = queue.Schedule(10, 1, nothing, nullptr);
        QCOMPARE(queue.Get(0)->GetTimerId(), first);
        QCOMPARE(queue.Get(1)->GetTimerId(), second);
        const int earlier = queue.Schedule(9, 1, nothing, nullptr);
        QCOMPARE(queue.Get(0)->GetTimerId(), earlier);
    }

    void timesOtherThanForEverFireOnce()
    {
        for (int times : {1, 5, 0, -1}) {
            CTimer timer(testClock);
            QList<int> fired;
            const int id = timer.SetTimer(100, times, note, &fired);
            for (int i = 0; i < 100; ++i) {
                pass(timer, 10);
                QCOMPARE(fired.size() > 0, i >= 9);
            }
            QCOMPARE(fired.size(), times == -1 ? 10 : 1);
            QCOMPARE(QSet<int>(fired.begin(), fired.end()), QSet<int>{id});
            QCOMPARE(timer.CancelTimer(id), times == -1 ? 1 : 0);
            QCOMPARE(timer.SetTimer(100, 1, note, &fired), id);
        }
    }

    void clockSetForwardIsNotCaughtUp()
    {
        CTimer timer(testClock);
        QList<int> fired;
        timer.SetTimer(1000, -1, note, &fired);
        timer.tick();
        testTime.seconds += 3600;
        timer.tick();
        QCOMPARE(fired.size(), 1);
        pass(timer, 999);
        QCOMPARE(fired.size(), 1);
        pass(timer, 1);
        QCOMPARE(fired.size(), 2);
    }

    void clockSetBackStartsEveryIntervalAnew()
    {
        CTimer timer(testClock);
        QList<int> fired;
        const int slow = timer.SetTimer(3000, 1, note, &fired);
        testTime = testTime.plusMs(2900);
        const int quick = timer.SetTimer(1000, -1, note, &fired);
        timer.tick();
        testTime.seconds -= 3600;
        timer.tick();
        QVERIFY(fired.isEmpty());
        checkHeap(timer.queue());
        pass(timer, 999);
        QVERIFY(fired.isEmpty());
        pass(timer, 1);
        QCOMPARE(fired, QList<int>{quick});
        pass(timer, 2000);
        QCOMPARE(fired.size(), 3);
        QVERIFY(fired.contains(slow));
    }

    void aCallbackMayCancelItself()
    {
        CTimer timer(testClock);
        Meddler meddler{&timer, {}};
        meddler.cancelId = timer.SetTimer(10, -1, meddle, &meddler);
        meddler.rearm = true; // takes the id that the cancelling has freed
        pass(timer, 10);
        QCOMPARE(meddler.fired.size(), 1);
        QCOMPARE(timer.queue().GetCurSize(), 1);
        QCOMPARE(timer.queue().Get(0)->GetTimerId(), meddler.cancelId);
        QCOMPARE(timer.queue().Get(0)->m_interval, 5000u);
        pass(timer, 20);
        QCOMPARE(meddler.fired.size(), 1);
    }

    void aCallbackMayCancelTheNextOne()
    {
        CTimer timer(testClock);
        Meddler first{&timer, {}};
        QList<int> fired;
        timer.SetTimer(10, 1, meddle, &first);
        first.cancelId = timer.SetTimer(11, 1, note, &fired);
        pass(timer, 20);
        QVERIFY(fired.isEmpty());
        QCOMPARE(timer.queue().GetCurSize(), 0);
    }

    void cancelledByAnotherThreadWhileItFires()
    {
        struct Firing {
            QSemaphore begun;
            QSemaphore mayEnd;
        } firing;
        CTimer timer;
        QCOMPARE(timer.Initialize(), 0);
        const int id = timer.SetTimer(
            1, -1,
            [](int, void *argument) {
                static_cast<Firing *>(argument)->begun.release();
                static_cast<Firing *>(argument)->mayEnd.acquire();
            },
            &firing);
        QVERIFY(firing.begun.tryAcquire(1, 10000));
        QCOMPARE(timer.CancelTimer(id), 1);
        QCOMPARE(timer.CancelTimer(id), 0);
        QCOMPARE(timer.SetTimer(100000, 1, nothing, nullptr), id);
        firing.mayEnd.release();
        QCOMPARE(timer.UnInitialize(), 0);
        QCOMPARE(timer.queue().GetCurSize(), 1);
        QCOMPARE(timer.queue().Get(0)->m_interval, 100000u);
    }

    void manyThreadsArmAndCancel()
    {
        CTimer timer;
        QCOMPARE(timer.Initialize(), 0);
        QCOMPARE(timer.Initialize(), 0);
        std::atomic<int> fired{0};
        const auto work = [&timer, &fired] {
            const auto count = [](int, void *counter) { ++*static_cast<std::atomic<int> *>(counter); };
            for (int i = 0; i < 200; ++i) {
                timer.SetTimer(unsigned(i % 20), 1, count, &fired);
                timer.CancelTimer(timer.SetTimer(unsigned(i % 3), -1, count, &fired));
            }
        };
        std::thread first(work);
        std::thread second(work);
        first.join();
        second.join();
        QTRY_COMPARE(timer.queue().GetCurSize(), 0);
        QVERIFY(fired >= 400);
        QCOMPARE(timer.UnInitialize(), 0);
        timer.SetTimer(0, 1, nothing, nullptr);
        QTest::qWait(30);
        QCOMPARE(timer.queue().GetCurSize(), 1); // armed, and nobody looks
    }

    void aPauseEndsForAnEarlierTimer()
    {
        CTimer timer;
        QCOMPARE(timer.Initialize(), 0);
        QSemaphore fired;
        const auto release = [](int, void *argument) { static_cast<QSemaphore *>(argument)->release(); };
        timer.SetTimer(100000, 1, nothing, nullptr);
        QTest::qWait(30); // it has begun to wait for that one
        timer.SetTimer(20, 1, release, &fired);
        QVERIFY(fired.tryAcquire(1, 5000));
        // With the thread asleep until then, its end does not wait either.
        QElapsedTimer ending;
        ending.start();
        QCOMPARE(timer.UnInitialize(), 0);
        QVERIFY(ending.elapsed() < 5000);
    }

    void clockSetBackDuringALongPause()
    {
        static std::atomic<long> offset;
        offset = 0;
        CTimer timer([](CTimeValue &now) {
            GetTimeOfDay(now);
            now.seconds += offset;
        });
        QCOMPARE(timer.Initialize(), 0);
        QSemaphore fired;
        timer.SetTimer(
            200, -1, [](int, void *argument) { static_cast<QSemaphore *>(argument)->release(); }, &fired);
        QVERIFY(fired.tryAcquire(1, 5000));
        offset = -3600;
        QVERIFY(fired.tryAcquire(2, 5000)); // neither stopped for an hour nor thrown off
        QCOMPARE(timer.UnInitialize(), 0);
    }

    void plainFunctionsCheckTheirArguments()
    {
        int id = 7;
        QCOMPARE(TIMER_SetTimer(10, 1, nullptr, nullptr, &id), -1);
        QCOMPARE(id, 7);
        QCOMPARE(TIMER_SetTimer(10, 1, nothing, nullptr, nullptr), -1);
        QCOMPARE(TIMER_SetTimer(10, 1, nothing, nullptr, &id), 0);
        QVERIFY(id >= 1 && id < 64);
        QCOMPARE(TIMER_CancelTimer(id), 0);
        QCOMPARE(TIMER_CancelTimer(12345), 0);
        QCOMPARE(g_timer.CancelTimer(0), -1);
        QCOMPARE(TIMER_UnInitialize(), 0);
    }
};

FPD_TEST_GUILESS(TestTimerQueue)
#include "tst_timerqueue.moc"
