// All keys of the window, on a sheet over it; goes with the next key or click. Main thread.
#pragma once

#include <QWidget>

class HelpSheet : public QWidget
{
    Q_OBJECT
public:
    explicit HelpSheet(QWidget *parent);

    void setScale(double scale);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;

private:
    double m_scale = 1;
};
