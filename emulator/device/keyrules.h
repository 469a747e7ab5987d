// Rules of the form "when this text stands on the LCD, press that key". A rule acts when its text appears,
// and again only when it has gone in between. Main thread.
#pragma once

#include "emulator/device/keypad.h"
#include "emulator/device/screentext.h"

#include <QVector>
#include <memory>

struct KeyRule {
    QString text;
    QVector<int> keys;
    QString name; ///< of the keys, as whoever made the rule called them
    bool shown = false;
    int pressed = 0; ///< how often it has acted
};

class KeyRules : public QObject
{
    Q_OBJECT
public:
    KeyRules(Keypad &keypad, ScreenText &screen, QObject *parent = nullptr);

    /// Acts at once if the text is there already.
    void add(const QString &text, const QVector<int> &keys, const QString &name);
    void clear();
    const QVector<KeyRule> &all() const { return m_rules; }

private:
    void look(const QJsonArray &texts);

    Keypad &m_keypad;
    ScreenText &m_screen;
    QVector<KeyRule> m_rules;
    std::unique_ptr<QObject> m_watching; ///< while there are rules
};
