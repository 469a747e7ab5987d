// What the keys do on a page: its own keys here, the panel's dedicated keys in panelkeys.h. GUI thread.
#pragma once

#include "framework/input/keypadevent.h"
#include "widget/page/pagecursor.h"
#include "widget/page/rowedit.h"

namespace VASK
{
class MenuDirectory;

class PageKeys
{
public:
    PageKeys(MenuDirectory &page, PageCursor &cursor) : m_page(page), m_cursor(cursor), m_edit(page) {}

    void handle(KeypadEvent &event);
    void turn(unsigned char speed, bool left);
    void ok();
    /// Ends the edit of the row, or leaves the page for its parent.
    void esc();
    bool isEditing() const { return m_edit.runs(); }
    /// The ESC that closes another window must not leave the page too.
    void skipNextEsc() { m_skipNextEsc = true; }

private:
    struct PageKey;
    static const QVector<PageKey> &pageKeys();
    void knobLeft(KeypadEvent &event) { turn(event.KeySpeed(), true); }
    void knobRight(KeypadEvent &event) { turn(event.KeySpeed(), false); }
    void okReleased(KeypadEvent &) { ok(); }
    void escReleased(KeypadEvent &event);
    void escPressed(KeypadEvent &event);
    void lockPanel(KeypadEvent &event);
    void leave();

    MenuDirectory &m_page;
    PageCursor &m_cursor;
    RowEdit m_edit;
    bool m_skipNextEsc = false;
};
} // namespace VASK
