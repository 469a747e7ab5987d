// The whole device around one panel: everything that the console and the window work with. Main thread.
#pragma once

#include "emulator/bus/device.h"
#include "emulator/device/heldkeys.h"
#include "emulator/device/keypad.h"
#include "emulator/device/keyrules.h"
#include "emulator/device/lcd.h"
#include "emulator/device/recorder.h"
#include "emulator/device/screentext.h"
#include "emulator/host/bootflag.h"
#include "emulator/host/panelprocess.h"
#include "emulator/host/shelltools.h"
#include "emulator/host/statefolder.h"
#include "emulator/service/pushchannel.h"
#include "emulator/service/restservice.h"

class Emulator : public QObject
{
    Q_OBJECT
public:
    /// The state folder has been taken and installed.
    explicit Emulator(StateFolder &folder, QObject *parent = nullptr);

    /// Opens the sockets. Empty, or what went wrong.
    QString open();
    /// As power-on: clears the flags and the LCD and starts the panel.
    void startPanel();
    /// The panel's start-up has ended, and the LCD shows what the device told at the panel's joining. A fiber
    /// converter shows nothing and is ready, too.
    bool isReady() const { return m_ready; }

    StateFolder &folder;
    Keypad keypad;
    HeldKeys heldKeys;
    Device device;
    Recorder recorder;
    BootFlag bootFlag;
    PanelProcess panel;
    ShellTools tools;
    RestService service;
    PushChannel pushChannel;
    Lcd lcd;
    ScreenText screenText;
    KeyRules keyRules;

signals:
    void ready();

private:
    void lookIfReady();

    bool m_started = false; ///< the log said that the start-up has ended
    bool m_heard = false;   ///< and that the panel has read the last of what the device tells at the start
    int m_restingLooks = 0; ///< how often in a row nothing was going on
    quint64 m_lcdChanges = 0;
    bool m_ready = false;
    QTimer m_look;
};
