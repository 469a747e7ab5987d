#include "widget/home/addressline.h"

#include "widget/home/mainwindowui.h"

void AddressLine::setAddress(const QString &ip)
{
    {
        QMutexLocker lock(&m_mutex);
        m_strIp = ip;
    }
    Ui_MainWindow::showKey(&m_label, ip);
}

void AddressLine::setName(const QString &name)
{
    {
        QMutexLocker lock(&m_mutex);
        m_strDeviceRename = name;
    }
    // Without a name the address must not stay hidden behind the last one.
    if (name.isEmpty())
        Ui_MainWindow::showKey(&m_label, address());
}

QString AddressLine::address() const
{
    QMutexLocker lock(&m_mutex);
    return m_strIp;
}

QString AddressLine::name() const
{
    QMutexLocker lock(&m_mutex);
    return m_strDeviceRename;
}

void AddressLine::tick()
{
    const QString shownName = name();
    if (++m_ticks % 2 != 0 || shownName.isEmpty())
        return;
    if (m_namePhase)
        Ui_MainWindow::showText(&m_label, shownName);
    else
        Ui_MainWindow::showKey(&m_label, address());
    m_namePhase = !m_namePhase;
}
