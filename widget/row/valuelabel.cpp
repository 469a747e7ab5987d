#include "widget/row/valuelabel.h"

#include "widget/look.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOption>

ValueLabel::ValueLabel(Qt::Alignment alignment, QWidget *parent) : ElidingLabel(parent)
{
    constexpr int mostOfTheRow = 220; // pixels
    setKept(mostOfTheRow);
    setAlignment(alignment);
}

/// Without a style sheet: a label that has had one of its own no longer takes part in what its page's font
/// and colours do.
void ValueLabel::setEdited(bool edited)
{
    m_edited = edited;
    setFrameStyle(edited ? int(QFrame::Box) | int(QFrame::Plain) : int(QFrame::NoFrame) | int(QFrame::Plain));
    update();
}

void ValueLabel::paintEvent(QPaintEvent *event)
{
    if (!m_edited)
        return ElidingLabel::paintEvent(event);
    QPainter painter(this);
    painter.setPen(QColor(look::focus));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    QStyleOption option;
    option.initFrom(this);
    option.palette.setColor(foregroundRole(), look::edited);
    const QFontMetrics metrics = fontMetrics();
    QRect place = room();
    QString shown = text();
    if (metrics.horizontalAdvance(shown) > place.width()) {
        shown = metrics.elidedText(shown, Qt::ElideRight, place.width());
    } else {
        const int indent = metrics.horizontalAdvance(QLatin1Char('x')) / 2; // as every label in a frame
        place.adjust(alignment() & Qt::AlignLeft ? indent : 0, 0, alignment() & Qt::AlignRight ? -indent : 0,
                     0);
    }
    style()->drawItemText(&painter, place, static_cast<int>(alignment()), option.palette, isEnabled(), shown,
                          foregroundRole());
}
