#include "framework/ui/pages.h"

#include "framework/thread/handover.h"

#include <QApplication>
#include <QDebug>

namespace VASK
{
Page *pageOrBuild(ENUM_ObjectIndex object, ENUM_ConfigIndex config)
{
    ObjectPool *pool = ObjectPool::getInstance();
    if (!pool->IsExist(object) && Pages::instance())
        pool->InsertData(object, Pages::instance()->build(config));
    return dynamic_cast<Page *>(pool->GetObject(object));
}

void openBelow(Page *page, Page *parent)
{
    page->setParentScreen(parent);
    if (parent)
        parent->hide();
    page->show();
}

void swapPage(const PageSwap &swap)
{
    runOnGui(QCoreApplication::instance(), [swap] {
        if (auto *shown = dynamic_cast<Page *>(ObjectPool::getInstance()->GetObject(swap.place)))
            shown->hide();
        Page *page = pageOrBuild(swap.page, swap.config);
        if (!page)
            return;
        ObjectPool::getInstance()->InsertData(swap.place, page);
        qDebug() << "switch insert after, pMenuDirectory:" << static_cast<void *>(page);
        openBelow(page, poolObject<Page>(swap.parent));
    });
}

QWidget *frontWindow()
{
    return QApplication::activeWindow();
}
} // namespace VASK
