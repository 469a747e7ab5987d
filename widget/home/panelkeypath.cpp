// How a dedicated key reaches a page deep in the menu.

#include "widget/home/panelkeys.h"

#include "framework/engine/presets.h"
#include "menu/objectindex.h"
#include "widget/home/mainwindow_k2860.h"
#include "widget/page/menudirectoty.h"
#include "widget/page/openpage.h"

namespace VASK
{
bool openMenuPath(QWidget *screen, std::initializer_list<ENUM_ObjectIndex> path)
{
    QList<MenuDirectory *> pages;
    for (ENUM_ObjectIndex object : path) {
        auto *page = poolObject<MenuDirectory>(object);
        if (!page)
            return false;
        pages.append(page);
    }

    // The main menu starts over; a preset that waits for its copy is given back, as on the way out.
    if (pages.first()->isEditing())
        pages.first()->keypadEScEvent(nullptr);
    Presets::giveBackCopied();

    QWidget *above = poolObject<MainWindow>(ENUM_MAIN_WINDOW);
    for (int i = 0; i < pages.size(); ++i) {
        pages[i]->setParentScreen(above);
        above = pages[i];
        if (i + 1 < pages.size())
            pages[i]->setCurrentRow(pages[i]->rowOfPage(path.begin()[i + 1]));
    }

    // The new page comes up before the old one goes, so that the LCD never shows what lies below.
    MenuDirectory *target = pages.last();
    target->show();
    if (screen != target)
        screen->hide();
    OpenPage::set(*(path.end() - 1));
    return true;
}
} // namespace VASK
