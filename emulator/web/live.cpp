#include "emulator/web/live.h"

#include "emulator/emulator.h"
#include "emulator/web/picturemessage.h"

#include <QJsonObject>

namespace
{
constexpr int lookMs = 4;
constexpr qint64 nsPerUs = 1000;
} // namespace

Live::Live(Emulator &emulator, QObject *parent)
    : QObject(parent), m_emulator(emulator),
      m_picture(emulator.lcd.picture().convertToFormat(QImage::Format_RGBX8888))
{
    m_look.setTimerType(Qt::PreciseTimer);
    m_look.setInterval(lookMs);
    connect(&m_look, &QTimer::timeout, this, &Live::look);
    connect(&emulator.keypad, &Keypad::ledsChanged, this, &Live::changeState);
    connect(&emulator.heldKeys, &HeldKeys::changed, this, &Live::changeState);
    connect(&emulator.recorder, &Recorder::changed, this, &Live::changeState);
    for (auto change : {&PanelProcess::started, &PanelProcess::ended})
        connect(&emulator.panel, change, this, &Live::changeState);
}

void Live::addViewer(QObject *viewer)
{
    ++m_viewers;
    m_look.start();
    look();
    changeState();
    connect(viewer, &QObject::destroyed, this, [this] {
        if (--m_viewers == 0)
            m_look.stop();
        changeState();
    });
}

const QByteArray &Live::changesSince(const QImage &before)
{
    if (m_from != before.cacheKey() || m_to != m_picture.cacheKey()) {
        const QVector<QRect> changes = picture::changes(before, m_picture);
        m_message = changes.isEmpty() ? QByteArray() : picture::message(changes, m_picture, m_changedUs);
        m_from = before.cacheKey();
        m_to = m_picture.cacheKey();
    }
    return m_message;
}

QJsonObject Live::state() const
{
    QJsonObject down;
    for (const KeyName &key : keyNames()) {
        if (m_emulator.heldKeys.isDown(key.code))
            down.insert(key.name, true);
    }
    return {{"running", m_emulator.panel.isRunning()},
            {"failure", m_emulator.panel.failure()},
            {"leds", m_emulator.panel.isRunning() ? m_emulator.keypad.ledText() : QString(ledCount, '0')},
            {"down", down},
            {"recording", m_emulator.recorder.isRecording()},
            {"viewers", m_viewers}};
}

void Live::look()
{
    const quint64 changes = m_emulator.lcd.changes();
    if (changes == m_seen)
        return;
    m_seen = changes;
    // Before the picture: one that is drawn between the two is told too old, never too new.
    m_changedUs = m_emulator.lcd.changedNs() / nsPerUs;
    m_picture = m_emulator.lcd.picture().convertToFormat(QImage::Format_RGBX8888);
    emit changed();
}

void Live::changeState()
{
    ++m_stateNumber;
    emit changed();
}
