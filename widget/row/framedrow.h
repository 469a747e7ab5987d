// A row in the common frame: icon, name, value and the small picture at the right end, each shown only if the
// item has it. GUI thread.
#pragma once

#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "widget/row/menurow.h"

class QHBoxLayout;
class QLabel;
class QPushButton;
class ValueLabel;

namespace VASK
{
class FramedRow : public MenuRow
{
    Q_OBJECT
public:
    using MenuRow::MenuRow;

    /// From any thread.
    void UpdateTagName(ENUM_MenuIndex index, QString text) override;

protected:
    void takeValue(ENUM_MenuIndex index, const QString &value, ENUM_MODE_SET_XML mode) override;
    void draw() override;

    /// Builds the frame with a value part in front of the right picture; null for none.
    void createFrame(QWidget *valuePart, int spaceBeforeRight = 4);
    ValueLabel *createValueLabel();

    void drawIcons();
    void drawName();
    /// Shows a text in the value label, if the row has one by now.
    void showValue(const QString &text);
    ValueLabel *valueLabel();
    QPushButton *rightButton() const { return m_rightButton; }

    /// The picture in front of the name; that of the item by default. None leaves the item's room free.
    virtual QString iconPath() const;
    /// How the value of the item reads; its translation by default.
    virtual QString valueText() const;

private:
    QLabel *m_icon = nullptr;
    QString m_drawnIcon; ///< path of the picture that it shows
    QLabel *m_name = nullptr;
    ValueLabel *m_value = nullptr;
    QPushButton *m_rightButton = nullptr;
};

/// The small button-shaped picture at the right end of a row.
QPushButton *createRightPicture(QWidget *parent);
/// A picture of the row in front of the name; hidden while the item has none.
QLabel *createRowIcon(QWidget *parent, int width, int height);
} // namespace VASK
