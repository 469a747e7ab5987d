#include "emulator/window/powerswitch.h"

#include <QMouseEvent>
#include <QPainter>

namespace
{
constexpr int switchWidth = 64;
constexpr int switchHeight = 30;
} // namespace

PowerSwitch::PowerSwitch(QWidget *parent) : QWidget(parent)
{
    setScale(m_scale);
    setOn(m_on);
}

void PowerSwitch::setOn(bool on)
{
    m_on = on;
    setToolTip(on ? "Ends the panel." : "Starts the panel, as F5 does.");
    update();
}

void PowerSwitch::setScale(double scale)
{
    m_scale = scale;
    setFixedSize((QSizeF(switchWidth, switchHeight) * scale).toSize());
    update();
}

void PowerSwitch::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(m_scale, m_scale);
    const QRectF frame = QRectF(0, 0, switchWidth, switchHeight).adjusted(1, 1, -1, -1);
    painter.setPen(QPen(QColor("#0d0e12"), 2));
    painter.setBrush(QColor("#17181d"));
    painter.drawRoundedRect(frame, 6, 6);
    const QRectF rocker = frame.adjusted(3, 3, -3, -3);
    const QRectF off(rocker.topLeft(), QSizeF(rocker.width() / 2, rocker.height()));
    const QRectF on = off.translated(off.width(), 0);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(m_on ? "#4d505d" : "#24262d"));
    painter.drawRoundedRect(off, 4, 4);
    painter.setBrush(QColor(m_on ? "#2a5c35" : "#4d505d"));
    painter.drawRoundedRect(on, 4, 4);
    QFont font("Liberation Sans");
    font.setPixelSize(14);
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(QColor(m_on ? "#8d909d" : "#e6e6ee"));
    painter.drawText(off, Qt::AlignCenter, "O");
    painter.setPen(QColor(m_on ? "#7dff9a" : "#8d909d"));
    painter.drawText(on, Qt::AlignCenter, "I");
}

void PowerSwitch::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        emit clicked();
}
