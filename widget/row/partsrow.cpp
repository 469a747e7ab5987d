#include "widget/row/partsrow.h"
#include "menu/itemindex.h"

#include <QDebug>
#include <QEvent>

namespace VASK
{
void PartsRow::setParts(const QList<QWidget *> &parts)
{
    m_parts = parts;
    for (QWidget *part : parts)
        part->setFocusPolicy(Qt::NoFocus);
}

void PartsRow::UpEntry(ENUM_MenuIndex, unsigned char &speed, bool first)
{
    qDebug() << "UP, m_currentItem:" << m_currentItem << ",uKeySpeed" << speed;
    ensureBuilt();
    if (speed == 0) // the keypad's own number: from the right it would lead to a part behind the last
        return;
    if (first && m_currentItem == 1) {
        qDebug() << "up is limit";
        speed = 0;
        return;
    }
    const int from = m_currentItem == 0 ? partCount() + 1 : m_currentItem;
    if (from - speed > 0) {
        m_currentItem = from - speed;
        speed = 0;
    } else {
        speed = static_cast<unsigned char>(speed + 1 - from);
        m_currentItem = 0;
    }
    focus(m_currentItem);
}

void PartsRow::DownEntry(ENUM_MenuIndex, unsigned char &speed, bool last)
{
    qDebug() << "DownEntry, m_currentItem:" << m_currentItem << ",uKeySpeed" << speed;
    ensureBuilt();
    if (last && m_currentItem == partCount()) {
        qDebug() << "Down is limit";
        speed = 0;
        return;
    }
    if (m_currentItem + speed <= partCount()) {
        m_currentItem += speed;
        speed = 0;
    } else {
        speed = static_cast<unsigned char>(m_currentItem + speed - partCount());
        m_currentItem = 0;
    }
    focus(m_currentItem);
}

void PartsRow::focus(int part)
{
    if (!setfocus(part) && part != 0)
        qDebug() << "set focus faild!";
}

bool PartsRow::setfocus(int part)
{
    qDebug() << "setfocus:" << part;
    ensureBuilt();
    for (QWidget *widget : qAsConst(m_parts))
        widget->clearFocus();
    if (part < 1 || part > partCount()) {
        qDebug().noquote() << QByteArray(className()) + " m_currentItem is invalid!";
        return false;
    }
    m_parts.at(part - 1)->setFocus(Qt::OtherFocusReason);
    return true;
}

/// A part that got the focus before the row had its place in the page has it in the page, too.
bool PartsRow::event(QEvent *event)
{
    const bool taken = MenuRow::event(event);
    if (event->type() == QEvent::Polish && m_currentItem > 0)
        m_parts.at(m_currentItem - 1)->setFocus(Qt::OtherFocusReason);
    return taken;
}

void PartsRow::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::EnabledChange && isEnabled() && isBuilt() && m_currentItem > 0 &&
        !window()->focusWidget())
        focus(m_currentItem);
    MenuRow::changeEvent(event);
}

bool PartsRow::logEnter(ENUM_MenuIndex index) const
{
    if (m_currentItem < 1) {
        qDebug() << "m_currentItem is invalid! cant set!";
        return false;
    }
    qDebug().noquote() << QByteArray(className()) + " EnterEntry sendto Index:" << itemOfPart(index);
    return true;
}
} // namespace VASK
