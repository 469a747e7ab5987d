#include "emulator/window/keybutton.h"

#include <QPainter>

namespace
{
constexpr int keyWidth = 82;
constexpr int keyHeight = 66;
constexpr int ledHeight = 20;
constexpr const char *latchedColour = "#ebc613";
} // namespace

KeyButton::KeyButton(const KeyName &key, QWidget *parent) : Pushable(parent), m_key(key)
{
    setScale(m_scale);
    if (key.shortcut)
        setToolTip(QString("Key %1. With Shift a click keeps it down.").arg(QLatin1Char(key.shortcut)));
}

void KeyButton::setScale(double scale)
{
    m_scale = scale;
    setFixedSize((QSizeF(keyWidth, keyHeight) * scale).toSize());
    update();
}

void KeyButton::setLit(bool lit)
{
    m_lit = lit;
    update();
}

void KeyButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(m_scale, m_scale);
    if (m_key.led >= 0)
        paintLed(painter);
    const QRectF cap =
        QRectF(0, 0, keyWidth, keyHeight).adjusted(4, ledHeight + 2, -4, -3).translated(0, isDown() ? 1 : 0);
    QLinearGradient face(cap.topLeft(), cap.bottomLeft());
    face.setColorAt(0, isDown() ? QColor("#30323c") : QColor("#4d505d"));
    face.setColorAt(1, isDown() ? QColor("#3a3c47") : QColor("#343640"));
    painter.setPen(isLatched() ? QPen(QColor(latchedColour), 3) : QPen(QColor("#16171c"), 1.5));
    painter.setBrush(face);
    painter.drawRoundedRect(cap, 6, 6);
    QFont font("Liberation Sans");
    font.setPixelSize(13);
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(QColor("#e6e6ee"));
    painter.drawText(cap, Qt::AlignCenter, QLatin1String(m_key.label));
}

void KeyButton::paintLed(QPainter &painter) const
{
    const QPointF centre(keyWidth / 2.0, ledHeight / 2.0);
    if (m_lit) {
        QRadialGradient glow(centre, 11);
        glow.setColorAt(0, QColor(90, 200, 255, 200));
        glow.setColorAt(1, QColor(90, 200, 255, 0));
        painter.setPen(Qt::NoPen);
        painter.setBrush(glow);
        painter.drawEllipse(centre, 18, 10);
    }
    painter.setPen(QPen(QColor("#15161b"), 1));
    painter.setBrush(m_lit ? QColor("#c8f0ff") : QColor("#3a3d48"));
    painter.drawRoundedRect(QRectF(centre.x() - 11, centre.y() - 3, 22, 6), 3, 3);
    QFont font("Liberation Sans");
    font.setPixelSize(9);
    painter.setFont(font);
    painter.setPen(QColor("#777b89"));
    painter.drawText(QRectF(centre.x() + 14, 0, 24, ledHeight), Qt::AlignVCenter, QString::number(m_key.led));
}
