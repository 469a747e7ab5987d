#include "widget/page/directoryengineer.h"

#include "framework/engine/paraprocess.h"
#include "menu/itemindex.h"
#include "menu/itemvalue.h"
#include "menu/menutypes.h"
#include "menu/objectindex.h"
#include "menu/pageindex.h"
#include "widget/page/menudirectoty.h"
#include "widget/page/menuitemfactory.h"

#include <QTime>
#include <new>

namespace VASK
{
DirectoryEngineer::DirectoryEngineer(ENUM_ObjectIndex index) : VaskGeneralObject(index), m_config(g_config) {}

bool DirectoryEngineer::CreateAllMenu()
{
    if (m_config.isEmpty())
        return false;
    for (ENUM_ConfigIndex root : {CONFIG_MainMenu, CONFIG_UserHiddenMenu, CONFIG_ProductHiddenMenu}) {
        qDebug() << "start-up time ->" << QTime::currentTime()
                 << "<- DirectoryEngineer 11111111 ,line:" << __LINE__;
        if (!buildInto(m_config.value(root).object, root))
            return false;
    }
    return true;
}

/// Builds a page with all that lies below it, and enters it into the pool.
bool DirectoryEngineer::buildInto(ENUM_ObjectIndex object, ENUM_ConfigIndex config)
{
    MenuDirectory *page = buildMenu(config);
    return page && CreateObjectToPool(object, page);
}

MenuDirectory *DirectoryEngineer::buildMenu(ENUM_ConfigIndex config)
{
    if (config < CONFIG_MainMenu || config >= CONFIG_END || !m_config.contains(config))
        return nullptr;
    ST_MenuConfig info = m_config.value(config);
    const auto *engine = poolObject<ParaProcess>(ENUM_PARAPROCESS);
    const bool signOff = engine && isOff(engine->GetParaFromIndex(MENU_MakerSign));
    // Without the maker's sign only the versions are shown.
    constexpr signed char versionRows = 2;
    if (config == CONFIG_AboutUs && signOff)
        info.rows = versionRows;

    for (const st_MenuItemInfo &row : qAsConst(info.rowsMap))
        if (!buildRow(row))
            return nullptr;

    auto *page = new (std::nothrow) MenuDirectory(info.object);
    if (!page)
        return nullptr;
    page->SetTitleInfo(info.width, info.rows, info.title, info.styleSheet, info.englishStyleSheet);
    page->InsertMenuItem(info.rowsMap);
    return page->BuildMenuDirectory(config) ? page : nullptr;
}

/// Children come before their parent: a row's widget is in the pool when its page places it.
bool DirectoryEngineer::buildRow(const st_MenuItemInfo &row)
{
    const bool leadsOn = row.controlType == TYPE_SUBPAGE;
    if (leadsOn && !buildInto(row.pageObject, row.subPage))
        return false;
    VaskUiObject *widget = MenuItemFactory::CreateMenuItem(leadsOn ? TYPE_MAINBUTTON : row.controlType,
                                                           row.itemObject, row.menuIndex);
    return widget && CreateObjectToPool(row.itemObject, widget);
}
} // namespace VASK
