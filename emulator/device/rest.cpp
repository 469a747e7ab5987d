#include "emulator/device/rest.h"

#include "emulator/emulator.h"

namespace
{
constexpr int lookMs = 100;
constexpr int stillLooks = 2;
constexpr int silentLooks = 7; ///< the device tells no change of a register later than that, but for some
} // namespace

Rest::Rest(Of what, Emulator &emulator, QObject *parent) : QObject(parent), m_what(what), m_emulator(emulator)
{
    m_look.setSingleShot(true);
    m_look.setInterval(lookMs);
    connect(&m_look, &QTimer::timeout, this, &Rest::look);
    connect(&emulator.device, &Device::written, this, [this] { m_silentLooks = 0; });
    connect(&emulator.device, &Device::reported, this, [this] { m_silentLooks = 0; });
}

void Rest::start()
{
    m_changes = m_emulator.lcd.changes();
    m_look.start();
}

void Rest::look()
{
    // Before it is asked: it is still at work on its answer when that comes.
    const bool works = m_what == ScreenAndBus && m_emulator.panel.isBusy();
    m_emulator.screenText.ping(this, [this, works](const std::optional<QJsonArray> &answer) {
        if (answer)
            count(works);
        if (m_stillLooks >= stillLooks && (m_what == Screen || m_silentLooks >= silentLooks))
            emit reached();
        else
            m_look.start();
    });
}

void Rest::count(bool works)
{
    const quint64 changes = m_emulator.lcd.changes();
    m_stillLooks = changes == m_changes ? m_stillLooks + 1 : 0;
    m_changes = changes;
    m_silentLooks = works ? 0 : m_silentLooks + 1;
}
