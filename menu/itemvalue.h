// The values of items that are switches, as text. Any thread.
#pragma once

#include <QString>

namespace VASK
{
/// Neither holds for an item that nobody has.
/// @{
inline bool isOn(const QString &value)
{
    return value == QLatin1String("1");
}
inline bool isOff(const QString &value)
{
    return value == QLatin1String("0");
}
/// @}
} // namespace VASK
