// Brings key events to the window that is visible, one by one: to the dialog in front, else to the active
// window. Both are the GUI thread's, so the keypad and the timer thread only hand a key over; this object,
// which lives on the GUI thread, looks the window up there and gives it the key. A key that was pressed in
// front of one window is not released in front of another.
#pragma once

#include "framework/input/keypadevent.h"

#include <QHash>
#include <QObject>
#include <QPointer>
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

    /// Drops the keys that have been typed and have reached nobody yet: a window that takes no keys goes, and
    /// they were typed in front of it. GUI thread.
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
    bool changedHands(const Key &key, const QWidget *window);

    std::atomic<bool> m_loopRuns{false};
    // GUI thread only:
    QVector<Key> m_waiting;
    QHash<unsigned char, const QWidget *> m_pressedAt; ///< of the keys that are down
    QTimer m_nextPass;                                 ///< runs while the keys wait for a window
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
