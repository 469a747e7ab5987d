// The line of the home screen that shows the address and, if the user has given one, the device's name in
// turn. Both may be read from any thread; all else is the GUI thread's.
#pragma once

#include <QMutex>
#include <QString>

class QLabel;

class AddressLine
{
public:
    explicit AddressLine(QLabel &label) : m_label(label) {}

    /// The address, or the translation key of what is said while there is none.
    void setAddress(const QString &ip);
    /// Empty for none.
    void setName(const QString &name);
    QString address() const;
    QString name() const;
    /// Once a second.
    void tick();

private:
    QLabel &m_label;
    mutable QMutex m_mutex;
    QString m_strIp;
    QString m_strDeviceRename;
    unsigned m_ticks = 0;
    bool m_namePhase = true;
};
