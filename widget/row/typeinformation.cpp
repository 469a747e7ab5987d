#include "widget/row/typeinformation.h"

#include "framework/ui/language.h"
#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "menu/objectindex.h"
#include "widget/elidinglabel.h"
#include "widget/picturelabel.h"
#include "widget/row/framedrow.h"
#include "widget/row/valuelabel.h"

#include <QHBoxLayout>
#include <QPushButton>

namespace VASK
{
void typeinformation::CreatEntry()
{
    constexpr int iconSize = 24; // pixels, as all below
    constexpr int spaceBehindIcon = 10;
    constexpr int spaceBehindName = 6;
    constexpr int spaceBeforeRight = 6;
    m_icon = createRowIcon(this, iconSize, iconSize);
    m_name = new ElidingLabel(this);
    m_name->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_value = new ValueLabel(Qt::AlignLeft | Qt::AlignVCenter, this);
    m_rightButton = createRightPicture(this);

    auto *layout = new QHBoxLayout(this);
    layout->setSpacing(0);
    layout->setContentsMargins(8, 0, 10, 0);
    layout->addWidget(m_icon);
    if (!m_item.icon.isEmpty())
        layout->addSpacing(spaceBehindIcon);
    layout->addWidget(m_name);
    layout->addSpacing(spaceBehindName);
    layout->addStretch();
    layout->addWidget(m_value);
    if (!m_item.iconRight.isEmpty())
        layout->addSpacing(spaceBeforeRight);
    layout->addWidget(m_rightButton);
}

void typeinformation::draw()
{
    m_icon->setVisible(!m_item.icon.isEmpty());
    m_icon->setPixmap(QPixmap(m_item.icon));
    m_rightButton->setVisible(!m_item.iconRight.isEmpty());
    m_rightButton->setIcon(dimmableIcon(m_item.iconRight));
    m_name->setText(translated(m_item.tag));
    m_value->setText(translated(m_item.value));
}

void typeinformation::takeValue(ENUM_MenuIndex, const QString &value, ENUM_MODE_SET_XML)
{
    if (!value.isEmpty())
        m_item.value = value;
    redraw();
}
} // namespace VASK
