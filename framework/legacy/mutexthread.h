// The mutexes of the timer queue: a POSIX mutex, plain or recursive, whose calls can fail and say so. Any
// thread.
#pragma once

#include <pthread.h>

namespace VASK
{
class CMutexThreadBase
{
public:
    CMutexThreadBase(const CMutexThreadBase &) = delete;
    CMutexThreadBase &operator=(const CMutexThreadBase &) = delete;
    ~CMutexThreadBase() { pthread_mutex_destroy(&m_mutex); }

    /// 0 on success, -1 on failure, all three.
    int Lock() { return pthread_mutex_lock(&m_mutex) == 0 ? 0 : -1; }
    int UnLock() { return pthread_mutex_unlock(&m_mutex) == 0 ? 0 : -1; }
    int TryLock() { return pthread_mutex_trylock(&m_mutex) == 0 ? 0 : -1; }

protected:
    explicit CMutexThreadBase(int type)
    {
        pthread_mutexattr_t attributes;
        pthread_mutexattr_init(&attributes);
        pthread_mutexattr_settype(&attributes, type);
        pthread_mutex_init(&m_mutex, &attributes);
        pthread_mutexattr_destroy(&attributes);
    }

private:
    pthread_mutex_t m_mutex;
};

class CMutexThread : public CMutexThreadBase
{
public:
    CMutexThread() : CMutexThreadBase(PTHREAD_MUTEX_NORMAL) {}
};

class CMutexThreadRecursive : public CMutexThreadBase
{
public:
    CMutexThreadRecursive() : CMutexThreadBase(PTHREAD_MUTEX_RECURSIVE) {}
};

/// Holds a mutex for a block. If it cannot be had, the block runs without it and nothing is unlocked.
class CMutexGuard
{
public:
    explicit CMutexGuard(CMutexThreadBase &mutex) : m_mutex(mutex), m_locked(mutex.Lock() == 0) {}
    CMutexGuard(const CMutexGuard &) = delete;
    CMutexGuard &operator=(const CMutexGuard &) = delete;
    ~CMutexGuard()
    {
        if (m_locked)
            m_mutex.UnLock();
    }

private:
    CMutexThreadBase &m_mutex;
    bool m_locked;
};
} // namespace VASK
