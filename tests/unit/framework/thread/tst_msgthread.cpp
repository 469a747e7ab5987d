// The ticker and the gate in front of a receiver.

#include "framework/thread/tickgate.h"
#include "tests/testprogram.h"

#include <QSemaphore>

using namespace VASK;

class TestMsgThread : public QObject
{
    Q_OBJECT
private slots:
    void ticksUntilStopped()
    {
        MsgThread ticker(1);
        QList<bool> ticks; // written by the ticker, read when it has ended
        int begun = 0;
        connect(
            &ticker, &MsgThread::doInfo, &ticker, [&](bool last) { ticks += last; }, Qt::DirectConnection);
        connect(
            &ticker, &MsgThread::begionRunEvent, &ticker, [&] { begun += ticks.isEmpty(); },
            Qt::DirectConnection);
        ticker.setStop(true); // looked at after the first pause only
        ticker.start();
        QVERIFY(ticker.wait(5000));
        QCOMPARE(begun, 1);
        QCOMPARE(ticks, QList<bool>({false, true}));
    }

    void gateLetsWorkThrough()
    {
        QObject receiver;
        std::atomic<int> work{0};
        int handled = 0;
        bool onOwnThread = true;
        MsgThread ticker(1);
        std::atomic<int> ticks{0};
        connect(
            &ticker, &MsgThread::doInfo, &ticker, [&] { ++ticks; }, Qt::DirectConnection);
        TickGate gate;
        gate.wake(); // nobody is there yet
        gate.open(
            &ticker, &receiver, [&] { return work > 0; },
            [&](bool) {
                ++handled;
                onOwnThread &= QThread::currentThread() == receiver.thread();
                work = 0;
            });
        ticker.start();
        QTest::qWait(30);
        QCOMPARE(handled, 0);
        QCOMPARE(ticks, 1); // and it rests
        work = 1;
        gate.wake();
        QThread::msleep(50); // many ticks while the receiver does not look: one of them waits
        QVERIFY(QTest::qWaitFor([&] { return handled > 0; }, 5000));
        QTest::qWait(30);
        QCOMPARE(handled, 1);
        QVERIFY(onOwnThread);
        gate.close();
        ticker.setStop(true); // out of its rest
        QVERIFY(ticker.wait(5000));
    }

    /// Work that comes while the ticker is on its way to rest must not be left lying.
    void noWorkIsMissed()
    {
        std::atomic<int> work{0};
        QSemaphore done;
        MsgThread ticker(0);
        ticker.tickOnlyWhile([&] { return work > 0; });
        connect(
            &ticker, &MsgThread::doInfo, &ticker, [&] { done.release(work.exchange(0)); },
            Qt::DirectConnection);
        ticker.start();
        for (int i = 0; i < 20000; ++i) {
            work = 1;
            ticker.wake();
            QVERIFY2(done.tryAcquire(1, 5000), qPrintable(QString::number(i)));
        }
        ticker.setStop(true);
        QVERIFY(ticker.wait(5000));
    }
};

FPD_TEST_GUILESS(TestMsgThread)
#include "tst_msgthread.moc"
