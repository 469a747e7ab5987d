// The keys of the panel: their codes as the keypad gives them, their names on the console, and the LED behind
// each.
#pragma once

#include <QVector>

struct KeyName {
    int code;
    const char *name;
    const char *label; ///< as printed on the key
    int led;           ///< -1: none behind this key
    char shortcut;     ///< on the PC's keyboard, in the emulator's window; 0: none
};

constexpr int keyKnobLeft = 32;
constexpr int keyKnobRight = 33;
constexpr int keyOk = 34;
constexpr int keyEsc = 35;
constexpr int releasedBit = 0x80;
constexpr int ledCount = 16;
constexpr int tapMs = 20; ///< how long a key is pressed that is not held

const QVector<KeyName> &keyNames();
