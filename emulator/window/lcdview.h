// Shows the LCD at twice its size and follows it. Main thread.
#pragma once

#include "emulator/device/lcd.h"

#include <QTimer>
#include <QWidget>

class LcdView : public QWidget
{
public:
    explicit LcdView(const Lcd &lcd, QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    const Lcd &m_lcd;
    quint64 m_shown = 0;
    QTimer m_look;
};
