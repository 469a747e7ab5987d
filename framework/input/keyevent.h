// The keypad thread: reads key words from the keypad device, tells presses, releases, long presses and chords
// apart and hands each as a KeypadEvent to the active window. Also the one door to the 16 LEDs behind the
// keys.
#pragma once

#include "framework/input/keypadevent.h"
#include "framework/input/keytracker.h"
#include "framework/input/ledstatus.h"
#include "framework/input/panelleds.h"

#include <QList>
#include <QThread>
#include <memory>

class QApplication;

namespace VASK
{
class KeyDispatcher;

class KeyEvent : public QThread
{
    Q_OBJECT
public:
    /// The singleton. The first call creates it, starts the timer thread and clears the LEDs; it comes from
    /// main.
    static KeyEvent *getInstance();
    ~KeyEvent() override;

    /// Opens the keypad device. False for a null application or without a device: the program then runs
    /// without keys. GUI thread.
    bool InitKeyDriver(QApplication *application);

    /// The LED commands, from any thread: 0, or 1 when the device refuses. Before InitKeyDriver they do
    /// nothing.
    /// @{
    /// Clears both LED lists and starts the blinking.
    static void InitLedStatus();
    /// Sets an LED; while a special mode has the LEDs, for the time after it only.
    static int SendLedCommand(unsigned char led, enLedStatus state);
    /// Shows a state without remembering it: a short flash over the stored one.
    static int SendLedCommandOnce(unsigned char led, enLedStatus state);
    /// Sets an LED also while a special mode has the LEDs: for the factory test.
    static int SendLedCommandTest(unsigned char led, enLedStatus state);
    /// One command for all entries that have the given state or blink.
    static int SendLedBitMap(enLedStatus state, QList<LedStatus> list);
    /// Gives the LEDs over to the factory test, all off.
    static void LightAllOff();
    /// Gives the LEDs over to the fiber converter mode, all off, and takes them back.
    static void LightFiber(bool on);
    /// @}

protected:
    void run() override;

private:
    KeyEvent();

    void handleWord(unsigned char key, unsigned char speed);
    void post(KEY_TYPE type, unsigned char key, unsigned char speed, bool longPress);
    static void OnTimerLedEvent(int id, void *argument);

    static PanelLeds &leds();

    QApplication *m_pApplication = nullptr;
    std::unique_ptr<KeyDispatcher> m_dispatcher;
    KeyTracker m_keys;
    int m_descriptor = -1;
};
} // namespace VASK
