// The writes to the registers of a layer, as a test expects them.
#pragma once

#include "tests/system/frames/framedrive.h"

namespace layerframes
{
using frames::le;

/// A layer has 48 bytes of registers, and 132 with crops of 16 an input.
constexpr quint32 firstLayer = 0x13020010;
constexpr int layerBytes = 48;
constexpr quint32 firstCrop = 0x13024014;
constexpr int cropBytes = 132;

inline QString atLayer(int layer, int offset, const QString &bytes)
{
    return QString("%1 00 %2").arg(firstLayer + quint32(layerBytes * layer + offset), 8, 16).arg(bytes);
}
inline QString status(int layer, bool on)
{
    return atLayer(layer, 0, on ? "01" : "00");
}
/// Number of the input, nothing, its code.
inline QString source(int layer, const QString &numberAndCode)
{
    return atLayer(layer, 2, numberAndCode);
}
inline QString priority(int layer, int place)
{
    return atLayer(layer, 3, le(place, 1));
}
inline QString opacity(int layer, int percent)
{
    return atLayer(layer, 0x2f, le(percent, 1));
}
/// The whole window, whatever part of it has changed.
inline QString window(int layer, int x, int y, int width, int height)
{
    return atLayer(layer, 5, le(x, 4) + le(y, 4) + le(width, 4) + le(height, 4));
}
/// Code and number of HDMI 1, which all layers show.
inline QString crop(int layer, bool on, int x, int y, int width, int height)
{
    return QString("%1 00 1100%2").arg(firstCrop + quint32(cropBytes * layer), 8, 16).arg(on ? "01" : "00") +
           le(x, 2) + le(y, 2) + le(width, 2) + le(height, 2);
}
inline const QString hdmi1 = "000011", hdmi2 = "010012", dvi = "020000", sdi = "030030";
/// Of the main layer's transition.
inline const QString cut = "13000001 00 00";

} // namespace layerframes
