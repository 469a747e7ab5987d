// Plays a recorded session once more, as fast or as slow as asked: its keys to the panel, its reports to
// panel and device. Main thread.
#pragma once

#include "emulator/bus/device.h"
#include "emulator/device/keypad.h"
#include "emulator/device/recording.h"

class Replayer : public QObject
{
    Q_OBJECT
public:
    /// Speed 2 takes half of the time.
    Replayer(Keypad &keypad, Device &device, QVector<session::Event> events, double speed,
             QObject *parent = nullptr);

    void start();

    int keysPlayed() const { return m_keys; }
    int reportsPlayed() const { return m_reports; }

signals:
    /// All is played; or, with a reason, the rest of it could not be.
    void ended(const QString &fault);

private:
    void playDue();
    /// False if nobody takes the event.
    bool play(const session::Event &event);
    void tryAgain();
    static bool count(bool taken, int &played);
    qint64 dueMs(const session::Event &event) const { return qint64(double(event.atMs) / m_speed); }

    Keypad &m_keypad;
    Device &m_device;
    const QVector<session::Event> m_events;
    const double m_speed;
    int m_next = 0;
    int m_keys = 0;
    int m_reports = 0;
    QElapsedTimer m_clock;
    QElapsedTimer m_refused; ///< runs from the first refusal of an event
    QTimer m_timer;
};
