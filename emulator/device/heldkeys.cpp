#include "emulator/device/heldkeys.h"

HeldKeys::HeldKeys(Keypad &keypad, QObject *parent) : QObject(parent), m_keypad(keypad) {}

void HeldKeys::hold(const QObject *holder, int key, bool down)
{
    const bool before = isDown(key);
    if (down)
        m_holders[key].insert(holder);
    else if (before)
        m_holders[key].remove(holder);
    if (m_holders.value(key).isEmpty())
        m_holders.remove(key);
    if (before == isDown(key))
        return;
    if (isDown(key))
        m_keypad.press({key});
    else
        m_keypad.release({key});
    emit changed(key, isDown(key));
}

void HeldKeys::letGo(const QObject *holder)
{
    for (int key : m_holders.keys())
        hold(holder, key, false);
}

void HeldKeys::forget()
{
    const QList<int> keys = m_holders.keys();
    m_holders.clear();
    for (int key : keys)
        emit changed(key, false);
}
