#include "menuconfig_k2860.h"

#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "menu/objectindex.h"
#include "menu/pageindex.h"
#include "menu/tables.h"

#include <tuple>
#include <utility>

namespace VASK
{
QMap<ENUM_ConfigIndex, ST_MenuConfig> g_config = menuPages();
QMap<ENUM_MenuIndex, ST_ItemInfo> g_MenuXmlConfig = menuItems();
QMap<ENUM_MenuIndex, ST_DialogInfo> g_dialogConfig = menuDialogs();

ST_MenuConfig::ST_MenuConfig(ENUM_ObjectIndex pageObject, short pageWidth, signed char rowCount,
                             QString titleKey, QString chineseStyle, QMap<int, st_MenuItemInfo> pageRows,
                             QString english)
    : object(pageObject), width(pageWidth), rows(rowCount), title(std::move(titleKey)),
      styleSheet(std::move(chineseStyle)), rowsMap(std::move(pageRows)), englishStyleSheet(std::move(english))
{
}

ST_ItemInfo::ST_ItemInfo(QString icon, QString tag, ENUM_MenuIndex index, bool enable, QString iconRight,
                         QString value, int col, int row, QString max, QString min, QString perBase,
                         QString pixValue, QString step, QString unit, QString choice, bool enableSelect,
                         QMap<QString, QString> params, QMap<QString, QString> params1,
                         unsigned int rowHeight, bool focusable)
    : icon(std::move(icon)), tag(std::move(tag)), index(index), value(std::move(value)),
      iconRight(std::move(iconRight)), col(col), row(row), max(std::move(max)), min(std::move(min)),
      perBase(std::move(perBase)), pixValue(std::move(pixValue)), step(std::move(step)),
      unit(std::move(unit)), choice(std::move(choice)), enable(enable), enableSelect(enableSelect),
      params(std::move(params)), params1(std::move(params1)), rowHeight(rowHeight), focusable(focusable)
{
}

namespace
{
auto fieldsOf(const ST_ItemInfo &item)
{
    return std::tie(item.icon, item.tag, item.index, item.value, item.iconRight, item.col, item.row, item.max,
                    item.min, item.perBase, item.pixValue, item.step, item.unit, item.choice, item.enable,
                    item.enableSelect, item.params, item.params1, item.rowHeight, item.focusable);
}
} // namespace

bool operator==(const ST_ItemInfo &a, const ST_ItemInfo &b)
{
    return fieldsOf(a) == fieldsOf(b);
}
} // namespace VASK
