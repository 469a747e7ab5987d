#include "emulator/window/knob.h"

#include "emulator/device/keynames.h"

#include <QPainter>
#include <QWheelEvent>

namespace
{
constexpr int knobSize = 190;
constexpr int wheelStep = 120; ///< of a common mouse wheel
constexpr int degreesPerStep = 15;
} // namespace

Knob::Knob(QWidget *parent) : Pushable(parent)
{
    setScale(m_scale);
    setToolTip("Wheel or arrow keys: turn. Click or Enter: OK. With Shift a click keeps it down.");
}

void Knob::setScale(double scale)
{
    m_scale = scale;
    setFixedSize((QSizeF(knobSize, knobSize) * scale).toSize());
    update();
}

void Knob::turn(int steps)
{
    const int speed = m_sinceTurn.isValid() ? knobSpeed(m_sinceTurn.elapsed()) : 1;
    m_sinceTurn.start();
    m_angle += steps * degreesPerStep;
    update();
    emit turned(steps, speed);
}

void Knob::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(m_scale, m_scale);
    painter.translate(knobSize / 2.0, knobSize / 2.0);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(isLatched() ? "#ebc613" : "#15161b"));
    painter.drawEllipse(QPointF(), knobSize / 2.0 - 2, knobSize / 2.0 - 2);
    QConicalGradient rim(QPointF(), -m_angle);
    for (int i = 0; i <= 72; ++i)
        rim.setColorAt(i / 72.0, i % 2 ? QColor("#5b5e6b") : QColor("#3b3d47"));
    painter.setBrush(rim);
    painter.drawEllipse(QPointF(), knobSize / 2.0 - 8, knobSize / 2.0 - 8);
    QRadialGradient face(QPointF(-20, -30), knobSize * 0.7);
    face.setColorAt(0, isDown() ? QColor("#4a4c58") : QColor("#6a6d7b"));
    face.setColorAt(1, QColor("#26272e"));
    painter.setBrush(face);
    painter.drawEllipse(QPointF(), knobSize / 2.0 - 20, knobSize / 2.0 - 20);
    painter.rotate(m_angle);
    painter.setBrush(QColor("#c9cbd6"));
    painter.drawEllipse(QPointF(0, -knobSize / 2.0 + 36), 6, 6);
}

void Knob::wheelEvent(QWheelEvent *event)
{
    event->accept(); // a wheel event goes on to the window else
    m_wheelRest += event->angleDelta().y();
    const int steps = m_wheelRest / wheelStep;
    m_wheelRest -= steps * wheelStep;
    // Rolled towards the user is onwards, as on the device.
    if (steps != 0)
        turn(-steps);
}
