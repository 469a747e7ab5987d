// Builds the page trees from the menu table: every page, every row widget, and enters them into the pool.
// Made at start-up, and again for a page that is built on demand; keeps nothing once it returns. GUI thread.
#pragma once

#include "framework/object/vaskobject.h"
#include "menu/objectindex.h"
#include "menu/pageindex.h"
#include "menuconfig_k2860.h"

namespace VASK
{
class MenuDirectory;

class DirectoryEngineer : public VaskGeneralObject
{
    Q_OBJECT
public:
    explicit DirectoryEngineer(ENUM_ObjectIndex index);

    /// Builds the three menu trees. False at the first page or row that cannot be made; what was built stays.
    bool CreateAllMenu();
    /// Builds one page with all that lies below it; null if something of it cannot be made. The page itself
    /// is left to the caller to enter into the pool.
    MenuDirectory *buildMenu(ENUM_ConfigIndex config);

private:
    bool buildRow(const st_MenuItemInfo &row);
    bool buildInto(ENUM_ObjectIndex object, ENUM_ConfigIndex config);

    QMap<ENUM_ConfigIndex, ST_MenuConfig> m_config;
};
} // namespace VASK
