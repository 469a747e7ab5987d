#include "widget/menuitemfactory.h"

#include "widget/typeapply.h"
#include "widget/typeapplyreset.h"
#include "widget/typebutton.h"
#include "widget/typecheckitem.h"
#include "widget/typefloatadjust.h"
#include "widget/typefourpic.h"
#include "widget/typeicocombox.h"
#include "widget/typeinformation.h"
#include "widget/typeintadjust.h"
#include "widget/typeipadjust.h"
#include "widget/typemainbutton.h"
#include "widget/typemosaic.h"
#include "widget/typestringcombox.h"
#include "widget/typetip.h"
#include "widget/typetwostringcombox.h"

#include <new>

namespace VASK
{
namespace
{
using Maker = VaskUiObject *(*)(ENUM_MenuIndex, ENUM_ObjectIndex);

template <class Row> VaskUiObject *make(ENUM_MenuIndex index, ENUM_ObjectIndex object)
{
    return new (std::nothrow) Row(index, object);
}

struct RowClass {
    ENUM_ControlType type;
    Maker make;
};

constexpr RowClass rowClasses[] = {
    {TYPE_BUTTON, make<typebutton>},
    {TYPE_INFORMATION, make<typeinformation>},
    {TYPE_APPLY, make<typeapply>},
    {TYPE_STRINGCOMBOX, make<typestringcombox>},
    {TYPE_ICOCOMBOX, make<typeicocombox>},
    {TYPE_INTADJUST, make<typeintadjust>},
    {TYPE_IPADJUST, make<typeipadjust>},
    {TYPE_FLOATADJUST, make<typefloatadjust>},
    {TYPE_CHECKITEM, make<typecheckitem>},
    {TYPE_MAINBUTTON, make<typemainbutton>},
    {TYPE_TIP, make<typetip>},
    {TYPE_MOSAIC, make<typemosaic>},
    {TYPE_APPLYRESET, make<typeapplyreset>},
    {TYPE_TWOSTRINGCOMBOX, make<typetwostringcombox>},
    {TYPE_FOURPIC, make<typefourpic>},
};
} // namespace

VaskUiObject *MenuItemFactory::CreateMenuItem(ENUM_ControlType type, ENUM_ObjectIndex object,
                                              ENUM_MenuIndex index)
{
    for (const RowClass &row : rowClasses)
        if (row.type == type)
            return row.make(index, object);
    qDebug() << "no row class of kind" << int(type);
    return nullptr;
}
} // namespace VASK
