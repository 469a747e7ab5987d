// How the panel's texts are drawn: as they stand. Names come from the device, from files and from the store,
// and no sign in them may mean anything: a label would else take a name with "<" for rich text and open the
// files that it speaks of. GUI thread.
#pragma once

#include <QProxyStyle>

class QApplication;

namespace VASK
{
/// The look of every widget, whoever makes it: labels show plain text, and "&" is a letter as any other.
class PlainTextStyle : public QProxyStyle
{
    Q_OBJECT
public:
    using QProxyStyle::polish;

    void polish(QWidget *widget) override;
    void drawItemText(QPainter *painter, const QRect &place, int flags, const QPalette &palette, bool enabled,
                      const QString &text, QPalette::ColorRole role) const override;
};
} // namespace VASK
