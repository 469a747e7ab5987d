#include "emulator/emulator.h"

namespace
{
constexpr int lookMs = 20;
constexpr int restLooks = 3; ///< a panel that waits for its next tick is not at rest yet
constexpr const char *startedText = "init OK!";
constexpr const char *heardText = "StartComplate: 2";
} // namespace

Emulator::Emulator(StateFolder &stateFolder, QObject *parent)
    : QObject(parent), folder(stateFolder), keypad(stateFolder.path()), heldKeys(keypad),
      device(stateFolder.path()), recorder(keypad, device), bootFlag(stateFolder.path()),
      panel(stateFolder.path()), tools(stateFolder.path()), service(stateFolder, device),
      pushChannel(stateFolder), lcd(stateFolder.path()), screenText(stateFolder.path(), lcd),
      keyRules(keypad, screenText)
{
    m_look.setInterval(lookMs);
    connect(&m_look, &QTimer::timeout, this, &Emulator::lookIfReady);
    connect(&panel, &PanelProcess::line, this, [this](const LogLine &line) {
        m_started |= line.text.contains(startedText);
        m_heard |= line.text.contains(heardText);
    });
    connect(&panel, &PanelProcess::ended, this, [this] {
        m_look.stop();
        m_ready = false;
        heldKeys.forget();
    });
}

QString Emulator::open()
{
    QString fault = device.flash().install();
    if (fault.isEmpty())
        fault = tools.install();
    if (!fault.isEmpty())
        return fault;
    if (!keypad.setPresent(true) || !device.setBusUp(true) || !screenText.open())
        return "cannot open the sockets in " + folder.path();
    if (!service.open() || !pushChannel.open())
        return "cannot open the REST service";
    bootFlag.start();
    return QString();
}

void Emulator::startPanel()
{
    if (panel.isRunning())
        return;
    m_started = m_heard = m_ready = false;
    m_restingLooks = 0;
    folder.clearForStart();
    keypad.setLedsOff();
    panel.start();
    m_look.start();
}

void Emulator::lookIfReady()
{
    const quint64 changes = lcd.changes();
    const bool rests = changes == m_lcdChanges && !panel.isBusy();
    m_lcdChanges = changes;
    const bool informed = m_heard || !device.hasTold();
    m_restingLooks = m_started && informed && rests ? m_restingLooks + 1 : 0;
    if (m_restingLooks < restLooks)
        return;
    m_ready = true;
    m_look.stop();
    emit ready();
}
