// The arrangement of an input mosaic: two sources side by side or one above the other, and their size
// together. Only the first source is chosen; the second follows. GUI thread, but for what says otherwise.
#pragma once

#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "menu/objectindex.h"
#include "widget/row/dropdown.h"
#include "widget/row/menurow.h"
#include "widget/row/stringcomboxtable.h"

class QBoxLayout;
class QHBoxLayout;
class QLabel;

namespace VASK
{
class typemosaic : public MenuRow
{
    Q_OBJECT
public:
    using MenuRow::MenuRow;

    OkKind okKind() const override { return OkKind::ChoosesFromList; }
    bool needsSheet() const override { return true; }
    bool CurrentItemEnabled() override { return m_dropDown.currentEnabled(); }
    /// "0" stacks the boxes, anything else sets them side by side. From any thread.
    void updateSplite(QString value) override;
    /// The size of the whole. From any thread.
    void updatePixValue(QString text) override;
    /// From any thread.
    void updateSource(ENUM_SOURCELABLEINDEX which, QString text) override;

    using VaskUiObject::DownEntry;
    using VaskUiObject::EnterEntry;
    using VaskUiObject::EscEntry;
    using VaskUiObject::UpEntry;
    void EnterEntry(ENUM_MenuIndex index) override { act(index); }
    void EnterEntry(ENUM_MenuIndex index, QWidget *page, unsigned char edit, unsigned char) override;
    void EscEntry(ENUM_MenuIndex) override { m_dropDown.close(); }
    void UpEntry(ENUM_MenuIndex index) override { m_dropDown.up(index); }
    void DownEntry(ENUM_MenuIndex index) override { m_dropDown.down(index); }

protected:
    void takeValue(ENUM_MenuIndex index, const QString &value, ENUM_MODE_SET_XML mode) override;
    void CreatEntry() override;
    void draw() override;

private:
    void arrange(bool stacked);
    void showSize(const QString &text);

    QHBoxLayout *m_outer = nullptr;
    QBoxLayout *m_boxes = nullptr;
    QLabel *m_size = nullptr;
    QLabel *m_first = nullptr;
    QLabel *m_second = nullptr;
    DropDown<stringcomboxtable> m_dropDown;
};
} // namespace VASK
