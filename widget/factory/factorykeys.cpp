// The second step of the production test: every key with its LED, three times over.

#include "widget/factory/dialog_factory.h"

#include "framework/input/keyevent.h"
#include "framework/input/keypadevent.h"

#include <QDebug>

using namespace VASK;
using namespace factorycells;

namespace
{
constexpr int keyRounds = 3;

/// A key counts when it is let go. The knob has no release: each of its steps counts.
bool counts(const KeypadEvent &event)
{
    const bool knob = event.key() == KEY_KNOB_LEFT || event.key() == KEY_KNOB_RIGHT;
    return event.type() == KEY_RELEASED || (knob && event.type() == KEY_PRESSED);
}
} // namespace

void Factory::KeyTest(KeypadEvent *event)
{
    qDebug() << "Factory::KeyTest = " << event->key() << event->type();
    if (!counts(*event))
        return;
    if (event->key() == KEY_OK)
        return endKeyRound();
    for (const KeyCell &key : keys) {
        if (key.key != event->key())
            continue;
        m_cells[key.cell.row][key.cell.column].state = ITEM_PASSED;
        UpdateMenuItem(key.cell.row, key.cell.column);
        if (key.led != noLed)
            KeyEvent::SendLedCommandTest(static_cast<unsigned char>(key.led), LED_ON);
    }
}

void Factory::endKeyRound()
{
    if (!allNamed([](en_item_state state) { return state != ITEM_UNTESTED; }))
        return;
    m_keyRounds = (m_keyRounds + 1) % keyRounds;
    InitDisp(m_keyRounds == 0 ? FACTORY_STEP_IN_OUT : FACTORY_STEP_KEYS);
}
