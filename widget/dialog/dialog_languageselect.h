// Asks for the language of the panel, in both languages at once, as it can stand in front of either. A
// language must be chosen: ESC does not close it. Its owner runs it with exec(); GUI thread.
#pragma once

#include "widget/dialog/keydialog.h"

class QPushButton;

class dialog_languageSelect : public KeyDialog
{
    Q_OBJECT
public:
    /// What exec() gives; any other result is nobody's answer.
    enum Result { CHINESE = 0, ENGLISH = 1 };

    explicit dialog_languageSelect(QWidget *parent = nullptr);

protected:
    void handleKey(const VASK::KeypadEvent &event) override;

private:
    QPushButton *createButton(const QString &name, const QString &text, const QRect &place);
    /// OK: the language of the button that has the focus.
    void finishDialog();

    QPushButton *btn_CH = nullptr;
    QPushButton *btn_EN = nullptr;
};
