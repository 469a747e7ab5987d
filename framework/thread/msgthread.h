// A ticker: a thread that does nothing but say, at its interval, that it is time. Receivers decide on which
// thread their work runs; doInfo is emitted on the ticker's own.
#pragma once

#include <QThread>
#include <atomic>

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
    void setStop(bool stop) { m_stop = stop; }
    int interval() const { return m_intervalMs; }
    /// Applies from the next pause.
    void setInterval(int intervalMs) { m_intervalMs = intervalMs; }

public slots:
    void on_BegionRunEvent() { emit begionRunEvent(); }

signals:
    /// A tick; true for the last one, after which the receiver may delete the ticker.
    void doInfo(bool finishing);
    void begionRunEvent();

protected:
    void run() override;

private:
    std::atomic<bool> m_stop{false};
    std::atomic<int> m_intervalMs;
};
} // namespace VASK
