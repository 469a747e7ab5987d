#include "widget/factory/testscreen.h"

#include "widget/menulook.h"

#include <QPainter>

using namespace VASK;

TestScreen::TestScreen(QWidget *parent) : QWidget(parent), m_title(new QLabel(this))
{
    setWindowFlags(Qt::Window | Qt::FramelessWindowHint);
    setFixedSize(menulook::width, menulook::height);
    m_title->setGeometry(0, 0, menulook::width, menulook::titleHeight);
    m_title->setContentsMargins(menulook::titleMargin, 0, 0, 0);
}

void TestScreen::setTitle(const QString &text, bool english)
{
    m_title->setText(text);
    setNoteLook(*m_title, english, menulook::titlePixels);
}

void TestScreen::paintEvent(QPaintEvent *)
{
    QPainter(this).drawPixmap(0, 0, menuBackground());
}
