#include "widget/row/typecheckitem.h"
#include "menu/itemindex.h"
#include "menu/objectindex.h"

#include <QLabel>
#include <QPushButton>

namespace VASK
{
void typecheckitem::CreatEntry()
{
    constexpr int tickSize = 24; // pixels
    m_tick = createRowIcon(this, tickSize, tickSize);
    createFrame(m_tick, 0);
}

void typecheckitem::EnterEntry(ENUM_MenuIndex index)
{
    ensureBuilt();
    // The change to a sending card takes long: the user sees at once that the key was taken.
    const bool first = index == MENU_SendingCard;
    m_item.choice = SELECTED;
    if (first)
        showTick();
    act(index);
    m_item.choice = SELECTED;
    if (!first)
        showTick();
}

void typecheckitem::draw()
{
    FramedRow::draw();
    rightButton()->hide();
    showTick();
}

void typecheckitem::showTick()
{
    m_tick->setPixmap(QPixmap(m_item.iconRight));
    m_tick->setVisible(m_item.choice == SELECTED);
}
} // namespace VASK
