#include "framework/input/keydispatcher.h"

#include "framework/thread/handover.h"

#include <QApplication>
#include <QDebug>

namespace VASK
{
namespace
{
/// The window system tells which window is the active one a pass of the event loop after it has changed; the
/// first pass that is counted may have begun before.
constexpr int passesOfAWindow = 2;

KeyDispatcher *current = nullptr;

void drop(unsigned char key)
{
    qDebug() << "null == activeWid" << key;
}
} // namespace

KeyDispatcher::KeyDispatcher() : m_passesLeft(passesOfAWindow)
{
    current = this;
    m_nextPass.setSingleShot(true);
    connect(&m_nextPass, &QTimer::timeout, this, &KeyDispatcher::handOut);
    postToGui(this, [this] { m_loopRuns = true; });
}

KeyDispatcher::~KeyDispatcher()
{
    current = nullptr;
}

void KeyDispatcher::post(KEY_TYPE type, unsigned char key, unsigned char speed, bool longPress)
{
    const Key given{type, key, speed, longPress};
    if (!m_loopRuns) {
        drop(key);
        return;
    }
    postToGui(this, [this, given] {
        m_waiting.append(given);
        if (!m_nextPass.isActive())
            handOut();
    });
}

void KeyDispatcher::forgetTyped()
{
    if (!current || !current->m_loopRuns)
        return;
    current->m_nextPass.start(); // what is under way only joins the keys that wait
    QCoreApplication::sendPostedEvents(current, QEvent::MetaCall);
    while (!current->m_waiting.isEmpty())
        current->deliver(current->m_waiting.takeFirst(), nullptr);
    current->m_nextPass.stop();
    current->m_spent = current->m_down;
}

KeyHold::KeyHold() : m_dispatcher(current)
{
    if (m_dispatcher)
        ++m_dispatcher->m_holds;
}

KeyHold::~KeyHold()
{
    if (m_dispatcher && --m_dispatcher->m_holds == 0)
        m_dispatcher->m_nextPass.start();
}

/// A key may run an event loop, that of a dialog, which goes on with the keys.
void KeyDispatcher::handOut()
{
    while (!m_waiting.isEmpty() && m_holds == 0) {
        QWidget *window = visibleWindow();
        if (!window && --m_passesLeft >= 0) {
            m_nextPass.start();
            return;
        }
        m_passesLeft = passesOfAWindow;
        deliver(m_waiting.takeFirst(), window);
    }
}

/// A dialog is in front from the moment at which it is shown, long before it is active. And a window that
/// has gone stays the active one for a moment: who comes after it is not known yet.
QWidget *KeyDispatcher::visibleWindow()
{
    if (QWidget *dialog = QApplication::activeModalWidget())
        return dialog;
    QWidget *window = QApplication::activeWindow();
    return window && window->isVisible() ? window : nullptr;
}

void KeyDispatcher::deliver(const Key &key, QWidget *window)
{
    const bool spent = isSpent(key);
    if (!window || spent) {
        drop(key.key);
        return;
    }
    KeypadEvent event(key.type, key.key, key.speed, key.longPress);
    QCoreApplication::sendEvent(window, &event);
}

/// Notes what is down; true for a release or a long press whose press was typed in front of a window that
/// takes no keys.
bool KeyDispatcher::isSpent(const Key &key)
{
    if (key.type == KEY_PRESSED) {
        m_down.insert(key.key);
        m_spent.remove(key.key);
    } else if (key.type == KEY_RELEASED) {
        m_down.remove(key.key);
        return m_spent.remove(key.key);
    }
    return m_spent.contains(key.key);
}
} // namespace VASK
