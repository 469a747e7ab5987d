#include "framework/input/keytracker.h"
#include "menu/keycodes.h"

#include <QDebug>
#include <QList>
#include <algorithm>

namespace VASK
{
/// Keys that mean something else when all are held together.
struct KeyTracker::Chord {
    QList<unsigned char> keys;
    unsigned char code;
};

namespace
{
constexpr int noTimer = -1;
constexpr unsigned char firstKey = KEY_MAIN;
constexpr unsigned char lastKey = KEY_ESC;

bool isKey(unsigned char key)
{
    return key >= firstKey && key <= lastKey;
}
} // namespace

KeyTracker::KeyTracker(Post post, CTimer &timer)
    : m_post(std::move(post)), m_timer(timer), m_listTimer(keyCount)
{
    for (size_t key = 0; key < m_notes.size(); ++key)
        m_notes[key] = {this, static_cast<unsigned char>(key)};
}

void KeyTracker::reset()
{
    QMutexLocker lock(&m_mutex);
    for (LongPress &entry : m_listTimer)
        stopTimer(entry);
    m_listTimer.fill(LongPress(), keyCount);
}

void KeyTracker::press(unsigned char key, unsigned char speed)
{
    QMutexLocker lock(&m_mutex);
    if (hasLongPress(key))
        startTimer(key);
    m_post(KEY_PRESSED, key, speed, false);
}

void KeyTracker::release(unsigned char key, unsigned char speed)
{
    QMutexLocker lock(&m_mutex);
    if (isKey(key)) {
        LongPress &entry = m_listTimer[key];
        if (entry.isLong) {
            entry.isLong = false;
            entry.timerId = noTimer; // of a chord that waited for the others
            if (key != KEY_PRESET)
                return;
        } else if (entry.timerId != noTimer && hasLongPress(key)) {
            qDebug() << "TIMER_CancelTimer == " << key;
            stopTimer(entry);
        }
    }
    m_post(KEY_RELEASED, key, speed, false);
}

void KeyTracker::startTimer(unsigned char key)
{
    LongPress &entry = m_listTimer[key];
    stopTimer(entry); // of a press whose release was lost
    entry.isLong = false;
    qDebug() << "TIMER_SetTimer == " << key;
    entry.timerId = m_timer.SetTimer(longPressMs, 1, OnTimerEvent, &m_notes[key]);
}

/// A timer that has fired is gone, and its id may be another's by now.
void KeyTracker::stopTimer(LongPress &entry)
{
    if (entry.timerId != noTimer && !entry.isLong)
        m_timer.CancelTimer(entry.timerId);
    entry.timerId = noTimer;
}

/// On the timer thread. The key may have been let go while its timer was on its way here, and be pressed
/// again by now: that cancelled the timer, under the same lock.
void KeyTracker::OnTimerEvent(int, void *argument)
{
    auto *note = static_cast<TimerNote *>(argument);
    QMutexLocker lock(&note->tracker->m_mutex);
    if (!note->tracker->m_timer.queue().isFiringCancelled())
        note->tracker->held(note->key);
}

void KeyTracker::held(unsigned char key)
{
    LongPress &entry = m_listTimer[key];
    qDebug() << "OnTimerEvent == " << key;
    entry.isLong = true;
    if (const Chord *chord = chordOf(key)) {
        finishChord(*chord);
        return;
    }
    entry.timerId = noTimer;
    m_post(KEY_LONG_PRESS, key, 1, true);
}

/// The chord that the key belongs to while all its partners are down, else null.
const KeyTracker::Chord *KeyTracker::chordOf(unsigned char key) const
{
    static const QList<Chord> chords{
        {{KEY_OK, KEY_ESC}, KEY_LOCK},
        {{KEY_SERVICE_1, KEY_SERVICE_2, KEY_SERVICE_3}, KEY_SERVICE},
    };
    const auto isDown = [this](unsigned char partner) { return m_listTimer[partner].timerId != noTimer; };
    for (const Chord &chord : chords)
        if (chord.keys.contains(key) && std::all_of(chord.keys.begin(), chord.keys.end(), isDown))
            return &chord;
    return nullptr;
}

/// Once all its keys have been held long enough, the chord counts instead of them.
void KeyTracker::finishChord(const Chord &chord)
{
    const auto isHeld = [this](unsigned char key) { return m_listTimer[key].isLong; };
    if (!std::all_of(chord.keys.begin(), chord.keys.end(), isHeld))
        return;
    for (unsigned char key : chord.keys)
        m_listTimer[key].timerId = noTimer;
    m_post(KEY_LONG_PRESS, chord.code, 1, true);
}

bool KeyTracker::hasLongPress(unsigned char key)
{
    return isKey(key) && key != KEY_KNOB_LEFT && key != KEY_KNOB_RIGHT;
}
} // namespace VASK
