// Keys that several hands hold: a key goes down with the first that holds it and up with the last. Main
// thread.
#pragma once

#include "emulator/device/keypad.h"

#include <QHash>
#include <QSet>

class HeldKeys : public QObject
{
    Q_OBJECT
public:
    explicit HeldKeys(Keypad &keypad, QObject *parent = nullptr);

    /// The holder is only told from others.
    void hold(const QObject *holder, int key, bool down);
    /// All that one holds, as when it goes away.
    void letGo(const QObject *holder);
    /// All, with nobody to be told: a panel that starts finds them up.
    void forget();

    bool isDown(int key) const { return m_holders.contains(key); }

signals:
    void changed(int key, bool down);

private:
    Keypad &m_keypad;
    QHash<int, QSet<const QObject *>> m_holders; ///< by key code; never an empty set
};
