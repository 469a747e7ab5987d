#include "widget/row/typebutton.h"
#include "menu/itemindex.h"
#include "menu/objectindex.h"
#include "widget/row/valuelabel.h"

namespace VASK
{
void typebutton::CreatEntry()
{
    createFrame(createValueLabel());
}

/// The picture of a preset tells whether it is loaded: an empty one has none.
QString typebutton::iconPath() const
{
    const bool isPreset = ownIndex() >= MENU_Preset1 && ownIndex() <= MENU_Preset10;
    return isPreset && m_item.value == QLatin1String("Blank") ? QString() : FramedRow::iconPath();
}

/// The value of a file is its name, which its row shows as such.
QString typebutton::valueText() const
{
    const bool isFile = ownIndex() >= MENU_CabinetFile1 && ownIndex() <= MENU_CabinetFile8;
    return isFile ? QString() : FramedRow::valueText();
}
} // namespace VASK
