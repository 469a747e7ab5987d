// Asks the user to wait for a second, while the panel goes over to another language. There is one for each
// language, as the texts of neither can be relied on meanwhile. The owner runs it with exec(); GUI thread.
#pragma once

#include <QDialog>

class Dialog_Wait : public QDialog
{
    Q_OBJECT
public:
    /// How long it stays, milliseconds.
    static constexpr int timeMs = 1000;
    /// What exec() gives.
    static constexpr int timeOver = 2;

    int exec() override;

public slots:
    /// The time is over.
    void slot_CloseDialog();

protected:
    Dialog_Wait(QWidget *parent, const QString &name, const QString &text);
};

class Dialog_Wait_Chinese : public Dialog_Wait
{
    Q_OBJECT
public:
    explicit Dialog_Wait_Chinese(QWidget *parent = nullptr);
};

class Dialog_Wait_English : public Dialog_Wait
{
    Q_OBJECT
public:
    explicit Dialog_Wait_English(QWidget *parent = nullptr);
};
