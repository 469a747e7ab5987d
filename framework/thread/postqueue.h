// Work on its way to the GUI thread from threads that can wait: in order, none lost, and never more of it
// than a bound. Where postToGui would let the event queue grow as fast as somebody posts, this one holds up
// the poster. The GUI thread itself is never held up.
#pragma once

#include <QMutex>
#include <QObject>
#include <QTimer>
#include <QVector>
#include <QWaitCondition>
#include <functional>

namespace VASK
{
class PostQueue
{
public:
    using Work = std::function<void()>;

    /// Made on the receiver's thread, where the work runs; the receiver lives as long as this.
    PostQueue(QObject *receiver, int longest);

    /// From any thread. Another than the receiver's waits while the longest permitted queue is waiting; on
    /// the receiver's thread the work runs at once, behind all that waits.
    void post(Work work);
    /// Asked on the receiver's thread before work is taken: false leaves all of it waiting for a while.
    /// Without one there always is room.
    void setRoom(std::function<bool()> hasRoom) { m_hasRoom = std::move(hasRoom); }
    /// How much waits. Any thread.
    int waiting() const;

private:
    void drain();

    QObject *const m_receiver;
    const int m_longest;
    std::function<bool()> m_hasRoom;
    QTimer m_lookAgain;     ///< runs while there was no room
    mutable QMutex m_mutex; ///< guards the three below
    QWaitCondition m_taken;
    QVector<Work> m_waiting;
    bool m_drainPosted = false;
};
} // namespace VASK
