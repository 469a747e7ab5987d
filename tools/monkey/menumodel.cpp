#include "tools/monkey/menumodel.h"

#include "menu/menutypes.h"

#include <QSet>

using namespace VASK;

namespace
{
/// Their rows are named by files, by the device and by their own values.
bool namesItsOwnRows(ENUM_ConfigIndex page)
{
    return page == CONFIG_LoadCabFiles || page == CONFIG_PresetSettings || page == CONFIG_PresetCopyTo ||
           page == CONFIG_AboutUs;
}

bool hasParts(const st_MenuItemInfo &row)
{
    return row.controlType == TYPE_APPLYRESET || row.controlType == TYPE_TWOSTRINGCOMBOX ||
           row.controlType == TYPE_FOURPIC;
}

void collect(ENUM_ConfigIndex page, QList<RowVisit> &rows)
{
    const ST_MenuConfig table = g_config.value(page);
    for (int position = 0; position < table.rows; ++position) {
        const st_MenuItemInfo row = table.rowsMap.value(position);
        if (g_MenuXmlConfig.value(row.menuIndex).focusable)
            rows << RowVisit{page, position};
        if (row.controlType == TYPE_SUBPAGE)
            collect(row.subPage, rows);
    }
}
} // namespace

MenuModel::MenuModel(const QString &folder)
{
    m_chinese.load(folder + "/fpd_ZH.qm");
    m_english.load(folder + "/fpd_EN.qm");
}

/// A label that scrolls shows its text once more behind it.
bool MenuModel::says(const QString &text, const QString &key) const
{
    const auto is = [&text](const QString &said) {
        return text == said || (!said.isEmpty() && text == said + said);
    };
    for (const QTranslator *translator : {&m_chinese, &m_english})
        if (is(translator->translate("MainWindow", key.toUtf8().constData()).remove('\n')))
            return true;
    return is(key);
}

bool MenuModel::isPage(const Sight &sight, ENUM_ConfigIndex page) const
{
    const ST_MenuConfig table = g_config.value(page);
    if (!says(sight.title, table.title))
        return false;
    return namesItsOwnRows(page) ||
           std::all_of(sight.labels.begin(), sight.labels.end(), [&](const QString &label) {
               return std::any_of(table.rowsMap.begin(), table.rowsMap.end(),
                                  [&](const st_MenuItemInfo &row) {
                                      return says(label, g_MenuXmlConfig.value(row.menuIndex).tag);
                                  });
           });
}

/// The page below the present one first, then its own, then any.
ENUM_ConfigIndex MenuModel::pageOf(const Sight &sight) const
{
    QList<ENUM_ConfigIndex> pages;
    if (row().controlType == TYPE_SUBPAGE)
        pages << row().subPage;
    for (int i = m_pages.size(); i-- > 0;)
        pages << m_pages[i];
    pages << g_config.keys();
    for (ENUM_ConfigIndex page : qAsConst(pages))
        if (isPage(sight, page))
            return page;
    return CONFIG_END;
}

QString MenuModel::take(const Sight &sight)
{
    if (sight.kind == Sight::Home || sight.title != m_sight.title)
        m_pictures = NoPictures;
    if (sight.kind == Sight::Page || sight.kind == Sight::List) {
        const ENUM_ConfigIndex page = pageOf(sight);
        const bool isSelfCheck = says(sight.title, "SelfTest");
        if (page == CONFIG_END && !isSelfCheck)
            return "no page is like that: " + sight.describe() + " (" + sight.labels.join(", ") + ')';
        const int known = m_pages.indexOf(page);
        const bool isBelow = row().controlType == TYPE_SUBPAGE && row().subPage == page;
        if (known >= 0)
            m_pages = m_pages.mid(0, known + 1);
        else
            m_pages = (isBelow ? m_pages : QList<ENUM_ConfigIndex>()) + QList<ENUM_ConfigIndex>{page};
    } else if (sight.kind == Sight::Home) {
        m_pages.clear();
    } else if (sight.kind == Sight::Nothing) {
        return "the LCD tells nothing";
    }
    m_sight = sight;
    return QString();
}

int MenuModel::positionOf(const Sight &sight) const
{
    const ST_MenuConfig table = g_config.value(m_pages.isEmpty() ? CONFIG_END : m_pages.last());
    for (int position = 0; position < table.rows; ++position)
        if (says(sight.row, g_MenuXmlConfig.value(table.rowsMap.value(position).menuIndex).tag))
            return position;
    return -1;
}

RowVisit MenuModel::here() const
{
    if (m_pages.isEmpty() || m_sight.row.isEmpty() || positionOf(m_sight) < 0)
        return {};
    return {m_pages.last(), positionOf(m_sight)};
}

st_MenuItemInfo MenuModel::row() const
{
    const RowVisit visit = here();
    const st_MenuItemInfo none{ENUM_OBJECT_END, ENUM_OBJECT_END, TYPE_INFORMATION, MENU_END, CONFIG_END};
    return visit.page == CONFIG_END ? none : g_config.value(visit.page).rowsMap.value(visit.position, none);
}

QList<int> MenuModel::stops() const
{
    QList<int> positions;
    const ST_MenuConfig table = g_config.value(m_pages.isEmpty() ? CONFIG_END : m_pages.last());
    for (int position = 0; position < table.rows; ++position)
        if (g_MenuXmlConfig.value(table.rowsMap.value(position).menuIndex).focusable)
            positions << position;
    return positions;
}

QList<RowVisit> MenuModel::rows()
{
    QList<RowVisit> rows;
    for (ENUM_ConfigIndex root : {CONFIG_MainMenu, CONFIG_UserHiddenMenu, CONFIG_ProductHiddenMenu})
        collect(root, rows);
    return rows;
}

bool MenuModel::isEditable(const st_MenuItemInfo &row)
{
    return row.controlType == TYPE_INTADJUST || row.controlType == TYPE_FLOATADJUST ||
           row.controlType == TYPE_STRINGCOMBOX || row.controlType == TYPE_ICOCOMBOX;
}

/// An option that is not to be had keeps its list open.
void MenuModel::press(Key key)
{
    if (key == Esc)
        m_pictures = NoPictures;
    else if (key == Ok && m_pictures == PicturesOpen)
        m_pictures = PicturesMaybeOpen;
    else if (key == Ok && m_sight.kind == Sight::Page && row().controlType == TYPE_ICOCOMBOX &&
             !m_sight.isDisabled)
        m_pictures = PicturesOpen;
}

MenuModel::Sequel MenuModel::after(Key key) const
{
    if (m_pictures != NoPictures)
        return nullptr;
    if (m_sight.kind == Sight::Home && key != Ok)
        return [](const Sight &now) { return now.kind == Sight::Home; };
    if (m_sight.kind == Sight::Home)
        return [this](const Sight &now) { return now.kind == Sight::Page && isPage(now, CONFIG_MainMenu); };
    if (here().page == CONFIG_END || m_sight.kind == Sight::Message)
        return nullptr;
    return key == Ok ? afterOk() : key == Esc ? afterEsc() : afterKnob(key == Left ? -1 : 1);
}

MenuModel::Sequel MenuModel::afterKnob(int step) const
{
    const st_MenuItemInfo row = this->row();
    if (m_sight.kind == Sight::List)
        return [=](const Sight &now) { return now.kind == Sight::List && now.title == m_sight.title; };
    const ST_MenuConfig table = g_config.value(m_pages.last());
    if (m_sight.isEdited) {
        if (row.controlType != TYPE_INTADJUST && row.controlType != TYPE_FLOATADJUST)
            return nullptr;
        // Inside its limits, and in the direction of the knob unless another limit moves it.
        const ST_ItemInfo item = g_MenuXmlConfig.value(row.menuIndex);
        return [=](const Sight &now) {
            const double value = QString(now.value).remove(item.unit).toDouble();
            return now.isEdited && now.row == m_sight.row && value >= item.min.toDouble() &&
                   value <= item.max.toDouble();
        };
    }
    if (namesItsOwnRows(m_pages.last()) || std::any_of(table.rowsMap.begin(), table.rowsMap.end(), hasParts))
        return nullptr;
    const QList<int> positions = stops();
    const int place = qBound(0, int(positions.indexOf(here().position)) + step, positions.size() - 1);
    const QString tag = g_MenuXmlConfig.value(table.rowsMap.value(positions.value(place)).menuIndex).tag;
    return [=](const Sight &now) {
        return now.kind == Sight::Page && now.title == m_sight.title && !now.isEdited && says(now.row, tag);
    };
}

MenuModel::Sequel MenuModel::afterOk() const
{
    const st_MenuItemInfo row = this->row();
    const bool asks = g_dialogConfig.contains(row.menuIndex);
    const Sight before = m_sight;
    // An option that is not to be had stays in the list.
    if (m_sight.isDisabled || asks || m_sight.kind == Sight::List)
        return nullptr;
    // What was done before may switch the row off at last.
    const auto isOff = [=](const Sight &now) { return now.row == before.row && now.isDisabled; };
    switch (row.controlType) {
    case TYPE_SUBPAGE: // without cabinet files a message
        return [=](const Sight &now) {
            return isPage(now, row.subPage) || now.kind == Sight::Message || isOff(now);
        };
    case TYPE_INTADJUST:
    case TYPE_FLOATADJUST:
        return [=](const Sight &now) {
            return now.kind == Sight::Message || isOff(now) ||
                   (now.isEdited != before.isEdited && now.row == before.row);
        };
    case TYPE_STRINGCOMBOX:
        return [=](const Sight &now) { return now.kind == Sight::List || isOff(now); };
    case TYPE_INFORMATION:
        return [=](const Sight &now) { return now == before; };
    default:
        return nullptr;
    }
}

MenuModel::Sequel MenuModel::afterEsc() const
{
    const Sight before = m_sight;
    if (before.kind == Sight::List || before.isEdited)
        return [=](const Sight &now) {
            return (now.kind == Sight::Page && !now.isEdited && now.row == before.row) ||
                   now.kind == Sight::Message;
        };
    if (m_pages.size() == 1)
        return nullptr; // where a key has led straight here, its own way leads back
    const ENUM_ConfigIndex above = m_pages[m_pages.size() - 2];
    return [=](const Sight &now) { return isPage(now, above); };
}
