// What the program does to the disk: told to a test that watches it, and made to fail as the state folder
// says. Any thread.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <functional>

namespace host
{
/// One change, after it was made; of a copy, before.
struct DiskStep {
    enum Kind { Truncate, Write, SyncFile, SyncFolder, Rename, Remove, Copy, SyncAll } kind;
    QString file;
    QString target = {};   ///< of a rename or copy
    QByteArray bytes = {}; ///< written
};
using DiskWatcher = std::function<void(const DiskStep &)>;

/// The watcher is called by whichever thread makes the change, one at a time. None ends the watch.
void watchDisk(DiskWatcher watcher);
void tellDisk(const DiskStep &step);

/// The error that a call is to fail with, 0 for none. Counts the call.
int takeDiskFault(const char *call);

/// Runs a command line of the board, of which "cp" and "sync" are calls to the disk like the others. Its
/// result.
int runDiskCommand(const QStringList &words, const std::function<int()> &run);
} // namespace host
