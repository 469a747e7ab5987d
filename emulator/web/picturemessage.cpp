#include "emulator/web/picturemessage.h"

#include <QDataStream>

namespace picture
{
namespace
{
constexpr int joinedRows = 8;   ///< equal ones between two changes that still go as one rectangle
constexpr int packing = 1;      ///< of zlib: fast, and flat colours get small anyhow
constexpr int packedHeader = 4; ///< what Qt puts in front of what zlib gives

/// The columns of a row that differ; empty if none does.
QRect changeInRow(const QImage &before, const QImage &now, int y)
{
    const auto *one = reinterpret_cast<const quint32 *>(before.constScanLine(y));
    const auto *other = reinterpret_cast<const quint32 *>(now.constScanLine(y));
    int left = 0, right = now.width() - 1;
    while (left <= right && one[left] == other[left])
        ++left;
    while (right > left && one[right] == other[right])
        --right;
    return QRect(left, y, right - left + 1, 1);
}
} // namespace

QVector<QRect> changes(const QImage &before, const QImage &now)
{
    QVector<QRect> all;
    for (int y = 0; y < now.height(); ++y) {
        const QRect change = changeInRow(before, now, y);
        if (change.isEmpty())
            continue;
        if (!all.isEmpty() && y - all.last().bottom() <= joinedRows)
            all.last() |= change;
        else
            all.append(change);
    }
    return all;
}

QByteArray message(const QVector<QRect> &changes, const QImage &now, qint64 changedUs)
{
    QByteArray message, pixels;
    QDataStream stream(&message, QIODevice::WriteOnly);
    stream.setByteOrder(QDataStream::LittleEndian);
    stream << changedUs << quint16(changes.size());
    for (const QRect &change : changes) {
        stream << quint16(change.x()) << quint16(change.y()) << quint16(change.width())
               << quint16(change.height());
        for (int y = change.top(); y <= change.bottom(); ++y)
            pixels.append(reinterpret_cast<const char *>(now.constScanLine(y)) + change.left() * 4,
                          change.width() * 4);
    }
    return message + qCompress(pixels, packing).mid(packedHeader);
}
} // namespace picture
