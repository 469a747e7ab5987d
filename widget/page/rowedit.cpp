#include "widget/page/rowedit.h"

#include "framework/engine/brightnessedit.h"
#include "framework/input/knobturn.h"
#include "framework/object/vaskobject.h"
#include "framework/ui/dialogs.h"
#include "widget/page/menudirectoty.h"
#include "widget/row/pagerow.h"

namespace VASK
{
void RowEdit::ok(const ShownRow &row)
{
    switch (row.kind->okKind()) {
    case OkKind::EditsNumber:
        okOnNumber(row);
        break;
    case OkKind::ChoosesFromList:
        okOnList(row);
        break;
    case OkKind::EditsAddress:
        m_edit = true;
        row.widget->EnterEntry(row.info.menuIndex);
        break;
    default:
        break;
    }
}

void RowEdit::okOnNumber(const ShownRow &row)
{
    row.widget->EnterEntry(row.info.menuIndex, static_cast<unsigned char>(m_edit),
                           static_cast<unsigned char>(m_entered));
    m_edit = !m_edit;
    m_entered = !m_entered;
    if (row.info.menuIndex != MENU_ScreenBrightness)
        return;
    if (m_edit)
        BrightnessEdit::begin();
    else
        saveBrightness();
}

void RowEdit::okOnList(const ShownRow &row)
{
    // The one list with a single picture, which cannot be chosen from.
    if (row.info.menuIndex == MENU_Test_VaskImage)
        return;
    if (!m_edit) {
        m_edit = true;
        row.widget->EnterEntry(row.info.menuIndex, &m_page, 0, 0);
    } else if (row.widget->CurrentItemEnabled()) {
        m_edit = false;
        row.widget->EnterEntry(row.info.menuIndex, &m_page, 1, 0);
    }
}

void RowEdit::turn(const ShownRow &row, unsigned char speed, bool left) const
{
    const ENUM_MenuIndex item = row.info.menuIndex;
    const OkKind kind = row.kind->okKind();
    if (stepsByKnob(kind)) {
        const KnobTurn turning;
        if (left)
            row.widget->UpEntry(item, speed);
        else
            row.widget->DownEntry(item, speed);
    } else if (kind == OkKind::ChoosesFromList) {
        if (left)
            row.widget->UpEntry(item);
        else
            row.widget->DownEntry(item);
    }
}

void RowEdit::leave(const ShownRow &row)
{
    m_edit = false;
    const unsigned char entered = m_entered;
    m_entered = false;
    if (!row)
        return;
    const OkKind kind = row.kind->okKind();
    if (stepsByKnob(kind))
        row.widget->EscEntry(row.info.menuIndex, entered);
    else if (kind == OkKind::ChoosesFromList)
        row.widget->EscEntry(row.info.menuIndex);
    if (row.info.menuIndex == MENU_ScreenBrightness)
        saveBrightness();
}

void RowEdit::saveBrightness() const
{
    BrightnessEdit::end();
    runMessage(&m_page, MSG_SavingHardwareInformationShort);
}
} // namespace VASK
