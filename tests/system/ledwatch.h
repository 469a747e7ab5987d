// What the LEDs behind the keys do over a while: dark, lit or blinking, which no single look can tell. GUI
// thread of the test.
#pragma once

#include "client/consoleclient.h"

#include <QTime>
#include <QVector>

class LedWatch
{
public:
    bool start(const QString &stateFolder);

    /// From here on the LEDs are looked at.
    void mark();
    /// Waits until all LEDs do what is expected, one character a LED in the order of the keys: 0 dark, 1 lit,
    /// B blinking; blanks are for the eye. Layers and scale, inputs 1 to 4 and 5 to 8, Fn, freeze, test and
    /// preset.
    bool show(const QString &expected);
    /// Between the mark and now the LED was lit and went dark again.
    bool hasFlashed(int led);
    /// What was seen, in the order of the keys.
    QString history() const;

private:
    struct Look {
        QTime since;
        QString leds; ///< in the order of the keys
    };

    void read(int timeoutMs);
    bool agree(const QString &expected) const;

    ConsoleClient m_console;
    QVector<Look> m_looks;
};
