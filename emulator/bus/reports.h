// What the device reports on its own: its inputs and that its services are up, once the panel is on the bus,
// and the result of what a write started.
#pragma once

#include <QByteArray>
#include <QVector>

struct RegisterReport {
    quint32 address;
    QByteArray bytes;
    int afterMs =
        0; ///< a receiver keeps only the newest of two reports of one register, so they need a pause
};

namespace reports
{
/// In the order in which the device sends them: inputs, output, ports, services.
QVector<RegisterReport> atStart();
/// What follows a write to that register, empty as a rule.
QVector<RegisterReport> afterWrite(quint32 address);
} // namespace reports
