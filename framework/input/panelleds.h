// The state of the 16 LEDs and the commands that show it. All operations come from any thread; one short lock
// keeps the lists and the commands on the device in the same order.
#pragma once

#include "framework/input/ledstatus.h"

#include <QList>
#include <QMutex>
#include <functional>

namespace VASK
{
class PanelLeds
{
public:
    static constexpr int ledCount = 16;
    /// Hands a block to the device: 0, or 1 on failure.
    using Send = std::function<int(void *block)>;

    explicit PanelLeds(Send send);

    /// Commands do nothing until the keypad driver is there.
    void setDriverReady();
    void clear();
    /// Sent at once, unless the LED is known to be lit that way already: reports of the device set the same
    /// states again and again, and each command waits for the driver.
    int set(unsigned char led, enLedStatus state);
    int flash(unsigned char led, enLedStatus state);
    int setInTest(unsigned char led, enLedStatus state);
    int sendBitMap(enLedStatus state, const QList<LedStatus> &list);
    void giveToTest();
    void giveToFiber(bool on);
    /// The other half of the blink period: blinking LEDs change, all others are left alone.
    void blink();

private:
    int show(unsigned char led, enLedStatus state);
    int sendMask(unsigned int mask, bool on);
    int sendMatching(enLedStatus state, const QList<LedStatus> &list);
    void saveAndSwitchOff();

    QMutex m_mutex;
    Send m_send;
    bool m_driverReady = false;
    /// What the driver was told last, and of which LEDs that is known.
    unsigned int m_lit = 0;
    unsigned int m_known = 0;
    QList<LedStatus> m_listLed;
    /// What the LEDs return to when a special mode ends.
    QList<LedStatus> m_listLedSave;
    bool m_bFiber = false;
    bool m_bTest = false;
    bool m_LenBlinkFlg = false;
};
} // namespace VASK
