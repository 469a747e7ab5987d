#include "emulator/window/window.h"

#include "emulator/window/helpsheet.h"
#include "emulator/window/keyboard.h"
#include "emulator/window/keybutton.h"
#include "emulator/window/knob.h"
#include "emulator/window/lcdview.h"
#include "emulator/window/powerswitch.h"

#include <QCoreApplication>
#include <QDir>
#include <QGridLayout>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QScreen>
#include <QVBoxLayout>

namespace
{
constexpr int toldMs = 8000;
constexpr int firstZoom = 2;
/// How large the keys are, by zoom: smaller than the LCD, so that they stay readable and do not fill the
/// screen.
constexpr double scales[] = {0.7, 1, 1.4, 1.8};

QString shortPath(const QString &path)
{
    const QString home = QDir::homePath();
    return path.startsWith(home + '/') ? '~' + path.mid(home.size()) : path;
}
} // namespace

EmulatorWindow::EmulatorWindow(Emulator &emulator)
    : m_emulator(emulator), m_lcd(new LcdView(emulator.lcd)), m_knob(new Knob), m_power(new PowerSwitch),
      m_keyboard(new Keyboard(this)), m_help(new HelpSheet(this)), m_status(new QLabel)
{
    m_rows = new QVBoxLayout(this);
    m_rows->addLayout(topRow());
    m_rows->addLayout(keyRows());
    m_rows->addWidget(m_status);
    m_rows->setSizeConstraint(QLayout::SetFixedSize);
    m_status->setTextFormat(Qt::PlainText);
    m_status->setSizePolicy(QSizePolicy::Ignored,
                            QSizePolicy::Fixed); // a long path is cut, not the window wider
    setFocusPolicy(Qt::StrongFocus);
    m_told.setSingleShot(true);
    connect(&m_told, &QTimer::timeout, this, &EmulatorWindow::showHint);
    connectPanel();
    setZoom(firstZoom);
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    if (!screen.size().isEmpty() &&
        (m_rows->sizeHint().width() > screen.width() || m_rows->sizeHint().height() > screen.height()))
        setZoom(smallestZoom);
    showPanelState();
    showHint();
}

void EmulatorWindow::prepareApplication()
{
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
}

QLayout *EmulatorWindow::topRow()
{
    auto *column = new QVBoxLayout;
    column->addWidget(m_power, 0, Qt::AlignRight);
    column->addStretch();
    column->addWidget(m_knob, 0, Qt::AlignCenter);
    column->addSpacing(24);
    for (const KeyName &key : keyNames()) {
        if (key.code == keyEsc)
            column->addWidget(button(key), 0, Qt::AlignCenter);
    }
    column->addStretch();
    connectKey(m_knob, keyOk);
    connect(m_knob, &Knob::turned, this, [this](int steps, int speed) {
        m_emulator.keypad.turn(steps < 0 ? keyKnobLeft : keyKnobRight, qAbs(steps), speed);
    });
    m_top = new QHBoxLayout;
    m_top->addWidget(m_lcd);
    m_top->addLayout(column);
    return m_top;
}

QLayout *EmulatorWindow::keyRows()
{
    m_grid = new QGridLayout;
    int place = 0;
    for (const KeyName &key : keyNames()) {
        if (key.led < 0)
            continue;
        m_grid->addWidget(button(key), place / keysPerRow, place % keysPerRow, Qt::AlignCenter);
        ++place;
    }
    return m_grid;
}

KeyButton *EmulatorWindow::button(const KeyName &key)
{
    auto *button = new KeyButton(key);
    m_buttons.insert(key.code, button);
    connectKey(button, key.code);
    return button;
}

void EmulatorWindow::connectKey(Pushable *key, int code)
{
    connect(key, &Pushable::pressed, this, [=] { m_emulator.heldKeys.hold(key, code, true); });
    connect(key, &Pushable::released, this, [=] { m_emulator.heldKeys.hold(key, code, false); });
}

void EmulatorWindow::connectPanel()
{
    HeldKeys &held = m_emulator.heldKeys;
    connect(m_keyboard, &Keyboard::pressed, this, [=, &held](int key) { held.hold(m_keyboard, key, true); });
    connect(m_keyboard, &Keyboard::released, this,
            [=, &held](int key) { held.hold(m_keyboard, key, false); });
    connect(&held, &HeldKeys::changed, this, &EmulatorWindow::showKey);
    connect(m_keyboard, &Keyboard::turned, m_knob, &Knob::turn);
    connect(m_power, &PowerSwitch::clicked, this, &EmulatorWindow::togglePower);
    connect(&m_emulator.keypad, &Keypad::ledsChanged, this, &EmulatorWindow::showLeds);
    for (auto change : {&PanelProcess::started, &PanelProcess::ended})
        connect(&m_emulator.panel, change, this, &EmulatorWindow::showPanelState);
    connect(&m_emulator.recorder, &Recorder::changed, this, &EmulatorWindow::showHint);
}

void EmulatorWindow::setZoom(int zoom)
{
    m_zoom = qBound(smallestZoom, zoom, largestZoom);
    const double scale = scales[m_zoom - smallestZoom];
    const auto scaled = [scale](int length) { return qRound(length * scale); };
    m_lcd->setZoom(m_zoom);
    m_knob->setScale(scale);
    m_power->setScale(scale);
    m_help->setScale(scale);
    for (KeyButton *button : qAsConst(m_buttons))
        button->setScale(scale);
    m_rows->setContentsMargins(scaled(28), scaled(28), scaled(28), scaled(12));
    m_rows->setSpacing(scaled(18));
    m_top->setSpacing(scaled(26));
    m_grid->setHorizontalSpacing(scaled(20));
    m_grid->setVerticalSpacing(scaled(8));
    m_status->setStyleSheet(
        QString("font-family: \"Liberation Sans\"; font-size: %1px; color: #8d909d").arg(scaled(13)));
}

void EmulatorWindow::showLeds()
{
    const bool running = m_emulator.panel.isRunning();
    for (KeyButton *button : qAsConst(m_buttons)) {
        if (button->key().led >= 0)
            button->setLit(running && (m_emulator.keypad.leds() >> button->key().led & 1));
    }
}

void EmulatorWindow::showPanelState()
{
    const bool running = m_emulator.panel.isRunning();
    const QString failure = m_emulator.panel.failure();
    const QString state = running ? QString() : failure.isEmpty() ? QString("off") : failure;
    m_power->setOn(running);
    m_lcd->setNotice(running             ? QString()
                     : failure.isEmpty() ? QString("The panel is off.\nF5 or the switch starts it.")
                                         : "The panel " + failure + ".\nF5 or the switch starts it again.");
    setWindowTitle("Front panel - " + shortPath(m_emulator.folder.path()) +
                   (state.isEmpty() ? QString() : " (" + state + ')'));
    if (!running)
        releaseAll();
    showLeds();
}

void EmulatorWindow::tell(const QString &text)
{
    m_status->setText(m_status->fontMetrics().elidedText(text, Qt::ElideMiddle, m_status->width()));
    m_status->setToolTip(text);
    m_told.start(toldMs);
}

void EmulatorWindow::showHint()
{
    m_told.stop();
    m_status->setToolTip(QString());
    m_status->setText(m_emulator.recorder.isRecording() ? "recording; F3 ends it" : "? shows all keys");
}

void EmulatorWindow::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    QLinearGradient plate(0, 0, 0, height());
    plate.setColorAt(0, QColor("#2b2d35"));
    plate.setColorAt(1, QColor("#1b1c22"));
    painter.fillRect(rect(), plate);
}

void EmulatorWindow::resizeEvent(QResizeEvent *)
{
    m_help->setGeometry(rect());
}

void EmulatorWindow::showKey(int key, bool down)
{
    if (key == keyOk)
        m_knob->setDown(down);
    else if (KeyButton *button = m_buttons.value(key))
        button->setDown(down);
}

void EmulatorWindow::releaseAll()
{
    m_keyboard->releaseAll();
    m_knob->letGo();
    for (KeyButton *button : qAsConst(m_buttons))
        button->letGo();
}

bool EmulatorWindow::event(QEvent *event)
{
    // A key that is let go over another window is not told here; the mouse is followed until it is.
    if (event->type() == QEvent::WindowDeactivate)
        m_keyboard->releaseAll();
    return QWidget::event(event);
}

void EmulatorWindow::keyPressEvent(QKeyEvent *event)
{
    if (m_help->isVisible() && !event->isAutoRepeat())
        return m_help->hide();
    if (!m_keyboard->press(event) && !command(event))
        event->ignore();
}

void EmulatorWindow::keyReleaseEvent(QKeyEvent *event)
{
    m_keyboard->release(event);
}

void EmulatorWindow::wheelEvent(QWheelEvent *event)
{
    QCoreApplication::sendEvent(m_knob, event);
}

bool EmulatorWindow::command(const QKeyEvent *event)
{
    if (event->modifiers() & Qt::ControlModifier)
        return zoomCommand(event);
    switch (event->key()) {
    case Qt::Key_F1:
    case Qt::Key_Question:
        m_help->show();
        m_help->raise();
        return true;
    case Qt::Key_F2:
        savePicture();
        return true;
    case Qt::Key_F3:
        toggleRecording();
        return true;
    case Qt::Key_F5:
        startPanel();
        return true;
    default:
        return false;
    }
}

bool EmulatorWindow::zoomCommand(const QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Q:
        QCoreApplication::quit();
        return true;
    case Qt::Key_Plus:
    case Qt::Key_Equal: // plus without Shift
        setZoom(m_zoom + 1);
        return true;
    case Qt::Key_Minus:
        setZoom(m_zoom - 1);
        return true;
    case Qt::Key_0:
        setZoom(firstZoom);
        return true;
    default:
        return false;
    }
}

void EmulatorWindow::togglePower()
{
    if (m_emulator.panel.isRunning())
        m_emulator.panel.stop();
    else
        startPanel();
}

void EmulatorWindow::startPanel()
{
    if (m_emulator.panel.isRunning())
        return tell("the panel is running");
    m_emulator.startPanel();
    showPanelState();
}

void EmulatorWindow::savePicture()
{
    const QString file = m_emulator.folder.newFile("pictures", ".png");
    const bool saved = !file.isEmpty() && m_emulator.lcd.picture().save(file);
    tell(saved ? "the LCD is in " + shortPath(file) : "cannot write into " + m_emulator.folder.path());
}

void EmulatorWindow::toggleRecording()
{
    Recorder &recorder = m_emulator.recorder;
    if (!recorder.isRecording()) {
        const QString fault = recorder.start(m_emulator.folder.newFile("sessions", ".txt"));
        return fault.isEmpty() ? showHint() : tell(fault);
    }
    const QString file = shortPath(recorder.fileName());
    const auto result = recorder.stop();
    tell(result.second.isEmpty() ? QString("%1 events are in %2").arg(result.first).arg(file)
                                 : result.second);
}
