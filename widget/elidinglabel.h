// A label that shortens a text that does not fit, instead of pushing its neighbours out of the row.
#pragma once

#include <QLabel>

class ElidingLabel : public QLabel
{
    Q_OBJECT
public:
    using QLabel::QLabel;

    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
};
