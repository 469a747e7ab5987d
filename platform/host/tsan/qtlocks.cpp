// Only in a build with the thread sanitizer. Debian's Qt is not instrumented, so the sanitizer would not see
// that a QMutex, a QSemaphore or a QWaitCondition orders two threads and would report everything that they
// guard. These definitions stand in front of Qt's own for the program's calls: they do the same and tell.
#include <QDeadlineTimer>
#include <QMutex>
#include <QSemaphore>
#include <QWaitCondition>
#include <dlfcn.h>

extern "C" void __tsan_acquire(void *);
extern "C" void __tsan_release(void *);

namespace
{
/// Qt's own function behind the one of that name in this file.
template <class Function> Function original(const char *mangledName)
{
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, mangledName));
}
} // namespace

void QMutex::lock()
{
    static const auto lock = original<void (*)(QMutex *)>("_ZN6QMutex4lockEv");
    lock(this);
    __tsan_acquire(this);
}

bool QMutex::tryLock(int timeout)
{
    static const auto tryLock = original<bool (*)(QMutex *, int)>("_ZN6QMutex7tryLockEi");
    const bool locked = tryLock(this, timeout);
    if (locked)
        __tsan_acquire(this);
    return locked;
}

void QMutex::unlock() noexcept
{
    static const auto unlock = original<void (*)(QMutex *)>("_ZN6QMutex6unlockEv");
    __tsan_release(this);
    unlock(this);
}

bool QWaitCondition::wait(QMutex *mutex, QDeadlineTimer deadline)
{
    using Wait = bool (*)(QWaitCondition *, QMutex *, QDeadlineTimer);
    static const auto wait = original<Wait>("_ZN14QWaitCondition4waitEP6QMutex14QDeadlineTimer");
    __tsan_release(mutex);
    const bool woken = wait(this, mutex, deadline);
    __tsan_acquire(mutex);
    return woken;
}

bool QWaitCondition::wait(QMutex *mutex, unsigned long time)
{
    using Wait = bool (*)(QWaitCondition *, QMutex *, unsigned long);
    static const auto wait = original<Wait>("_ZN14QWaitCondition4waitEP6QMutexm");
    __tsan_release(mutex);
    const bool woken = wait(this, mutex, time);
    __tsan_acquire(mutex);
    return woken;
}

void QSemaphore::acquire(int n)
{
    static const auto acquire = original<void (*)(QSemaphore *, int)>("_ZN10QSemaphore7acquireEi");
    acquire(this, n);
    __tsan_acquire(this);
}

bool QSemaphore::tryAcquire(int n, int timeout)
{
    using TryAcquire = bool (*)(QSemaphore *, int, int);
    static const auto tryAcquire = original<TryAcquire>("_ZN10QSemaphore10tryAcquireEii");
    const bool taken = tryAcquire(this, n, timeout);
    if (taken)
        __tsan_acquire(this);
    return taken;
}

void QSemaphore::release(int n)
{
    static const auto release = original<void (*)(QSemaphore *, int)>("_ZN10QSemaphore7releaseEi");
    __tsan_release(this);
    release(this, n);
}
