// A user who knows the menu: finds a row by its item, opens it and comes back, with keys alone. It takes page
// and row order from the menu's tables, and where the panel really is from the LCD and the log. GUI thread of
// its program.
#pragma once

#include "client/panel.h"
#include "menu/itemindex.h"
#include "menu/pageindex.h"
#include "menuconfig_k2860.h"

#include <QStack>
#include <QTranslator>

Q_DECLARE_METATYPE(VASK::ENUM_MenuIndex)

class MenuWalk
{
public:
    explicit MenuWalk(Panel &panel) : m_panel(panel) {}

    /// From the home screen into a menu: OK, or the long press of a hidden one's key.
    bool openMenu(VASK::ENUM_ConfigIndex root = VASK::CONFIG_MainMenu);
    /// From the home screen: OK on each of these rows in turn. The last one may be any row.
    bool go(const QList<VASK::ENUM_MenuIndex> &rows);
    /// Takes the cursor of the page to the row, or to the part of a row that has the item; false if it is not
    /// there then.
    bool moveTo(VASK::ENUM_MenuIndex item);
    /// moveTo and OK; a page that opens becomes the present one.
    bool enter(VASK::ENUM_MenuIndex item);
    /// ESC, and back on the page above or on the home screen.
    bool back();
    /// ESC until the home screen has it.
    bool home();
    /// The last key came to the home screen.
    bool atHome();
    /// Asks the panel itself, by a step of the knob.
    bool isHome();
    /// A message came up since the last key.
    bool asked();
    /// Answers a question.
    bool answer(bool yes);

    /// The page that is open; CONFIG_END at home.
    VASK::ENUM_ConfigIndex page() const { return m_pages.isEmpty() ? VASK::CONFIG_END : m_pages.top(); }
    const VASK::ST_MenuConfig &table() const;
    /// A path of keys led to this page: the chain of pages from the menu's root.
    void assume(const QList<VASK::ENUM_ConfigIndex> &chain);
    /// OK opened a page below the present one.
    void opened(VASK::ENUM_ConfigIndex page);
    /// A choice on the present page brought another one into its place.
    void replaced(VASK::ENUM_ConfigIndex page);

    /// Waits for the page's title on the LCD.
    bool showsTitle();
    /// A text of the panel in the language that it speaks.
    QString text(const QString &key) const;
    /// Reads the panel's own translation: fpd_EN or fpd_ZH.
    bool speak(const QString &file);

    bool turn(Direction direction, int steps, int speed = 1);
    bool press(const QString &key);

private:
    bool handled(int key, int times);
    bool moveToStop(int stop);
    bool cursorIsIn(int position);

    Panel &m_panel;
    QStack<VASK::ENUM_ConfigIndex> m_pages;
    /// Where the cursor of a page was left, counted in steps of the knob.
    QMap<VASK::ENUM_ConfigIndex, int> m_cursors;
    QTranslator m_texts;
};
