// A choice of pictures. Some lists show each picture on the wall while the knob passes over it. GUI thread.
#pragma once

#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "menu/objectindex.h"
#include "widget/row/framedrow.h"
#include "widget/row/icocomboxtable.h"
#include "widget/row/listrow.h"

namespace VASK
{
class typeicocombox : public ListRow<FramedRow, icocomboxtable>
{
    Q_OBJECT
public:
    using ListRow::DownEntry;
    using ListRow::EnterEntry;
    using ListRow::EscEntry;
    using ListRow::ListRow;
    using ListRow::UpEntry;
    void EnterEntry(ENUM_MenuIndex index, QWidget *page, unsigned char edit, unsigned char) override;
    /// Gives the flow way back what it was before the list opened; other lists keep what was shown last.
    void EscEntry(ENUM_MenuIndex index) override;
    void UpEntry(ENUM_MenuIndex index) override;
    void DownEntry(ENUM_MenuIndex index) override;

protected:
    void takeValue(ENUM_MenuIndex index, const QString &value, ENUM_MODE_SET_XML mode) override;
    void CreatEntry() override;
    void draw() override;

private:
    void preview(ENUM_MenuIndex index);
    void use(ENUM_MenuIndex index, const QString &value);
    void drawPicture();

    QLabel *m_picture = nullptr;
    QString m_oldValue; ///< before the list opened
};
} // namespace VASK
