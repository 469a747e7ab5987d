// The front of the device: LCD, keys with their LEDs, knob. Mouse, wheel and keyboard work it. Main thread.
#pragma once

#include "emulator/emulator.h"

#include <QHash>
#include <QSet>
#include <QWidget>

class KeyButton;
class Knob;

class EmulatorWindow : public QWidget
{
public:
    explicit EmulatorWindow(Emulator &emulator);

protected:
    bool event(QEvent *event) override;
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
    /// From the mouse or the PC's keyboard; a key that is as it shall be stays alone.
    void setKeyDown(int key, bool down);
    void releaseAll();

    Emulator &m_emulator;
    Knob *m_knob;
    QSet<int> m_held;
    QHash<int, KeyButton *> m_buttons; ///< by key code
};
