// The small window that tells that the keys of the panel have been locked or unlocked; whoever locks them
// shows and hides it. It lies on the home screen, which keeps receiving the keys. GUI thread.
#pragma once

#include <QDialog>

class QLabel;

class Lock : public QDialog
{
    Q_OBJECT
public:
    explicit Lock(QWidget *parent);

    /// Picture and text of the state, in the present language. The style stays that of the language in which
    /// the window was made.
    void SetLockState(bool locked);
    /// A picture of the resources as the background of a widget.
    void SetBackGroundImg(QString path, QWidget *w);

private:
    void setTextStyle();

    QLabel *labPic = nullptr;
    QLabel *labTip = nullptr;
};
