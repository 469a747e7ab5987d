// The names of the device's inputs.
#pragma once

#include <QString>

namespace VASK
{
/// By the key of the source items; empty if there is none.
QString inputName(const QString &key);
/// By a source code, with its number, such as "HDMI1.42"; empty for an unknown code.
QString sourceName(unsigned char code);
} // namespace VASK
