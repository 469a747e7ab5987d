#include "emulator/window/lcdview.h"

#include "fpd_hostlink.h"

#include <QPainter>
#include <QtMath>

namespace
{
constexpr int border = 14;
constexpr int lookMs = 16;
constexpr int dimmed = 190; ///< of 255, what lies over the last picture of a panel that has ended
} // namespace

LcdView::LcdView(const Lcd &lcd, QWidget *parent) : QWidget(parent), m_lcd(lcd)
{
    setZoom(m_zoom);
    connect(&m_look, &QTimer::timeout, this, [this] {
        if (m_lcd.changes() != m_shown)
            update();
    });
    m_look.start(lookMs);
}

void LcdView::setZoom(int zoom)
{
    m_zoom = zoom;
    const double size = devicePixels() / devicePixelRatioF();
    setFixedSize(qCeil(size * hostlink::lcdWidth) + 2 * border,
                 qCeil(size * hostlink::lcdHeight) + 2 * border);
    update();
}

void LcdView::setNotice(const QString &notice)
{
    m_notice = notice;
    update();
}

int LcdView::devicePixels() const
{
    return qMax(1, qRound(m_zoom * devicePixelRatioF()));
}

void LcdView::paintEvent(QPaintEvent *)
{
    m_shown = m_lcd.changes();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor("#05060a"), 2));
    painter.setBrush(QColor("#0b0c11"));
    painter.drawRoundedRect(rect().adjusted(1, 1, -1, -1), 8, 8);
    painter.setRenderHint(QPainter::Antialiasing, false);
    // The corner on a pixel of the screen, and every edge with it.
    const double ratio = devicePixelRatioF();
    const QPoint corner = mapTo(window(), QPoint(border, border));
    const QPointF shift = QPointF(qRound(corner.x() * ratio), qRound(corner.y() * ratio)) / ratio - corner;
    const QSizeF size = QSizeF(hostlink::lcdWidth, hostlink::lcdHeight) * (devicePixels() / ratio);
    const QRectF area(QPointF(border, border) + shift, size);
    const QImage picture = m_lcd.picture();
    painter.drawImage(area,
                      m_notice.isEmpty() ? picture : picture.convertToFormat(QImage::Format_Grayscale8));
    if (!m_notice.isEmpty())
        paintNotice(painter, area);
}

void LcdView::paintNotice(QPainter &painter, const QRectF &area) const
{
    constexpr double textHeight = 0.055, margin = 0.08; // of the LCD
    painter.fillRect(area, QColor(24, 25, 30, dimmed));
    QFont font("Liberation Sans");
    font.setPixelSize(qMax(1, int(area.height() * textHeight)));
    painter.setFont(font);
    const double left = area.width() * margin, room = font.pixelSize();
    const QRectF inner = area.adjusted(left, 0, -left, 0);
    constexpr int flags = Qt::AlignCenter | Qt::TextWordWrap;
    painter.fillRect(painter.boundingRect(inner, flags, m_notice).adjusted(-room, -room, room, room),
                     QColor("#15161b"));
    painter.setPen(QColor("#d8d9e0"));
    painter.drawText(inner, flags, m_notice);
}
