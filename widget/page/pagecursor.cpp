#include "widget/page/pagecursor.h"

#include "framework/store/menuanalysis.h"
#include "menu/itemindex.h"
#include "menu/objectindex.h"
#include "widget/row/pagerow.h"

namespace VASK
{
namespace
{
bool isFileRow(ENUM_MenuIndex item)
{
    return item >= MENU_CabinetFile1 && item <= MENU_CabinetFile8;
}

bool isPresent(ENUM_MenuIndex file)
{
    bool present = false;
    if (const auto *store = poolObject<MenuAnalysis>(ENUM_MENUANALYSIS))
        store->GetItemEnableSelect(file, present);
    return present;
}

void enterParts(const ShownRow &row, bool fromTheLeft)
{
    unsigned char one = 1;
    if (fromTheLeft)
        row.widget->DownEntry(row.info.menuIndex, one, false);
    else
        row.widget->UpEntry(row.info.menuIndex, one, false);
}
} // namespace

void PageCursor::turn(unsigned char speed, bool left)
{
    if (m_table.rowCount() == 0)
        return;
    const ShownRow row = shownRow();
    if (row && row.kind->hasParts() && moveInsideRow(row, speed, left))
        return;
    const int target = landingRow(speed, left);
    qDebug() << (left ? "left:" : " ###Right") << target;
    land(target, left, target == m_row);
}

/// True if the row used up the whole speed among its own parts.
bool PageCursor::moveInsideRow(const ShownRow &row, unsigned char &speed, bool left) const
{
    const bool atEnd = m_row == (left ? 0 : m_table.rowCount() - 1);
    if (left)
        row.widget->UpEntry(row.info.menuIndex, speed, atEnd);
    else
        row.widget->DownEntry(row.info.menuIndex, speed, atEnd);
    return speed == 0;
}

/// Where a turn takes the cursor: speed rows on, over the tips, and back to the nearest row that can be
/// reached when the table ends.
int PageCursor::landingRow(int speed, bool left) const
{
    const int last = m_table.rowCount() - 1;
    const int step = left ? -speed : speed;
    int target = qBound(0, m_row + step, last);
    while (!m_table.isFocusable(target)) {
        const int next = qBound(0, target + step, last);
        if (next == target)
            break;
        target = next;
    }
    const int back = left ? 1 : -1;
    while (target != m_row && !m_table.isFocusable(target))
        target += back;
    return left || target == m_row ? target : lastFileRow(target);
}

/// Of the file rows only those of files that are there can be reached.
int PageCursor::lastFileRow(int row) const
{
    const auto item = [this](int number) { return m_table.rows().value(number).menuIndex; };
    int target = row;
    while (target > 0 && isFileRow(item(target)) && !isPresent(item(target)))
        --target;
    return target;
}

/// Blocked: the table ends here, the cursor has not moved.
void PageCursor::land(int row, bool left, bool blocked)
{
    if (m_markedApply != row)
        unmarkApply();
    select(row);
    const ShownRow landed = shownRow();
    if (!landed)
        return;
    if (landed.info.controlType == TYPE_APPLY) {
        m_markedApply = row;
        landed.widget->ChangeStyleEntry(landed.info.menuIndex, 1);
    } else if (landed.kind->hasParts()) {
        // The part next to where the cursor comes from; at the end of the table, the one it ran into.
        enterParts(landed, left == blocked);
    }
}

void PageCursor::select(int row)
{
    m_row = static_cast<unsigned char>(row);
    m_table.select(row);
}

void PageCursor::put(int row)
{
    if (row < 0 || row >= m_table.rowCount())
        return;
    unmarkApply();
    select(row);
}

void PageCursor::stayInside()
{
    if (m_row < m_table.rowCount())
        return;
    unmarkApply();
    select(qMax(0, m_table.rowCount() - 1));
}

void PageCursor::unmarkApply()
{
    if (m_markedApply == noApply)
        return;
    const ShownRow row = m_table.row(m_markedApply);
    m_markedApply = noApply;
    if (row)
        row.widget->ChangeStyleEntry(row.info.menuIndex, 0);
}
} // namespace VASK
