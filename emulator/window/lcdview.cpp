#include "emulator/window/lcdview.h"

#include "fpd_hostlink.h"

#include <QPainter>

namespace
{
constexpr int zoom = 2;
constexpr int border = 14;
constexpr int lookMs = 16;
} // namespace

LcdView::LcdView(const Lcd &lcd, QWidget *parent) : QWidget(parent), m_lcd(lcd)
{
    setFixedSize(zoom * hostlink::lcdWidth + 2 * border, zoom * hostlink::lcdHeight + 2 * border);
    connect(&m_look, &QTimer::timeout, this, [this] {
        if (m_lcd.changes() != m_shown)
            update();
    });
    m_look.start(lookMs);
}

void LcdView::paintEvent(QPaintEvent *)
{
    m_shown = m_lcd.changes();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor("#05060a"), 2));
    painter.setBrush(QColor("#0b0c11"));
    painter.drawRoundedRect(rect().adjusted(1, 1, -1, -1), 8, 8);
    painter.drawImage(rect().adjusted(border, border, -border, -border), m_lcd.picture());
}
