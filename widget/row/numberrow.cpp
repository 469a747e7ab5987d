#include "widget/row/numberrow.h"

#include "framework/engine/limits/limits.h"
#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "menu/objectindex.h"
#include "widget/row/valuelabel.h"

namespace VASK
{
namespace
{
constexpr int valueHeight = 25; ///< pixels, the frame of an edit
}

void NumberRow::CreatEntry()
{
    ValueLabel *value = createValueLabel();
    createFrame(value);
    value->setFixedHeight(valueHeight);
}

QString NumberRow::inRange(const QString &value) const
{
    return withinLimits(m_item, value);
}

void NumberRow::EnterEntry(ENUM_MenuIndex index, unsigned char edit, unsigned char entered)
{
    if (edit == 0) {
        valueLabel()->setEdited(true);
        return;
    }
    valueLabel()->setEdited(false);
    if (entered != 0)
        commit(index);
}

void NumberRow::EscEntry(ENUM_MenuIndex index, unsigned char entered)
{
    valueLabel()->setEdited(false);
    if (entered != 0)
        commit(index);
}

void NumberRow::commit(ENUM_MenuIndex index)
{
    m_item.value = limited(inRange(m_item.value), index);
    apply(m_item.value, index);
    showNumber();
    m_editing = false;
}

void NumberRow::UpEntry(ENUM_MenuIndex index, unsigned char &speed)
{
    turn(index, -speed);
}

void NumberRow::DownEntry(ENUM_MenuIndex index, unsigned char &speed)
{
    turn(index, speed);
}

void NumberRow::turn(ENUM_MenuIndex index, int steps)
{
    const QString value = limited(stepped(steps), index);
    m_item.value = value;
    apply(value, index);
    showNumber();
}

void NumberRow::takeValue(ENUM_MenuIndex index, const QString &value, ENUM_MODE_SET_XML mode)
{
    if (!value.isEmpty()) {
        const bool outside = inRange(value) != value;
        m_item.value = inRange(value);
        if (outside)
            mode = SET_XML_USER;
        if (outside || !takesAsReported(index, mode)) {
            m_item.value = limited(m_item.value, index);
            // A value that the limits have changed goes back to the device.
            if (m_item.value != value)
                mode = SET_XML_USER;
            if (mode != SET_XML_DEVICE)
                apply(QString(m_item.value), index, mode);
        }
    }
    redraw();
}
} // namespace VASK
