// The cabinet files that the device has stored, as its index names them. Any thread.
#pragma once

#include <QByteArray>
#include <QString>

namespace VASK
{
/// Fills the contents of the device's index file, a record a cabinet file. Of a damaged one only so much is
/// read as a device can have of them. False, with a log line, if there is none.
bool readCabinetIndex(QByteArray &index);
/// The name in a record of the index, counted from 0.
QString cabinetNameAt(const QByteArray &index, int record);
int cabinetRecords(const QByteArray &index);

/// The names from the device's index file, joined with "+"; empty if there are none.
QString readFileGetNames();
/// The same from the contents of such a file.
QString cabinetNames(const QByteArray &index);
} // namespace VASK
