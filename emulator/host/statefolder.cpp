#include "emulator/host/statefolder.h"

#include "emulator/host/bootflag.h"
#include "emulator/host/cabinetfiles.h"
#include "emulator/host/diskimage.h"
#include "fpd_hostlink.h"
#include "fpd_hoststate.h"
#include "fpd_hostvalues.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QSaveFile>
#include <sys/stat.h>

namespace
{
constexpr const char *configFolder = "/usr/vask/etc/fpd/config";
constexpr const char *logoFolder = "/usr/vask/etc/logo";

constexpr const char *boardFolders[] = {
    configFolder, logoFolder, cabinetFolder, "/usr/vask/etc/osd",  "/etc/init.d",
    "/root",      "/run",     "/fault",      hostlink::toolFolder,
};

// All of them give an empty text, or what went wrong.

QString copyOver(const QString &from, const QString &to)
{
    QFile::remove(to);
    QFile source(from);
    return source.copy(to) ? QString() : "cannot write " + to + ": " + source.errorString();
}

QString writeIfMissing(const QString &file, const QByteArray &content)
{
    QSaveFile output(file);
    if (QFile::exists(file) ||
        (output.open(QIODevice::WriteOnly) && output.write(content) == content.size() && output.commit()))
        return QString();
    return "cannot write " + file + ": " + output.errorString();
}

/// As at delivery and after a reset: a PC is heard over the network before USB.
QString deliverLinks(const QString &file)
{
    if (hostlink::readValues(file).contains(hostlink::linkPriority) ||
        hostlink::changeValue(file, hostlink::linkPriority, "1"))
        return QString();
    return "cannot write " + file;
}

QString reserveLcd(const QString &file)
{
    QFile lcd(file);
    if (!lcd.open(QIODevice::ReadWrite))
        return "cannot write " + file + ": " + lcd.errorString();
    return reserve(lcd, hostlink::lcdFileSize);
}
} // namespace

StateFolder::StateFolder(const QString &path)
    : m_path(QDir::cleanPath(QDir().absoluteFilePath(path))), m_lock(m_path + "/emulator.lock")
{
    m_lock.setStaleLockTime(0);
}

QString StateFolder::defaultPath()
{
    return QFile::decodeName(defaultState().c_str());
}

bool StateFolder::isForeign() const
{
    const QDir folder(m_path);
    for (const char *own : {"/emulator.lock", hostlink::flashFile, hostlink::lcdFile})
        if (QFile::exists(file(own)))
            return false;
    return folder.exists() &&
           !folder.isEmpty(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
}

QString StateFolder::take()
{
    if (isForeign())
        return m_path + " is no state folder: it holds other files";
    if (!QDir().mkpath(m_path) || chmod(QFile::encodeName(m_path).constData(), 0700) != 0)
        return "cannot make the state folder " + m_path;
    if (m_lock.tryLock())
        return QString();
    switch (m_lock.error()) {
    case QLockFile::LockFailedError:
        return "another emulator uses the state folder " + m_path;
    case QLockFile::PermissionError:
        return "no right to write into the state folder " + m_path;
    default:
        return "cannot write into the state folder " + m_path + ": its disk is full, or fails";
    }
}

QString StateFolder::install()
{
    QStringList faults{reserveLcd(file(hostlink::lcdFile)), deliverLinks(file(hostlink::linkFile))};
    for (const char *folder : boardFolders)
        if (!QDir().mkpath(file(folder)))
            faults += "cannot make the folder " + file(folder);
    const QDir translations(QCoreApplication::applicationDirPath() + "/../translation");
    for (const char *language : {"fpd_ZH.qm", "fpd_EN.qm"})
        if (!translations.exists(language))
            faults += "there is no " + QDir::cleanPath(translations.filePath(language)) +
                      ": the build is not complete";
    for (const QString &name : translations.entryList({"*.qm"}, QDir::Files))
        faults += copyOver(translations.filePath(name), file(configFolder) + '/' + name);
    for (const CabinetFile &cabinet : cabinetFiles())
        faults += writeIfMissing(file(cabinetFolder) + '/' + cabinet.name, cabinet.content);
    for (const char *logo : {"/logo_vask.bmp", "/logo_hide.bmp", "/logo.bmp"})
        faults += writeIfMissing(file(logoFolder) + logo, QByteArray("BM"));
    faults.removeAll(QString());
    return faults.value(0);
}

void StateFolder::clearForStart()
{
    QFile::remove(file(panelReadyFlag));
    QFile::remove(file(deviceReadyFlag));
    QFile lcd(file(hostlink::lcdFile));
    // Written over, not replaced: whoever looks at the LCD keeps looking at this file.
    const QByteArray dark(hostlink::lcdFileSize, 0);
    if (!lcd.open(QIODevice::ReadWrite) || lcd.write(dark) != dark.size())
        qWarning("cannot write %s: %s", qPrintable(lcd.fileName()), qPrintable(lcd.errorString()));
}

QString StateFolder::newFile(const QString &folder, const QString &suffix) const
{
    const QDir state(m_path);
    if (!state.mkpath(folder))
        return QString();
    const QString name = QDateTime::currentDateTime().toString("yyyyMMdd-hhmmss-zzz");
    return state.filePath(folder + '/' + name + suffix);
}
