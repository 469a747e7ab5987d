// Keys of the keypad by the codes in which it gives them.
#pragma once

namespace VASK
{
/// Key codes as the keypad gives them.
enum ENUM_KeyCode : unsigned char {
    KEY_MAIN = 2,
    KEY_PIP1 = 3,
    KEY_PIP2 = 4,
    KEY_SCALE = 5,
    KEY_INPUT1 = 6,
    KEY_INPUT2 = 7,
    KEY_INPUT3 = 8,
    KEY_INPUT4 = 9,
    KEY_INPUT8 = 11,
    KEY_INPUT6 = 12,
    KEY_FN = 13,
    KEY_FREEZE = 14,
    KEY_INPUT7 = 15,
    KEY_TEST = 16,
    KEY_PRESET = 17,
    KEY_LOCK = 18,           ///< made by the key thread: ESC and OK held together
    KEY_SERVICE = 19,        ///< made by the key thread: the service chord
    KEY_SELF_TEST_DONE = 20, ///< made when a self test has ended while the production test waits for it
    KEY_KNOB_LEFT = 32,
    KEY_KNOB_RIGHT = 33,
    KEY_OK = 34,
    KEY_ESC = 35,
    // Their long press opens the hidden menus, from the home screen only. Both keys have no other long press.
    KEY_USER_HIDDEN_MENU = KEY_FREEZE,
    KEY_PRODUCT_HIDDEN_MENU = KEY_TEST,
    // Held together for three seconds they make KEY_SERVICE. The first of them has no long press at all and
    // the others only the hidden menus, so a chord that is let go too early does no harm; all three let
    // nothing through at their release.
    KEY_SERVICE_1 = KEY_FN,
    KEY_SERVICE_2 = KEY_FREEZE,
    KEY_SERVICE_3 = KEY_TEST,
};
} // namespace VASK
