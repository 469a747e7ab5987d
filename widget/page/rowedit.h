// The edit of the row under the cursor, from the OK that starts it to the OK or ESC that ends it; meanwhile
// the knob changes the value. GUI thread.
#pragma once

#include "menu/itemindex.h"
#include "widget/page/pagetable.h"

namespace VASK
{
class MenuDirectory;

class RowEdit
{
public:
    explicit RowEdit(MenuDirectory &page) : m_page(page) {}

    bool runs() const { return m_edit; }
    /// OK on a row that can be edited: begins or ends the edit, or goes on to the next number of an address.
    void ok(const ShownRow &row);
    /// One click of the knob.
    void turn(const ShownRow &row, unsigned char speed, bool left) const;
    /// ESC.
    void leave(const ShownRow &row);

private:
    void okOnNumber(const ShownRow &row);
    void okOnList(const ShownRow &row);
    void saveBrightness() const;

    MenuDirectory &m_page;
    bool m_edit = false;
    /// Set between the OK that starts and the OK that ends the edit of a number.
    bool m_entered = false;
};
} // namespace VASK
