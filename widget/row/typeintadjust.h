// A whole number, turned by the knob or typed digit by digit. GUI thread.
#pragma once

#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "widget/row/numberrow.h"

namespace VASK
{
class typeintadjust : public NumberRow
{
    Q_OBJECT
public:
    using NumberRow::NumberRow;

    /// Appends a digit to what is being typed; nothing is applied before the edit ends.
    void NumberEntry(ENUM_MenuIndex index, unsigned char digit) override;

protected:
    QString stepped(int steps) const override;
    bool takesAsReported(ENUM_MenuIndex index, ENUM_MODE_SET_XML mode) const override;
    void takeValue(ENUM_MenuIndex index, const QString &value, ENUM_MODE_SET_XML mode) override;

private:
    void typeFirst(unsigned char digit);
    void typeNext(unsigned char digit);
};
} // namespace VASK
