// A video mode as text and as the device takes it.
#pragma once

#include "framework/protocol/send/valueform.h"

#include <QStringList>

namespace VASK
{
/// "width x height x rate", joined with "x", as u16 width, u16 height, u16 rate in hundredths of a hertz.
/// False for a text without exactly three fields.
inline bool videoMode(const QString &text, QByteArray &data)
{
    const QStringList fields = text.split('x');
    QByteArray rate;
    if (fields.size() != 3 || !centi().encode(fields[2], rate))
        return false;
    data = littleEndian(fields[0].toInt(), 2) + littleEndian(fields[1].toInt(), 2) + rate;
    return true;
}
} // namespace VASK
