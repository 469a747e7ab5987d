#include "emulator/host/panelprocess.h"

#include "fpd_hostthreads.h"

#include <QCoreApplication>
#include <QTimer>
#include <csignal>
#include <fcntl.h>
#include <sys/prctl.h>
#include <unistd.h>

namespace
{
constexpr int gentleEndMs = 3000;
constexpr int longestLine = 1024 * 1024; ///< bytes; a longer one is taken in pieces

/// Of unread log, so that a panel with much to say need not wait for a busy emulator.
constexpr int pipeBytes = 1024 * 1024;

/// A panel that ends with the emulator, even when that is killed.
class Child : public QProcess
{
public:
    using QProcess::QProcess;

protected:
    void setupChildProcess() override
    {
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        fcntl(STDERR_FILENO, F_SETPIPE_SZ, pipeBytes);
    }
};

QProcessEnvironment panelEnvironment(const QString &stateFolder)
{
    const QString build = QCoreApplication::applicationDirPath() + "/..";
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("FPD_STATE", stateFolder);
    environment.insert("QT_QPA_PLATFORM", "panellcd");
    environment.insert("QT_QPA_PLATFORM_PLUGIN_PATH", build + "/plugins/platforms");
    environment.insert("FONTCONFIG_FILE", build + "/share/fonts.conf");
    environment.insert("QT_ASSUME_STDERR_HAS_CONSOLE", "1");
    environment.insert("LC_ALL", "C.UTF-8");
    // The desktop's settings must not change what the LCD shows.
    for (const char *name : {"QT_SCALE_FACTOR", "QT_STYLE_OVERRIDE", "QT_QPA_PLATFORMTHEME", "QT_FONT_DPI",
                             "QT_AUTO_SCREEN_SCALE_FACTOR", "QT_SCREEN_SCALE_FACTORS",
                             "QT_ENABLE_HIGHDPI_SCALING", "QT_LOGGING_RULES", "QT_MESSAGE_PATTERN"})
        environment.remove(name);
    return environment;
}
} // namespace

PanelProcess::PanelProcess(const QString &stateFolder, QObject *parent)
    : QObject(parent), m_stateFolder(stateFolder), m_log(stateFolder + "/panel.log")
{
}

PanelProcess::~PanelProcess()
{
    if (!m_process)
        return;
    m_process->disconnect(this);
    m_process->terminate();
    if (!m_process->waitForFinished(gentleEndMs))
        m_process->kill();
    m_process->waitForFinished(gentleEndMs);
}

void PanelProcess::start()
{
    if (isRunning())
        return;
    delete m_process;
    m_failure.clear();
    m_told = false;
    m_process = new Child(this);
    m_process->setProcessChannelMode(QProcess::MergedChannels);
    m_process->setInputChannelMode(QProcess::ManagedInputChannel);
    m_process->setProcessEnvironment(panelEnvironment(m_stateFolder));
    connect(m_process, &QProcess::readyRead, this, &PanelProcess::readLines);
    connect(m_process, &QProcess::started, this, &PanelProcess::started);
    connect(m_process, qOverload<int, QProcess::ExitStatus>(&QProcess::finished), this,
            &PanelProcess::finish);
    connect(m_process, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart) {
            fail(m_process->errorString());
            emit ended();
        }
    });
    m_process->start(QCoreApplication::applicationDirPath() + "/../bin" + m_program, QStringList());
    m_process->closeWriteChannel();
}

bool PanelProcess::isBusy() const
{
    if (!isRunning())
        return false;
    for (const char *thread : {"fpd", "reports"})
        if (threads::isBusy(m_process->processId(), thread))
            return true;
    return false;
}

QString PanelProcess::status() const
{
    return isRunning() ? "running" : hasFailed() ? m_failure : "stopped";
}

void PanelProcess::fail(const QString &how)
{
    m_failure = how;
    m_everFailed = true;
}

void PanelProcess::stop()
{
    if (!isRunning())
        return;
    m_told = true;
    m_process->terminate();
    QTimer::singleShot(gentleEndMs, m_process, [process = m_process] { process->kill(); });
}

void PanelProcess::kill()
{
    if (!isRunning())
        return;
    m_told = true;
    m_process->kill();
}

void PanelProcess::readLines()
{
    m_rest += m_process->readAll();
    int from = 0;
    for (int end = m_rest.indexOf('\n'); end >= 0; end = m_rest.indexOf('\n', from)) {
        addLine(m_rest.mid(from, end - from));
        from = end + 1;
    }
    m_rest.remove(0, from);
    for (; m_rest.size() > longestLine; m_rest.remove(0, longestLine))
        addLine(m_rest.left(longestLine));
    m_log.flush();
}

void PanelProcess::addLine(const QByteArray &text)
{
    m_log.add(text);
    emit line(m_log.lines().back());
}

void PanelProcess::finish(int code, QProcess::ExitStatus status)
{
    readLines();
    if (!m_rest.isEmpty())
        addLine(m_rest);
    m_log.flush();
    m_rest.clear();
    if (!m_told)
        fail(status == QProcess::CrashExit ? QString("crashed with signal %1").arg(code)
                                           : QString("ended with status %1").arg(code));
    emit ended();
}
