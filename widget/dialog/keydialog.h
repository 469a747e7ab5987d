// What the dialogs that are worked with the keypad share: every key holds off the return home and reaches
// one operation. GUI thread.
#pragma once

#include <QDialog>

namespace VASK
{
class KeypadEvent;
}

class KeyDialog : public QDialog
{
    Q_OBJECT
public:
    using QDialog::QDialog;

protected:
    /// Makes it a box without a frame over its parent, at that place of the LCD.
    void placeBox(const QRect &onScreen);
    bool event(QEvent *event) override;
    virtual void handleKey(const VASK::KeypadEvent &event) = 0;
};
