#include "emulator/host/bootflag.h"

#include <QFile>
#include <QFileInfo>

namespace
{
constexpr int usualDelayMs = 200;
}

BootFlag::BootFlag(const QString &stateFolder, QObject *parent) : QObject(parent), m_stateFolder(stateFolder)
{
    m_delay.setSingleShot(true);
    m_delay.setInterval(usualDelayMs);
    connect(&m_delay, &QTimer::timeout, this, &BootFlag::answer);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, &BootFlag::look);
}

void BootFlag::start()
{
    m_watcher.addPath(QFileInfo(m_stateFolder + panelReadyFlag).path());
    look();
}

void BootFlag::setWithheld(bool withheld)
{
    m_withheld = withheld;
    look();
}

void BootFlag::look()
{
    if (!m_withheld && !m_delay.isActive() && QFile::exists(m_stateFolder + panelReadyFlag) &&
        !QFile::exists(m_stateFolder + deviceReadyFlag))
        m_delay.start();
}

void BootFlag::answer()
{
    QFile flag(m_stateFolder + deviceReadyFlag);
    if (!m_withheld && !flag.open(QIODevice::WriteOnly))
        qWarning("cannot write %s", qPrintable(flag.fileName()));
}
