// The pause between two looks of the timer service: until something is due, put up to the next of the moments
// 10 ms apart, and over at once when somebody rings or the wall clock is set.
#pragma once

namespace VASK
{
class TimerAlarm
{
public:
    /// Why a pause is over.
    enum Reason { MOMENT, CLOCK_SET, RUNG };

    static constexpr long momentMs = 10;
    /// So long a clock that a time service slows down stays less than a moment behind.
    static constexpr long longestPauseUs = 10 * 1000 * 1000;

    TimerAlarm();
    ~TimerAlarm();
    TimerAlarm(const TimerAlarm &) = delete;
    TimerAlarm &operator=(const TimerAlarm &) = delete;

    /// Waits for so many microseconds, but no longer than the longest pause, and then for the next moment.
    /// Without the descriptors it needs it waits from moment to moment. By one thread.
    Reason pause(long us);
    /// For how long nobody has looked when the pause is over: milliseconds since the pause before that was
    /// not ended by a ring, less the one moment that belongs to every pause.
    unsigned int skippedMs();
    /// Ends the pause that runs, or else the next one. Any thread.
    void ring();

private:
    int m_clock; ///< a timer on the wall clock that a set clock cancels
    int m_bell;
    // Nanoseconds of the clock that nobody sets.
    long long m_grid;     ///< one of the moments
    long long m_lastLook; ///< when skippedMs was asked
};
} // namespace VASK
