#include "framework/thread/ctimer.h"

namespace VASK
{
namespace
{
constexpr int startCapacity = 64;

void *runTimer(void *timer)
{
    static_cast<CTimer *>(timer)->Run();
    return nullptr;
}
} // namespace

CTimer g_timer;

CTimer::CTimer(CTimerQueue::Clock clock) : m_clock(clock), m_queue(startCapacity, clock) {}

CTimer::~CTimer()
{
    UnInitialize();
}

int CTimer::Initialize()
{
    if (m_running)
        return 0;
    m_stop = 0;
    if (pthread_create(&m_thread, nullptr, runTimer, this) != 0)
        return -2;
    pthread_setname_np(m_thread, "timer");
    m_running = true;
    return 0;
}

int CTimer::UnInitialize()
{
    m_stop = 1;
    m_alarm.ring();
    if (m_running)
        pthread_join(m_thread, nullptr);
    m_running = false;
    return 0;
}

int CTimer::SetTimer(unsigned int interval, int times, CTimerNode::Callback callback, void *argument)
{
    const int id = m_queue.Schedule(interval, times, callback, argument);
    if (m_queue.isFirst(id))
        m_alarm.ring(); // the pause that runs is too long for it
    return id;
}

int CTimer::CancelTimer(int id)
{
    if (id == 0)
        return -1;
    return m_queue.Cancel(id) ? 1 : 0;
}

void CTimer::Run()
{
    while (!m_stop) {
        if (m_alarm.pause(untilDueUs()) == TimerAlarm::RUNG)
            continue;
        // As if the clock had been looked at in every moment: a clock that stands before that was set back.
        const unsigned int skippedMs = m_alarm.skippedMs();
        if (!m_previous.isEmpty())
            m_previous = m_previous.plusMs(skippedMs);
        tick();
    }
}

long CTimer::untilDueUs()
{
    CTimeValue due;
    if (!m_queue.firstDue(due))
        return TimerAlarm::longestPauseUs;
    CTimeValue now;
    m_clock(now);
    return now < due ? due.usSince(now) : 0;
}

void CTimer::tick()
{
    CTimeValue now;
    m_clock(now);
    if (!m_previous.isEmpty() && now < m_previous)
        m_queue.restartAll(now);
    else
        fireDue(now);
    m_previous = now;
}

void CTimer::fireDue(const CTimeValue &now)
{
    CTimerNode *node = nullptr;
    // A period of nothing is due again at once: without the flag it could not be stopped.
    while (!m_stop && (node = m_queue.beginFiring(now))) {
        node->m_callback(node->GetTimerId(), node->m_argument);
        m_queue.endFiring(node, now);
    }
}

int TIMER_Initialize()
{
    return g_timer.Initialize();
}

int TIMER_UnInitialize()
{
    return g_timer.UnInitialize();
}

int TIMER_SetTimer(unsigned int interval, int times, CTimerNode::Callback callback, void *argument, int *id)
{
    if (!callback || !id)
        return -1;
    *id = g_timer.SetTimer(interval, times, callback, argument);
    return 0;
}

int TIMER_CancelTimer(int id)
{
    g_timer.CancelTimer(id);
    return 0;
}
} // namespace VASK
