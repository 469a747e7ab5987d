// Brings key events to the active window, one by one. The pointer to the active window is the GUI thread's,
// so the keypad and the timer thread only hand a key over; this object, which lives on the GUI thread, looks
// the window up there and gives it the key.
#pragma once

#include "framework/input/keypadevent.h"

#include <QObject>
#include <QTimer>
#include <QVector>
#include <atomic>

namespace VASK
{
class KeyDispatcher : public QObject
{
    Q_OBJECT
public:
    /// On the GUI thread. Keys that come before its event loop runs meet no window and are dropped.
    KeyDispatcher();

    /// From any thread; never waits.
    void post(KEY_TYPE type, unsigned char key, unsigned char speed, bool longPress);

private:
    struct Key {
        KEY_TYPE type;
        unsigned char key;
        unsigned char speed;
        bool longPress;
    };
    void take(const Key &key);
    void deliver(const Key &key);
    void pass();
    void waitForWindow();
    static void drop(unsigned char key);

    std::atomic<bool> m_loopRuns{false};
    // GUI thread only:
    QVector<Key> m_waiting;
    QTimer m_passes; ///< runs while the last key may still bring up a window
    int m_passesLeft = 0;
    unsigned int m_delivered = 0;
};
} // namespace VASK
