// The panel's process and its debug stream. The stream is kept in memory for the console and in the file
// panel.log of the state folder. Main thread.
#pragma once

#include <QFile>
#include <QProcess>
#include <QStringList>

class PanelProcess : public QObject
{
    Q_OBJECT
public:
    explicit PanelProcess(const QString &stateFolder, QObject *parent = nullptr);
    ~PanelProcess() override;

    void start();
    /// Asks the process to end; after a while it is made to.
    void stop();
    void kill();
    bool isRunning() const { return m_process && m_process->state() != QProcess::NotRunning; }

    /// The debug stream since the emulator's start, oldest first.
    const QStringList &log() const { return m_log; }
    /// How the last process ended, empty if it is running or was told to end.
    QString failure() const { return m_failure; }

signals:
    void started();
    void line(const QString &text);
    void ended();

private:
    void readLines();
    void addLine(const QByteArray &text);
    void finish(int code, QProcess::ExitStatus status);

    QString m_stateFolder;
    QProcess *m_process = nullptr;
    QByteArray m_rest;
    QStringList m_log;
    QFile m_file;
    QString m_failure;
    bool m_told = false;
};
