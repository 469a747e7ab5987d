#include "widget/typebutton.h"

#include <QLabel>

namespace VASK
{
typebutton::typebutton(ENUM_MenuIndex menuIndex, ENUM_ObjectIndex objectIndex)
    : FramedRow(menuIndex, objectIndex)
{
    CreatEntry(createValueLabel());
}
} // namespace VASK
