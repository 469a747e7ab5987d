// Brings the ticks of a ticker to a receiver's thread, but only those that find something to do, and never a
// second one while the first is on its way: an idle panel is not woken a hundred times a second.
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
    /// starts; gate and receiver outlive it.
    void open(MsgThread *ticker, QObject *receiver, std::function<bool()> hasWork,
              std::function<void(bool finishing)> tick)
    {
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

private:
    std::atomic<bool> m_onItsWay{false};
};
} // namespace VASK
