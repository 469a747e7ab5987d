// The store's files on the disk: config.xml, its backup and the factory copy. What is to be written and the
// writing of it are two things: a snapshot is offered by whoever changes the store, under the store's lock
// and without waiting, and is written by whoever has the time, as often as it takes. At every moment
// config.xml is whole on the disk, with the last snapshot or the one before. All may be called from any
// thread.
#pragma once

#include "framework/thread/errand.h"

#include <QByteArray>
#include <QMutex>
#include <QString>
#include <atomic>
#include <functional>

namespace VASK
{
class StoreFiles
{
public:
    StoreFiles() = default;
    StoreFiles(const StoreFiles &) = delete;
    StoreFiles &operator=(const StoreFiles &) = delete;

    static QString folder();
    static QString config();
    static QString backup();
    static QString factory();

    enum Sight {
        ABSENT,
        UNREADABLE, ///< it is there and cannot be opened or read, by now
        READ
    };
    static Sight read(const QString &name, QByteArray &bytes);
    /// What can be read of it, nothing if it cannot.
    static QByteArray contents(const QString &name);
    /// The folder is missing, or a file in it cannot be read: that nothing is found does not mean that
    /// nothing is there.
    static bool areOutOfReach();

    /// Puts the bytes on the disk in place of the file. False, with the file as it was, if that fails.
    static bool replace(const QString &name, const QByteArray &bytes);
    /// Removes what a replacement has left behind that never came to its end.
    static void tidy();

    /// Copies, each with its source brought to the disk first and the shell's cp; false if one of these
    /// fails. The target is then cut, or as it was.
    /// @{
    static bool copyConfigToBackup();
    static bool copyBackupToConfig();
    static bool copyFactoryToConfig();
    static bool copyConfigToFactory();
    /// @}
    /// Brings everything to the disk and waits for it.
    static bool sync();

    /// The state that config.xml and the backup shall have: the newest counts.
    void offer(const QByteArray &snapshot);
    /// What was offered and not written yet is none any more.
    void withdraw();
    /// Something waits to be written, or to be written again.
    bool hasWork() const;
    /// Writes config.xml, copies it to the backup, and lets a thread bring that to the disk. False if
    /// something could not be written: it waits on.
    bool write();
    /// Waits until the last copy is on the disk and not only in its file.
    void endSync();
    /// Does something to the files themselves: no write runs or begins meanwhile.
    void whileNoneWrites(const std::function<void()> &change);

private:
    bool writeConfig();
    void tellOutcome(bool isWritten);

    mutable QMutex m_waitingMutex; ///< for the next two members, for one access
    QByteArray m_waiting;
    unsigned int m_offers = 0; ///< counted: a snapshot that could not be written may be out of date by then
    QMutex m_writeMutex;      ///< one writes at a time; taken before the other, for as long as the disk takes
    bool m_hasFailed = false; ///< told once, not with every repetition
    std::atomic<bool> m_isBackupDue{false};
    std::atomic<bool> m_isSyncDue{false};
    /// Asked for under the lock of the writers.
    Errand m_sync{"sync", [this] {
                      if (!sync())
                          m_isSyncDue = true;
                  }};
};
} // namespace VASK
