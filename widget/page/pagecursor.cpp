// The knob on a page: the cursor and, in edit mode, the value under it.

#include "widget/page/menudirectoty.h"

#include "framework/store/menuanalysis.h"
#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "menu/objectindex.h"
#include "widget/row/rowkinds.h"

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

void enterParts(VaskUiObject *row, ENUM_MenuIndex item, bool fromTheLeft)
{
    unsigned char one = 1;
    if (fromTheLeft)
        row->DownEntry(item, one, false);
    else
        row->UpEntry(item, one, false);
}
} // namespace

void MenuDirectory::keypadRotateLeftEvent(KeypadEvent *event)
{
    if (event)
        rotate(event, true);
}

void MenuDirectory::keypadRotateRightEvent(KeypadEvent *event)
{
    if (event)
        rotate(event, false);
}

void MenuDirectory::rotate(KeypadEvent *event, bool left)
{
    st_MenuItemInfo row;
    if (m_rowCount == 0 || !currentRowInfo(row))
        return;
    unsigned char speed = event->KeySpeed();
    if (m_edit) {
        turnValue(row, speed, left);
        return;
    }
    const bool atEnd = left ? m_currentRow == 0 : m_currentRow == m_rowCount - 1;
    if (hasInnerParts(row.controlType) && moveInsideRow(row, speed, left, atEnd))
        return;
    const int target = landingRow(m_currentRow, speed, left);
    qDebug() << (left ? "left:" : " ###Right") << target;
    land(target, left, target == m_currentRow);
}

void MenuDirectory::turnValue(const st_MenuItemInfo &row, unsigned char speed, bool left)
{
    VaskUiObject *widget = rowWidget(row);
    if (!widget)
        return;
    if (isKnobRow(row.controlType)) {
        RotateFlg = true;
        if (left)
            widget->UpEntry(row.menuIndex, speed);
        else
            widget->DownEntry(row.menuIndex, speed);
        RotateFlg = false;
    } else if (isListRow(row.controlType)) {
        if (left)
            widget->UpEntry(row.menuIndex);
        else
            widget->DownEntry(row.menuIndex);
    }
}

/// True if the row used up the whole speed among its own parts.
bool MenuDirectory::moveInsideRow(const st_MenuItemInfo &row, unsigned char &speed, bool left, bool atEnd)
{
    VaskUiObject *widget = rowWidget(row);
    if (!widget)
        return false;
    if (left)
        widget->UpEntry(row.menuIndex, speed, atEnd);
    else
        widget->DownEntry(row.menuIndex, speed, atEnd);
    return speed == 0;
}

bool MenuDirectory::isFocusable(int row) const
{
    const auto found = m_rows.constFind(row);
    return found != m_rows.constEnd() && g_MenuXmlConfig.value(found->menuIndex).focusable &&
           !m_table->isRowHidden(row);
}

/// Where a turn takes the cursor: speed rows on, over the tips, and back to the nearest row that can be
/// reached when the table ends.
int MenuDirectory::landingRow(int row, int speed, bool left) const
{
    const int last = m_rowCount - 1;
    const int step = left ? -speed : speed;
    int target = qBound(0, row + step, last);
    while (!isFocusable(target)) {
        const int next = qBound(0, target + step, last);
        if (next == target)
            break;
        target = next;
    }
    const int back = left ? 1 : -1;
    while (target != row && !isFocusable(target))
        target += back;
    return left || target == row ? target : lastFileRow(target);
}

/// Of the file rows only those of files that are there can be reached.
int MenuDirectory::lastFileRow(int row) const
{
    int target = row;
    while (target > 0 && isFileRow(m_rows.value(target).menuIndex) &&
           !isPresent(m_rows.value(target).menuIndex))
        --target;
    return target;
}

/// Blocked: the table ends here, the cursor has not moved.
void MenuDirectory::land(int row, bool left, bool blocked)
{
    const st_MenuItemInfo info = m_rows.value(row);
    if (m_markedApply != row)
        unmarkApply();
    selectRow(row);
    VaskUiObject *widget = rowWidget(info);
    if (!widget)
        return;
    if (info.controlType == TYPE_APPLY) {
        m_markedApply = row;
        widget->ChangeStyleEntry(info.menuIndex, 1);
    } else if (hasInnerParts(info.controlType)) {
        // The part next to where the cursor comes from; at the end of the table, the one it ran into.
        enterParts(widget, info.menuIndex, left == blocked);
    }
}

void MenuDirectory::selectRow(int row)
{
    m_currentRow = static_cast<unsigned char>(row);
    m_table->setCurrentCell(row, 0);
}

void MenuDirectory::setCurrentRow(int row)
{
    if (row < 0 || row >= m_rowCount)
        return;
    unmarkApply();
    selectRow(row);
}

void MenuDirectory::unmarkApply()
{
    if (m_markedApply == noApply)
        return;
    const st_MenuItemInfo info = m_rows.value(m_markedApply);
    m_markedApply = noApply;
    if (VaskUiObject *widget = rowWidget(info))
        widget->ChangeStyleEntry(info.menuIndex, 0);
}
} // namespace VASK
