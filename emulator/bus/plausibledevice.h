// What a new flash holds: a wall of 4x4 cabinets at 1920x1080, HDMI 1 on the main layer, two presets.
#pragma once

#include <QByteArray>
#include <QVector>

struct FlashPiece {
    quint32 address;
    QByteArray bytes;
};

QVector<FlashPiece> plausibleDevice();
