#include "framework/store/menushown.h"
#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "menu/pageindex.h"

namespace VASK
{
QList<ENUM_ConfigIndex> builtPages()
{
    QList<ENUM_ConfigIndex> pages{CONFIG_MainMenu, CONFIG_UserHiddenMenu, CONFIG_ProductHiddenMenu};
    for (int i = 0; i < pages.size(); ++i) {
        const QMap<int, st_MenuItemInfo> rows = g_config.value(pages[i]).rowsMap;
        for (const st_MenuItemInfo &row : rows)
            if (row.controlType == TYPE_SUBPAGE)
                pages << row.subPage;
    }
    return pages;
}

QSet<ENUM_MenuIndex> itemsOfBuiltPages()
{
    QSet<ENUM_MenuIndex> items;
    for (ENUM_ConfigIndex page : builtPages()) {
        const QMap<int, st_MenuItemInfo> rows = g_config.value(page).rowsMap;
        for (const st_MenuItemInfo &row : rows)
            items << row.menuIndex;
    }
    return items;
}
} // namespace VASK
