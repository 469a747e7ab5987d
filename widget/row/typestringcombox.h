// A choice of texts. GUI thread.
#pragma once

#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "menu/objectindex.h"
#include "widget/row/dropdown.h"
#include "widget/row/framedrow.h"
#include "widget/row/stringcomboxtable.h"

namespace VASK
{
class typestringcombox : public FramedRow
{
    Q_OBJECT
public:
    typestringcombox(ENUM_MenuIndex menuIndex, ENUM_ObjectIndex objectIndex);

    OkKind okKind() const override { return OkKind::ChoosesFromList; }
    bool CurrentItemEnabled() override { return m_dropDown.currentEnabled(); }
    using VaskUiObject::DownEntry;
    using VaskUiObject::EnterEntry;
    using VaskUiObject::EscEntry;
    using VaskUiObject::UpEntry;
    void EnterEntry(ENUM_MenuIndex index, QWidget *page, unsigned char edit, unsigned char) override;
    void EscEntry(ENUM_MenuIndex) override { m_dropDown.close(); }
    void UpEntry(ENUM_MenuIndex index) override { m_dropDown.up(index); }
    void DownEntry(ENUM_MenuIndex index) override { m_dropDown.down(index); }

protected:
    void takeValue(ENUM_MenuIndex index, const QString &value, ENUM_MODE_SET_XML mode) override;
    QString valueText() const override;

private:
    void takeChoice(ENUM_MenuIndex index);

    DropDown<stringcomboxtable> m_dropDown;
};
} // namespace VASK
