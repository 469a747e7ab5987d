#include "framework/thread/timerqueue.h"

#include <algorithm>
#include <new>
#include <sys/time.h>

namespace VASK
{
namespace
{
/// By how many slots the queue grows.
constexpr int growth = 64;
constexpr long microsecondsPerSecond = 1000000;
} // namespace

CTimeValue CTimeValue::plusMs(unsigned int ms) const
{
    CTimeValue sum;
    sum.seconds = seconds + long(ms / 1000);
    sum.microseconds = microseconds + long(ms % 1000) * 1000;
    if (sum.microseconds >= microsecondsPerSecond) {
        sum.microseconds -= microsecondsPerSecond;
        ++sum.seconds;
    }
    return sum;
}

long CTimeValue::usSince(const CTimeValue &earlier) const
{
    return (seconds - earlier.seconds) * microsecondsPerSecond + microseconds - earlier.microseconds;
}

bool CTimeValue::operator<(const CTimeValue &other) const
{
    return seconds != other.seconds ? seconds < other.seconds : microseconds < other.microseconds;
}

void GetTimeOfDay(CTimeValue &time)
{
    timeval now{};
    gettimeofday(&now, nullptr);
    time.seconds = now.tv_sec;
    time.microseconds = now.tv_usec;
}

void CTimerNode::Set(int id, unsigned int interval, int times, Callback callback, void *argument)
{
    m_id = id;
    m_interval = interval;
    m_times = times;
    m_callback = callback;
    m_argument = argument;
}

CTimerQueue::CTimerQueue(int capacity, Clock clock)
    : m_capacity(capacity), m_heap(new CTimerNode *[size_t(capacity)]), m_ids(new int[size_t(capacity)]),
      m_clock(clock)
{
    for (int id = 0; id < capacity; ++id)
        m_ids[id] = -(id + 1);
}

CTimerQueue::~CTimerQueue()
{
    std::for_each(m_heap, m_heap + m_count, [](CTimerNode *node) { delete node; });
    delete[] m_heap;
    delete[] m_ids;
}

int CTimerQueue::Schedule(unsigned int interval, int times, CTimerNode::Callback callback, void *argument)
{
    CMutexGuard guard(m_lock);
    if (m_firstFreeId < 0)
        return -1;
    auto *node = new (std::nothrow) CTimerNode;
    if (!node)
        return -1;
    const int id = takeId();
    node->Set(id, interval, times, callback, argument);
    CTimeValue now;
    m_clock(now);
    node->m_dueTime = now.plusMs(interval);
    if (!insert(node)) {
        m_ids[id] = -m_firstFreeId;
        m_firstFreeId = id;
        delete node;
        return -1;
    }
    return id;
}

int CTimerQueue::ReSchedule(CTimerNode *node)
{
    CMutexGuard guard(m_lock);
    if (!node || !isArmed(node->m_id) || m_heap[m_ids[node->m_id]] != node)
        return 0;
    remove(m_ids[node->m_id]);
    takeId(); // the same one: the id freed last is given out next
    insert(node);
    return node->m_id;
}

bool CTimerQueue::Cancel(int id)
{
    CMutexGuard guard(m_lock);
    if (!isArmed(id))
        return false;
    CTimerNode *node = remove(m_ids[id]);
    if (node == m_firing)
        m_firingCancelled = true; // its callback runs; endFiring frees it
    else
        delete node;
    return true;
}

CTimerNode *CTimerQueue::Get(int slot)
{
    CMutexGuard guard(m_lock);
    return slot >= 0 && slot < m_count ? m_heap[slot] : nullptr;
}

bool CTimerQueue::firstDue(CTimeValue &due)
{
    CMutexGuard guard(m_lock);
    if (m_count > 0)
        due = m_heap[0]->m_dueTime;
    return m_count > 0;
}

bool CTimerQueue::isFirst(int id)
{
    CMutexGuard guard(m_lock);
    return m_count > 0 && m_heap[0]->m_id == id;
}

int CTimerQueue::GetCurSize()
{
    CMutexGuard guard(m_lock);
    return m_count;
}

int CTimerQueue::GetCapacity()
{
    CMutexGuard guard(m_lock);
    return m_capacity;
}

CTimerNode *CTimerQueue::beginFiring(const CTimeValue &now)
{
    CMutexGuard guard(m_lock);
    if (m_count == 0 || now < m_heap[0]->m_dueTime)
        return nullptr;
    m_firing = m_heap[0];
    m_firingCancelled = false;
    return m_firing;
}

bool CTimerQueue::isFiringCancelled()
{
    CMutexGuard guard(m_lock);
    return m_firingCancelled;
}

void CTimerQueue::endFiring(CTimerNode *node, const CTimeValue &now)
{
    CMutexGuard guard(m_lock);
    m_firing = nullptr;
    if (m_firingCancelled) {
        // Not by its id: that may belong to another timer by now.
        delete node;
    } else if (node->GetTimes() == CTimerNode::forEver) {
        node->m_dueTime = now.plusMs(node->m_interval);
        ReSchedule(node);
    } else {
        Cancel(node->GetTimerId());
    }
}

void CTimerQueue::restartAll(const CTimeValue &now)
{
    CMutexGuard guard(m_lock);
    for (int slot = 0; slot < m_count; ++slot)
        m_heap[slot]->m_dueTime = now.plusMs(m_heap[slot]->m_interval);
    // The new times stand in another order than the old ones.
    for (int slot = m_count / 2 - 1; slot >= 0; --slot)
        siftDown(slot, m_heap[slot]);
}

bool CTimerQueue::isArmed(int id) const
{
    return id >= 1 && id < m_capacity && m_ids[id] >= 0 && m_ids[id] < m_count &&
           m_heap[m_ids[id]]->m_id == id;
}

bool CTimerQueue::insert(CTimerNode *node)
{
    if (m_count + 2 >= m_capacity && !grow())
        return false;
    siftUp(m_count, node);
    ++m_count;
    return true;
}

/// All ids below the old capacity are in use, or the last of them has just been taken: the chain of free ids
/// goes on behind them.
bool CTimerQueue::grow()
{
    const int capacity = m_capacity + growth;
    auto **heap = new (std::nothrow) CTimerNode *[size_t(capacity)];
    auto *ids = new (std::nothrow) int[size_t(capacity)];
    if (!heap || !ids) {
        delete[] heap;
        delete[] ids;
        return false;
    }
    std::copy_n(m_heap, m_count, heap);
    std::copy_n(m_ids, m_capacity, ids);
    for (int id = m_capacity; id < capacity; ++id)
        ids[id] = -(id + 1);
    delete[] m_heap;
    delete[] m_ids;
    m_heap = heap;
    m_ids = ids;
    m_firstFreeId = m_capacity;
    m_capacity = capacity;
    return true;
}

/// Takes a timer out of the heap and gives its id back; the timer itself is left to the caller.
CTimerNode *CTimerQueue::remove(int slot)
{
    CTimerNode *removed = m_heap[slot];
    m_ids[removed->m_id] = -m_firstFreeId;
    m_firstFreeId = removed->m_id;
    --m_count;
    if (slot < m_count) {
        CTimerNode *last = m_heap[m_count];
        if (slot > 0 && last->m_dueTime < m_heap[(slot - 1) / 2]->m_dueTime)
            siftUp(slot, last);
        else
            siftDown(slot, last);
    }
    return removed;
}

int CTimerQueue::takeId()
{
    const int id = m_firstFreeId;
    m_firstFreeId = -m_ids[id];
    return id;
}

void CTimerQueue::place(int slot, CTimerNode *node)
{
    m_heap[slot] = node;
    m_ids[node->m_id] = slot;
}

/// A timer never passes one with an equal due time.
void CTimerQueue::siftUp(int slot, CTimerNode *node)
{
    while (slot > 0) {
        const int parent = (slot - 1) / 2;
        if (!(node->m_dueTime < m_heap[parent]->m_dueTime))
            break;
        place(slot, m_heap[parent]);
        slot = parent;
    }
    place(slot, node);
}

void CTimerQueue::siftDown(int slot, CTimerNode *node)
{
    for (int child = 2 * slot + 1; child < m_count; child = 2 * slot + 1) {
        if (child + 1 < m_count && m_heap[child + 1]->m_dueTime < m_heap[child]->m_dueTime)
            ++child;
        if (!(m_heap[child]->m_dueTime < node->m_dueTime))
            break;
        place(slot, m_heap[child]);
        slot = child;
    }
    place(slot, node);
}
} // namespace VASK
