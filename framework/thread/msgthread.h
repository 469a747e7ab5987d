// A ticker: a thread that does nothing but say, at its interval, that it is time. Receivers decide on which
// thread their work runs; doInfo is emitted on the ticker's own. One that was told what its work is rests
// while there is none, and comes back on the beat that it had.
#pragma once

#include <QDeadlineTimer>
#include <QMutex>
#include <QThread>
#include <QWaitCondition>
#include <atomic>
#include <functional>

namespace VASK
{
class MsgThread : public QThread
{
    Q_OBJECT
public:
    explicit MsgThread(int intervalMs, QObject *parent = nullptr) : QThread(parent), m_intervalMs(intervalMs)
    {
    }

    /// Has the ticker been told to stop? It looks after each pause, and a last doInfo(true) follows.
    bool stop() const { return m_stop; }
    void setStop(bool stop);
    int interval() const { return m_intervalMs; }
    /// Applies from the next pause.
    void setInterval(int intervalMs) { m_intervalMs = intervalMs; }

    /// From now on the ticker rests while hasWork, asked on its own thread, says no. To be called before it
    /// starts. Whoever brings work calls wake() once hasWork would say yes.
    void tickOnlyWhile(std::function<bool()> hasWork) { m_hasWork = std::move(hasWork); }
    /// Any thread; next to nothing for a ticker that does not rest.
    void wake();

public slots:
    void on_BegionRunEvent() { emit begionRunEvent(); }

signals:
    /// A tick; true for the last one, after which the receiver may delete the ticker.
    void doInfo(bool finishing);
    void begionRunEvent();

protected:
    void run() override;

private:
    void rest(const QDeadlineTimer &beat);

    std::atomic<bool> m_stop{false};
    std::atomic<int> m_intervalMs;
    std::function<bool()> m_hasWork;
    /// Set before hasWork is asked for the last time: work that it did not see sees this.
    std::atomic<bool> m_isResting{false};
    QMutex m_restMutex;
    QWaitCondition m_woken;
};
} // namespace VASK
