// A row that is only read: a name and a text. GUI thread.
#pragma once

#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "menu/objectindex.h"
#include "widget/row/menurow.h"

class QLabel;
class QPushButton;

namespace VASK
{
class typeinformation : public MenuRow
{
    Q_OBJECT
public:
    using MenuRow::MenuRow;

    using VaskUiObject::EnterEntry;
    void EnterEntry(ENUM_MenuIndex index) override { act(index); }

protected:
    void takeValue(ENUM_MenuIndex index, const QString &value, ENUM_MODE_SET_XML mode) override;
    void CreatEntry() override;
    void draw() override;

private:
    QLabel *m_icon = nullptr;
    QLabel *m_name = nullptr;
    QLabel *m_value = nullptr;
    QPushButton *m_rightButton = nullptr;
};
} // namespace VASK
