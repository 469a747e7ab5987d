#include "tools/menutour.h"
#include "client/loglines.h"
#include "client/productionline.h"
#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "menu/pageindex.h"

#include <QDir>

using namespace VASK;

namespace
{
bool isFileRow(ENUM_MenuIndex item)
{
    return item >= MENU_CabinetFile1 && item <= MENU_CabinetFile8;
}

/// Buttons that ask before they act have a message of their own number.
bool asksFirst(ENUM_MenuIndex item)
{
    return g_dialogConfig.contains(item);
}

/// A new device has the first two presets; the third stands for all that are empty.
bool isToursPreset(ENUM_ConfigIndex page, ENUM_MenuIndex item)
{
    return page == CONFIG_PresetSettings && (item == MENU_Preset1 || item == MENU_Preset3);
}

/// The page that the other option of a row brings into the place of the row's own; CONFIG_END for none.
ENUM_ConfigIndex otherPage(ENUM_ConfigIndex page, ENUM_MenuIndex item)
{
    constexpr int pagesPerInput = CONFIG_HDMI2_EDID - CONFIG_HDMI1_EDID;
    constexpr int customPage = CONFIG_HDMI1_EDIDCustom - CONFIG_HDMI1_EDID;
    const int pages = page - CONFIG_HDMI1_EDID;
    const int input = pages / pagesPerInput;
    const bool isEdid = pages >= 0 && page <= CONFIG_DVI_EDID && pages % pagesPerInput == 0;
    return isEdid && item == nth(MENU_HDMI1_EDIDChoice, input, STRIDE_InputPicture) ? nth(page, customPage)
                                                                                    : CONFIG_END;
}

/// The pages below a root, as the rows lead to them.
QSet<ENUM_ConfigIndex> below(ENUM_ConfigIndex root)
{
    QSet<ENUM_ConfigIndex> pages{root};
    for (const st_MenuItemInfo &row : qAsConst(g_config[root].rowsMap)) {
        if (row.controlType == TYPE_SUBPAGE)
            pages |= below(row.subPage);
        if (otherPage(root, row.menuIndex) != CONFIG_END)
            pages << otherPage(root, row.menuIndex);
    }
    if (root == CONFIG_PresetSettings)
        pages << CONFIG_PresetCopyTo;
    return pages;
}
} // namespace

Tour::Tour(Panel &panel, const QString &language, const QString &folder) : m_panel(panel), m_walk(panel)
{
    m_walk.speak(language);
    if (folder.isEmpty())
        return;
    m_folder = folder + (language.endsWith("EN") ? "/en" : "/zh");
    QDir().mkpath(m_folder);
}

bool Tour::walk(ENUM_ConfigIndex root)
{
    const int before = m_faults.size();
    m_lost = false;
    if (!m_walk.openMenu(root))
        fault(g_config.value(root).title, "does not open");
    else
        visitPage(g_config.value(root).title);
    if (!m_lost && !m_walk.isHome())
        fault(g_config.value(root).title, "ESC does not lead home");
    if (m_lost)
        m_walk.home();
    return m_faults.size() == before;
}

QStringList Tour::missed(ENUM_ConfigIndex root) const
{
    QStringList titles;
    for (ENUM_ConfigIndex page : below(root) - m_seen)
        if (!m_closed.contains(page) || m_panel.stored(m_closed.value(page), "Enable") != "false")
            titles << g_config.value(page).title;
    return titles;
}

void Tour::visitPage(const QString &name)
{
    const ENUM_ConfigIndex page = m_walk.page();
    visitRows(name);
    for (const st_MenuItemInfo &row : g_config.value(page).rowsMap)
        if (!m_lost && otherPage(page, row.menuIndex) != CONFIG_END)
            visitOther(page, row.menuIndex, name);
    if (m_lost)
        return;
    if (!m_walk.back() || (m_walk.page() != CONFIG_END && !m_walk.showsTitle()))
        fault(name, "ESC does not lead to the page above");
}

void Tour::visitRows(const QString &name)
{
    m_seen << m_walk.page();
    if (!m_walk.showsTitle())
        fault(name, "its title is not there");
    picture(name);
    const ST_MenuConfig table = m_walk.table();
    for (int position = 0; position < table.rows && !m_lost; ++position)
        visitRow(table.rowsMap.value(position), name);
}

void Tour::visitOther(ENUM_ConfigIndex page, ENUM_MenuIndex choice, const QString &name)
{
    const auto choose = [&](ENUM_ConfigIndex next) {
        if (!m_walk.moveTo(choice) || !m_walk.press(keys::Ok) || !m_walk.turn(Right, 1) ||
            !m_walk.press(keys::Ok) || m_panel.logLines("switch insert after").isEmpty())
            fault(name, "the other page does not open");
        m_walk.replaced(next);
    };
    choose(otherPage(page, choice));
    if (!m_lost)
        visitRows(name + "-other");
    if (!m_lost)
        choose(page);
}

void Tour::visitRow(const st_MenuItemInfo &row, const QString &page)
{
    const QString name = page + "-" + g_MenuXmlConfig.value(row.menuIndex).tag;
    const bool preset = isToursPreset(m_walk.page(), row.menuIndex);
    const bool leadsOn = row.controlType == TYPE_SUBPAGE || preset;
    if (!g_MenuXmlConfig.value(row.menuIndex).focusable || (m_folder.isEmpty() && !leadsOn))
        return;
    if (!m_walk.moveTo(row.menuIndex)) {
        if (!isFileRow(row.menuIndex)) // there are as many as there are files
            fault(name, "the cursor does not come here");
        return;
    }
    switch (row.controlType) {
    case TYPE_SUBPAGE:
        return openPage(row, name);
    case TYPE_INTADJUST:
    case TYPE_FLOATADJUST:
    case TYPE_IPADJUST:
    case TYPE_STRINGCOMBOX:
    case TYPE_ICOCOMBOX:
    case TYPE_MOSAIC:
    case TYPE_TWOSTRINGCOMBOX:
        return lookAtEdit(row.menuIndex, name);
    default:
        if (preset)
            lookAtPreset(row.menuIndex, name);
        else if (asksFirst(row.menuIndex))
            lookAtQuestion(name);
        if (row.menuIndex == MENU_SelfTest && !m_lost)
            lookAtSelfCheck(name);
    }
}

void Tour::openPage(const st_MenuItemInfo &row, const QString &name)
{
    if (!m_walk.press(keys::Ok))
        return fault(name, "OK is not heard");
    if (m_walk.asked()) {
        picture(name + "-question");
        if (!m_walk.answer(true))
            return fault(name, "the question cannot be answered");
    }
    if (m_panel.logLines(loglines::rowEntered).isEmpty()) {
        m_closed[row.subPage] = row.menuIndex; // a row that is off
        return;
    }
    m_walk.opened(row.subPage);
    visitPage(name);
}

void Tour::lookAtEdit(ENUM_MenuIndex item, const QString &name)
{
    m_panel.settle();
    const QImage before = m_panel.screen();
    if (!m_walk.press(keys::Ok))
        return fault(name, "OK is not heard");
    if (m_panel.screen() == before)
        return; // a row that is off
    picture(name + "-edit");
    // The brightness is saved, which takes its time.
    const bool saved = item == MENU_ScreenBrightness;
    if (!m_walk.press(keys::Esc) ||
        (saved && !(m_panel.waitForLog(loglines::messageClosed) && m_panel.settle())))
        fault(name, "ESC does not end the edit");
}

void Tour::lookAtQuestion(const QString &name)
{
    if (!m_walk.press(keys::Ok))
        return fault(name, "OK is not heard");
    if (!m_walk.asked())
        return; // a row that is off
    picture(name + "-question");
    if (!m_walk.press(keys::Esc) || m_panel.logLines("no Accept").isEmpty())
        fault(name, "ESC does not leave the question");
}

void Tour::lookAtSelfCheck(const QString &name)
{
    constexpr int rows = 30;
    if (!m_walk.press(keys::Ok) || !m_walk.asked() || !m_walk.answer(true))
        return fault(name, "the question cannot be answered");
    picture(name + "-wait");
    if (!m_panel.waitFor("F_VERSION"))
        return fault(name, "the list does not open");
    picture(name + "-list");
    m_panel.turn(Right, rows);
    if (!m_panel.waitFor("MCU_STATUS"))
        return fault(name, "the list does not scroll to its end");
    picture(name + "-list-end");
    if (!m_panel.press(keys::Esc) || !m_walk.showsTitle())
        fault(name, "ESC does not leave the list");
}

void Tour::productionTest()
{
    ProductionLine line(m_panel);
    const auto stop = [&](bool done, const char *name) {
        m_panel.settle();
        if (!done && !m_lost)
            fault(QString("production-test-") + name, "is not reached");
        if (!m_lost)
            picture(QString("production-test-") + name);
    };
    // Without its report the first step would be gone too soon for a picture.
    const bool quiet = m_panel.ask({"reports", "off"}).ok;
    stop(quiet && line.begin() && line.waitFor(ProductionLine::SelfTest), "1");
    const bool told = m_panel.ask({"push", "13800000", QByteArray("HEAD;").toHex()}).ok;
    stop(told && line.waitFor(ProductionLine::Keys) && m_panel.ask({"reports", "on"}).ok, "2");
    stop(line.pressKeys(), "2-pressed");
    stop(line.ok() && line.keyRounds(1), "3");
    stop(line.passInOut(), "3-message");
    stop(m_panel.waitForLog(loglines::messageClosed), "3-passed");
}

void Tour::lookAtPreset(ENUM_MenuIndex item, const QString &name)
{
    const bool empty = m_panel.stored(item) == "Blank";
    if (!m_walk.press(keys::Ok))
        return fault(name, "OK is not heard");
    picture(name + "-actions");
    // Empty: nothing can be copied, and ESC leaves. Else the copy stands two steps behind the load.
    if (!(empty ? m_walk.press(keys::Esc)
                : m_panel.turn(Right, 2) && m_panel.settle() && m_walk.press(keys::Ok)))
        return fault(name, "the dialog is not left");
    if (empty)
        return;
    m_walk.opened(CONFIG_PresetCopyTo);
    visitPage(name + "-copy");
}

void Tour::fault(const QString &where, const QString &what)
{
    m_faults << where + ": " + what;
    m_lost = true;
    picture(where + "-fault");
}

void Tour::picture(const QString &name)
{
    if (!m_folder.isEmpty())
        m_panel.screen().save(
            QString("%1/%2-%3.png").arg(m_folder).arg(++m_number, 3, 10, QChar('0')).arg(name));
}
