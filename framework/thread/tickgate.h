// Brings the ticks of a ticker to a receiver's thread, but only those that find something to do, and never a
// second one while the first is on its way; without anything to do the ticker itself rests. An idle panel is
// not woken a hundred times a second.
#pragma once

#include "framework/thread/handover.h"
#include "framework/thread/msgthread.h"

#include <atomic>
#include <functional>

namespace VASK
{
class TickGate
{
public:
    /// hasWork is asked on the ticker's thread, tick runs on the receiver's. To be called before the ticker
    /// starts; gate and receiver outlive it. Whoever brings work calls wake() behind it.
    void open(MsgThread *ticker, QObject *receiver, std::function<bool()> hasWork,
              std::function<void(bool finishing)> tick)
    {
        ticker->tickOnlyWhile(hasWork);
        {
            QMutexLocker lock(&m_tickerMutex);
            m_ticker = ticker;
        }
        QObject::connect(
            ticker, &MsgThread::doInfo, receiver,
            [this, receiver, hasWork = std::move(hasWork), tick = std::move(tick)](bool finishing) {
                if (!hasWork() || m_onItsWay.exchange(true))
                    return;
                postToGui(receiver, [this, tick, finishing] {
                    m_onItsWay = false;
                    tick(finishing);
                });
            },
            Qt::DirectConnection);
    }

    /// Any thread, also before open and after close, when there is nobody to wake.
    void wake()
    {
        QMutexLocker lock(&m_tickerMutex);
        if (m_ticker)
            m_ticker->wake();
    }
    /// To be called before the ticker goes.
    void close()
    {
        QMutexLocker lock(&m_tickerMutex);
        m_ticker = nullptr;
    }

private:
    std::atomic<bool> m_onItsWay{false};
    QMutex m_tickerMutex; ///< guards the pointer against the end of the ticker
    MsgThread *m_ticker = nullptr;
};
} // namespace VASK
