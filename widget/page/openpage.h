// Which page of the menu is open, for the keys and LEDs of the layers; and the ways out of the menu that do
// not go page by page. GUI thread, but for what says otherwise.
#pragma once

#include "menu/objectindex.h"

#include <atomic>

namespace VASK
{
class MenuDirectory;

class OpenPage
{
public:
    /// layer() when the page of no layer is open.
    static constexpr unsigned char noLayer = 255;

    /// Notes which page is open; the blinking layer LED follows.
    static void set(ENUM_ObjectIndex page);
    /// The panel goes home from wherever it is: no page is open, no layer LED blinks for one.
    static void setNone();
    /// The page last opened.
    static ENUM_ObjectIndex number() { return m_currentObj; }
    /// The layer whose page is open, 0 to 2, or noLayer. From any thread.
    static unsigned char layer() { return m_currentLayer; }

    /// The page that is visible; null if there is none.
    static MenuDirectory *shown();
    static void hideAll();
    /// As by ESC, and then away from whatever page that led to: an edit ends, and no page is open any more.
    static void leave();
    /// The same, and the home screen comes up.
    static void goHome();

private:
    inline static ENUM_ObjectIndex m_currentObj = ENUM_MAIN_MENU;
    inline static std::atomic<unsigned char> m_currentLayer{noLayer};
};
} // namespace VASK
