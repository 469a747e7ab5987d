#include "emulator/window/pushable.h"

#include <QMouseEvent>

void Pushable::setDown(bool down)
{
    m_down = down;
    update();
}

void Pushable::letGo()
{
    m_latched = false;
    update();
    if (!m_pushed)
        return;
    m_pushed = false;
    emit released();
}

void Pushable::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    if (m_latched)
        return letGo();
    m_latched = event->modifiers() & Qt::ShiftModifier;
    m_pushed = true;
    emit pressed();
}

void Pushable::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && !m_latched)
        letGo();
}
