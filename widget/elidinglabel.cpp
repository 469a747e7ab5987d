#include "widget/elidinglabel.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOption>

QSize ElidingLabel::minimumSizeHint() const
{
    constexpr int leastCharacters = 3;
    const QSize whole = QLabel::minimumSizeHint();
    return {qMin(whole.width(), leastCharacters * fontMetrics().averageCharWidth()), whole.height()};
}

void ElidingLabel::paintEvent(QPaintEvent *event)
{
    const int room = contentsRect().width();
    if (wordWrap() || text().contains(QLatin1Char('\n')) || fontMetrics().horizontalAdvance(text()) <= room) {
        QLabel::paintEvent(event);
        return;
    }
    QPainter painter(this);
    drawFrame(&painter);
    QStyleOption option;
    option.initFrom(this);
    style()->drawItemText(&painter, contentsRect(), static_cast<int>(alignment()), option.palette,
                          isEnabled(), fontMetrics().elidedText(text(), Qt::ElideRight, room),
                          foregroundRole());
}
