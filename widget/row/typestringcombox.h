// A choice of texts. GUI thread.
#pragma once

#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "menu/objectindex.h"
#include "widget/row/framedrow.h"
#include "widget/row/listrow.h"
#include "widget/row/stringcomboxtable.h"

namespace VASK
{
class typestringcombox : public ListRow<FramedRow, stringcomboxtable>
{
    Q_OBJECT
public:
    using ListRow::EnterEntry;
    using ListRow::ListRow;
    void EnterEntry(ENUM_MenuIndex index, QWidget *page, unsigned char edit, unsigned char) override;

protected:
    void CreatEntry() override;
    QString valueText() const override;

private:
    void takeChoice(ENUM_MenuIndex index);
};
} // namespace VASK
