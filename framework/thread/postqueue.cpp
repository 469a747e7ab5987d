#include "framework/thread/postqueue.h"

#include "framework/thread/handover.h"

namespace VASK
{
namespace
{
constexpr int lookAgainMs = 10;
} // namespace

PostQueue::PostQueue(QObject *receiver, int longest) : m_receiver(receiver), m_longest(longest)
{
    m_lookAgain.setSingleShot(true);
    m_lookAgain.setInterval(lookAgainMs);
    QObject::connect(&m_lookAgain, &QTimer::timeout, receiver, [this] { drain(); });
}

void PostQueue::post(Work work)
{
    const bool isReceiver = m_receiver->thread() == QThread::currentThread();
    QMutexLocker lock(&m_mutex);
    while (!isReceiver && m_waiting.size() >= m_longest)
        m_taken.wait(&m_mutex);
    m_waiting.append(std::move(work));
    const bool mustPost = !isReceiver && !m_drainPosted;
    m_drainPosted = m_drainPosted || mustPost;
    lock.unlock();
    if (mustPost)
        postToGui(m_receiver, [this] { drain(); });
    else if (isReceiver)
        drain();
}

/// One event for all that waits by now; who posts meanwhile posts the next one, so that the receiver's thread
/// comes to its other work in between.
void PostQueue::drain()
{
    if (m_hasRoom && !m_hasRoom()) {
        if (!m_lookAgain.isActive())
            m_lookAgain.start();
        return;
    }
    QVector<Work> batch;
    QMutexLocker lock(&m_mutex);
    batch.swap(m_waiting);
    m_drainPosted = false;
    m_taken.wakeAll();
    lock.unlock();
    for (const Work &work : qAsConst(batch))
        work();
}

int PostQueue::waiting() const
{
    QMutexLocker lock(&m_mutex);
    return m_waiting.size();
}
} // namespace VASK
