#include "widget/page/subpages.h"

#include "framework/engine/paraprocess.h"
#include "menu/itemindex.h"
#include "menu/itemvalue.h"
#include "menu/pageindex.h"
#include "widget/page/cabinetfiles.h"
#include "widget/page/directoryengineer.h"
#include "widget/page/menudirectoty.h"
#include "widget/page/openpage.h"

namespace VASK
{
namespace
{
/// The page in the place of "About": with the maker's lines or without. Each is built at its first opening
/// and kept; at every opening its rows take the pool's numbers, which the variants share, and the present
/// language and values.
MenuDirectory *aboutPage()
{
    struct Variant {
        ENUM_ObjectIndex object;
        ENUM_ConfigIndex config;
        MenuDirectory *page;
    };
    static Variant brief = {ENUM_DYNAMIC_PAGE_1, CONFIG_AboutUsShort, nullptr};
    static Variant full = {ENUM_DYNAMIC_PAGE_2, CONFIG_AboutUsFull, nullptr};

    const auto *engine = poolObject<ParaProcess>(ENUM_PARAPROCESS);
    const bool signOff = engine && isOff(engine->GetParaFromIndex(MENU_MakerSign));
    Variant &variant = signOff ? brief : full;
    if (ObjectPool::getInstance()->IsExist(variant.object))
        return poolObject<MenuDirectory>(variant.object);
    if (!variant.page) {
        DirectoryEngineer builder(ENUM_DIRECTORY_ENGINEER);
        variant.page = builder.buildMenu(variant.config);
        return variant.page;
    }
    variant.page->SetParaEntry(MENU_OWN, QString(), SET_XML_DEVICE);
    const PageTable &table = variant.page->table();
    for (const st_MenuItemInfo &row : table.rows()) {
        VaskUiObject *widget = table.widgetOf(row);
        if (!widget)
            continue;
        ObjectPool::getInstance()->InsertData(row.itemObject, widget);
        widget->SetParaEntry(MENU_OWN, QString(), SET_XML_DEVICE);
    }
    return variant.page;
}
} // namespace

void openSubPage(MenuDirectory &above, const ShownRow &entry)
{
    entry.widget->EnterEntry(entry.info.menuIndex);
    const ENUM_ObjectIndex number = entry.info.pageObject;
    MenuDirectory *page = number == ENUM_PAGE_AboutUs ? aboutPage() : poolObject<MenuDirectory>(number);
    qDebug() << "objID:" << number;
    if (!page || (number == ENUM_PAGE_LoadCabFiles && !prepareCabinetFiles(above, *page)))
        return;

    page->setParentScreen(&above);
    page->show();
    above.hide();
    const ShownRow first = page->table().row(page->currentRow());
    if (first && first.info.controlType == TYPE_FOURPIC) {
        page->setCurrentRow(page->currentRow());
        first.widget->SetParaEntry(MENU_OWN, QString(), SET_XML_DEVICE);
        return;
    }
    OpenPage::set(number);
    qDebug() << "m_currentObj == " << OpenPage::number();
}
} // namespace VASK
