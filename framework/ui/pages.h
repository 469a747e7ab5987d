// The menu as framework/ knows it: pages that are built only when something is chosen, that take another
// page's place, and the ways out of the menu. GUI thread, but for what says otherwise.
#pragma once

#include "framework/ui/page.h"
#include "menu/objectindex.h"
#include "menu/pageindex.h"

namespace VASK
{
/// What the widgets do of it. They enter the one object that there is with use().
class Pages
{
public:
    virtual ~Pages() = default;
    static void use(Pages *pages) { m_pages = pages; }
    /// Null while there are no widgets.
    static Pages *instance() { return m_pages; }

    /// Builds a page with all that lies below it; null if something of it cannot be made. Who asks for it
    /// enters it into the pool.
    virtual Page *build(ENUM_ConfigIndex config) = 0;
    /// Notes which page is open; the LEDs of the layers follow.
    virtual void noteOpen(ENUM_ObjectIndex page) = 0;
    /// As by ESC, and then away from whatever page that led to: an edit ends, and no page is open any more.
    virtual void leave() = 0;

private:
    inline static Pages *m_pages = nullptr;
};

/// The page under a number of the pool, built from its table row if it is not there yet.
Page *pageOrBuild(ENUM_ObjectIndex object, ENUM_ConfigIndex config);

/// The page opens, and ESC leads from it back to the parent, which closes.
void openBelow(Page *page, Page *parent);

/// One of several pages that share a place in the menu.
struct PageSwap {
    ENUM_ObjectIndex place; ///< stands for the current one
    ENUM_ObjectIndex page;
    ENUM_ConfigIndex config;
    ENUM_ObjectIndex parent;
};
/// The page takes the place of the one that was shown there, and opens. From any thread.
void swapPage(const PageSwap &swap);

/// The window that the keys go to; null if there is none.
QWidget *frontWindow();
} // namespace VASK
