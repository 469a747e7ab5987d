// Brings key events to the window that is visible, one by one: to the dialog in front, else to the active
// window. Both are the GUI thread's, so the keypad and the timer thread only hand a key over; this object,
// which lives on the GUI thread, looks the window up there and gives it the key.
#pragma once

#include "framework/input/keypadevent.h"

#include <QObject>
#include <QPointer>
#include <QSet>
#include <QTimer>
#include <QVector>
#include <atomic>

class QWidget;

namespace VASK
{
class KeyDispatcher : public QObject
{
    Q_OBJECT
public:
    /// On the GUI thread, one a process. Keys that come before its event loop runs meet no window and are
    /// dropped.
    KeyDispatcher();
    ~KeyDispatcher() override;

    /// From any thread; never waits.
    void post(KEY_TYPE type, unsigned char key, unsigned char speed, bool longPress);

    /// A window that takes no keys goes: what was typed in front of it and has reached nobody yet is dropped,
    /// and so are the releases of the keys that are down. GUI thread.
    static void forgetTyped();

private:
    friend class KeyHold;
    struct Key {
        KEY_TYPE type;
        unsigned char key;
        unsigned char speed;
        bool longPress;
    };
    void handOut();
    static QWidget *visibleWindow();
    void deliver(const Key &key, QWidget *window);
    bool isSpent(const Key &key);

    std::atomic<bool> m_loopRuns{false};
    // GUI thread only:
    QVector<Key> m_waiting;
    QSet<unsigned char> m_down;
    QSet<unsigned char> m_spent; ///< of those that are down
    QTimer m_nextPass;           ///< runs while the keys wait for a window
    int m_passesLeft;
    int m_holds = 0;
};

/// While one of these stands, keys wait: for an event loop that is run for an answer, where a key must not
/// reach a window behind the caller's back. GUI thread.
class KeyHold
{
public:
    KeyHold();
    ~KeyHold();
    KeyHold(const KeyHold &) = delete;
    KeyHold &operator=(const KeyHold &) = delete;

private:
    const QPointer<KeyDispatcher> m_dispatcher;
};
} // namespace VASK
