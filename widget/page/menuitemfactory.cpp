#include "widget/page/menuitemfactory.h"

#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "menu/objectindex.h"
#include "widget/row/typeapply.h"
#include "widget/row/typeapplyreset.h"
#include "widget/row/typebutton.h"
#include "widget/row/typecheckitem.h"
#include "widget/row/typefloatadjust.h"
#include "widget/row/typefourpic.h"
#include "widget/row/typeicocombox.h"
#include "widget/row/typeinformation.h"
#include "widget/row/typeintadjust.h"
#include "widget/row/typeipadjust.h"
#include "widget/row/typemainbutton.h"
#include "widget/row/typemosaic.h"
#include "widget/row/typestringcombox.h"
#include "widget/row/typetip.h"
#include "widget/row/typetwostringcombox.h"

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
