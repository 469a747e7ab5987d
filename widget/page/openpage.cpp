#include "widget/page/openpage.h"

#include "framework/engine/keyleds.h"
#include "framework/ui/home.h"
#include "menu/itemindex.h"
#include "menu/keycodes.h"
#include "widget/home/panellayers.h"
#include "widget/page/menudirectoty.h"

#include <QApplication>

namespace VASK
{
void OpenPage::set(ENUM_ObjectIndex page)
{
    m_currentObj = page;
    unsigned char layer = noLayer;
    for (size_t i = 0; i < panelLayers.size(); ++i)
        if (page == panelLayers[i].page || page == panelLayers[i].cropPage)
            layer = static_cast<unsigned char>(i);
    if (m_currentLayer.exchange(layer) != layer)
        showLayerLeds(layer);
}

/// The main menu counts as open, as after ESC all the way: an ESC that ended an edit only has left the page's
/// own number behind, and the keys at home would still serve that page.
void OpenPage::setNone()
{
    m_currentObj = ENUM_MAIN_MENU;
    m_currentLayer = noLayer;
    showLayerLeds(noLayer);
}

MenuDirectory *OpenPage::shown()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows)
        if (auto *page = dynamic_cast<MenuDirectory *>(window); page && page->isVisible())
            return page;
    return nullptr;
}

void OpenPage::hideAll()
{
    while (MenuDirectory *page = shown())
        page->hide();
}

void OpenPage::leave()
{
    KeypadEvent esc = madeUpEsc();
    if (MenuDirectory *page = shown())
        page->keypadEScEvent(&esc);
    setNone();
    // The window system tells of the page that ESC has brought up only later: it is not the active one yet.
    hideAll();
}

void OpenPage::goHome()
{
    leave();
    if (auto *home = poolObject<HomeScreen>(ENUM_MAIN_WINDOW))
        home->show();
}
} // namespace VASK
