#include "widget/row/framedrow.h"

#include "framework/thread/handover.h"
#include "framework/ui/language.h"
#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "widget/elidinglabel.h"
#include "widget/picturelabel.h"
#include "widget/row/valuelabel.h"

#include <QHBoxLayout>
#include <QPushButton>

namespace VASK
{
namespace
{
constexpr int iconSize = 24; ///< pixels, as all below
constexpr int rowHeight = 36;
constexpr int leftSpace = 8;
constexpr int iconSpace = 4;
constexpr int nameGap = 6;
constexpr int rightMargin = 8;
} // namespace

QPushButton *createRightPicture(QWidget *parent)
{
    constexpr QSize size(8, 16);
    auto *button = new QPushButton(parent);
    button->setFixedSize(size);
    button->setIconSize(size);
    button->setFlat(true);
    button->setFocusPolicy(Qt::NoFocus);
    return button;
}

QLabel *createRowIcon(QWidget *parent, int width, int height)
{
    auto *label = new PictureLabel(parent);
    label->setFixedSize(width, height);
    label->setAlignment(Qt::AlignCenter);
    return label;
}

ValueLabel *FramedRow::createValueLabel()
{
    m_value = new ValueLabel(Qt::AlignRight | Qt::AlignVCenter, this);
    return m_value;
}

ValueLabel *FramedRow::valueLabel()
{
    ensureBuilt();
    return m_value;
}

void FramedRow::createFrame(QWidget *valuePart, int spaceBeforeRight)
{
    // The gap belongs to the icon, so that it comes and goes with it.
    m_icon = createRowIcon(this, iconSize + iconSpace, iconSize);
    m_icon->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_name = new ElidingLabel(this);
    m_rightButton = createRightPicture(this);

    auto *layout = new QHBoxLayout(this);
    layout->setSpacing(0);
    layout->setContentsMargins(0, 0, rightMargin, 0);
    layout->addSpacing(leftSpace);
    layout->addWidget(m_icon);
    layout->addWidget(m_name);
    // The gap takes what name and value leave; a shortened name still ends in front of the value.
    layout->addSpacerItem(
        new QSpacerItem(nameGap, rowHeight, QSizePolicy::MinimumExpanding, QSizePolicy::Minimum));
    if (valuePart)
        layout->addWidget(valuePart);
    layout->addSpacing(spaceBeforeRight);
    layout->addWidget(m_rightButton);
}

void FramedRow::drawIcons()
{
    m_icon->setVisible(!m_item.icon.isEmpty());
    const QString icon = iconPath();
    if (m_drawnIcon != icon)
        m_icon->setPixmap(QPixmap(icon));
    m_drawnIcon = icon;
    m_rightButton->setIcon(dimmableIcon(m_item.iconRight));
}

void FramedRow::drawName()
{
    m_name->setText(translated(m_item.tag));
}

QString FramedRow::iconPath() const
{
    return m_item.icon;
}

QString FramedRow::valueText() const
{
    return translated(m_item.value);
}

void FramedRow::showValue(const QString &text)
{
    if (m_value)
        m_value->setText(text);
}

void FramedRow::draw()
{
    drawIcons();
    drawName();
    showValue(valueText());
}

void FramedRow::UpdateTagName(ENUM_MenuIndex, QString text)
{
    runOnGui(this, [=] {
        m_item.tag = text;
        if (isBuilt())
            drawName();
    });
}

void FramedRow::takeValue(ENUM_MenuIndex, const QString &value, ENUM_MODE_SET_XML)
{
    if (!value.isEmpty())
        m_item.value = value;
    redraw();
}
} // namespace VASK
