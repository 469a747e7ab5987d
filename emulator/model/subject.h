// What the device is made of: subjects (its inputs, its output, its layers ...), each with the registers that
// it obeys, the reports that it gives and what it tells about itself. A subject keeps no state of its own:
// all of it lies in the registers. Main thread.
#pragma once

#include "emulator/model/registers.h"

#include <QStringList>
#include <QVector>

/// A register that the device tells about.
struct Report {
    quint32 address = 0;
    QByteArray bytes;
    /// How long the device takes. A newer report of the same register replaces one that still waits, so that
    /// a value that moves is told when it has come to rest; after less than the panel's own pause between two
    /// writes it would be taken back.
    int afterMs = 150;
    quint8 deviceType = sendingSide;
};
using Reports = QVector<Report>;

struct Write {
    quint8 deviceType;
    quint32 address;
    QByteArray bytes;
};

/// A block of registers, or several of the same kind, and what a write to it does.
struct RegisterRow {
    quint32 first;
    int length;
    int count;
    quint32 stride;
    /// Changes the registers; what the device reports of it.
    Reports (*obey)(Registers &registers, const RegisterRow &row, int member, const Write &write);
    quint8 deviceType = sendingSide;
    /// What follows by itself when the device, not the panel, has changed the registers; null: nothing.
    Reports (*follow)(Registers &registers) = nullptr;

    quint32 addressOf(int member) const { return first + stride * quint32(member); }
    /// The member that a write begins in, -1 if in none.
    int memberOf(const Write &write) const;
};

struct Subject {
    const char *name;
    QVector<RegisterRow> rows;
    /// All that the subject reports when the device has started.
    Reports (*reports)(const Registers &registers);
    /// The state in plain text, "what: value" a line.
    QStringList (*describe)(const Registers &registers);
};

namespace obey
{
/// Takes the bytes as they are; nothing is reported.
Reports store(Registers &registers, const RegisterRow &row, int member, const Write &write);
/// Takes the bytes as they are and reports the whole block, if anything has changed.
Reports storeAndReport(Registers &registers, const RegisterRow &row, int member, const Write &write);
} // namespace obey

/// What a switch register takes for "on".
constexpr int deviceOn = 168;
QString onOff(bool on);

/// All subjects, in the order in which they report.
const QVector<Subject> &allSubjects();

Subject inputsSubject();
Subject outputSubject();
Subject layersSubject();
Subject cropsSubject();
Subject picturesSubject();
Subject portsSubject();
Subject networkSubject();
Subject audioSubject();
Subject osdSubject();
Subject stereoSubject();
Subject screenSubject();
Subject presetsSubject();
Subject backupSubject();
Subject fiberSubject();
Subject serviceSubject();
