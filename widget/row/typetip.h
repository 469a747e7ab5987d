// A note between rows, which the cursor skips. GUI thread.
#pragma once

#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "menu/objectindex.h"
#include "widget/row/menurow.h"

class QLabel;

namespace VASK
{
class typetip : public MenuRow
{
    Q_OBJECT
public:
    using MenuRow::MenuRow;

protected:
    void takeValue(ENUM_MenuIndex index, const QString &value, ENUM_MODE_SET_XML mode) override;
    void CreatEntry() override;
    void draw() override;

private:
    QLabel *m_text = nullptr;
};
} // namespace VASK
