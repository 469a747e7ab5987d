#include "framework/keydispatcher.h"

#include "framework/handover.h"

#include <QApplication>
#include <QDebug>

namespace VASK
{
KeyDispatcher::KeyDispatcher()
{
    postToGui(this, [this] { m_loopRuns = true; });
}

void KeyDispatcher::post(KEY_TYPE type, unsigned char key, unsigned char speed, bool longPress)
{
    if (!m_loopRuns) {
        drop(key);
        return;
    }
    postToGui(this, [this, type, key, speed, longPress] { deliver(type, key, speed, longPress); });
}

/// Delivered at once, not queued again: a key that opens another window must have done so before the next
/// key looks for the active one.
void KeyDispatcher::deliver(KEY_TYPE type, unsigned char key, unsigned char speed, bool longPress)
{
    QWidget *window = QApplication::activeWindow();
    if (!window) {
        drop(key);
        return;
    }
    KeypadEvent event(type, key, speed, longPress);
    QCoreApplication::sendEvent(window, &event);
}

void KeyDispatcher::drop(unsigned char key)
{
    qDebug() << "null == activeWid" << key;
}
} // namespace VASK
