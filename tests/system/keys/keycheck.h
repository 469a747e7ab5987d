// One row of the table of the dedicated keys, put to the proof: brings panel and device into the row's state,
// presses the key, and looks where the panel ends, how ESC leads back from there, what the LEDs tell and what
// the device was told. It may work in any one thread.
#pragma once

#include "client/menuwalk.h"
#include "menu/pageindex.h"
#include "tests/system/keys/keytable.h"
#include "tests/system/ledwatch.h"

/// Each check says what is not as it should be, nothing if all is well.
class KeyCheck
{
public:
    KeyCheck(Panel &panel, MenuWalk &walk) : m_panel(panel), m_walk(walk) {}

    QString start();
    QString check(const keytable::Case &expected);
    /// Keeps what is needed to find a fault, and goes home.
    void cleanUp(const QString &faultyCase);

    /// The device reports another work mode.
    bool changeMode(keytable::Mode mode);
    QString goTo(keytable::Place place);
    QString wayBack();
    QString ledsShow(const QString &leds);
    QString deviceShows(const QString &line);
    QString prepare(const keytable::Given &given, keytable::Mode mode);
    LedWatch &leds() { return m_leds; }

private:
    QString pressKey(const keytable::Row &row);
    QString screenIs(const keytable::Row &row, keytable::Place place);
    QStringList deviceLines(const QString &begin);
    /// The same LEDs away from the page of a layer.
    QString atHome(const QString &leds);
    bool changeSdi(bool present);
    bool assignFn(keytable::FnFunction function);
    bool cursorLeadsTo(VASK::ENUM_ConfigIndex child);
    /// The panel has worked off all that the device has told it.
    bool heard();

    Panel &m_panel;
    MenuWalk &m_walk;
    LedWatch m_leds;
    keytable::Mode m_mode = keytable::Controller;
    keytable::FnFunction m_fn = keytable::FnFunction::Synchronization;
    bool m_hasSdi = true;
};
