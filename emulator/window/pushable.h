// Something on the front that the mouse pushes: down with the left button and up with it. With Shift it stays
// down until the next click, so that several can be held at once. Main thread.
#pragma once

#include <QWidget>

class Pushable : public QWidget
{
    Q_OBJECT
public:
    using QWidget::QWidget;

    /// How it looks; nothing is sent.
    void setDown(bool down);
    /// Lets go, also of what stays down.
    void letGo();
    /// Of what is drawn at its first size.
    virtual void setScale(double scale) = 0;

signals:
    void pressed();
    void released();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

    bool isDown() const { return m_down; }
    bool isLatched() const { return m_latched; }

private:
    bool m_down = false;
    bool m_pushed = false; ///< the mouse holds it, or has latched it
    bool m_latched = false;
};
