#include "widget/menuitemfactory.h"

namespace VASK
{
VaskUiObject *MenuItemFactory::CreateMenuItem(ENUM_ControlType type, ENUM_ObjectIndex, ENUM_MenuIndex)
{
    qDebug() << "no row class of kind" << int(type);
    return nullptr;
}
} // namespace VASK
