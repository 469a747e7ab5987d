#include "emulator/device/keypad.h"

#include "fpd_hostlink.h"

#include <QTimer>
#include <QtEndian>
#include <chrono>

namespace
{
// The 32-bit words of an LED block that mean something to this driver.
constexpr int offsetLength = 0;
constexpr int offsetKind = 4;
constexpr int offsetMaskLow = 24;
constexpr int offsetMaskHigh = 28;
constexpr int offsetAction = 40;
constexpr quint32 kindLed = 6;
constexpr quint32 actionOn = 6;
constexpr quint32 actionOff = 7;

// The panel lets LEDs blink by switching them each second.
constexpr qint64 leastBlinkMs = 700;
constexpr qint64 mostBlinkMs = 1400;

quint32 wordAt(const QByteArray &bytes, int offset)
{
    return qFromLittleEndian<quint32>(bytes.constData() + offset);
}
} // namespace

Keypad::Keypad(const QString &stateFolder, QObject *parent)
    : QObject(parent), m_server(stateFolder + hostlink::keypadSocket)
{
    m_clock.start();
    connect(&m_server, &PacketServer::received, this, &Keypad::handlePacket);
    connect(&m_server, &PacketServer::disconnected, this, [this](int client) { m_readers.remove(client); });
}

bool Keypad::setPresent(bool present)
{
    m_present = present && m_server.open();
    if (!present)
        m_server.stopListening();
    return m_present == present;
}

QString Keypad::refusal() const
{
    return !m_present          ? "the keypad is unplugged"
           : m_server.isFull() ? "the panel does not read its keys: their queue is full"
                               : "nobody reads the keypad";
}

bool Keypad::sendWords(const QVector<quint16> &words)
{
    const QSet<int> readers = m_readers;
    m_sentNs = std::chrono::steady_clock::now().time_since_epoch() / std::chrono::nanoseconds(1);
    if (!hasReader())
        return false;
    bool taken = true;
    for (quint16 word : words) {
        const quint16 bytes = qToLittleEndian(word);
        for (int reader : readers)
            taken &= m_server.send(reader, QByteArray(reinterpret_cast<const char *>(&bytes), sizeof bytes));
    }
    if (taken)
        emit wordsSent(words);
    return taken;
}

bool Keypad::press(const QVector<int> &keys)
{
    QVector<quint16> words;
    for (int key : keys)
        words.append(quint16(key | 1 << 8));
    return sendWords(words);
}

bool Keypad::release(const QVector<int> &keys)
{
    QVector<quint16> words;
    for (int key : keys)
        words.append(quint16(key | releasedBit | 1 << 8));
    return sendWords(words);
}

bool Keypad::tap(const QVector<int> &keys)
{
    if (!press(keys))
        return false;
    QTimer::singleShot(tapMs, Qt::PreciseTimer, this, [this, keys] { release(keys); });
    return true;
}

bool Keypad::turn(int key, int steps, int speed)
{
    return sendWords(QVector<quint16>(steps, quint16(key | speed << 8)));
}

QString Keypad::ledText() const
{
    QString text;
    for (int led = 0; led < ledCount; ++led)
        text += m_leds >> led & 1 ? '1' : '0';
    return text;
}

QString Keypad::blinkText() const
{
    QString text = ledText();
    for (int led = 0; led < ledCount; ++led) {
        if (isBlinking(led))
            text[led] = '*';
    }
    return text;
}

bool Keypad::isBlinking(int led) const
{
    const LedChanges &changes = m_ledChanges[size_t(led)];
    const qint64 period = changes.lastMs - changes.beforeMs;
    return changes.beforeMs > 0 && period >= leastBlinkMs && period <= mostBlinkMs &&
           m_clock.elapsed() - changes.lastMs <= mostBlinkMs;
}

void Keypad::setLeds(quint16 leds)
{
    for (int led = 0; led < ledCount; ++led) {
        LedChanges &changes = m_ledChanges[size_t(led)];
        if ((leds ^ m_leds) >> led & 1)
            changes = {m_clock.elapsed(), changes.lastMs};
    }
    m_leds = leds;
    emit ledsChanged();
}

void Keypad::setLedsOff()
{
    setLeds(0);
    m_ledChanges = {};
}

void Keypad::handlePacket(int client, const QByteArray &packet)
{
    if (packet == "r") {
        m_readers.insert(client);
        return;
    }
    if (packet == "w")
        return;
    const qint32 result = qToLittleEndian<qint32>(m_present && command(packet) ? 0 : -1);
    m_server.send(client, QByteArray(reinterpret_cast<const char *>(&result), sizeof result));
}

bool Keypad::command(const QByteArray &packet)
{
    if (packet.size() != int(sizeof(quint32)) + hostlink::ledBlockSize ||
        wordAt(packet, 0) != hostlink::ledRequest)
        return false;
    const QByteArray block = packet.mid(sizeof(quint32));
    if (wordAt(block, offsetLength) != hostlink::ledBlockSize || wordAt(block, offsetKind) != kindLed)
        return false;
    const auto mask =
        quint16((wordAt(block, offsetMaskLow) & 0xff) | (wordAt(block, offsetMaskHigh) & 0xff) << 8);
    const quint32 action = wordAt(block, offsetAction);
    if (action != actionOn && action != actionOff)
        return false;
    const auto leds = quint16(action == actionOn ? m_leds | mask : m_leds & ~mask);
    if (leds != m_leds)
        setLeds(leds);
    return true;
}
