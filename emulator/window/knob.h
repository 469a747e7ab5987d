// The knob: turned with the mouse wheel, pressed with the mouse button. Main thread.
#pragma once

#include <QElapsedTimer>
#include <QWidget>

class Knob : public QWidget
{
    Q_OBJECT
public:
    explicit Knob(QWidget *parent = nullptr);

    /// A turn from the wheel or the keyboard; works out the speed.
    void turn(int steps);
    void setDown(bool down);

signals:
    void turned(int steps, int speed); ///< steps below 0: left
    void pressed();
    void released();

protected:
    void paintEvent(QPaintEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    int m_angle = 0;
    int m_wheelRest = 0;
    bool m_down = false;
    QElapsedTimer m_sinceTurn;
};
