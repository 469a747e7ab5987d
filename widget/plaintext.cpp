#include "widget/plaintext.h"

#include <QLabel>

namespace VASK
{
void PlainTextStyle::polish(QWidget *widget)
{
    // Before the label is measured or drawn for the first time, so that no rich text is ever laid out.
    if (auto *label = qobject_cast<QLabel *>(widget))
        label->setTextFormat(Qt::PlainText);
    QProxyStyle::polish(widget);
}

void PlainTextStyle::drawItemText(QPainter *painter, const QRect &place, int flags, const QPalette &palette,
                                  bool enabled, const QString &text, QPalette::ColorRole role) const
{
    constexpr int mnemonics = Qt::TextShowMnemonic | Qt::TextHideMnemonic;
    QProxyStyle::drawItemText(painter, place, flags & ~mnemonics, palette, enabled, text, role);
}
} // namespace VASK
