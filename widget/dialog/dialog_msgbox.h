// The one message box of the program: a text and at most two buttons, worked with the knob, OK and ESC. Its
// owner makes it from a row of the message table, runs it and deletes it; GUI thread.
#pragma once

#include "menu/menutypes.h"
#include "widget/dialog/keydialog.h"

#include <memory>

class Ui_dialog_msgBox;

class dialog_msgBox : public KeyDialog
{
    Q_OBJECT
public:
    /// message is a translation key; extra stands behind its translation. timeMs counts for MSGBOX_TIMED
    /// only.
    dialog_msgBox(QWidget *parent, const QString &message, VASK::ENUM_MsgBoxBtnType type, unsigned int timeMs,
                  const QString &extra);
    ~dialog_msgBox() override;

    /// Shows the box and waits for its end: 1 confirmed, 0 refused, 2 left without an answer.
    int exec() override;

public slots:
    /// The time of a timed box is over.
    void slot_CloseDialog();

protected:
    void handleKey(const VASK::KeypadEvent &event) override;
    /// The language has changed: texts and style again.
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    /// The box goes, and with it the keys that were typed in front of one that takes none.
    void hideEvent(QHideEvent *event) override;

private:
    void setDialogStyleSheet();
    void showTexts();
    void initBtns();
    bool takesAnswers() const;
    /// OK: the answer of the button that has the focus.
    void finishDialog();
    /// ESC or the end of the time: the answer of nobody.
    void ExitDialog();

    std::unique_ptr<Ui_dialog_msgBox> ui;
    QString strMessage;
    QString strExtra;
    VASK::ENUM_MsgBoxBtnType m_type;
    unsigned int m_timeMs;
};
