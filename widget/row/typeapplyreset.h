// Two push buttons side by side: the item of the row and the one behind it. GUI thread.
#pragma once

#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "menu/objectindex.h"
#include "widget/row/partsrow.h"

class QPushButton;

namespace VASK
{
class typeapplyreset : public PartsRow
{
    Q_OBJECT
public:
    typeapplyreset(ENUM_MenuIndex menuIndex, ENUM_ObjectIndex objectIndex);

    OkKind okKind() const override { return OkKind::Acts; }
    using VaskUiObject::EnterEntry;
    void EnterEntry(ENUM_MenuIndex index) override;

protected:
    void takeValue(ENUM_MenuIndex index, const QString &value, ENUM_MODE_SET_XML mode) override;
    void CreatEntry() override;
    void draw() override;

private:
    void setTypeStyleSheet();
    ST_ItemInfo secondItem() const;

    QPushButton *m_apply = nullptr;
    QPushButton *m_reset = nullptr;
};
} // namespace VASK
