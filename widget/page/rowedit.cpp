// OK on a page: what it does by the kind of the row.

#include "widget/page/menudirectoty.h"

#include "framework/engine/paraprocess.h"
#include "framework/productiontest/productiontest.h"
#include "framework/store/menuanalysis.h"
#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "menu/objectindex.h"
#include "menu/pageindex.h"
#include "widget/dialog/dialog_msgbox.h"
#include "widget/factory/devcheckwin.h"
#include "widget/page/directoryengineer.h"
#include "widget/row/rowkinds.h"

#include <memory>

namespace VASK
{
void MenuDirectory::keypadOkEvent(KeypadEvent *)
{
    st_MenuItemInfo row;
    const auto *store = poolObject<MenuAnalysis>(ENUM_MENUANALYSIS);
    bool enabled = false;
    if (!store || !currentRowInfo(row) || !store->GetItemEnable(row.menuIndex, enabled) || !enabled)
        return;
    if (!askBeforeActing(row.menuIndex))
        return;

    if (row.controlType == TYPE_SUBPAGE)
        openSubPage(row);
    else if (isNumberRow(row.controlType))
        toggleNumberEdit(row);
    else if (isListRow(row.controlType))
        toggleListEdit(row);
    else if (isButtonRow(row.controlType))
        pressButton(row);
    else if (row.controlType == TYPE_IPADJUST)
        startIpEdit(row);
    else if (row.controlType == TYPE_CHECKITEM)
        if (VaskUiObject *widget = rowWidget(row))
            widget->EnterEntry(row.menuIndex);
}

QDialog *MenuDirectory::CreateDialog(ENUM_MenuIndex index)
{
    if (ProductionTest::runs())
        return nullptr;
    // A number without a row has a message that is off.
    const ST_DialogInfo message = g_dialogConfig.value(index);
    constexpr int messageType = 2;
    if (!message.enabled || message.type != messageType)
        return nullptr;
    return new dialog_msgBox(this, message.text, message.buttonType, unsigned(message.timeMs), QString());
}

/// False if the user was asked and said no.
bool MenuDirectory::askBeforeActing(ENUM_MenuIndex index)
{
    const std::unique_ptr<QDialog> question(CreateDialog(index));
    if (!question)
        return true;
    const bool accepted = question->exec() == QDialog::Accepted;
    qDebug() << (accepted ? "Accept" : "no Accept");
    return accepted;
}

void MenuDirectory::runMessage(ENUM_MenuIndex index)
{
    const std::unique_ptr<QDialog> message(CreateDialog(index));
    if (message)
        message->exec();
}

void MenuDirectory::openSubPage(const st_MenuItemInfo &row)
{
    if (VaskUiObject *entry = rowWidget(row))
        entry->EnterEntry(row.menuIndex);
    MenuDirectory *page = subPage(row);
    qDebug() << "objID:" << row.pageObject;
    if (!page || (row.pageObject == ENUM_PAGE_LoadCabFiles && !prepareFiles(page)))
        return;

    page->m_pparerentdirectory = this;
    page->show();
    hide();
    st_MenuItemInfo first;
    if (page->currentRowInfo(first) && first.controlType == TYPE_FOURPIC) {
        page->selectRow(page->m_currentRow);
        if (VaskUiObject *pictures = page->rowWidget(first))
            pictures->SetParaEntry(ENUM_MenuIndex(-1), QString(), SET_XML_DEVICE);
        return;
    }
    setCurrentPage(row.pageObject);
    qDebug() << "m_currentObj == " << m_currentObj;
}

MenuDirectory *MenuDirectory::subPage(const st_MenuItemInfo &row)
{
    return row.pageObject == ENUM_PAGE_AboutUs ? aboutPage() : poolObject<MenuDirectory>(row.pageObject);
}

/// The page in the place of "About": with the maker's lines or without. Each is built at its first opening
/// and kept; at every opening its rows take the pool's numbers, which the variants share, and the present
/// language and values.
MenuDirectory *MenuDirectory::aboutPage()
{
    struct Variant {
        ENUM_ObjectIndex object;
        ENUM_ConfigIndex config;
        MenuDirectory *page;
    };
    static Variant brief = {ENUM_DYNAMIC_PAGE_1, CONFIG_AboutUsShort, nullptr};
    static Variant full = {ENUM_DYNAMIC_PAGE_2, CONFIG_AboutUsFull, nullptr};

    const auto *engine = poolObject<ParaProcess>(ENUM_PARAPROCESS);
    const bool signOff = engine && engine->GetParaFromIndex(MENU_MakerSign) == QLatin1String("0");
    Variant &variant = signOff ? brief : full;
    if (IsExistFromPool(variant.object))
        return poolObject<MenuDirectory>(variant.object);
    if (!variant.page) {
        DirectoryEngineer builder(ENUM_DIRECTORY_ENGINEER);
        variant.page = builder.buildMenu(variant.config);
        return variant.page;
    }
    variant.page->SetParaEntry(ENUM_MenuIndex(-1), QString(), SET_XML_DEVICE);
    for (const st_MenuItemInfo &row : qAsConst(variant.page->m_rows)) {
        VaskUiObject *widget = variant.page->rowWidget(row);
        CreateObjectToPool(row.itemObject, widget);
        if (widget)
            widget->SetParaEntry(ENUM_MenuIndex(-1), QString(), SET_XML_DEVICE);
    }
    return variant.page;
}

void MenuDirectory::toggleNumberEdit(const st_MenuItemInfo &row)
{
    VaskUiObject *widget = rowWidget(row);
    if (!widget)
        return;
    widget->EnterEntry(row.menuIndex, static_cast<unsigned char>(m_edit),
                       static_cast<unsigned char>(m_entered));
    m_edit = !m_edit;
    m_entered = !m_entered;
    if (row.menuIndex != MENU_ScreenBrightness)
        return;
    if (m_edit)
        bSetScreenBrightness = true;
    else
        saveBrightness();
}

/// The brightness lives in the receiving cards.
void MenuDirectory::saveBrightness()
{
    if (auto *save = poolObject<VaskUiObject>(ENUM_ROW_SavetoRVCard))
        save->CallProtocol(QString(), MENU_SavetoRVCard);
    runMessage(MSG_SavingHardwareInformationShort);
    bSetScreenBrightness = false;
}

void MenuDirectory::toggleListEdit(const st_MenuItemInfo &row)
{
    VaskUiObject *widget = rowWidget(row);
    // The one list with a single picture, which cannot be chosen from.
    if (!widget || row.menuIndex == MENU_Test_VaskImage)
        return;
    if (!m_edit) {
        m_edit = true;
        widget->EnterEntry(row.menuIndex, this, 0, 0);
    } else if (widget->CurrentItemEnabled()) {
        m_edit = false;
        widget->EnterEntry(row.menuIndex, this, 1, 0);
    }
}

void MenuDirectory::pressButton(const st_MenuItemInfo &row)
{
    if (VaskUiObject *widget = rowWidget(row))
        widget->EnterEntry(row.menuIndex);
    if (row.itemObject == ENUM_ROW_SelfTest)
        QObject::connect(showSelfCheck(this, false), SIGNAL(signal_devchk_end()), this,
                         SLOT(slot_devchk_end()));
}

void MenuDirectory::startIpEdit(const st_MenuItemInfo &row)
{
    m_edit = true;
    if (VaskUiObject *widget = rowWidget(row))
        widget->EnterEntry(row.menuIndex);
}
} // namespace VASK
