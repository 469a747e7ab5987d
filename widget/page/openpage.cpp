// ESC on a page: the end of an edit, the way back to the page above, and which page counts as open.

#include "widget/page/menudirectoty.h"

#include "framework/engine/paraprocess.h"
#include "framework/store/menuanalysis.h"
#include "menu/itemindex.h"
#include "menu/objectindex.h"
#include "widget/home/panellayers.h"
#include "widget/row/rowkinds.h"

namespace VASK
{
void MenuDirectory::keypadEScEvent(KeypadEvent *)
{
    st_MenuItemInfo row;
    if (!m_edit)
        leave();
    else if (currentRowInfo(row))
        endEdit(row);
}

void MenuDirectory::endEdit(const st_MenuItemInfo &row)
{
    m_edit = false;
    const unsigned char entered = m_entered;
    m_entered = false;
    VaskUiObject *widget = rowWidget(row);
    if (!widget)
        return;
    if (isKnobRow(row.controlType))
        widget->EscEntry(row.menuIndex, entered);
    else if (isListRow(row.controlType))
        widget->EscEntry(row.menuIndex);
    if (row.menuIndex == MENU_ScreenBrightness)
        saveBrightness();
}

void MenuDirectory::leave()
{
    if (!m_pparerentdirectory)
        return;
    enableCopiedPreset();
    QWidget *parent = m_pparerentdirectory;
    parent->show();
    hide();
    if (auto *page = dynamic_cast<MenuDirectory *>(parent)) {
        page->m_child = this;
        ENUM_ObjectIndex number = ENUM_OBJECT_END;
        if (page->GetObectIndex(number))
            setCurrentPage(number);
    }
    qDebug() << "m_pparerentdirectory:" << static_cast<void *>(this) << static_cast<void *>(parent)
             << "m_currentObj == " << m_currentObj;
}

void MenuDirectory::setCurrentPage(ENUM_ObjectIndex page)
{
    m_currentObj = page;
    unsigned char layer = noLayer;
    for (size_t i = 0; i < panelLayers.size(); ++i)
        if (page == panelLayers[i].page || page == panelLayers[i].cropPage)
            layer = static_cast<unsigned char>(i);
    if (m_currentLayer.exchange(layer) != layer)
        UpdateLayerLedStatus(layer);
}

/// The main menu counts as open, as after ESC all the way: an ESC that ended an edit only has left the page's
/// own number behind, and the keys at home would still serve that page.
void MenuDirectory::setNoPage()
{
    m_currentObj = ENUM_MAIN_MENU;
    m_currentLayer = noLayer;
    UpdateLayerLedStatus(noLayer);
}

void MenuDirectory::enableCopiedPreset()
{
    const int preset = ParaProcess::m_CopySceneNum;
    if (preset < 0)
        return;
    if (auto *store = poolObject<MenuAnalysis>(ENUM_MENUANALYSIS))
        store->UpdataItemEnable(ENUM_MenuIndex(MENU_Preset1 + preset), true);
    // Both pages have shown it as off.
    for (ENUM_ObjectIndex first : {ENUM_ROW_PresetCopy1, ENUM_ROW_Preset1}) {
        const auto object = ENUM_ObjectIndex(first + preset);
        if (auto *row = dynamic_cast<VaskUiObject *>(ObjectPool::getInstance()->GetObject(object)))
            row->UpdateALLUI(ENUM_MenuIndex(MENU_Preset1 + preset));
    }
}

MenuDirectory *MenuDirectory::shownPage()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows)
        if (auto *page = dynamic_cast<MenuDirectory *>(window); page && page->isVisible())
            return page;
    return nullptr;
}

void MenuDirectory::hideAllPages()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows)
        if (auto *page = dynamic_cast<MenuDirectory *>(window))
            page->hide();
}
} // namespace VASK
