// A key of the panel with its LED above. It presses and releases with the mouse button. Main thread.
#pragma once

#include "emulator/device/keynames.h"

#include <QWidget>

class KeyButton : public QWidget
{
    Q_OBJECT
public:
    explicit KeyButton(const KeyName &key, QWidget *parent = nullptr);

    const KeyName &key() const { return m_key; }
    void setLit(bool lit);
    /// How it looks; nothing is sent.
    void setDown(bool down);

signals:
    void pressed();
    void released();

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    void paintLed(QPainter &painter);

    KeyName m_key;
    bool m_lit = false;
    bool m_down = false;
};
