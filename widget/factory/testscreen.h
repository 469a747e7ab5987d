// What the self-check window and the production test have in common: a screen of their own that looks like a
// page of the menu. GUI thread.
#pragma once

#include <QLabel>
#include <QWidget>

class TestScreen : public QWidget
{
    Q_OBJECT
public:
    explicit TestScreen(QWidget *parent = nullptr);

protected:
    void setTitle(const QString &text, bool english);
    void paintEvent(QPaintEvent *event) override;

private:
    QLabel *m_title;
};
