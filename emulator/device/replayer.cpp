#include "emulator/device/replayer.h"

namespace
{
constexpr int retryMs = 5; ///< a fast replay can outrun its reader for a moment
constexpr int patienceMs = 3000;
constexpr qint64 longestNapMs = 1000;
} // namespace

Replayer::Replayer(Keypad &keypad, Device &device, QVector<session::Event> events, double speed,
                   QObject *parent)
    : QObject(parent), m_keypad(keypad), m_device(device), m_events(std::move(events)), m_speed(speed)
{
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, &Replayer::playDue);
}

void Replayer::start()
{
    m_clock.start();
    m_timer.start(0);
}

void Replayer::playDue()
{
    const qint64 now = m_clock.elapsed();
    while (m_next < m_events.size() && dueMs(m_events[m_next]) <= now) {
        if (!play(m_events[m_next]))
            return tryAgain();
        m_refused.invalidate();
        ++m_next;
    }
    if (m_next == m_events.size())
        emit ended(QString());
    else
        m_timer.start(int(qMin(dueMs(m_events[m_next]) - now, longestNapMs)));
}

void Replayer::tryAgain()
{
    if (!m_refused.isValid())
        m_refused.start();
    if (m_refused.elapsed() < patienceMs)
        m_timer.start(retryMs);
    else
        emit ended("nobody takes " + session::toText(m_events[m_next]));
}

bool Replayer::play(const session::Event &event)
{
    switch (event.kind) {
    case session::Kind::key:
        return count(m_keypad.sendWords({event.word}), m_keys);
    case session::Kind::report:
        return count(m_device.reportAndAdopt(event.report), m_reports);
    case session::Kind::write:
        return count(m_device.pushWrite(event.report.address, event.report.bytes, event.report.deviceType),
                     m_reports);
    case session::Kind::failed:
        return count(
            m_device.pushRead(event.report.address, event.report.bytes, event.report.deviceType, event.ack),
            m_reports);
    case session::Kind::message:
        return count(m_device.pushMessage(event.large, event.small, event.payload), m_reports);
    case session::Kind::answered:
        break; // the device gives it by itself when the panel writes
    }
    return true;
}

bool Replayer::count(bool taken, int &played)
{
    played += taken ? 1 : 0;
    return taken;
}
