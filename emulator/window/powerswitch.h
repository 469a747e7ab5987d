// The switch that starts the panel and ends it, with its light. Main thread.
#pragma once

#include <QWidget>

class PowerSwitch : public QWidget
{
    Q_OBJECT
public:
    explicit PowerSwitch(QWidget *parent = nullptr);

    void setOn(bool on);
    void setScale(double scale);

signals:
    void clicked();

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;

private:
    bool m_on = false;
    double m_scale = 1;
};
