// The values of items that are switches, as text. Any thread.
#pragma once

#include <QString>

namespace VASK
{
inline const QString switchOff = QStringLiteral("0");
inline const QString switchOn = QStringLiteral("1");

/// Neither holds for an item that nobody has.
/// @{
inline bool isOn(const QString &value)
{
    return value == switchOn;
}
inline bool isOff(const QString &value)
{
    return value == switchOff;
}
/// @}
} // namespace VASK
