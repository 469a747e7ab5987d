// The PC's keyboard as the panel's keys. Keys go by their place, so that every layout of a keyboard works,
// and never act with Ctrl, Alt or the like. A window system tells a key that is held as a key that goes up
// and down all the time: up counts when down does not follow at once. Main thread.
#pragma once

#include <QHash>
#include <QObject>

class QKeyEvent;
class QTimer;

class Keyboard : public QObject
{
    Q_OBJECT
public:
    using QObject::QObject;

    /// False if the key is none of the panel's.
    bool press(const QKeyEvent *event);
    void release(const QKeyEvent *event);
    void releaseAll();

signals:
    void pressed(int panelKey);
    void released(int panelKey);
    void turned(int steps); ///< below 0: left

private:
    struct Held {
        int panelKey;
        QTimer *release; ///< runs from its going up until that counts
    };

    void letGo(quint32 pcKey);
    bool isHeld(int panelKey) const;

    QHash<quint32, Held> m_held; ///< by what tells a key of the PC
};
