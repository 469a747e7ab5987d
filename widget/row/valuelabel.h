// The value of a row; of its texts it is the name that is shortened first. While the knob changes it, it
// stands in a frame and another colour. GUI thread.
#pragma once

#include "widget/elidinglabel.h"

class ValueLabel : public ElidingLabel
{
    Q_OBJECT
public:
    ValueLabel(Qt::Alignment alignment, QWidget *parent);

    void setEdited(bool edited);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    bool m_edited = false;
};
