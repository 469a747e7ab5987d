#include "benchmark/soaksession.h"

#include "benchmark/flood.h"
#include "framework/protocol/packet/registeraddress.h"
#include "menu/keycodes.h"

#include <QMap>
#include <QVector>
#include <random>

using namespace VASK;

namespace
{
constexpr int msPerMinute = 60000;
constexpr char topAndBottom = 8;
constexpr int pressed = 0x100, released = 0x180;

class Script
{
public:
    Script(unsigned int seed, int minutes, int speed)
        : m_random(seed), m_end(minutes * msPerMinute), m_speed(speed)
    {
    }

    QByteArray write()
    {
        for (m_now = 3000; m_now < m_end; m_now += between(2000, 20000))
            visit();
        for (int at = 1000; at < m_end; at += between(300, 4000))
            report(at);
        QByteArray text;
        for (auto event = m_events.begin(); event != m_events.end(); ++event)
            text += QByteArray::number(event.key()) + ' ' + event.value() + '\n';
        return text;
    }

private:
    int between(int least, int most) { return least + int(m_random() % unsigned(most - least + 1)); }
    void word(int value)
    {
        m_events.insert(m_now, "key " + QByteArray::number(value, 16).rightJustified(4, '0'));
    }
    void press(int key, int heldMs = 80)
    {
        word(key | pressed);
        m_now += heldMs;
        word(key | released);
        m_now += between(250, 1200);
    }
    void turn(int key, int steps)
    {
        for (int i = 0; i < steps; ++i, m_now += between(60, 300))
            word(key | pressed);
    }
    void wander() { turn(between(0, 1) ? VASK::KEY_KNOB_RIGHT : VASK::KEY_KNOB_LEFT, between(1, 6)); }

    void visit()
    {
        const int kind = between(0, 9);
        if (kind < 6)
            mainMenu();
        else if (kind < 9)
            panelKey();
        else
            hiddenMenu();
        for (int i = 0; i < 6; ++i)
            press(VASK::KEY_ESC);
    }

    /// Any row but the resets, which would end the story of everything before.
    void mainMenu()
    {
        constexpr int rows[] = {0, 1, 2, 3, 4, 5, 6, 7, 9};
        press(VASK::KEY_OK);
        turn(VASK::KEY_KNOB_LEFT, 12);
        turn(VASK::KEY_KNOB_RIGHT, rows[between(0, 8)]);
        press(VASK::KEY_OK);
        for (int depth = between(1, 5); depth > 0; --depth) {
            wander();
            press(VASK::KEY_OK);
            wander();
            if (between(0, 2) > 0)
                press(VASK::KEY_OK);
            if (between(0, 3) == 0)
                press(VASK::KEY_ESC);
        }
    }

    /// The keys of layers, inputs and modes.
    void panelKey()
    {
        for (int i = between(1, 4); i > 0; --i)
            press(between(VASK::KEY_MAIN, VASK::KEY_PRESET));
        if (between(0, 1))
            wander();
    }

    /// Looked at, and left alone: the tools of the factory lie there.
    void hiddenMenu()
    {
        constexpr int longPressMs = 3300;
        press(between(0, 1) ? VASK::KEY_USER_HIDDEN_MENU : VASK::KEY_PRODUCT_HIDDEN_MENU,
              longPressMs * m_speed);
        wander();
        wander();
    }

    void report(int at)
    {
        if (between(0, 3) == 0)
            return signal(at);
        // Values that a device changes on its own; sizes and windows it leaves to the user.
        const QVector<FloodRegister> &registers = foldingRegisters();
        const FloodRegister &row = registers[between(0, registers.size() - 1)];
        const bool isSize = row.address == REG_OutputResolution || row.address == REG_SenderOutput ||
                            row.address == CabinetWidthAddr || row.address >> 8 == 0x130200 ||
                            row.address >> 12 == 0x13024;
        if (isSize)
            return;
        const QByteArray bytes = row.bytes(between(0, 1000));
        if (row.address == REG_Set_3DSourceFormatChanged)
            m_isTop = bytes[0] == topAndBottom;
        const bool isStartOfTop =
            row.address == REG_RightEyeStart && m_isTop; // that of the format in use is told
        add(at, isStartOfTop ? row.address + STEP_RightEyeStart : row.address, row.deviceType, bytes);
    }

    /// A source is plugged in or pulled.
    void signal(int at)
    {
        const FloodRegister &row = inputRegisters()[between(0, 6)];
        QByteArray record = row.bytes(between(0, 1) ? 16667 : 20000);
        if (between(0, 2) == 0)
            record.replace(2, 7, QByteArray(7, '\0'));
        add(at, row.address, row.deviceType, record);
    }

    void add(int at, quint32 address, int device, const QByteArray &bytes)
    {
        m_events.insert(at, "report " + QByteArray::number(address, 16).rightJustified(8, '0') + ' ' +
                                QByteArray::number(device) + ' ' + bytes.toHex());
    }

    std::mt19937 m_random;
    const int m_end;
    const int m_speed;
    int m_now = 0;
    bool m_isTop = false; ///< 3D top and bottom, after the reports so far
    QMultiMap<int, QByteArray> m_events;
};
} // namespace

QByteArray soakSession(unsigned int seed, int minutes, int speed)
{
    return Script(seed, minutes, speed).write();
}
