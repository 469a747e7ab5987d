// Tells what a stream of key words means: which keys are down, which have been held for three seconds, and
// which are held together as a chord. Presses and releases come from the keypad thread, held keys from the
// timer thread; one short lock serves both, and events leave under it, so that their order is the order of
// the decisions.
#pragma once

#include "framework/input/keypadevent.h"
#include "framework/thread/ctimer.h"

#include <QMutex>
#include <QVector>
#include <array>
#include <functional>

namespace VASK
{
/// What is known about one key.
struct LongPress {
    /// The long-press timer, -1 when none runs. A key of a chord that fired keeps it until the chord is
    /// complete.
    int timerId = -1;
    /// The long press has fired: the release is to be swallowed.
    bool isLong = false;
};

class KeyTracker
{
public:
    static constexpr unsigned int longPressMs = 3000;
    using Post = std::function<void(KEY_TYPE type, unsigned char key, unsigned char speed, bool longPress)>;

    /// The function that takes the events must neither block nor call back.
    explicit KeyTracker(Post post, CTimer &timer = g_timer);

    void reset();
    void press(unsigned char key, unsigned char speed);
    void release(unsigned char key, unsigned char speed);

private:
    static constexpr int keyCount = 36;

    struct Chord;
    /// What a long-press timer is told: whose key it measures. Written once, as the timer thread reads it
    /// before it has the lock.
    struct TimerNote {
        KeyTracker *tracker = nullptr;
        unsigned char key = 0;
    };

    static void OnTimerEvent(int id, void *argument);
    void held(unsigned char key);
    const Chord *chordOf(unsigned char key) const;
    void finishChord(const Chord &chord);

    static bool hasLongPress(unsigned char key);
    void startTimer(unsigned char key);
    void stopTimer(LongPress &entry);

    Post m_post;
    CTimer &m_timer;
    QMutex m_mutex;
    QVector<LongPress> m_listTimer;
    std::array<TimerNote, keyCount> m_notes;
};
} // namespace VASK
