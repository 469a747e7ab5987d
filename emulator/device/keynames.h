// The keys of the panel: their codes as the keypad gives them, their names on the console, and the LED behind
// each.
#pragma once

#include <QString>
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

constexpr int keysPerRow = 8; ///< of those with an LED, in the order of their names

const QVector<KeyName> &keyNames();
/// Null if none has that name.
const KeyName *keyByName(const QString &name);

/// A key of the PC that is the same on every keyboard, and what it does: press a key of the panel, or turn
/// the knob.
struct PcKey {
    int key;           ///< as Qt calls it
    const char *place; ///< as a browser calls it
    int panelKey;      ///< 0: none
    int steps;         ///< below 0: left
};
const QVector<PcKey> &pcKeys();

/// The speed that the driver tells for a step so long after the one before: the faster the steps follow each
/// other, the higher.
int knobSpeed(qint64 milliseconds);
