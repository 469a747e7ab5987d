#include "framework/engine/pages.h"

#include "framework/engine/paraprocess.h"
#include "framework/thread/handover.h"
#include "menu/objectindex.h"
#include "menu/pageindex.h"
#include "widget/page/directoryengineer.h"
#include "widget/page/menudirectoty.h"

#include <QDebug>

namespace VASK
{
MenuDirectory *pageOrBuild(ParaProcess &engine, ENUM_ObjectIndex object, ENUM_ConfigIndex config)
{
    ObjectPool *pool = ObjectPool::getInstance();
    if (!pool->IsExist(object)) {
        DirectoryEngineer engineer(ENUM_DIRECTORY_ENGINEER);
        engine.CreateObjectToPool(object, engineer.buildMenu(config));
    }
    return dynamic_cast<MenuDirectory *>(pool->GetObject(object));
}

void openBelow(MenuDirectory *page, MenuDirectory *parent)
{
    page->m_pparerentdirectory = parent;
    if (parent)
        parent->hide();
    page->show();
}

void swapPage(ParaProcess &engine, const PageSwap &swap)
{
    runOnGui(&engine, [&engine, swap] {
        if (auto *shown = dynamic_cast<MenuDirectory *>(ObjectPool::getInstance()->GetObject(swap.place)))
            shown->hide();
        MenuDirectory *page = pageOrBuild(engine, swap.page, swap.config);
        if (!page)
            return;
        engine.CreateObjectToPool(swap.place, page);
        qDebug() << "switch insert after, pMenuDirectory:" << static_cast<void *>(page);
        openBelow(page, poolObject<MenuDirectory>(swap.parent));
    });
}
} // namespace VASK
