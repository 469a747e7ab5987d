#include "widget/elidinglabel.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOption>

QSize ElidingLabel::minimumSizeHint() const
{
    constexpr int leastCharacters = 3;
    const QSize whole = QLabel::minimumSizeHint();
    const int least = qMax(m_kept, leastCharacters * fontMetrics().averageCharWidth());
    return {qMin(whole.width(), least), whole.height()};
}

void ElidingLabel::setKept(int width)
{
    m_kept = width;
    updateGeometry();
}

void ElidingLabel::cover(const QWidget &page, int from)
{
    for (ElidingLabel *label : page.findChildren<ElidingLabel *>()) {
        label->m_coveredFrom = from - label->mapTo(&page, QPoint()).x();
        label->update();
    }
}

void ElidingLabel::uncover(const QWidget &page)
{
    cover(page, QWIDGETSIZE_MAX);
}

QRect ElidingLabel::room() const
{
    constexpr int gap = 4; // pixels in front of what covers it
    QRect room = contentsRect();
    // What lies wholly below it is not seen anyway.
    if (m_coveredFrom > room.left())
        room.setRight(qMin(room.right(), m_coveredFrom - gap));
    return room;
}

void ElidingLabel::paintEvent(QPaintEvent *event)
{
    const QRect place = room();
    if (wordWrap() || text().contains(QLatin1Char('\n')) ||
        fontMetrics().horizontalAdvance(text()) <= place.width()) {
        QLabel::paintEvent(event);
        return;
    }
    QPainter painter(this);
    drawFrame(&painter);
    QStyleOption option;
    option.initFrom(this);
    style()->drawItemText(&painter, place, static_cast<int>(alignment()), option.palette, isEnabled(),
                          fontMetrics().elidedText(text(), Qt::ElideRight, place.width()), foregroundRole());
}
