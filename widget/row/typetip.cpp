#include "widget/row/typetip.h"

#include "framework/ui/language.h"
#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "menu/objectindex.h"
#include "widget/row/framedrow.h"

#include <QDebug>
#include <QHBoxLayout>
#include <QLabel>

namespace VASK
{
void typetip::CreatEntry()
{
    constexpr int iconSize = 16; // pixels, as all below
    constexpr int leftSpace = 8;
    QLabel *icon = createRowIcon(this, iconSize, iconSize);
    icon->setPixmap(QPixmap(imgPath + "mainMenu/prompt_icon.png"));
    m_text = new QLabel(this);
    m_text->setWordWrap(true);

    auto *layout = new QHBoxLayout(this);
    layout->setSpacing(0);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addSpacing(leftSpace);
    layout->addWidget(icon);
    layout->addSpacing(leftSpace);
    layout->addWidget(m_text, 1);
}

void typetip::draw()
{
    const bool english = englishChosen();
    m_text->setStyleSheet(english ? QStringLiteral("*{font-family: \"Arial\";font-size: 18px;color: #83818c;"
                                                   "background-color:rgba(0,0,0,0);}")
                                  : QStringLiteral("*{font-family: \"宋体\";font-size: 18px;color: #70739c;"
                                                   "background-color:rgba(0,0,0,0);}"));
    m_text->setText(translated(m_item.tag));
}

void typetip::takeValue(ENUM_MenuIndex, const QString &, ENUM_MODE_SET_XML)
{
    qDebug() << (englishChosen() ? "English" : "Chinese");
    redraw();
}
} // namespace VASK
