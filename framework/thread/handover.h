// The one way to move work to another thread's event loop. The work is posted, never waited for; in a build
// with the thread sanitizer the hand-over is made visible to it, as the order that Qt's own event queue makes
// is not.
#pragma once

#include <QMetaObject>
#include <QObject>
#include <QThread>
#include <utility>

#if defined(__SANITIZE_THREAD__)
extern "C" void __tsan_acquire(void *);
extern "C" void __tsan_release(void *);
#endif

namespace VASK
{
/// Everything that this thread wrote so far is handed over at that address ...
inline void handOver([[maybe_unused]] const void *address)
{
#if defined(__SANITIZE_THREAD__)
    __tsan_release(const_cast<void *>(address));
#endif
}

/// ... and is seen by the thread that takes over at the same address.
inline void takeOver([[maybe_unused]] const void *address)
{
#if defined(__SANITIZE_THREAD__)
    __tsan_acquire(const_cast<void *>(address));
#endif
}

/// Work on its way to another thread. Every copy is handed over where it lies, so that the receiver, who
/// knows the parcel's address from Qt, can take it over before it reads anything inside.
template <class Work> class Parcel
{
public:
    explicit Parcel(Work work) : m_work(std::move(work)) { handOver(this); }
    Parcel(const Parcel &other) : m_work(other.m_work) { handOver(this); }
    Parcel(Parcel &&other) noexcept : m_work(std::move(other.m_work)) { handOver(this); }
    ~Parcel() { takeOver(this); }
    Parcel &operator=(const Parcel &) = delete;

    void operator()()
    {
        takeOver(this);
        m_work();
        // The poster may be the one who drops the parcel.
        handOver(this);
    }

private:
    Work m_work;
};

/// Posts work to the thread of the receiver, where it runs from the event loop, in the order of the posts.
/// Dropped when the receiver dies first. From any thread.
template <class Work> void postToGui(QObject *receiver, Work work)
{
    QMetaObject::invokeMethod(receiver, Parcel<Work>(std::move(work)), Qt::QueuedConnection);
}

/// Runs work at once on the receiver's own thread, and posts it from every other.
template <class Work> void runOnGui(QObject *receiver, Work work)
{
    if (receiver->thread() == QThread::currentThread())
        work();
    else
        postToGui(receiver, std::move(work));
}
} // namespace VASK
