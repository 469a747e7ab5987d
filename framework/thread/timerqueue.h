// The armed timers of the timer service: a binary heap by due time and a table of ids. It has no thread of
// its own; whoever owns it asks for what is due. Any thread, under the queue's own lock, which is never held
// while a callback runs.
#pragma once

#include "framework/legacy/mutexthread.h"

namespace VASK
{
struct CTimeValue {
    long seconds = 0;
    long microseconds = 0;

    bool isEmpty() const { return seconds == 0 && microseconds == 0; }
    CTimeValue plusMs(unsigned int ms) const;
    long usSince(const CTimeValue &earlier) const;
    bool operator<(const CTimeValue &other) const;
};

/// The wall clock.
void GetTimeOfDay(CTimeValue &time);

/// One armed timer.
class CTimerNode
{
public:
    using Callback = void (*)(int id, void *argument);
    /// The value of times that stands for "for ever"; with any other the timer fires once.
    static constexpr int forEver = -1;

    void Set(int id, unsigned int interval, int times, Callback callback, void *argument);
    /// The id, or 0 if it is negative.
    int GetTimerId() const { return m_id < 0 ? 0 : m_id; }
    int GetTimes() const { return m_times; }

    int m_id = -1;
    int m_times = 0;
    CTimeValue m_dueTime;
    unsigned int m_interval = 0; ///< milliseconds
    Callback m_callback = nullptr;
    void *m_argument = nullptr;
};

class CTimerQueue
{
public:
    using Clock = void (*)(CTimeValue &);

    explicit CTimerQueue(int capacity, Clock clock = GetTimeOfDay);
    CTimerQueue(const CTimerQueue &) = delete;
    CTimerQueue &operator=(const CTimerQueue &) = delete;
    ~CTimerQueue();

    /// Arms a timer. Its id, 1 or more, or -1 if none could be given.
    int Schedule(unsigned int interval, int times, CTimerNode::Callback callback, void *argument);
    /// Puts an armed timer where its due time now belongs, under the same id. The id, 0 if it is not armed.
    int ReSchedule(CTimerNode *node);
    /// False for an id that is not armed.
    bool Cancel(int id);
    /// The timer in a heap slot, null past the end; slot 0 is the next to fire.
    CTimerNode *Get(int slot);
    /// When the next timer is to fire; false if none is armed.
    bool firstDue(CTimeValue &due);
    /// Is this the timer that is to fire next?
    bool isFirst(int id);
    /// Number of armed timers.
    int GetCurSize();
    int GetCapacity();

    /// The next timer that is due at a time, or null. Until endFiring it stays valid, whoever cancels it.
    CTimerNode *beginFiring(const CTimeValue &now);
    /// Was the timer whose callback runs cancelled since it became due? For the callback itself.
    bool isFiringCancelled();
    /// Arms the timer for its next time, or disarms it.
    void endFiring(CTimerNode *node, const CTimeValue &now);
    /// The clock was set back: every interval starts anew.
    void restartAll(const CTimeValue &now);

private:
    bool isArmed(int id) const;
    bool insert(CTimerNode *node);
    bool grow();
    CTimerNode *remove(int slot);
    int takeId();
    void place(int slot, CTimerNode *node);
    void siftUp(int slot, CTimerNode *node);
    void siftDown(int slot, CTimerNode *node);

    int m_capacity;
    int m_count = 0;
    CTimerNode **m_heap;
    /// By id: the heap slot, or, below 0, the negated next free id.
    int *m_ids;
    int m_firstFreeId = 1;
    CMutexThreadRecursive m_lock;
    const Clock m_clock;
    /// The timer whose callback runs.
    CTimerNode *m_firing = nullptr;
    bool m_firingCancelled = false;
};
} // namespace VASK
