// The front of the device: LCD, keys with their LEDs, knob. Mouse, wheel and keyboard work it. Main thread.
#pragma once

#include "emulator/emulator.h"

#include <QHash>
#include <QWidget>

class KeyButton;
class Knob;
class QGridLayout;

class EmulatorWindow : public QWidget
{
public:
    explicit EmulatorWindow(Emulator &emulator);

protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    QLayout *knobColumn();
    QLayout *keyRows();
    KeyButton *button(const KeyName &key);
    void showLeds();
    /// The panel's key that a key of the PC's keyboard stands for, 0 if none.
    int panelKey(const QKeyEvent *event) const;
    void setKeyDown(int key, bool down);

    Emulator &m_emulator;
    Knob *m_knob;
    QHash<int, KeyButton *> m_buttons; ///< by key code
};
