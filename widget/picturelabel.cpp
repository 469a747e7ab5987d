#include "widget/picturelabel.h"

#include <QHash>
#include <QPainter>
#include <QStyle>

namespace
{
QPixmap dimmed(const QPixmap &picture)
{
    constexpr double opacity = 0.4; // #b8b4cc becomes about the #54535c of disabled texts
    if (picture.isNull())
        return picture;
    QPixmap dim(picture.size());
    dim.fill(Qt::transparent);
    QPainter painter(&dim);
    painter.setOpacity(opacity);
    painter.drawPixmap(0, 0, picture);
    return dim;
}
} // namespace

QIcon dimmableIcon(const QString &path)
{
    // Rows ask with every value that they take. Kept for the life of the process, as the pictures are.
    static auto *icons = new QHash<QString, QIcon>;
    QIcon &icon = (*icons)[path];
    if (icon.isNull() && !path.isEmpty()) {
        const QPixmap picture(path);
        icon = QIcon(picture);
        icon.addPixmap(dimmed(picture), QIcon::Disabled);
    }
    return icon;
}

void PictureLabel::paintEvent(QPaintEvent *event)
{
    const QPixmap picture = pixmap(Qt::ReturnByValue);
    if (isEnabled() || picture.isNull()) {
        QLabel::paintEvent(event);
        return;
    }
    QPainter painter(this);
    drawFrame(&painter);
    style()->drawItemPixmap(&painter, contentsRect(), static_cast<int>(alignment()), dimmed(picture));
}
