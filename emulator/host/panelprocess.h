// The panel's process and its debug stream, which goes into the file panel.log of the state folder. Main
// thread.
#pragma once

#include "emulator/host/panellog.h"

#include <QProcess>

class PanelProcess : public QObject
{
    Q_OBJECT
public:
    explicit PanelProcess(const QString &stateFolder, QObject *parent = nullptr);
    ~PanelProcess() override;

    void start();
    /// The panel that speaks to the REST service, from the next start on.
    void useRest() { m_program = "/fpd-rest"; }
    /// Asks the process to end; after a while it is made to.
    void stop();
    void kill();
    bool isRunning() const { return m_process && m_process->state() != QProcess::NotRunning; }
    /// It has something to draw, or to read of what the device told.
    bool isBusy() const;

    /// The debug stream since the emulator's start.
    const PanelLog &log() const { return m_log; }
    /// How the last process ended, empty if it is running or was told to end.
    QString failure() const { return m_failure; }
    bool hasFailed() const { return !m_failure.isEmpty(); }
    /// Of all that were started, one has ended by itself.
    bool hasEverFailed() const { return m_everFailed; }
    /// "running", "stopped", or how it failed, such as "crashed with signal 11".
    QString status() const;

signals:
    void started();
    void line(const LogLine &line);
    void ended();

private:
    void readLines();
    void addLine(const QByteArray &text);
    void fail(const QString &how);
    void finish(int code, QProcess::ExitStatus status);

    QString m_stateFolder;
    QString m_program = "/fpd";
    QProcess *m_process = nullptr;
    QByteArray m_rest;
    PanelLog m_log;
    QString m_failure;
    bool m_told = false;
    bool m_everFailed = false;
};
