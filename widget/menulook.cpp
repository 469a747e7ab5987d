#include "widget/menulook.h"

#include "menuconfig_k2860.h"

#include <QDebug>
#include <QFile>

namespace VASK
{
QString menuTitleStyle(bool english, int pixels)
{
    return english ? QString("font-family: \"Arial\";font-size: %1px;color: #83818c;").arg(pixels)
                   : QString("font-family: \"宋体\";font-size: %1px;color: #70739c;").arg(pixels);
}

const QString &menuScrollBarStyle()
{
    static const QString style = [] {
        QFile file(":/resource/qss/VerticalBar.qss");
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }();
    return style;
}

const QPixmap &menuBackground()
{
    static const QPixmap picture = [] {
        const QString path = imgPath + "mainMenu/menu_bg.png";
        QPixmap loaded(path);
        if (loaded.isNull())
            qDebug() << "Set Back Ground faild! path:" << path;
        return loaded;
    }();
    return picture;
}
} // namespace VASK
