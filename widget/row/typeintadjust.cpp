#include "widget/row/typeintadjust.h"

#include "framework/store/menuanalysis.h"
#include "menu/itemfamilies.h"
#include "menu/menutypes.h"
#include "menu/objectindex.h"

#include <cstdlib>

namespace VASK
{
namespace
{
/// Width, height and start of a layer's crop.
bool isCropSize(ENUM_MenuIndex index)
{
    const int place = index - MENU_MainLayerCrop_Status;
    return place >= 0 && place < FAMILY_Crop.count * STRIDE_Crop &&
           place % STRIDE_Crop >= MENU_MainLayerCrop_HorWidth - MENU_MainLayerCrop_Status &&
           place % STRIDE_Crop <= MENU_MainLayerCrop_InitialY - MENU_MainLayerCrop_Status;
}
} // namespace

QString typeintadjust::stepped(int steps) const
{
    const int value = m_item.value.toInt() + m_item.step.toInt() * steps;
    if (steps < 0 && value < m_item.min.toDouble())
        return m_item.min;
    if (steps > 0 && value > m_item.max.toDouble())
        return m_item.max;
    return QString::number(value);
}

void typeintadjust::NumberEntry(ENUM_MenuIndex index, unsigned char digit)
{
    if (!m_editing) {
        typeFirst(digit);
        return;
    }
    typeNext(digit);
    const QString value = limited(m_item.value, index);
    if (value.toDouble() < m_item.value.toDouble())
        m_item.value = value;
    else
        m_editing = false;
    showNumber();
}

void typeintadjust::typeFirst(unsigned char digit)
{
    m_editing = true;
    m_item.value = digit > m_item.max.toDouble() ? m_item.max : QString::number(digit);
    showNumber();
}

void typeintadjust::typeNext(unsigned char digit)
{
    int value = m_item.value.toInt();
    const bool negative = value < 0;
    const int limit = negative ? m_item.min.toInt() : m_item.max.toInt();
    if (negative ? value <= limit : value >= limit)
        value = 0;
    const int magnitude = std::abs(value) * 10 + digit;
    value = negative ? -magnitude : magnitude;
    if (negative ? value <= limit : value >= limit) {
        value = limit;
        m_editing = false;
    }
    m_item.value = QString::number(value);
}

bool typeintadjust::takesAsReported(ENUM_MenuIndex index, ENUM_MODE_SET_XML mode) const
{
    return mode == SET_XML_DEVICE && isCropSize(index);
}

void typeintadjust::takeValue(ENUM_MenuIndex index, const QString &value, ENUM_MODE_SET_XML mode)
{
    // The start of the right eye is the one number that can be unknown.
    if (value.isEmpty() && index == MENU_Mode3D_RightEyeStart) {
        m_item.value.clear();
        if (auto *store = dynamic_cast<MenuAnalysis *>(GetObjectFromPool(ENUM_MENUANALYSIS)))
            store->UpdataItemCurValue(index, QString());
    }
    NumberRow::takeValue(index, value, mode);
}
} // namespace VASK
