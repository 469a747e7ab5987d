// The list of the cabinet files that the device has stored. Any thread.
#pragma once

#include <QString>

namespace VASK
{
/// The names from the device's index file, joined with "+"; empty if there are none.
QString readFileGetNames();
/// The same from the contents of such a file.
QString cabinetNames(const QByteArray &index);
} // namespace VASK
