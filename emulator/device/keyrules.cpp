#include "emulator/device/keyrules.h"

KeyRules::KeyRules(Keypad &keypad, ScreenText &screen, QObject *parent)
    : QObject(parent), m_keypad(keypad), m_screen(screen)
{
}

void KeyRules::add(const QString &text, const QVector<int> &keys, const QString &name)
{
    m_rules.append({text, keys, name});
    if (m_watching)
        return m_screen.lookAgain();
    m_watching = std::make_unique<QObject>();
    connect(&m_screen, &ScreenText::changed, m_watching.get(),
            [this](const QJsonArray &texts) { look(texts); });
    m_screen.watch(m_watching.get());
}

void KeyRules::clear()
{
    m_rules.clear();
    m_watching.reset();
}

void KeyRules::look(const QJsonArray &texts)
{
    for (KeyRule &rule : m_rules) {
        const bool shown = ScreenText::shows(texts, rule.text);
        if (shown && !rule.shown && m_keypad.tap(rule.keys))
            ++rule.pressed;
        rule.shown = shown;
    }
}
