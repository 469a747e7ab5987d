#include "framework/input/keydispatcher.h"

#include "framework/thread/handover.h"

#include <QApplication>
#include <QDebug>
#include <QWindow>

namespace VASK
{
namespace
{
/// A window that a key brought up becomes the active one in the event loop's next pass; that of the timer's
/// first look may have looked at the timer before.
constexpr int passesOfAWindow = 2;

QVector<QWindow *> visibleWindows()
{
    QVector<QWindow *> visible;
    for (QWindow *window : QGuiApplication::topLevelWindows())
        if (window->isVisible())
            visible.append(window);
    return visible;
}
} // namespace

KeyDispatcher::KeyDispatcher()
{
    m_passes.setInterval(1);
    connect(&m_passes, &QTimer::timeout, this, &KeyDispatcher::pass);
    postToGui(this, [this] { m_loopRuns = true; });
}

void KeyDispatcher::post(KEY_TYPE type, unsigned char key, unsigned char speed, bool longPress)
{
    if (!m_loopRuns) {
        drop(key);
        return;
    }
    postToGui(this, [this, given = Key{type, key, speed, longPress}] { take(given); });
}

/// A key that opens another window must have done so before the next key looks for the active one: keys that
/// were typed while the panel was busy come in a row.
void KeyDispatcher::take(const Key &key)
{
    if (m_passes.isActive())
        m_waiting.append(key);
    else
        deliver(key);
}

void KeyDispatcher::pass()
{
    if (--m_passesLeft > 0)
        return;
    m_passes.stop();
    while (!m_passes.isActive() && !m_waiting.isEmpty())
        deliver(m_waiting.takeFirst());
}

void KeyDispatcher::deliver(const Key &key)
{
    // Before the key does its work: a dialog runs an event loop of its own, which goes on with the keys.
    const unsigned int number = ++m_delivered;
    waitForWindow();
    const QVector<QWindow *> before = visibleWindows();
    QWidget *window = QApplication::activeWindow();
    if (!window) {
        drop(key.key);
        return;
    }
    KeypadEvent event(key.type, key.key, key.speed, key.longPress);
    QCoreApplication::sendEvent(window, &event);
    const bool loopRan = number != m_delivered || m_passesLeft < passesOfAWindow;
    if (loopRan)
        waitForWindow(); // what the key brought up has gone again
    else if (visibleWindows() == before)
        m_passes.stop(); // nothing came up: the next key need not wait
}

void KeyDispatcher::waitForWindow()
{
    m_passesLeft = passesOfAWindow;
    m_passes.start();
}

void KeyDispatcher::drop(unsigned char key)
{
    qDebug() << "null == activeWid" << key;
}
} // namespace VASK
