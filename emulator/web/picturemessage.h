// Two pictures of the LCD as what has changed between them. All numbers are little-endian:
//
//     the time of the change, 64 bits, in microseconds of the monotonic clock
//     how many rectangles, 16 bits; for each its x, y, width and height, 16 bits each
//     their pixels one after the other, four bytes each for red, green, blue and 255, packed by zlib
#pragma once

#include <QImage>
#include <QRect>
#include <QVector>

namespace picture
{
/// Few rectangles that cover all that differs, from top to bottom; both pictures are of one size and of 32
/// bits a pixel.
QVector<QRect> changes(const QImage &before, const QImage &now);
/// Now is of Format_RGBX8888.
QByteArray message(const QVector<QRect> &changes, const QImage &now, qint64 changedUs);
} // namespace picture
