// The ticker and the gate in front of a receiver.

#include "framework/thread/tickgate.h"
#include "tests/testprogram.h"

#include <QtTest>

using namespace VASK;

class TestMsgThread : public QObject
{
    Q_OBJECT
private slots:
    void ticksUntilStopped();
    void gateLetsWorkThrough();
};

void TestMsgThread::ticksUntilStopped()
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

void TestMsgThread::gateLetsWorkThrough()
{
    QObject receiver;
    std::atomic<int> work{0};
    int handled = 0;
    bool onOwnThread = true;
    MsgThread ticker(1);
    TickGate gate;
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
    work = 1;
    QThread::msleep(50); // many ticks while the receiver does not look: one of them waits
    QVERIFY(QTest::qWaitFor([&] { return handled > 0; }, 5000));
    QTest::qWait(30);
    QCOMPARE(handled, 1);
    QVERIFY(onOwnThread);
    ticker.setStop(true);
    QVERIFY(ticker.wait(5000));
}

FPD_TEST_GUILESS(TestMsgThread)
#include "tst_msgthread.moc"
