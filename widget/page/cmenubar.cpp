#include "widget/page/cmenubar.h"

namespace VASK
{
CMenuBar::CMenuBar(QString picture, QString text, QWidget *parent) : QWidget(parent)
{
    auto *pictureLabel = new QLabel(this);
    pictureLabel->setPixmap(QPixmap(picture));
    auto *textLabel = new QLabel(QCoreApplication::translate("MainWindow", text.toUtf8().constData()), this);
    auto *layout = new QHBoxLayout(this);
    layout->addWidget(pictureLabel);
    layout->addWidget(textLabel, 1);
}
} // namespace VASK
