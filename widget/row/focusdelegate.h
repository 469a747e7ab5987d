// Draws the cells of a drop-down table without a focus frame.
#pragma once

#include <QStyledItemDelegate>

namespace VASK
{
class FocusDelegate : public QStyledItemDelegate
{
    Q_OBJECT
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        QStyleOptionViewItem withoutFrame(option);
        withoutFrame.state &= ~QStyle::State_HasFocus;
        QStyledItemDelegate::paint(painter, withoutFrame, index);
    }
};
} // namespace VASK
