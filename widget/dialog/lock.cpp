#include "widget/dialog/lock.h"

#include "framework/object/transport.h"
#include "framework/ui/language.h"
#include "menu/objectindex.h"
#include "menuconfig_k2860.h"
#include "widget/look.h"

#include <QDebug>
#include <QLabel>

using namespace VASK;

namespace
{
constexpr QRect windowOnScreen(QPoint(90, 71), QPoint(229, 168)); ///< pixels, as all below
constexpr QRect picturePlace(46, 10, 48, 48);
constexpr QRect textPlace(4, 62, 132, 28);
} // namespace

Lock::Lock(QWidget *parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("Lock"));
    setModal(false);
    labPic = new QLabel(this);
    labPic->setObjectName(QStringLiteral("labPic"));
    labPic->setAlignment(Qt::AlignCenter);
    labPic->setGeometry(picturePlace);
    labTip = new QLabel(this);
    labTip->setObjectName(QStringLiteral("labTip"));
    labTip->setStyleSheet(QStringLiteral("font: 14pt \"Arial\";"));
    labTip->setAlignment(Qt::AlignCenter);
    labTip->setGeometry(textPlace);

    // Without the window kind it becomes a part of its parent: the keys stay with the home screen.
    setWindowFlags(Qt::FramelessWindowHint);
    setGeometry(windowOnScreen);
    SetBackGroundImg(QStringLiteral(":/resource/image/mainWindow/dialog_lock_bg.png"), this);
    setTextStyle();
}

void Lock::setTextStyle()
{
    if (!poolObject<transport>(ENUM_TRANSPORT)) {
        qDebug() << "transport init fail!";
        return;
    }
    // On the labels alone: on the window itself the transparent background would replace its picture.
    const QString style = look::sheet("*{font-family: \"%1\";font-size: 16px;color: $text;"
                                      "background-color:rgba(0,0,0,0);}")
                              .arg(fontFamily());
    labPic->setStyleSheet(style);
    labTip->setStyleSheet(style);
}

void Lock::SetLockState(bool locked)
{
    const QPixmap picture(imgPath + (locked ? QStringLiteral("mainWindow/dialog_lock_on.png")
                                            : QStringLiteral("mainWindow/dialog_lock_off.png")));
    if (picture.isNull())
        qDebug() << "lock Image set faild!";
    else
        labPic->setPixmap(picture);
    labTip->setText(translated(locked ? QStringLiteral("Locked") : QStringLiteral("Unlocked")));
}

void Lock::SetBackGroundImg(QString path, QWidget *w)
{
    const QPixmap picture(path);
    if (picture.isNull()) {
        qDebug() << "image load faild! imagePath:" << path;
        return;
    }
    QPalette palette = w->palette();
    palette.setBrush(QPalette::Window, QBrush(picture.scaled(w->size())));
    w->setPalette(palette);
    w->setAutoFillBackground(true);
}
