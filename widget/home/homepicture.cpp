#include "widget/home/homepicture.h"

#include "menuconfig_k2860.h"

#include <QDebug>
#include <QLabel>

QString homePicturePath(const QString &file)
{
    return VASK::imgPath + "mainWindow/" + file;
}

bool showHomePicture(QLabel *label, const QString &file, const char *failure)
{
    const QString path = homePicturePath(file);
    const QPixmap picture(path);
    if (picture.isNull()) {
        qDebug() << failure << path;
        return false;
    }
    label->setPixmap(picture);
    return true;
}
