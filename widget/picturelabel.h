// A picture in a row, drawn as dim as the texts beside it when the row is disabled. GUI thread.
#pragma once

#include <QIcon>
#include <QLabel>

class PictureLabel : public QLabel
{
    Q_OBJECT
public:
    using QLabel::QLabel;

protected:
    void paintEvent(QPaintEvent *event) override;
};

/// The same for a button. Qt's own picture of a disabled button is brighter than that of an enabled one here,
/// as it is made for a light window.
QIcon dimmableIcon(const QString &path);
