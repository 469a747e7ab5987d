#include "widget/page/pagekeys.h"

#include "framework/engine/presets.h"
#include "framework/object/globaltimer.h"
#include "framework/store/menuanalysis.h"
#include "menu/keycodes.h"
#include "menu/objectindex.h"
#include "widget/home/mainwindow_k2860.h"
#include "widget/home/panelkeys.h"
#include "widget/page/menudirectoty.h"
#include "widget/page/openpage.h"
#include "widget/page/subpages.h"
#include "widget/page/testwindows.h"
#include "widget/row/pagerow.h"

namespace VASK
{
/// The page's own keys; the dedicated keys have a table of their own.
struct PageKeys::PageKey {
    unsigned char key;
    int type; ///< a KEY_TYPE, anyType for all
    bool whileEditing;
    void (PageKeys::*handler)(KeypadEvent &event);
};

const QVector<PageKeys::PageKey> &PageKeys::pageKeys()
{
    constexpr int anyType = -1;
    static const QVector<PageKey> keys = {
        {KEY_LOCK, KEY_LONG_PRESS, false, &PageKeys::lockPanel},
        {KEY_KNOB_LEFT, anyType, true, &PageKeys::knobLeft},
        {KEY_KNOB_RIGHT, anyType, true, &PageKeys::knobRight},
        {KEY_OK, KEY_RELEASED, true, &PageKeys::okReleased},
        {KEY_ESC, KEY_PRESSED, true, &PageKeys::escPressed},
        {KEY_ESC, KEY_RELEASED, true, &PageKeys::escReleased},
    };
    return keys;
}

void PageKeys::handle(KeypadEvent &event)
{
    qDebug() << "MenuDirectory: key:" << event.key() << "type:" << event.type();
    GlobalTimer::getInstance()->ResetReturnToMain();
    if (auto *store = poolObject<MenuAnalysis>(ENUM_MENUANALYSIS))
        store->restartUpdateTimer();

    for (const PageKey &entry : pageKeys()) {
        if (entry.key != event.key() || (entry.type >= 0 && entry.type != event.type()))
            continue;
        if (!isEditing() || entry.whileEditing)
            (this->*entry.handler)(event);
        return;
    }
    if (!isEditing())
        runPanelKey(&m_page, PanelScreen::Page, event);
    else if (GetkeypadNum(event.key()) != noDigit)
        m_page.keypadNumEvent(&event);
}

void PageKeys::turn(unsigned char speed, bool left)
{
    if (!isEditing())
        m_cursor.turn(speed, left);
    else if (const ShownRow row = m_cursor.shownRow())
        m_edit.turn(row, speed, left);
}

void PageKeys::ok()
{
    const ShownRow row = m_cursor.shownRow();
    const auto *store = poolObject<MenuAnalysis>(ENUM_MENUANALYSIS);
    bool enabled = false;
    if (!row || !store || !store->GetItemEnable(row.info.menuIndex, enabled) || !enabled)
        return;
    if (!m_page.confirms(row.info.menuIndex))
        return;
    switch (row.kind->okKind()) {
    case OkKind::Nothing:
        break;
    case OkKind::OpensPage:
        openSubPage(m_page, row);
        break;
    case OkKind::Acts:
        row.widget->EnterEntry(row.info.menuIndex);
        if (row.info.itemObject == ENUM_ROW_SelfTest)
            TestWindows::showSelfCheck(m_page);
        break;
    case OkKind::EditsNumber:
    case OkKind::EditsAddress:
    case OkKind::ChoosesFromList:
        m_edit.ok(row);
    }
}

void PageKeys::esc()
{
    if (isEditing())
        m_edit.leave(m_cursor.shownRow());
    else
        leave();
}

void PageKeys::leave()
{
    QWidget *parent = m_page.parentScreen();
    if (!parent)
        return;
    Presets::giveBackCopied();
    parent->show();
    m_page.hide();
    if (auto *above = dynamic_cast<MenuDirectory *>(parent)) {
        above->noteChild(&m_page);
        ENUM_ObjectIndex number = ENUM_OBJECT_END;
        if (above->GetObectIndex(number))
            OpenPage::set(number);
    }
    qDebug() << "m_pparerentdirectory:" << static_cast<void *>(&m_page) << static_cast<void *>(parent)
             << "m_currentObj == " << OpenPage::number();
}

/// A new ESC is the page's, whether or not the release of the one that closed another window has come.
void PageKeys::escPressed(KeypadEvent &)
{
    m_skipNextEsc = false;
}

void PageKeys::escReleased(KeypadEvent &event)
{
    if (m_skipNextEsc)
        m_skipNextEsc = false;
    else
        m_page.keypadEScEvent(&event);
}

void PageKeys::lockPanel(KeypadEvent &event)
{
    if (auto *home = poolObject<MainWindow>(ENUM_MAIN_WINDOW))
        home->keypadLockEvent(&event);
    m_page.ReturnToMainWindows(&event);
}
} // namespace VASK
