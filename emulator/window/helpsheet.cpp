#include "emulator/window/helpsheet.h"

#include <QPainter>

namespace
{
struct HelpLine {
    const char *keys;
    const char *effect;
};

constexpr HelpLine lines[] = {
    {"wheel, arrow keys", "turn the knob; a notch is a step"},
    {"Enter, Space, click on the knob", "OK"},
    {"Esc, Backspace", "ESC"},
    {"1 to 8", "MAIN  PIP 1  PIP 2  SCALE  Fn  FREEZE  TEST  PRESET"},
    {"Q W E R", "HDMI 1  HDMI 2  DVI  SDI"},
    {"T Y U I", "IN 5  IN 6  IN 7  IN 8"},
    {"", "by their places on a US keyboard, whatever is printed on yours"},
    {"hold", "three seconds are a long press"},
    {"Shift and click", "keeps a key down until the next click: ESC, then OK, locks"},
    {"F2", "the LCD as PNG, in the folder pictures of the state folder"},
    {"F3", "begins or ends to record, in its folder sessions"},
    {"F5", "starts a panel that is off"},
    {"Ctrl +, Ctrl -, Ctrl 0", "larger, smaller, as at first"},
    {"Ctrl Q", "ends emulator and panel"},
    {"?, F1", "this sheet"},
};

constexpr int fontSize = 15, lineHeight = 30, top = 70, keysLeft = 60, effectLeft = 320;
} // namespace

HelpSheet::HelpSheet(QWidget *parent) : QWidget(parent)
{
    hide();
}

void HelpSheet::setScale(double scale)
{
    m_scale = scale;
    update();
}

void HelpSheet::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), QColor(16, 17, 22, 252));
    painter.scale(m_scale, m_scale);
    QFont font("Liberation Sans");
    font.setPixelSize(fontSize);
    painter.setFont(font);
    int y = top;
    for (const HelpLine &line : lines) {
        painter.setPen(QColor("#ebc613"));
        painter.drawText(keysLeft, y, QLatin1String(line.keys));
        painter.setPen(QColor("#d8d9e0"));
        painter.drawText(effectLeft, y, QLatin1String(line.effect));
        y += lineHeight;
    }
}

void HelpSheet::mousePressEvent(QMouseEvent *)
{
    hide();
}
