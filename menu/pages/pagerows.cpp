#include "menu/pages/pagerows.h"

#include "menu/nth.h"
#include "menu/objectindex.h"
#include "menu/pageindex.h"

namespace VASK::pagerows
{
namespace
{
constexpr const char *chineseStyle =
    "*{font-family: \"宋体\";font-size: 22px;color: #b8b4cc;background-color:rgba(0,0,0,0);}"
    "QTableWidget::item:selected{background:rgba(39,25,99);}";
constexpr short pageWidth = 320; ///< pixels
} // namespace

st_MenuItemInfo row(ENUM_ObjectIndex widget, ENUM_ControlType type, ENUM_MenuIndex item)
{
    return {widget, ENUM_OBJECT_END, type, item, CONFIG_END};
}

st_MenuItemInfo subPage(ENUM_ObjectIndex widget, ENUM_ObjectIndex page, ENUM_MenuIndex item,
                        ENUM_ConfigIndex config)
{
    return {widget, page, TYPE_SUBPAGE, item, config};
}

st_MenuItemInfo ownPage(ENUM_ObjectIndex widget, ENUM_MenuIndex item)
{
    return {widget, widget, TYPE_BUTTON, item, CONFIG_END};
}

Rows numbered(std::initializer_list<st_MenuItemInfo> list)
{
    Rows rows;
    for (const st_MenuItemInfo &info : list)
        rows.insert(rows.size(), info);
    return rows;
}

ST_MenuConfig page(ENUM_ObjectIndex object, const QString &title, const Rows &rows)
{
    return {object, pageWidth, static_cast<signed char>(rows.size()), title, chineseStyle, rows, {}};
}

ST_MenuConfig shortPage(ENUM_ObjectIndex object, const QString &title, signed char count, const Rows &rows)
{
    return {object, pageWidth, count, title, chineseStyle, rows, {}};
}

ST_MenuConfig raised(const ST_MenuConfig &first, const QString &title, Raise by)
{
    Rows rows = first.rowsMap;
    for (st_MenuItemInfo &info : rows) {
        info.itemObject = nth(info.itemObject, by.objects);
        info.menuIndex = nth(info.menuIndex, by.items);
        if (info.pageObject != ENUM_OBJECT_END) {
            info.pageObject = nth(info.pageObject, by.objects);
            info.subPage = nth(info.subPage, by.configs);
        }
    }
    return page(nth(first.object, by.objects), title, rows);
}
} // namespace VASK::pagerows
