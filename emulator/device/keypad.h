// The keypad as the panel sees it: key words go up to every reader, LED commands come down. Main thread.
#pragma once

#include "emulator/device/keynames.h"
#include "emulator/host/packetserver.h"

#include <QElapsedTimer>
#include <QSet>
#include <array>

class Keypad : public QObject
{
    Q_OBJECT
public:
    explicit Keypad(const QString &stateFolder, QObject *parent = nullptr);

    /// Plugs the keypad in or out. Out, it cannot be opened; whoever has opened it before gets no words until
    /// it is in again.
    bool setPresent(bool present);

    bool hasReader() const { return m_present && !m_readers.isEmpty(); }
    /// Why nobody has taken a word.
    QString refusal() const;
    /// Key words as the driver gives them. False if nobody reads the keypad.
    bool sendWords(const QVector<quint16> &words);
    bool press(const QVector<int> &keys);
    bool release(const QVector<int> &keys);
    /// Pressed and let go a moment later.
    bool tap(const QVector<int> &keys);
    bool turn(int key, int steps, int speed);

    /// When the last key word went out, in ns of the monotonic clock; the LCD tells its changes by the same.
    qint64 sentNs() const { return m_sentNs; }

    /// State of the LEDs as last commanded, LED 0 in bit 0.
    quint16 leds() const { return m_leds; }
    /// The same as 16 characters, LED 0 first.
    QString ledText() const;
    /// The same with '*' for those that blink, as seen over the last seconds.
    QString blinkText() const;
    void setLedsOff();

signals:
    void ledsChanged();
    /// Words have gone to the readers.
    void wordsSent(const QVector<quint16> &words);

private:
    void handlePacket(int client, const QByteArray &packet);
    /// Obeys one LED command; false if the block is not one.
    bool command(const QByteArray &packet);

    /// When an LED changed, in ms of a clock that runs from the keypad's start; the last two times.
    struct LedChanges {
        qint64 lastMs = 0, beforeMs = 0;
    };
    bool isBlinking(int led) const;
    void setLeds(quint16 leds);

    PacketServer m_server;
    bool m_present = false;
    QSet<int> m_readers;
    quint16 m_leds = 0;
    std::array<LedChanges, ledCount> m_ledChanges{};
    QElapsedTimer m_clock;
    qint64 m_sentNs = 0;
};
