// The actions on a preset: up to four pictures of which the knob chooses one and OK takes it. Its owner makes
// it for a preset, runs it and acts on the result; GUI thread.
#pragma once

#include "widget/dialog/keydialog.h"

#include <QStringList>
#include <array>
#include <memory>

class Ui_Dialog_scene;

class Dialog_scene : public KeyDialog
{
    Q_OBJECT
public:
    /// title and names are translation keys, icons paths of the resources. disabled: the numbers of the
    /// actions that cannot be chosen, joined with "."; first: the action that has the focus, 1 to 4.
    Dialog_scene(QWidget *parent, const QString &title, const QString &icon1, const QString &name1,
                 const QString &icon2, const QString &name2, const QString &icon3, const QString &name3,
                 const QString &icon4, const QString &name4, QString disabled, unsigned char first);
    ~Dialog_scene() override;

    /// Shows the dialog and waits for its end: the action that OK took, 1 to 4. Everything else gives 0, also
    /// an end that did not come from a key, whatever its result.
    int exec() override;

protected:
    void handleKey(const VASK::KeypadEvent &event) override;
    void changeEvent(QEvent *event) override;

private:
    static constexpr int actionCount = 4;

    void setDialogStyleSheet();
    void showTexts();
    void shieldActions();
    void setCurrentFocus();
    void keypadRotateLeftEvent(int speed);
    void keypadRotateRightEvent(int speed);
    /// Moves to the action, or from an end round to the other and past those that are off.
    void moveTo(int action, int step, int otherEnd);
    bool isOffered(int action) const;
    void finish(int result);

    std::unique_ptr<Ui_Dialog_scene> ui;
    QString m_title;
    std::array<QString, actionCount> m_names;
    QStringList m_shieldList;
    std::array<bool, actionCount> m_enabled{true, true, true, true};
    int m_currentItem = 1;
    int m_result = 0;
};
