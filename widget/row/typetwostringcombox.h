// A name and a choice of texts side by side, with a picture between them that tells whether one stands by for
// the other. The cursor only ever stands on the choice. GUI thread.
#pragma once

#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "menu/objectindex.h"
#include "widget/row/listrow.h"
#include "widget/row/partsrow.h"
#include "widget/row/stringcomboxtable.h"

class QLabel;
class QPushButton;

namespace VASK
{
class typetwostringcombox : public ListRow<PartsRow, stringcomboxtable>
{
    Q_OBJECT
public:
    using ListRow::ListRow;
    /// Shows the picture of a backup that is available, or the plain one. From any thread.
    void setTwoArrow(bool available) override;
    /// From any thread.
    void SetRightTextEnable(bool enabled) override;

    using ListRow::DownEntry;
    using ListRow::EnterEntry;
    using ListRow::UpEntry;
    void EnterEntry(ENUM_MenuIndex index, QWidget *page, unsigned char edit, unsigned char) override;
    void UpEntry(ENUM_MenuIndex index, unsigned char &speed, bool first) override;
    void DownEntry(ENUM_MenuIndex index, unsigned char &speed, bool last) override;

protected:
    void CreatEntry() override;
    void draw() override;

private:
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
};
} // namespace VASK
