// What a message box shows: its text above a row of two buttons. GUI thread.
#pragma once

class QHBoxLayout;
class QLabel;
class QPushButton;
class QWidget;

class Ui_dialog_msgBox
{
public:
    void setupUi(QWidget *dialog);

    QWidget *centerWidget = nullptr;
    QLabel *lab_Info = nullptr;
    QWidget *horizontalLayoutWidget = nullptr;
    QHBoxLayout *horizontalLayout = nullptr;
    QPushButton *btnYes = nullptr;
    QPushButton *btnNo = nullptr;
};
