// A name and a choice of texts side by side, with a picture between them that tells whether one stands by for
// the other. The cursor only ever stands on the choice. GUI thread.
#pragma once

#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "menu/objectindex.h"
#include "widget/row/dropdown.h"
#include "widget/row/partsrow.h"
#include "widget/row/stringcomboxtable.h"

class QLabel;
class QPushButton;

namespace VASK
{
class typetwostringcombox : public PartsRow
{
    Q_OBJECT
public:
    typetwostringcombox(ENUM_MenuIndex menuIndex, ENUM_ObjectIndex objectIndex);

    OkKind okKind() const override { return OkKind::ChoosesFromList; }

    /// Shows the picture of a backup that is available, or the plain one. From any thread.
    void setTwoArrow(bool available) override;
    /// From any thread.
    void SetRightTextEnable(bool enabled) override;
    bool CurrentItemEnabled() override { return m_dropDown.currentEnabled(); }

    using VaskUiObject::DownEntry;
    using VaskUiObject::EnterEntry;
    using VaskUiObject::EscEntry;
    using VaskUiObject::UpEntry;
    void EnterEntry(ENUM_MenuIndex index, QWidget *page, unsigned char edit, unsigned char) override;
    void EscEntry(ENUM_MenuIndex) override { m_dropDown.close(); }
    void UpEntry(ENUM_MenuIndex index) override { m_dropDown.up(index); }
    void DownEntry(ENUM_MenuIndex index) override { m_dropDown.down(index); }
    void UpEntry(ENUM_MenuIndex index, unsigned char &speed, bool first) override;
    void DownEntry(ENUM_MenuIndex index, unsigned char &speed, bool last) override;

protected:
    void takeValue(ENUM_MenuIndex index, const QString &value, ENUM_MODE_SET_XML mode) override;
    void redraw() override;

private:
    void CreatEntry();
    QPushButton *createPart(const QString &name, QLabel *&label, const QString &labelName, QLabel *&icon);
    void drawPicture(bool available);
    void step(unsigned char &speed, bool end);

    QPushButton *m_left = nullptr;
    QPushButton *m_right = nullptr;
    QLabel *m_leftText = nullptr;
    QLabel *m_leftIcon = nullptr;
    QLabel *m_picture = nullptr;
    QLabel *m_rightText = nullptr;
    QLabel *m_rightIcon = nullptr;
    DropDown<stringcomboxtable> m_dropDown;
};
} // namespace VASK
