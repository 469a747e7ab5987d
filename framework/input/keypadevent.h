// The key event: the only way in which a key reaches a page, the home screen or a dialog, in its event
// function. Made on the keypad or the timer thread, delivered on the GUI thread to the active window.
#pragma once

#include "menu/keycodes.h"

#include <QCoreApplication>
#include <QEvent>

namespace VASK
{
enum KEY_TYPE {
    KEY_PRESSED = 0,
    KEY_RELEASED = 1,
    /// Held for three seconds; the release that follows is swallowed.
    KEY_LONG_PRESS = 2,
};

class KeypadEvent : public QEvent
{
public:
    static constexpr QEvent::Type eventType = QEvent::Type(1001);

    KeypadEvent(KEY_TYPE type, unsigned char key, unsigned char speed, bool longPress)
        : QEvent(eventType), m_key(key), m_type(type), m_speed(speed), m_longPress(longPress)
    {
    }

    unsigned char key() const { return m_key; }
    KEY_TYPE type() const { return m_type; }
    /// How fast the knob was turned, 1 for slow: a factor for steps and rows.
    unsigned char KeySpeed() const { return m_speed; }
    bool IsLongPress() const { return m_longPress; }

private:
    unsigned char m_key;
    KEY_TYPE m_type;
    unsigned char m_speed;
    bool m_longPress;
};

/// The made-up key of what leaves a page in the user's place.
inline KeypadEvent madeUpEsc()
{
    return {KEY_RELEASED, KEY_ESC, 1, false};
}

/// The same, for a window that is to meet it after what runs now.
inline void postEsc(QObject &window)
{
    QCoreApplication::postEvent(&window, new KeypadEvent(madeUpEsc()));
}
} // namespace VASK
