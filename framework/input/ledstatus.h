// What an LED behind a key shows.
#pragma once

namespace VASK
{
enum enLedStatus {
    LED_OFF = 0,
    LED_ON = 1,
    /// Changes once a second, in step with all other blinking LEDs.
    LED_BLINK = 2,
};

struct LedStatus {
    unsigned char led = 0;
    enLedStatus state = LED_OFF;
};
} // namespace VASK
