// Tells the emulator what stands on the LCD when it asks: one request a packet, one answer a packet. Asked or
// not, the panel does nothing for it in between. GUI thread.
#pragma once

#include <QObject>

class PanelLcdScreen;

class ScreenService : public QObject
{
public:
    explicit ScreenService(const PanelLcdScreen &screen);
    ~ScreenService() override;

private:
    void answer();

    const PanelLcdScreen &m_screen;
    int m_socket;
};
