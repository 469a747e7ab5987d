// A row whose number the knob changes: OK starts the edit, each step is applied at once, OK or ESC ends it.
// A reported number outside the limits is corrected, here and in the device, as if the user had set it.
// What stays open is how a step is computed and how the number reads. GUI thread.
#pragma once

#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "menu/objectindex.h"
#include "widget/row/framedrow.h"

namespace VASK
{
class NumberRow : public FramedRow
{
    Q_OBJECT
public:
    using FramedRow::FramedRow;

    OkKind okKind() const override { return OkKind::EditsNumber; }
    using VaskUiObject::DownEntry;
    using VaskUiObject::EnterEntry;
    using VaskUiObject::EscEntry;
    using VaskUiObject::UpEntry;
    void EnterEntry(ENUM_MenuIndex index, unsigned char edit, unsigned char entered) override;
    /// Keeps what the knob has set, and applies it once more.
    void EscEntry(ENUM_MenuIndex index, unsigned char entered) override;
    void UpEntry(ENUM_MenuIndex index, unsigned char &speed) override;
    void DownEntry(ENUM_MenuIndex index, unsigned char &speed) override;

protected:
    void CreatEntry() override;
    /// The number after so many steps, already held by the item's own limits.
    virtual QString stepped(int steps) const = 0;
    /// True when a value within its limits is taken as the device tells it, without the engine's limits.
    virtual bool takesAsReported(ENUM_MenuIndex, ENUM_MODE_SET_XML) const { return false; }

    void takeValue(ENUM_MenuIndex index, const QString &value, ENUM_MODE_SET_XML mode) override;
    QString valueText() const override { return m_item.value + m_item.unit; }
    void showNumber() { showValue(valueText()); }

    /// Digits are being typed: the next one goes behind them.
    bool m_editing = false;

private:
    void turn(ENUM_MenuIndex index, int steps);
    void commit(ENUM_MenuIndex index);
    /// The value held by the item's own limits.
    QString inRange(const QString &value) const;
};
} // namespace VASK
