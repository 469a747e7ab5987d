// What a new flash holds: a wall of 4x4 cabinets at 1920x1080, HDMI 1 on the main layer, two presets.
#pragma once

#include <QByteArray>
#include <QVector>

struct FlashPiece {
    quint32 address;
    QByteArray bytes;
};

/// What every device is delivered with: no preset is stored.
QVector<FlashPiece> deliveredDevice();
/// A delivered device on which two presets have been saved, the first in use.
QVector<FlashPiece> plausibleDevice();
