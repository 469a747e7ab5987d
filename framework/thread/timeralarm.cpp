#include "framework/thread/timeralarm.h"

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <ctime>
#include <poll.h>
#include <sys/eventfd.h>
#include <sys/timerfd.h>
#include <unistd.h>

namespace VASK
{
namespace
{
constexpr long long nsPerSecond = 1000000000;
constexpr long long momentNs = TimerAlarm::momentMs * 1000000;

long long nanoseconds(clockid_t clock)
{
    timespec now{};
    clock_gettime(clock, &now);
    return now.tv_sec * nsPerSecond + now.tv_nsec;
}

/// Lets the timer run off after so many nanoseconds, unless the clock is set before.
bool arm(int timer, long long ns)
{
    const long long end = nanoseconds(CLOCK_REALTIME) + ns;
    itimerspec once{};
    once.it_value.tv_sec = time_t(end / nsPerSecond);
    once.it_value.tv_nsec = long(end % nsPerSecond);
    return timerfd_settime(timer, TFD_TIMER_ABSTIME | TFD_TIMER_CANCEL_ON_SET, &once, nullptr) == 0;
}
} // namespace

TimerAlarm::TimerAlarm()
    : m_clock(timerfd_create(CLOCK_REALTIME, TFD_NONBLOCK | TFD_CLOEXEC)),
      m_bell(eventfd(0, EFD_NONBLOCK | EFD_CLOEXEC)), m_grid(nanoseconds(CLOCK_MONOTONIC)), m_lastLook(m_grid)
{
}

TimerAlarm::~TimerAlarm()
{
    for (int descriptor : {m_clock, m_bell})
        if (descriptor >= 0)
            close(descriptor);
}

TimerAlarm::Reason TimerAlarm::pause(long us)
{
    const long long now = nanoseconds(CLOCK_MONOTONIC);
    const long long end = now + std::clamp(us, 1L, longestPauseUs) * 1000;
    m_grid += (end - m_grid + momentNs - 1) / momentNs * momentNs;
    const bool isArmed = m_clock >= 0 && m_bell >= 0 && arm(m_clock, m_grid - now);
    // A descriptor below 0 is passed over.
    pollfd ends[] = {{m_clock, POLLIN, 0}, {m_bell, POLLIN, 0}};
    poll(ends, 2, isArmed ? -1 : int(momentMs));
    uint64_t count = 0;
    if (ends[1].revents != 0 && read(m_bell, &count, sizeof count) > 0)
        return RUNG;
    if (ends[0].revents != 0 && read(m_clock, &count, sizeof count) < 0 && errno == ECANCELED)
        return CLOCK_SET;
    return MOMENT;
}

unsigned int TimerAlarm::skippedMs()
{
    const long long now = nanoseconds(CLOCK_MONOTONIC);
    const long long skipped = now - m_lastLook - momentNs;
    m_lastLook = now;
    return static_cast<unsigned int>(std::max(skipped, 0LL) / 1000000);
}

void TimerAlarm::ring()
{
    const uint64_t one = 1;
    // It fails when it has been rung more often than anyone can count: the bell rings already.
    [[maybe_unused]] const ssize_t written = write(m_bell, &one, sizeof one);
}
} // namespace VASK
