#include "emulator/statefolder.h"

#include "emulator/bootflag.h"
#include "emulator/cabinetfiles.h"
#include "fpd_hostlink.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <sys/stat.h>

namespace
{
constexpr const char *configFolder = "/usr/vask/etc/fpd/config";
constexpr const char *logoFolder = "/usr/vask/etc/logo";

constexpr const char *boardFolders[] = {
    configFolder, logoFolder, "/usr/vask/etc/fpd/cabCfg", "/usr/vask/etc/osd", "/etc/init.d", "/root",
    "/run",       "/fault",   hostlink::toolFolder,
};

void copyOver(const QString &from, const QString &to)
{
    QFile::remove(to);
    QFile::copy(from, to);
}

void writeIfMissing(const QString &file, const QByteArray &content)
{
    QFile output(file);
    if (!output.exists() && output.open(QIODevice::WriteOnly))
        output.write(content);
}
} // namespace

StateFolder::StateFolder(const QString &path)
    : m_path(QDir::cleanPath(QDir().absoluteFilePath(path))), m_lock(m_path + "/emulator.lock")
{
    m_lock.setStaleLockTime(0);
}

QString StateFolder::defaultPath()
{
    const QString base = qEnvironmentVariable("XDG_STATE_HOME", QDir::homePath() + "/.local/state");
    return base + "/fpd";
}

QString StateFolder::take()
{
    if (!QDir().mkpath(m_path) || chmod(QFile::encodeName(m_path).constData(), 0700) != 0)
        return "cannot make the state folder " + m_path;
    if (!m_lock.tryLock())
        return "another emulator uses the state folder " + m_path;
    return QString();
}

void StateFolder::install()
{
    for (const char *folder : boardFolders)
        QDir().mkpath(file(folder));
    const QDir translations(QCoreApplication::applicationDirPath() + "/../translation");
    for (const QString &name : translations.entryList({"*.qm"}, QDir::Files))
        copyOver(translations.filePath(name), file(configFolder) + '/' + name);
    for (const CabinetFile &cabinet : cabinetFiles())
        writeIfMissing(file(cabinetFolder) + '/' + cabinet.name, cabinet.content);
    writeIfMissing(file(hostlink::lcdFile), QByteArray(hostlink::lcdFileSize, 0));
    for (const char *logo : {"/logo_vask.bmp", "/logo_hide.bmp", "/logo.bmp"})
        writeIfMissing(file(logoFolder) + logo, QByteArray("BM"));
}

void StateFolder::clearForStart()
{
    QFile::remove(file(panelReadyFlag));
    QFile::remove(file(deviceReadyFlag));
    QFile lcd(file(hostlink::lcdFile));
    // Written over, not replaced: whoever looks at the LCD keeps looking at this file.
    if (lcd.open(QIODevice::ReadWrite))
        lcd.write(QByteArray(hostlink::lcdFileSize, 0));
}
