// A push button in the middle of its row; it looks pressed while the cursor stands on it. GUI thread.
#pragma once

#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "menu/objectindex.h"
#include "widget/row/menurow.h"

class QPushButton;

namespace VASK
{
class typeapply : public MenuRow
{
    Q_OBJECT
public:
    using MenuRow::MenuRow;

    OkKind okKind() const override { return OkKind::Acts; }
    bool needsSheet() const override { return true; }
    using VaskUiObject::EnterEntry;
    void EnterEntry(ENUM_MenuIndex index) override { act(index); }
    void ChangeStyleEntry(ENUM_MenuIndex index, unsigned char on) override;

protected:
    void takeValue(ENUM_MenuIndex index, const QString &value, ENUM_MODE_SET_XML mode) override;
    void CreatEntry() override;
    void draw() override;
    void changeEvent(QEvent *event) override;

private:
    void markButton();

    bool m_marked = false; ///< the cursor stands on it
    QPushButton *m_button = nullptr;
};
} // namespace VASK
