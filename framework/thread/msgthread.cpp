#include "framework/thread/msgthread.h"

namespace VASK
{
void MsgThread::setStop(bool stop)
{
    m_stop = stop;
    wake();
}

void MsgThread::wake()
{
    if (!m_isResting)
        return;
    QMutexLocker lock(&m_restMutex);
    m_woken.wakeAll();
}

void MsgThread::run()
{
    on_BegionRunEvent();
    do {
        emit doInfo(false);
        const QDeadlineTimer beat(qMax(interval(), 0), Qt::PreciseTimer);
        msleep(static_cast<unsigned long>(qMax(interval(), 0)));
        if (m_hasWork && !stop())
            rest(beat);
    } while (!stop());
    emit doInfo(true);
}

/// Waits for work, and then for the next of the moments at which an unbroken row of ticks would have come.
void MsgThread::rest(const QDeadlineTimer &beat)
{
    {
        QMutexLocker lock(&m_restMutex);
        m_isResting = true;
        if (m_hasWork() || stop()) {
            m_isResting = false;
            return;
        }
        while (!m_hasWork() && !stop())
            m_woken.wait(&m_restMutex);
        m_isResting = false;
    }
    const int step = interval();
    if (step <= 0 || stop())
        return;
    const qint64 late =
        (QDeadlineTimer::current(Qt::PreciseTimer).deadlineNSecs() - beat.deadlineNSecs()) / 1000;
    const qint64 stepUs = qint64(step) * 1000;
    usleep(static_cast<unsigned long>(stepUs - late % stepUs));
}
} // namespace VASK
