#include "emulator/window/window.h"

#include "emulator/window/keybutton.h"
#include "emulator/window/knob.h"
#include "emulator/window/lcdview.h"

#include <QCoreApplication>
#include <QGridLayout>
#include <QKeyEvent>
#include <QPainter>
#include <QVBoxLayout>

namespace
{
constexpr int keysPerRow = 8;
}

EmulatorWindow::EmulatorWindow(Emulator &emulator) : m_emulator(emulator), m_knob(new Knob)
{
    setWindowTitle("Front panel");
    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins(28, 28, 28, 24);
    rows->setSpacing(18);
    auto *top = new QHBoxLayout;
    top->setSpacing(26);
    top->addWidget(new LcdView(emulator.lcd));
    top->addLayout(knobColumn());
    rows->addLayout(top);
    rows->addLayout(keyRows());
    rows->setSizeConstraint(QLayout::SetFixedSize);
    setFocusPolicy(Qt::StrongFocus);
    connect(&emulator.keypad, &Keypad::ledsChanged, this, &EmulatorWindow::showLeds);
    showLeds();
}

QLayout *EmulatorWindow::knobColumn()
{
    auto *column = new QVBoxLayout;
    column->addStretch();
    column->addWidget(m_knob, 0, Qt::AlignCenter);
    column->addSpacing(24);
    for (const KeyName &key : keyNames()) {
        if (key.code == keyEsc)
            column->addWidget(button(key), 0, Qt::AlignCenter);
    }
    column->addStretch();
    connect(m_knob, &Knob::pressed, this, [this] { setKeyDown(keyOk, true); });
    connect(m_knob, &Knob::released, this, [this] { setKeyDown(keyOk, false); });
    connect(m_knob, &Knob::turned, this, [this](int steps, int speed) {
        m_emulator.keypad.turn(steps < 0 ? keyKnobLeft : keyKnobRight, qAbs(steps), speed);
    });
    return column;
}

QLayout *EmulatorWindow::keyRows()
{
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(20);
    grid->setVerticalSpacing(8);
    int place = 0;
    for (const KeyName &key : keyNames()) {
        if (key.led < 0)
            continue;
        grid->addWidget(button(key), place / keysPerRow, place % keysPerRow, Qt::AlignCenter);
        ++place;
    }
    return grid;
}

KeyButton *EmulatorWindow::button(const KeyName &key)
{
    auto *button = new KeyButton(key);
    m_buttons.insert(key.code, button);
    connect(button, &KeyButton::pressed, this, [this, code = key.code] { setKeyDown(code, true); });
    connect(button, &KeyButton::released, this, [this, code = key.code] { setKeyDown(code, false); });
    return button;
}

void EmulatorWindow::showLeds()
{
    for (KeyButton *button : qAsConst(m_buttons)) {
        if (button->key().led >= 0)
            button->setLit(m_emulator.keypad.leds() >> button->key().led & 1);
    }
}

void EmulatorWindow::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    QLinearGradient plate(0, 0, 0, height());
    plate.setColorAt(0, QColor("#2b2d35"));
    plate.setColorAt(1, QColor("#1b1c22"));
    painter.fillRect(rect(), plate);
}

int EmulatorWindow::panelKey(const QKeyEvent *event) const
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        return keyOk;
    case Qt::Key_Escape:
    case Qt::Key_Backspace:
        return keyEsc;
    default:
        break;
    }
    for (const KeyName &key : keyNames()) {
        if (key.shortcut && event->key() == key.shortcut)
            return key.code;
    }
    return 0;
}

void EmulatorWindow::setKeyDown(int key, bool down)
{
    if (m_held.contains(key) == down)
        return;
    if (down)
        m_held.insert(key);
    else
        m_held.remove(key);
    if (key == keyOk)
        m_knob->setDown(down);
    else if (KeyButton *button = m_buttons.value(key))
        button->setDown(down);
    if (down)
        m_emulator.keypad.press({key});
    else
        m_emulator.keypad.release({key});
}

void EmulatorWindow::releaseAll()
{
    const QSet<int> held = m_held;
    for (int key : held)
        setKeyDown(key, false);
}

bool EmulatorWindow::event(QEvent *event)
{
    // A key that is let go over another window is not told here.
    if (event->type() == QEvent::WindowDeactivate)
        releaseAll();
    return QWidget::event(event);
}

void EmulatorWindow::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Left || event->key() == Qt::Key_Up)
        return m_knob->turn(-1);
    if (event->key() == Qt::Key_Right || event->key() == Qt::Key_Down)
        return m_knob->turn(1);
    const int key = panelKey(event);
    if (key == 0)
        return event->ignore();
    if (!event->isAutoRepeat())
        setKeyDown(key, true);
}

void EmulatorWindow::keyReleaseEvent(QKeyEvent *event)
{
    const int key = panelKey(event);
    if (key != 0 && !event->isAutoRepeat())
        setKeyDown(key, false);
}

void EmulatorWindow::wheelEvent(QWheelEvent *event)
{
    QCoreApplication::sendEvent(m_knob, event);
}
