#include "framework/input/keyevent.h"

#include "framework/input/keydispatcher.h"
#include "framework/thread/ctimer.h"
#include "keypaddevice.h"

#include <QDebug>
#include <cstdint>
#include <cstdio>
#include <fcntl.h>

namespace VASK
{
namespace
{
constexpr const char *keypadDevice = "/dev/keypad0";
constexpr unsigned long ledRequest = 0xc04c6bb4;
constexpr unsigned int blinkMs = 1000;
constexpr unsigned long pollSleepMs = 5;
constexpr int selectTimeoutMs = 10000;
constexpr int readBytes = 512;
constexpr unsigned char releaseBit = 0x80;

/// Standard output is a pipe to the log, where a line would wait for a whole block of others.
void tell(const char *failure)
{
    puts(failure);
    fflush(stdout);
}

/// The device is opened for each command: the reading thread's descriptor cannot write.
int sendToDevice(void *block)
{
    const int descriptor = keypad_open(keypadDevice, O_RDWR);
    if (descriptor < 0) {
        tell("fail to open");
        return 1;
    }
    const int result = keypad_ioctl(descriptor, ledRequest, block);
    if (result < 0)
        tell("fail to ioctl a led light");
    keypad_close(descriptor);
    return result < 0 ? 1 : 0;
}
} // namespace

KeyEvent *KeyEvent::getInstance()
{
    static KeyEvent *instance = nullptr; // kept for the life of the process
    if (!instance) {
        instance = new KeyEvent;
        InitLedStatus();
    }
    return instance;
}

KeyEvent::KeyEvent()
    : m_keys([this](KEY_TYPE type, unsigned char key, unsigned char speed, bool longPress) {
          post(type, key, speed, longPress);
      })
{
    setObjectName("keypad");
    TIMER_Initialize();
}

KeyEvent::~KeyEvent()
{
    requestInterruption();
    wait();
    TIMER_UnInitialize();
}

/// Never destroyed: the timer thread may blink until the very end of the process.
PanelLeds &KeyEvent::leds()
{
    static auto *leds = new PanelLeds(sendToDevice);
    return *leds;
}

bool KeyEvent::InitKeyDriver(QApplication *application)
{
    if (!application)
        return false;
    m_pApplication = application;
    leds().setDriverReady();
    m_dispatcher = std::make_unique<KeyDispatcher>();
    m_descriptor = keypad_open(keypadDevice, O_RDONLY);
    return m_descriptor >= 0;
}

void KeyEvent::run()
{
    m_keys.reset();
    while (!isInterruptionRequested()) {
        msleep(pollSleepMs);
        if (keypad_select(m_descriptor, selectTimeoutMs) <= 0)
            continue;
        unsigned char words[readBytes];
        const ssize_t length = keypad_read(m_descriptor, words, sizeof words);
        for (ssize_t i = 0; i + 1 < length; i += ssize_t(sizeof(uint16_t)))
            handleWord(words[i], words[i + 1]);
    }
    if (m_descriptor >= 0)
        keypad_close(m_descriptor);
    m_descriptor = -1;
}

void KeyEvent::handleWord(unsigned char key, unsigned char speed)
{
    qDebug() << "uKey == " << key << speed;
    if (key & releaseBit)
        m_keys.release(key & ~releaseBit, speed);
    else
        m_keys.press(key, speed);
}

void KeyEvent::post(KEY_TYPE type, unsigned char key, unsigned char speed, bool longPress)
{
    if (m_dispatcher)
        m_dispatcher->post(type, key, speed, longPress);
}

void KeyEvent::OnTimerLedEvent(int, void *)
{
    leds().blink();
}

void KeyEvent::InitLedStatus()
{
    leds().clear();
    static int blinkTimer = -1;
    if (blinkTimer == -1)
        TIMER_SetTimer(blinkMs, CTimerNode::forEver, OnTimerLedEvent, nullptr, &blinkTimer);
}

int KeyEvent::SendLedCommand(unsigned char led, enLedStatus state)
{
    return leds().set(led, state);
}

int KeyEvent::SendLedCommandOnce(unsigned char led, enLedStatus state)
{
    return leds().flash(led, state);
}

int KeyEvent::SendLedCommandTest(unsigned char led, enLedStatus state)
{
    return leds().setInTest(led, state);
}

int KeyEvent::SendLedBitMap(enLedStatus state, QList<LedStatus> list)
{
    return leds().sendBitMap(state, list);
}

void KeyEvent::LightAllOff()
{
    leds().giveToTest();
}

void KeyEvent::LightFiber(bool on)
{
    leds().giveToFiber(on);
}
} // namespace VASK
