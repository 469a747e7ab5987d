// LEDs behind the keys, by their place in the LED block.
#pragma once

namespace VASK
{
/// LEDs behind the keys.
enum ENUM_LedIndex : unsigned char {
    LED_MAIN = 0,
    LED_PIP1 = 1,
    LED_PIP2 = 2,
    LED_SCALE = 3,
    LED_INPUT3 = 4,
    LED_INPUT4 = 5,
    LED_INPUT1 = 6,
    LED_INPUT2 = 7,
    LED_INPUT5 = 8,
    LED_INPUT6 = 9,
    LED_INPUT7 = 10,
    LED_FN = 11,
    LED_FREEZE = 12,
    LED_INPUT8 = 13,
    LED_TEST = 14,
    LED_PRESET = 15,
};
} // namespace VASK
