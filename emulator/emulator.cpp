#include "emulator/emulator.h"

namespace
{
constexpr int lookMs = 20;
constexpr const char *startedText = "init OK!";
} // namespace

Emulator::Emulator(StateFolder &stateFolder, QObject *parent)
    : QObject(parent), folder(stateFolder), keypad(stateFolder.path()), device(stateFolder.path()),
      recorder(keypad, device), bootFlag(stateFolder.path()), panel(stateFolder.path()),
      tools(stateFolder.path()), lcd(stateFolder.path())
{
    m_look.setInterval(lookMs);
    connect(&m_look, &QTimer::timeout, this, &Emulator::lookIfReady);
    connect(&panel, &PanelProcess::line, this, [this](const QString &line) {
        m_started |= line.contains(QLatin1String(startedText));
        lookIfReady();
    });
    connect(&panel, &PanelProcess::ended, this, [this] {
        m_look.stop();
        m_ready = false;
    });
}

QString Emulator::open()
{
    QString fault = device.flash().install();
    if (fault.isEmpty())
        fault = tools.install();
    if (!fault.isEmpty())
        return fault;
    if (!keypad.setPresent(true) || !device.setBusUp(true))
        return "cannot open the sockets in " + folder.path();
    bootFlag.start();
    return QString();
}

void Emulator::startPanel()
{
    if (panel.isRunning())
        return;
    m_started = m_ready = false;
    folder.clearForStart();
    keypad.setLedsOff();
    panel.start();
    m_look.start();
}

void Emulator::lookIfReady()
{
    if (m_ready || !m_started || lcd.changes() == 0)
        return;
    m_ready = true;
    m_look.stop();
    emit ready();
}
