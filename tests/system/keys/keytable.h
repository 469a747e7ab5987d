// What the dedicated keys do, as one table: from where, in which work mode and in which state of the device a
// key is pressed or held, where that leads and what the LEDs tell then. A table; any thread.
#pragma once

#include "menu/pageindex.h"

#include <QList>
#include <QString>

namespace keytable
{
/// Work modes in which a key can be pressed at all.
enum Mode : unsigned { Controller = 1u << 0, Sender = 1u << 1, InBoth = Controller | Sender };

/// Where the panel stands when the key is pressed.
enum Place : unsigned {
    Home = 1u << 0,
    DeepPage = 1u << 1,
    Pip1Page = 1u << 2,
    Pip1Crop = 1u << 3,
    Pip2Page = 1u << 4,
    MainPage = 1u << 5,
    EditedRow = 1u << 6,
    PresetPage = 1u << 7,
    TestPage = 1u << 8, ///< OK on its row has started the pattern
    SyncPage = 1u << 9,
    HomeAndPage = Home | DeepPage,
};

enum class Press { Tap, Hold };

/// As the device numbers them from 3 on.
enum class Display { Normal, Frozen, Black, Testing };

/// In the order of the rows by which a user chooses one.
enum class FnFunction { Synchronization, HDMIOutput, FTB, Freeze, TestPattern };

/// The state of the device before the key; what is not named is as at the start of the table.
struct Given {
    QString layers = "100"; ///< main layer, PIP 1, PIP 2: 1 on, 0 off
    int mainSource = 0;     ///< HDMI 1, and so on
    Display display = Display::Normal;
    FnFunction fn = FnFunction::Synchronization;
    bool fullScreen = false; ///< the lowest layer's scaling
    bool hasSdi = true;
    QString name;

    Given with(const QString &layersOn) const;
    Given from(int source) const;
    Given showing(Display mode) const;
    Given key(FnFunction function) const;
    Given inFullScreen() const;
    Given withoutSdi() const;

private:
    template <class Change> Given changed(const QString &what, Change change) const;
};

struct Row {
    unsigned modes;
    unsigned places;
    const char *key; ///< several joined by '+' are held together
    Press press;
    Given given;
    QList<VASK::ENUM_ConfigIndex> chain; ///< pages that open, from the menu's root; empty if the screen stays
    const char *leds;                    ///< as LedWatch wants them
    QString device;                      ///< a line of what the device shows begins with that
    int flash = -1;                      ///< the LED that is lit for a moment
};

/// A row in one of its modes and one of its places.
struct Case {
    const Row *row;
    Mode mode;
    Place place;

    QString text() const;
};

/// All cases with that way of pressing, those of a mode together.
QList<Case> cases(Press press);
} // namespace keytable
