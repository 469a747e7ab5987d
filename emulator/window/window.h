// The front of the device: LCD, keys with their LEDs, knob, power switch. Mouse, wheel and keyboard work it.
// Main thread.
#pragma once

#include "emulator/emulator.h"

#include <QHash>
#include <QWidget>

class HelpSheet;
class KeyButton;
class Keyboard;
class Knob;
class LcdView;
class PowerSwitch;
class Pushable;
class QBoxLayout;
class QGridLayout;
class QLabel;

class EmulatorWindow : public QWidget
{
public:
    explicit EmulatorWindow(Emulator &emulator);

    /// Before the application is made: the LCD's pixels on the pixels of any screen.
    static void prepareApplication();

    static constexpr int smallestZoom = 1, largestZoom = 4;
    /// Pixels of the screen to a pixel of the LCD; the rest grows with it.
    void setZoom(int zoom);

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    QLayout *topRow();
    QLayout *keyRows();
    KeyButton *button(const KeyName &key);
    void connectKey(Pushable *key, int code);
    void connectPanel();

    void showLeds();
    void showPanelState();
    /// At the lower edge, for a while.
    void tell(const QString &text);
    void showHint();

    void showKey(int key, bool down);
    void releaseAll();
    /// Keys of the window itself; false if it is none.
    bool command(const QKeyEvent *event);
    bool zoomCommand(const QKeyEvent *event);

    void togglePower();
    void startPanel();
    void savePicture();
    void toggleRecording();

    Emulator &m_emulator;
    int m_zoom = 0;
    LcdView *m_lcd;
    Knob *m_knob;
    PowerSwitch *m_power;
    Keyboard *m_keyboard;
    HelpSheet *m_help;
    QLabel *m_status;
    QTimer m_told;
    QBoxLayout *m_rows;
    QBoxLayout *m_top;
    QGridLayout *m_grid;
    QHash<int, KeyButton *> m_buttons; ///< by key code
};
