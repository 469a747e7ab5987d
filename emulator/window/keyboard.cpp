#include "emulator/window/keyboard.h"

#include "emulator/device/keynames.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QTimer>
#include <cstring>

namespace
{
constexpr int settleMs = 20; ///< a repeated key is down again within a millisecond

/// Rows of a keyboard as the window system numbers their places: what stands there on a US keyboard.
struct PlaceRow {
    quint32 first;
    const char *keys;
};
constexpr PlaceRow placeRows[] = {{10, "12345678"}, {24, "QWERTYUI"}};

/// The letter or digit that a US keyboard has at the key's place; 0 if another one.
int keyAtPlace(const QKeyEvent *event)
{
    const QString platform = QGuiApplication::platformName();
    const bool hasPlaces = platform == "xcb" || platform.startsWith("wayland");
    if (!hasPlaces || event->nativeScanCode() == 0 || event->modifiers() & Qt::KeypadModifier)
        return event->key();
    for (const PlaceRow &row : placeRows) {
        if (event->nativeScanCode() >= row.first && event->nativeScanCode() - row.first < strlen(row.keys))
            return row.keys[event->nativeScanCode() - row.first];
    }
    return 0;
}

/// One that is the same on every keyboard; null if it goes by its place.
const PcKey *fixedKey(const QKeyEvent *event)
{
    for (const PcKey &key : pcKeys()) {
        if (key.key == event->key())
            return &key;
    }
    return nullptr;
}

int panelKeyOf(const QKeyEvent *event)
{
    if (const PcKey *fixed = fixedKey(event))
        return fixed->panelKey;
    const int place = keyAtPlace(event);
    for (const KeyName &key : keyNames()) {
        if (key.shortcut && place == key.shortcut)
            return key.code;
    }
    return 0;
}

int stepsOf(const QKeyEvent *event)
{
    const PcKey *fixed = fixedKey(event);
    return fixed ? fixed->steps : 0;
}

/// What stays the same from down to up, also when a modifier changes between them.
quint32 pcKeyOf(const QKeyEvent *event)
{
    return event->nativeScanCode() != 0 ? event->nativeScanCode() : quint32(event->key());
}
} // namespace

bool Keyboard::press(const QKeyEvent *event)
{
    // Nothing comes between up and down of a key that repeats: what has gone up before another key did so.
    for (quint32 pcKey : m_held.keys()) {
        if (pcKey != pcKeyOf(event) && m_held[pcKey].release->isActive())
            letGo(pcKey);
    }
    const auto held = m_held.constFind(pcKeyOf(event));
    if (held != m_held.constEnd()) { // it repeats
        held->release->stop();
        return true;
    }
    if (event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))
        return false;
    if (const int steps = stepsOf(event)) {
        emit turned(steps);
        return true;
    }
    const int panelKey = panelKeyOf(event);
    if (panelKey == 0)
        return false;
    if (event->isAutoRepeat()) // held since before this window was active
        return true;
    const bool isNew = !isHeld(panelKey);
    auto *release = new QTimer(this);
    release->setSingleShot(true);
    release->setInterval(settleMs);
    connect(release, &QTimer::timeout, this, [this, pcKey = pcKeyOf(event)] { letGo(pcKey); });
    m_held.insert(pcKeyOf(event), {panelKey, release});
    if (isNew)
        emit pressed(panelKey);
    return true;
}

void Keyboard::release(const QKeyEvent *event)
{
    const auto held = m_held.constFind(pcKeyOf(event));
    if (held != m_held.constEnd())
        held->release->start();
}

void Keyboard::releaseAll()
{
    for (quint32 pcKey : m_held.keys())
        letGo(pcKey);
}

void Keyboard::letGo(quint32 pcKey)
{
    const Held held = m_held.take(pcKey);
    held.release->stop();
    held.release->deleteLater();
    if (!isHeld(held.panelKey))
        emit released(held.panelKey);
}

bool Keyboard::isHeld(int panelKey) const
{
    for (const Held &held : m_held) {
        if (held.panelKey == panelKey)
            return true;
    }
    return false;
}
