#include "widget/row/typemainbutton.h"
#include "menu/itemindex.h"
#include "menu/objectindex.h"

namespace VASK
{
typemainbutton::typemainbutton(ENUM_MenuIndex menuIndex, ENUM_ObjectIndex objectIndex)
    : FramedRow(menuIndex, objectIndex)
{
    CreatEntry(nullptr);
    setStyleSheet(QStringLiteral("*:disabled{color:#54535c;}"));
}
} // namespace VASK
