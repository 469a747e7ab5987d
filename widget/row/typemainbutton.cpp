#include "widget/row/typemainbutton.h"
#include "menu/itemindex.h"
#include "menu/objectindex.h"
#include "widget/look.h"

namespace VASK
{
typemainbutton::typemainbutton(ENUM_MenuIndex menuIndex, ENUM_ObjectIndex objectIndex)
    : FramedRow(menuIndex, objectIndex)
{
    CreatEntry(nullptr);
    setStyleSheet(look::sheet("*:disabled{color:$disabled;}"));
}
} // namespace VASK
