#include "widget/page/openpage.h"

#include "framework/engine/paraprocess.h"
#include "framework/store/menuanalysis.h"
#include "menu/itemindex.h"
#include "menu/keycodes.h"
#include "widget/home/mainwindow_k2860.h"
#include "widget/home/panellayers.h"
#include "widget/page/keyleds.h"
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

void OpenPage::leaveMenu()
{
    enableCopiedPreset();
    KeypadEvent esc = madeUpEsc();
    if (MenuDirectory *page = shown())
        page->keypadEScEvent(&esc);
    hideAll();
    if (auto *menu = poolObject<MenuDirectory>(ENUM_MAIN_MENU)) {
        menu->m_pparerentdirectory = poolObject<MainWindow>(ENUM_MAIN_WINDOW);
        menu->keypadEScEvent(&esc);
    }
    setNone();
}

void OpenPage::enableCopiedPreset()
{
    const int preset = ParaProcess::m_CopySceneNum;
    if (preset < 0)
        return;
    if (auto *store = poolObject<MenuAnalysis>(ENUM_MENUANALYSIS))
        store->UpdataItemEnable(nth(MENU_Preset1, preset), true);
    // Both pages have shown it as off.
    for (ENUM_ObjectIndex first : {ENUM_ROW_PresetCopy1, ENUM_ROW_Preset1}) {
        const auto object = nth(first, preset);
        if (auto *row = dynamic_cast<VaskUiObject *>(ObjectPool::getInstance()->GetObject(object)))
            row->UpdateALLUI(nth(MENU_Preset1, preset));
    }
}
} // namespace VASK
