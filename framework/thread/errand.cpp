#include "framework/thread/errand.h"

namespace VASK
{
void Errand::ask()
{
    {
        QMutexLocker lock(&m_mutex);
        m_isAsked = true;
        if (m_isRunning)
            return;
        m_isRunning = true;
    }
    finish(); // has nothing left to do but to end
    m_thread.reset(QThread::create([this] { run(); }));
    m_thread->setObjectName(m_name);
    m_thread->start();
}

void Errand::finish()
{
    if (m_thread)
        m_thread->wait();
}

/// Takes what is asked for. Without any the thread ends: who asks from now on starts another.
bool Errand::isAsked()
{
    QMutexLocker lock(&m_mutex);
    m_isRunning = m_isAsked;
    m_isAsked = false;
    return m_isRunning;
}

void Errand::run()
{
    while (isAsked())
        m_work();
}
} // namespace VASK
