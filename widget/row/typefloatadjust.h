// A decimal number with as many decimals as its step has, turned by the knob. GUI thread.
#pragma once

#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "widget/row/numberrow.h"

namespace VASK
{
class typefloatadjust : public NumberRow
{
    Q_OBJECT
public:
    using NumberRow::NumberRow;

protected:
    QString stepped(int steps) const override;
    void takeValue(ENUM_MenuIndex index, const QString &value, ENUM_MODE_SET_XML mode) override;
};
} // namespace VASK
