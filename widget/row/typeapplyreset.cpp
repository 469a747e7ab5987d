#include "widget/row/typeapplyreset.h"

#include "framework/ui/language.h"
#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "menu/objectindex.h"
#include "widget/look.h"

#include <QHBoxLayout>
#include <QPushButton>

namespace VASK
{
namespace
{
constexpr int buttonWidth = 128; ///< pixels, where the item tells none
constexpr int buttonHeight = 32; ///< pixels
} // namespace

typeapplyreset::typeapplyreset(ENUM_MenuIndex menuIndex, ENUM_ObjectIndex objectIndex)
    : PartsRow(menuIndex, objectIndex)
{
    CreateMenuXml(nth(menuIndex, 1));
}

void typeapplyreset::CreatEntry()
{
    m_apply = new QPushButton(this);
    m_reset = new QPushButton(this);
    m_apply->setObjectName(m_item.tag);
    m_reset->setObjectName(secondItem().tag);
    const QStringList widths = m_item.pixValue.split(QLatin1Char('.'));
    int part = 0;
    for (QPushButton *button : {m_apply, m_reset}) {
        const int width = widths.size() == 2 ? widths.at(part).toInt() : 0;
        button->setFixedSize(width > 0 ? width : buttonWidth, buttonHeight);
        ++part;
    }
    setParts({m_apply, m_reset});

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addStretch();
    layout->addWidget(m_apply);
    layout->addStretch();
    layout->addWidget(m_reset);
    layout->addStretch();
}

ST_ItemInfo typeapplyreset::secondItem() const
{
    return storedItem(ENUM_MenuIndex(ownIndex() + 1));
}

void typeapplyreset::setTypeStyleSheet()
{
    const QString colour = look::ofText(m_item.enable);
    setStyleSheet(look::sheet("QPushButton:enabled{border:1px solid $focus;border-radius:4px;color:%1;"
                              "background-color:rgba(0,0,0,0); outline: none;}"
                              "QPushButton:disabled{border:1px solid $focus;border-radius:4px;color:%1;"
                              "background-color:rgba(0,0,0,0); outline: none;}"
                              "QPushButton:focus{background-color:$focus; color: %1; border:none; "
                              "outline: none;}")
                      .arg(colour));
}

void typeapplyreset::draw()
{
    m_apply->setText(translated(m_item.tag));
    m_reset->setText(translated(secondItem().tag));
    setTypeStyleSheet();
}

void typeapplyreset::EnterEntry(ENUM_MenuIndex index)
{
    if (logEnter(index))
        act(itemOfPart(index));
}

void typeapplyreset::takeValue(ENUM_MenuIndex, const QString &, ENUM_MODE_SET_XML)
{
    redraw();
}
} // namespace VASK
