#include "tests/system/ledwatch.h"
#include "menu/ledindex.h"

#include <QElapsedTimer>

using namespace VASK;

namespace
{
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr int patienceMs = 30000;
#else
constexpr int patienceMs = 10000;
#endif
constexpr int lookMs = 50;
constexpr int blinkMs = 1200; ///< within that a blinking LED changes

constexpr ENUM_LedIndex keyOrder[] = {LED_MAIN,   LED_PIP1,   LED_PIP2,   LED_SCALE,  LED_INPUT1, LED_INPUT2,
                                      LED_INPUT3, LED_INPUT4, LED_INPUT5, LED_INPUT6, LED_INPUT7, LED_INPUT8,
                                      LED_FN,     LED_FREEZE, LED_TEST,   LED_PRESET};
constexpr int ledCount = int(std::size(keyOrder));

QString inKeyOrder(const QString &leds)
{
    QString text;
    for (int led : keyOrder)
        text += leds[led];
    return text;
}
} // namespace

bool LedWatch::start(const QString &stateFolder)
{
    if (!m_console.connectTo(stateFolder))
        return false;
    m_console.begin({"leds", "--watch", "100000"});
    read(patienceMs);
    return !m_looks.isEmpty();
}

void LedWatch::mark()
{
    read(0);
    m_looks = {{QTime::currentTime(), m_looks.last().leds}};
}

bool LedWatch::show(const QString &expected)
{
    QString leds = expected;
    leds.remove(' ');
    QElapsedTimer passed;
    for (passed.start(); !agree(leds); read(lookMs))
        if (passed.hasExpired(patienceMs))
            return false;
    return true;
}

bool LedWatch::hasFlashed(int led)
{
    read(0);
    const int place = int(std::find(std::begin(keyOrder), std::end(keyOrder), led) - std::begin(keyOrder));
    bool lit = false;
    for (const Look &look : qAsConst(m_looks)) {
        if (lit && look.leds[place] == '0')
            return true;
        lit = look.leds[place] == '1';
    }
    return false;
}

QString LedWatch::history() const
{
    QString text;
    for (const Look &look : m_looks)
        text += look.since.toString("ss.zzz ") + look.leds + '\n';
    return text;
}

void LedWatch::read(int timeoutMs)
{
    for (const QString &line : m_console.newLines(timeoutMs))
        m_looks.append(
            {QTime::fromString(line.section(' ', 0, 0), "HH:mm:ss.zzz"), inKeyOrder(line.section(' ', 1))});
}

/// The steady LEDs have been so while those that blink went dark, as all that blink do at once.
bool LedWatch::agree(const QString &expected) const
{
    int first = m_looks.size();
    const auto steadyAsExpected = [&expected](const QString &leds) {
        for (int led = 0; led < ledCount; ++led)
            if (expected[led] != 'B' && expected[led] != leds[led])
                return false;
        return true;
    };
    while (first > 0 && steadyAsExpected(m_looks[first - 1].leds))
        --first;
    if (first == m_looks.size())
        return false;
    if (!expected.contains('B'))
        return m_looks[first].since.msecsTo(QTime::currentTime()) > blinkMs;
    for (int led = 0; led < ledCount; ++led) {
        bool lit = false, wentDark = false;
        for (int i = first; i < m_looks.size(); ++i) {
            wentDark = wentDark || (lit && m_looks[i].leds[led] == '0');
            lit = m_looks[i].leds[led] == '1';
        }
        if (expected[led] == 'B' && !wentDark)
            return false;
    }
    return true;
}
