#include "framework/store/storefiles.h"

#include "boarddisk.h"
#include "boardio.h"
#include "framework/store/storetext.h"

#include <QDebug>
#include <QFileInfo>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

namespace VASK
{
namespace
{
constexpr const char *folderName = "/usr/vask/etc/fpd/config/";
constexpr const char *configToBackup =
    "cp /usr/vask/etc/fpd/config/config.xml /usr/vask/etc/fpd/config/config_backup.xml";
constexpr const char *backupToConfig =
    "cp /usr/vask/etc/fpd/config/config_backup.xml /usr/vask/etc/fpd/config/config.xml";
constexpr const char *factoryToConfig =
    "cp /usr/vask/etc/fpd/config/config_factory.xml /usr/vask/etc/fpd/config/config.xml";
constexpr const char *configToFactory =
    "cp /usr/vask/etc/fpd/config/config.xml /usr/vask/etc/fpd/config/config_factory.xml";
/// A file is written under this name beside the one that it replaces.
constexpr const char *besideSuffix = ".new";

/// An open file, closed at the end.
class OpenFile
{
public:
    OpenFile(const QString &name, int flags) : m_file(board::openFile(name, flags)) {}
    ~OpenFile()
    {
        if (isOpen())
            close(m_file);
    }
    OpenFile(const OpenFile &) = delete;
    OpenFile &operator=(const OpenFile &) = delete;

    bool isOpen() const { return m_file >= 0; }

    /// Up to the size from which on no store is one.
    bool read(QByteArray &bytes)
    {
        bytes.resize(0);
        QByteArray part(readSize, Qt::Uninitialized);
        while (bytes.size() < storeSizeLimit) {
            const ssize_t count = board::readFile(m_file, part.data(), size_t(part.size()));
            if (count == 0)
                return true;
            if (count > 0)
                bytes.append(part.constData(), int(count));
            else if (errno != EINTR)
                return false;
        }
        return true;
    }

    bool write(const QByteArray &bytes)
    {
        for (int done = 0; done < bytes.size();) {
            const ssize_t count =
                board::writeFile(m_file, bytes.constData() + done, size_t(bytes.size() - done));
            if (count > 0)
                done += int(count);
            else if (count == 0 || errno != EINTR)
                return false;
        }
        return true;
    }

    /// A file system that has nothing to bring to a disk says so, and is believed.
    bool sync() { return board::syncFile(m_file) == 0 || errno == EINVAL || errno == ENOTSUP; }

private:
    static constexpr int readSize = 256 * 1024;
    int m_file;
};

bool syncFolder()
{
    OpenFile folder(folderName, O_RDONLY | O_DIRECTORY);
    return folder.isOpen() && folder.sync();
}

/// A file that was written before this start can be whole in memory alone. The folder knows which file has
/// the name.
bool bringToDisk(const QString &name)
{
    OpenFile file(name, O_RDONLY | O_NONBLOCK);
    return file.isOpen() && file.sync() && syncFolder();
}

/// The copy cuts its target at once: its source must outlive what comes then.
bool copy(const QString &source, const char *command)
{
    return bringToDisk(source) && board::runCommand(command) == 0;
}

bool writeBeside(const QString &name, const QByteArray &bytes)
{
    OpenFile file(name + besideSuffix, O_WRONLY | O_CREAT | O_TRUNC);
    return file.isOpen() && file.write(bytes) && file.sync();
}
} // namespace

QString StoreFiles::folder()
{
    return folderName;
}

QString StoreFiles::config()
{
    return folder() + "config.xml";
}

QString StoreFiles::backup()
{
    return folder() + "config_backup.xml";
}

QString StoreFiles::factory()
{
    return folder() + "config_factory.xml";
}

/// A second try costs nothing where the first has failed for a moment, and all that the file holds where it
/// is not made.
StoreFiles::Sight StoreFiles::read(const QString &name, QByteArray &bytes)
{
    for (bool isFirst : {true, false}) {
        OpenFile file(name, O_RDONLY | O_NONBLOCK);
        if (file.isOpen() ? file.read(bytes) : errno == ENOENT)
            return file.isOpen() ? READ : ABSENT;
        if (!isFirst)
            qDebug() << "cannot read" << name << ":" << strerror(errno);
    }
    bytes.clear();
    return UNREADABLE;
}

QByteArray StoreFiles::contents(const QString &name)
{
    QByteArray bytes;
    read(name, bytes);
    return bytes;
}

bool StoreFiles::areOutOfReach()
{
    if (!QFileInfo(board::filePath(folder())).isDir())
        return true;
    QByteArray bytes;
    for (const QString &name : {config(), backup(), factory()})
        if (read(name, bytes) == UNREADABLE)
            return true;
    return false;
}

bool StoreFiles::replace(const QString &name, const QByteArray &bytes)
{
    if (writeBeside(name, bytes) && board::renameFile(name + besideSuffix, name) == 0 && syncFolder())
        return true;
    const int error = errno;
    board::removeFile(name + besideSuffix);
    errno = error;
    return false;
}

void StoreFiles::tidy()
{
    for (const QString &name : {config(), factory()})
        board::removeFile(name + besideSuffix);
}

bool StoreFiles::copyConfigToBackup()
{
    return copy(config(), configToBackup);
}

bool StoreFiles::copyBackupToConfig()
{
    return copy(backup(), backupToConfig);
}

bool StoreFiles::copyFactoryToConfig()
{
    return copy(factory(), factoryToConfig);
}

bool StoreFiles::copyConfigToFactory()
{
    return copy(config(), configToFactory);
}

bool StoreFiles::sync()
{
    return board::runCommand("sync") == 0;
}

void StoreFiles::offer(const QByteArray &snapshot)
{
    QMutexLocker lock(&m_waitingMutex);
    m_waiting = snapshot;
    ++m_offers;
}

void StoreFiles::withdraw()
{
    offer(QByteArray());
}

bool StoreFiles::hasWork() const
{
    QMutexLocker lock(&m_waitingMutex);
    return !m_waiting.isEmpty() || m_isBackupDue || m_isSyncDue;
}

bool StoreFiles::write()
{
    QMutexLocker lock(&m_writeMutex);
    if (!writeConfig())
        return false;
    if (m_isBackupDue) {
        if (!copyConfigToBackup())
            return false;
        m_isBackupDue = false;
        m_isSyncDue = true;
    }
    if (m_isSyncDue.exchange(false))
        m_sync.ask();
    return true;
}

/// Called, as the one below, under the lock of the writers.
bool StoreFiles::writeConfig()
{
    QByteArray snapshot;
    unsigned int offer = 0;
    {
        QMutexLocker lock(&m_waitingMutex);
        snapshot.swap(m_waiting);
        offer = m_offers;
    }
    if (snapshot.isEmpty())
        return true;
    const bool isWritten = replace(config(), snapshot);
    tellOutcome(isWritten);
    if (isWritten) {
        m_isBackupDue = true;
        return true;
    }
    QMutexLocker lock(&m_waitingMutex);
    if (m_offers == offer)
        m_waiting = snapshot;
    return false;
}

void StoreFiles::tellOutcome(bool isWritten)
{
    if (isWritten && m_hasFailed)
        qDebug() << config() << "is written at last";
    else if (!isWritten && !m_hasFailed)
        qDebug() << config() << "cannot be written, and is tried again:" << strerror(errno);
    m_hasFailed = !isWritten;
}

void StoreFiles::endSync()
{
    QMutexLocker lock(&m_writeMutex);
    m_sync.finish();
}

void StoreFiles::whileNoneWrites(const std::function<void()> &change)
{
    QMutexLocker lock(&m_writeMutex);
    change();
}
} // namespace VASK
