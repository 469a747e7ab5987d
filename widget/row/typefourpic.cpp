#include "widget/row/typefourpic.h"

#include "menu/itemindex.h"
#include "menu/itemvalue.h"
#include "menu/menutypes.h"
#include "menu/objectindex.h"
#include "widget/look.h"
#include "widget/picturelabel.h"

#include <QDebug>
#include <QHBoxLayout>
#include <QLabel>

namespace VASK
{
void typefourpic::CreatEntry()
{
    constexpr QSize partSize(74, 46); // pixels, as all below
    constexpr int pictureLeft = 17;
    setStyleSheet(
        look::sheet("QWidget:focus{background-color:$focus; }QWidget{background-color:rgba(0,0,0,0); }"));
    auto *layout = new QHBoxLayout(this);
    layout->setSpacing(1);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addStretch();
    QList<QWidget *> parts;
    for (QLabel *&picture : m_pictures) {
        auto *part = new QWidget(this);
        part->setAttribute(Qt::WA_StyledBackground);
        part->setFixedSize(partSize);
        part->setProperty("canSelected", true);
        picture = new PictureLabel(part);
        picture->setGeometry(pictureLeft, 0, partSize.width() - 2 * pictureLeft, partSize.height());
        picture->setAlignment(Qt::AlignCenter);
        layout->addWidget(part);
        parts << part;
    }
    layout->addStretch();
    setParts(parts);
}

void typefourpic::draw()
{
    for (int i = 0; i < pictureCount; ++i) {
        const bool on = isOn(m_item.pixValue.mid(i, 1));
        m_pictures[i]->setPixmap(QPixmap(QStringLiteral("%1imageControl/custom/custom%2_%3.png")
                                             .arg(imgPath)
                                             .arg(i + 1)
                                             .arg(on ? QStringLiteral("on") : QStringLiteral("off"))));
    }
}

void typefourpic::EnterEntry(ENUM_MenuIndex index)
{
    if (logEnter(index))
        act(index);
}

void typefourpic::takeValue(ENUM_MenuIndex, const QString &, ENUM_MODE_SET_XML)
{
    qDebug() << "typefourpic::SetParaEntry";
    const int part = m_item.value.toInt();
    if (part >= 1 && part <= pictureCount && setfocus(part))
        m_currentItem = part;
    redraw();
}
} // namespace VASK
