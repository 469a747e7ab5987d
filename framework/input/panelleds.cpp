#include "framework/input/panelleds.h"

#include <cstdint>
#include <cstring>

namespace VASK
{
namespace
{
// The driver's LED block: 32-bit words at these byte offsets, all else zero.
constexpr int blockSize = 76;
constexpr int lengthOffset = 0;
constexpr int kindOffset = 4;
constexpr int lowMaskOffset = 24;
constexpr int highMaskOffset = 28;
constexpr int commandOffset = 40;
constexpr uint32_t ledKind = 6;
constexpr uint32_t switchOn = 6;
constexpr uint32_t switchOff = 7;

void putWord(unsigned char *block, int offset, uint32_t value)
{
    std::memcpy(block + offset, &value, sizeof value);
}

QList<LedStatus> allLeds(enLedStatus state)
{
    QList<LedStatus> list;
    for (int led = 0; led < PanelLeds::ledCount; ++led)
        list.append({static_cast<unsigned char>(led), state});
    return list;
}
} // namespace

PanelLeds::PanelLeds(Send send)
    : m_send(std::move(send)), m_listLed(allLeds(LED_OFF)), m_listLedSave(allLeds(LED_OFF))
{
}

void PanelLeds::setDriverReady()
{
    QMutexLocker lock(&m_mutex);
    m_driverReady = true;
}

void PanelLeds::clear()
{
    QMutexLocker lock(&m_mutex);
    m_listLed = allLeds(LED_OFF);
    m_listLedSave = allLeds(LED_OFF);
    for (const LedStatus &led : qAsConst(m_listLed))
        show(led.led, LED_OFF);
}

int PanelLeds::set(unsigned char led, enLedStatus state)
{
    QMutexLocker lock(&m_mutex);
    if (led >= ledCount)
        return 0;
    if (m_bFiber || m_bTest) {
        m_listLedSave[led].state = state;
        return 0;
    }
    m_listLed[led].state = state;
    const unsigned int mask = 1u << led;
    const bool isLit = m_lit & mask;
    return m_known & mask && isLit == (state != LED_OFF) ? 0 : show(led, state);
}

int PanelLeds::flash(unsigned char led, enLedStatus state)
{
    QMutexLocker lock(&m_mutex);
    return led < ledCount ? show(led, state) : 0;
}

int PanelLeds::setInTest(unsigned char led, enLedStatus state)
{
    QMutexLocker lock(&m_mutex);
    if (led >= ledCount)
        return 0;
    m_listLed[led].state = state;
    return show(led, state);
}

int PanelLeds::sendBitMap(enLedStatus state, const QList<LedStatus> &list)
{
    QMutexLocker lock(&m_mutex);
    return sendMatching(state, list);
}

void PanelLeds::giveToTest()
{
    QMutexLocker lock(&m_mutex);
    saveAndSwitchOff();
    m_bTest = true;
}

void PanelLeds::giveToFiber(bool on)
{
    QMutexLocker lock(&m_mutex);
    if (m_bFiber == on)
        return;
    if (on) {
        saveAndSwitchOff();
    } else {
        m_listLed = m_listLedSave;
        sendMatching(LED_ON, m_listLed);
    }
    m_bFiber = on;
}

void PanelLeds::blink()
{
    QMutexLocker lock(&m_mutex);
    // A command names the LEDs that have its state: the blinking ones, and none of the others.
    const enLedStatus change = m_LenBlinkFlg ? LED_ON : LED_OFF;
    const enLedStatus other = m_LenBlinkFlg ? LED_OFF : LED_ON;
    m_LenBlinkFlg = !m_LenBlinkFlg;
    QList<LedStatus> list;
    bool blinking = false;
    for (const LedStatus &led : qAsConst(m_listLed)) {
        list.append({led.led, led.state == LED_BLINK ? change : other});
        blinking = blinking || led.state == LED_BLINK;
    }
    if (blinking)
        sendMatching(change, list);
}

int PanelLeds::show(unsigned char led, enLedStatus state)
{
    return sendMask(1u << led, state != LED_OFF);
}

int PanelLeds::sendMatching(enLedStatus state, const QList<LedStatus> &list)
{
    unsigned int mask = 0;
    for (const LedStatus &led : list)
        if (led.led < ledCount && (led.state == state || led.state == LED_BLINK))
            mask |= 1u << led.led;
    return sendMask(mask, state != LED_OFF);
}

int PanelLeds::sendMask(unsigned int mask, bool on)
{
    if (!m_driverReady)
        return 0;
    unsigned char block[blockSize] = {};
    putWord(block, lengthOffset, blockSize);
    putWord(block, kindOffset, ledKind);
    putWord(block, lowMaskOffset, mask & 0xFF);
    putWord(block, highMaskOffset, mask >> 8 & 0xFF);
    putWord(block, commandOffset, on ? switchOn : switchOff);
    m_lit = on ? m_lit | mask : m_lit & ~mask;
    const int result = m_send(block);
    m_known = result == 0 ? m_known | mask : m_known & ~mask;
    return result;
}

/// The state to return to is that of normal running: of two modes one inside the other, the first keeps it.
void PanelLeds::saveAndSwitchOff()
{
    if (!m_bFiber && !m_bTest)
        m_listLedSave = m_listLed;
    m_listLed = allLeds(LED_OFF);
    sendMatching(LED_OFF, m_listLed);
}
} // namespace VASK
