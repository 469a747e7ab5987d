// Work for the GUI thread from a poster that is faster than it: the order, the bound, and who waits for whom.

#include "framework/thread/postqueue.h"
#include "tests/testprogram.h"

#include <thread>

using namespace VASK;

namespace
{
constexpr int longest = 50;

/// Posts numbers from a thread of its own.
class Poster
{
public:
    Poster(PostQueue &queue, QVector<int> &taken, int count)
        : m_thread([this, &queue, &taken, count] {
              for (int i = 0; i < count; ++i) {
                  queue.post([&taken, i] { taken += i; });
                  ++posted;
              }
          })
    {
    }
    ~Poster() { m_thread.join(); }

    std::atomic<int> posted{0};

private:
    std::thread m_thread;
};

bool isCounting(const QVector<int> &numbers)
{
    for (int i = 0; i < numbers.size(); ++i)
        if (numbers[i] != i)
            return false;
    return true;
}
} // namespace

class TestPostQueue : public QObject
{
    Q_OBJECT
private slots:
    void posterWaitsAndNothingIsLost()
    {
        constexpr int count = 100 * longest;
        QObject receiver;
        QVector<int> taken;
        PostQueue queue(&receiver, longest);
        Poster poster(queue, taken, count);

        // The event loop stands still: the poster comes as far as the bound and no farther.
        QElapsedTimer still;
        still.start();
        while (poster.posted < longest || still.elapsed() < 100)
            std::this_thread::yield();
        QCOMPARE(int(poster.posted), longest);
        QCOMPARE(queue.waiting(), longest);
        QVERIFY(taken.isEmpty());

        int mostWaiting = 0;
        QVERIFY(QTest::qWaitFor([&] {
            mostWaiting = qMax(mostWaiting, queue.waiting());
            return taken.size() == count;
        }));
        QVERIFY(isCounting(taken));
        QVERIFY(mostWaiting <= longest);
    }

    void withoutRoomAllWaits()
    {
        QObject receiver;
        QVector<int> taken;
        PostQueue queue(&receiver, longest);
        bool room = false;
        queue.setRoom([&room] { return room; });
        Poster poster(queue, taken, 3 * longest);
        QVERIFY(QTest::qWaitFor([&] { return poster.posted == longest; }));
        QTest::qWait(50);
        QCOMPARE(int(poster.posted), longest);
        QVERIFY(taken.isEmpty());
        room = true; // nobody says so to the queue
        QVERIFY(QTest::qWaitFor([&] { return taken.size() == 3 * longest; }));
        QVERIFY(isCounting(taken));
    }

    void ownThreadNeverWaits()
    {
        QObject receiver;
        QVector<int> taken;
        PostQueue queue(&receiver, 2);
        queue.post([&] { taken += 0; });
        QCOMPARE(taken, QVector<int>{0}); // at once
        bool room = false;
        queue.setRoom([&room] { return room; });
        for (int i = 1; i < 10; ++i)
            queue.post([&taken, i] { taken += i; });
        QCOMPARE(queue.waiting(), 9); // beyond the bound rather than a standstill
        room = true;
        queue.post([&taken] { taken += 10; });
        QCOMPARE(taken.size(), 11);
        QVERIFY(isCounting(taken));
    }
};

FPD_TEST_GUILESS(TestPostQueue)
#include "tst_postqueue.moc"
