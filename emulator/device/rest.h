// Waits until the panel has come to rest: its LCD stands still, it answers, and, if asked for, the bus is
// silent, too. Main thread.
#pragma once

#include "emulator/bus/device.h"
#include "emulator/device/screentext.h"

class Rest : public QObject
{
    Q_OBJECT
public:
    enum Of { Screen, ScreenAndBus };

    Rest(Of what, const Lcd &lcd, ScreenText &screen, Device &device, QObject *parent = nullptr);

    /// Looks from now on.
    void start();

signals:
    void reached();

private:
    void look();
    /// The panel has answered, so what it had to do before that is done.
    void count();

    const Of m_what;
    const Lcd &m_lcd;
    ScreenText &m_screen;
    QTimer m_look;
    quint64 m_changes = 0;
    int m_stillLooks = 0;
    int m_silentLooks = 0;
};
