// The timer service: one thread that looks at moments 10 ms apart which timers are due and runs their
// callbacks, one after the other, away from the GUI; moments at which nothing is due pass without it. A
// callback must be short and must not touch a widget. The plain functions work on the one instance and are
// called from any thread.
#pragma once

#include "framework/thread/timeralarm.h"
#include "framework/thread/timerqueue.h"

#include <atomic>

namespace VASK
{
class CTimer
{
public:
    explicit CTimer(CTimerQueue::Clock clock = GetTimeOfDay);
    CTimer(const CTimer &) = delete;
    CTimer &operator=(const CTimer &) = delete;
    /// Stops the thread.
    ~CTimer();

    /// Starts the thread. 0, or -2 if it could not be created.
    int Initialize();
    /// Stops the thread. Armed timers stay in the queue and no longer fire. 0.
    int UnInitialize();
    /// The id, or -1.
    int SetTimer(unsigned int interval, int times, CTimerNode::Callback callback, void *argument);
    /// -1 for the id 0, else whether a timer was cancelled.
    int CancelTimer(int id);

    /// The thread's loop.
    void Run();
    /// One look at the clock, and what follows from it.
    void tick();

    CTimerQueue &queue() { return m_queue; }

private:
    long untilDueUs();
    void fireDue(const CTimeValue &now);

    pthread_t m_thread{};
    bool m_running = false;
    std::atomic<unsigned char> m_stop{0};
    const CTimerQueue::Clock m_clock;
    CTimerQueue m_queue;
    TimerAlarm m_alarm;
    /// The clock at the tick before, or where it would have been at the one that nobody looked at; empty at
    /// the start.
    CTimeValue m_previous;
};

extern CTimer g_timer;

/// 0, or -2 if the thread could not be created.
int TIMER_Initialize();
int TIMER_UnInitialize();
/// Interval in milliseconds, times -1 for ever and anything else once. 0 with the id, or with -1 in its place
/// if none could be given; -1 for a null callback or no place for the id.
int TIMER_SetTimer(unsigned int interval, int times, CTimerNode::Callback callback, void *argument, int *id);
/// 0 in every case.
int TIMER_CancelTimer(int id);
} // namespace VASK
