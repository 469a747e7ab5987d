// The hand-over at start: the panel creates one flag file, and the device answers with the other, after a
// while or, told so, never. Main thread.
#pragma once

#include <QFileSystemWatcher>
#include <QObject>
#include <QTimer>

constexpr const char *panelReadyFlag = "/etc/init.d/flag_fpdspi";
constexpr const char *deviceReadyFlag = "/etc/init.d/flag_fpgaspi";

class BootFlag : public QObject
{
    Q_OBJECT
public:
    explicit BootFlag(const QString &stateFolder, QObject *parent = nullptr);

    /// Watches for the panel's flag from now on.
    void start();
    void setDelay(int milliseconds) { m_delay.setInterval(milliseconds); }
    /// Withheld, the answer waits until it is no longer.
    void setWithheld(bool withheld);

private:
    void look();
    void answer();

    QString m_stateFolder;
    QFileSystemWatcher m_watcher;
    QTimer m_delay;
    bool m_withheld = false;
};
