// The knob: turned with the mouse wheel, pushed with the mouse button. Main thread.
#pragma once

#include "emulator/window/pushable.h"

#include <QElapsedTimer>

class Knob : public Pushable
{
    Q_OBJECT
public:
    explicit Knob(QWidget *parent = nullptr);

    /// A turn from the wheel or the keyboard; works out the speed.
    void turn(int steps);
    void setScale(double scale) override;

signals:
    void turned(int steps, int speed); ///< steps below 0: left

protected:
    void paintEvent(QPaintEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    int m_angle = 0;
    int m_wheelRest = 0;
    double m_scale = 1;
    QElapsedTimer m_sinceTurn;
};
