#include "widget/dialog/dialog_wait.h"

#include "framework/input/keydispatcher.h"

#include <QLabel>
#include <QTimer>

namespace
{
constexpr QRect wholeScreen(0, 0, 320, 240); ///< pixels, as below
constexpr QRect textPlace(QPoint(0, 110), QPoint(319, 129));
} // namespace

Dialog_Wait::Dialog_Wait(QWidget *parent, const QString &name, const QString &text) : QDialog(parent)
{
    setObjectName(name);
    setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint);
    setGeometry(wholeScreen);
    setFont(QFont(QStringLiteral("Arial")));
    setStyleSheet(QStringLiteral("background-color: rgb(3, 17, 66);"));
    auto *label = new QLabel(text, this);
    label->setObjectName(QStringLiteral("label"));
    label->setGeometry(textPlace);
    label->setStyleSheet(QStringLiteral("color: rgb(153, 153, 153); font-size:18px;"));
    label->setAlignment(Qt::AlignCenter);
}

int Dialog_Wait::exec()
{
    QTimer::singleShot(timeMs, this, &Dialog_Wait::slot_CloseDialog);
    return QDialog::exec();
}

void Dialog_Wait::slot_CloseDialog()
{
    done(timeOver);
    VASK::KeyDispatcher::forgetTyped(); // meant for nobody, as the text says
}

Dialog_Wait_Chinese::Dialog_Wait_Chinese(QWidget *parent)
    : Dialog_Wait(parent, QStringLiteral("Dialog_Wait_Chinese"), QStringLiteral("请稍等..."))
{
}

Dialog_Wait_English::Dialog_Wait_English(QWidget *parent)
    : Dialog_Wait(parent, QStringLiteral("Dialog_Wait_English"), QStringLiteral("Please wait..."))
{
}
