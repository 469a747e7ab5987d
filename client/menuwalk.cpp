#include "client/menuwalk.h"

#include "client/loglines.h"
#include "menu/itemindex.h"
#include "menu/keycodes.h"
#include "menu/menutypes.h"
#include "menu/pageindex.h"

#include <QRegularExpression>
#include <QThread>

using namespace VASK;

namespace
{
constexpr int titleHeight = 24;
constexpr int moreThanAnyPage = 24; ///< rows and inner parts of the longest page

int partsOf(ENUM_ControlType type)
{
    if (type == TYPE_APPLYRESET || type == TYPE_TWOSTRINGCOMBOX)
        return 2;
    return type == TYPE_FOURPIC ? 4 : 1;
}

bool cursorStops(const st_MenuItemInfo &row)
{
    return g_MenuXmlConfig.value(row.menuIndex).focusable;
}
} // namespace

const ST_MenuConfig &MenuWalk::table() const
{
    static const ST_MenuConfig none;
    const auto found = g_config.constFind(page());
    return found == g_config.constEnd() ? none : *found;
}

void MenuWalk::assume(const QList<ENUM_ConfigIndex> &chain)
{
    m_pages.clear();
    m_cursors.clear();
    for (ENUM_ConfigIndex config : chain)
        m_pages.push(config);
}

void MenuWalk::replaced(ENUM_ConfigIndex page)
{
    m_pages.top() = page;
}

void MenuWalk::opened(ENUM_ConfigIndex page)
{
    m_pages.push(page);
}

bool MenuWalk::handled(int key, int times)
{
    const QString line = QString("key: %1 ").arg(key);
    return m_panel.waitUntil([this, &line, times] { return m_panel.logLines(line).size() >= times; });
}

bool MenuWalk::turn(Direction direction, int steps, int speed)
{
    m_panel.mark();
    return m_panel.turn(direction, steps, speed) && handled(direction == Left ? 32 : 33, steps);
}

bool MenuWalk::press(const QString &key)
{
    m_panel.mark();
    return m_panel.press(key) && m_panel.waitForLog(loglines::released) && m_panel.settle();
}

bool MenuWalk::openMenu(ENUM_ConfigIndex root)
{
    bool done = false;
    if (root == CONFIG_MainMenu)
        done = press(keys::Ok);
    else
        done = m_panel.hold(QString::number(root == CONFIG_UserHiddenMenu ? KEY_USER_HIDDEN_MENU
                                                                          : KEY_PRODUCT_HIDDEN_MENU)) &&
               m_panel.settle();
    m_pages.clear();
    opened(root);
    return done;
}

bool MenuWalk::go(const QList<ENUM_MenuIndex> &rows)
{
    bool done = openMenu();
    for (ENUM_MenuIndex row : rows)
        done = done && enter(row);
    return done;
}

bool MenuWalk::moveTo(ENUM_MenuIndex item)
{
    int stops = 0;
    const ST_MenuConfig &config = table();
    for (int position = 0; position < config.rows; ++position) {
        const st_MenuItemInfo row = config.rowsMap.value(position);
        const int part = item - row.menuIndex;
        if (part >= 0 && part < partsOf(row.controlType))
            return moveToStop(stops + part) && cursorIsIn(position);
        stops += cursorStops(row) ? partsOf(row.controlType) : 0;
    }
    qWarning("no row with item %d on page %d", int(item), int(page()));
    return false;
}

bool MenuWalk::moveToStop(int stop)
{
    m_panel.mark();
    if (!m_cursors.contains(page())) {
        if (!turn(Left, moreThanAnyPage))
            return false;
        m_cursors[page()] = 0;
    }
    const int steps = stop - m_cursors.value(page());
    m_cursors[page()] = stop;
    return steps == 0 || turn(steps < 0 ? Left : Right, qAbs(steps));
}

/// As the panel's log has it, a little after the key; a cursor that did not move, or moved inside its row,
/// leaves no word.
bool MenuWalk::cursorIsIn(int position)
{
    static const QRegularExpression move("(?:left:| ###Right) (\\d+)");
    constexpr int looks = 100, lookMs = 10;
    for (int look = 0; look < looks * panelSlowness(); ++look) {
        const QStringList moves = m_panel.logLines(QString()).filter(move);
        if (moves.isEmpty() || move.match(moves.last()).captured(1).toInt() == position)
            return true;
        QThread::msleep(lookMs);
    }
    return false;
}

bool MenuWalk::enter(ENUM_MenuIndex item)
{
    if (!moveTo(item) || !press(keys::Ok))
        return false;
    for (const st_MenuItemInfo &row : qAsConst(table().rowsMap)) {
        if (row.menuIndex == item && row.controlType == TYPE_SUBPAGE) {
            if (asked() && !answer(true))
                return false;
            opened(row.subPage);
            return m_panel.waitForLog(loglines::rowEntered);
        }
    }
    return true;
}

bool MenuWalk::asked()
{
    return !m_panel.logLines(loglines::messageUp)
                .filter(QRegularExpression(QString("^") + loglines::messageUp))
                .isEmpty();
}

bool MenuWalk::answer(bool yes)
{
    // Yes stands on the left, and No has the focus at first.
    return (!yes || (m_panel.turn(Left) && m_panel.settle())) && press(keys::Ok);
}

bool MenuWalk::back()
{
    if (!m_pages.isEmpty())
        m_pages.pop();
    return press(keys::Esc);
}

bool MenuWalk::home()
{
    m_pages.clear();
    m_cursors.clear();
    return m_panel.waitUntil([this] { return press(keys::Esc) && atHome(); });
}

bool MenuWalk::isHome()
{
    m_panel.mark();
    return m_panel.turn(Left) && m_panel.waitUntil([this] {
        return !m_panel.logLines("key: 32").isEmpty() || !m_panel.logLines("dialog").isEmpty();
    }) && !m_panel.logLines("MainWindow: key: 32").isEmpty();
}

bool MenuWalk::atHome()
{
    return !m_panel.logLines(loglines::homeKey).isEmpty();
}

bool MenuWalk::showsTitle()
{
    return m_panel.waitFor(text(table().title), QRect(0, 0, 320, titleHeight));
}

bool MenuWalk::speak(const QString &file)
{
    return m_texts.load(m_panel.file("/usr/vask/etc/fpd/config/" + file + ".qm"));
}

QString MenuWalk::text(const QString &key) const
{
    const QString translation = m_texts.translate("MainWindow", key.toUtf8().constData());
    return translation.isEmpty() ? key : translation;
}
