#include "widget/row/typemainbutton.h"
#include "menu/itemindex.h"
#include "menu/objectindex.h"

namespace VASK
{
void typemainbutton::CreatEntry()
{
    createFrame(nullptr);
}
} // namespace VASK
