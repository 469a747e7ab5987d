// Cases of the engine as lines of text: what stands before, the change, and all that comes of it; and the
// test program that is a table of them.
#pragma once

#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "tests/unit/rig/enginerig.h"
#include "tests/unit/rig/ledpanel.h"

namespace VASK
{
struct CaseLine {
    QString what;
    /// Items and process data, "Sync_Source=1 OutputRate=6000"; "Freeze-" cannot be chosen,
    /// "MainLayer_InputSource/4+" is a row of a list that can, "Preset1/Tag=News" a field beside the value,
    /// "SendingCard!" is marked and "SendingCard?" is not. Items of one family may share their first word
    /// in braces. Steps, as in the change, may stand before or between them: "user SendingCard=1;
    /// Sync_Status=1".
    QString before;
    /// Steps, parted by semicolons: "user Sync_Status=1" or "device Sync_Status=1"; "input NUMBER CODE STATE
    /// WIDTH HEIGHT PERIOD [INTERLACED]", an input as the device reports it; "mode CODE", a display mode that
    /// it reports; "started", the device's start is over; "flash ADDRESS BYTES" in hex, "fault" for so
    /// many reads of it, and "start" reads it; "initialize" and "home" are the engine's start and the home
    /// screen's; "dialog KEYS", what the user does in the next dialog; "load", a preset by its number.
    QString change;
    /// Parts, parted by semicolons. "sends", "tells" and "reloads" name lines, "Sync_Status=1
    /// OutputFrameRate=60"; "of Sync_Status Sync_Source:" with lines looks only at what is sent of those
    /// items. "reloading" names some of the reloads. "asks" names the keys of messages, which "answers 0"
    /// refuses. "leaves" names states as before, "redraws" items whose rows load all of them again; "text"
    /// items, parted by commas, and their values with spaces, "options" a list and its rows. "priority" is
    /// the panel's choice of a way to a computer. "screen", "ip", "sync", "bright", "name" and "picture" (of
    /// PIP 1 with a 2 behind, of PIP 2 with a 3) are texts of the home screen, "visible" and "hidden" labels
    /// of it, "ports" tells a letter for each of its ports, disabled, enabled, backup, or a dot. "lit" and
    /// "dark" name LEDs, "looks" what rows are told beside their values. Nothing else is sent, told or asked;
    /// reloads count where they are named.
    QString outcome;
};
using CaseLines = QVector<CaseLine>;

namespace caseline
{
QStringList wordsOf(const QString &text);
/// Takes the items to these states, without a change that anybody hears of.
void prepare(EngineRig &rig, const QString &states);
void compareStates(EngineRig &rig, const QString &states);
/// Steps of the knob and keys that are let go: "left ok".
void pressKeys(QWidget &window, const QString &keys);
} // namespace caseline

void addCaseLines(const CaseLines &lines);
/// The LEDs need a panel of them.
void runCaseLine(EngineRig &rig, const CaseLine &line, const LedPanel *leds = nullptr);

/// A test program that is a table.
class CaseTest : public QObject
{
    Q_OBJECT
protected:
    virtual CaseLines lines() const = 0;
    virtual EngineRig *makeRig() const { return new EngineRig; }
    /// Before each case.
    virtual void begin() { m_rig->reset(); }

    EngineRig *m_rig = nullptr;
    LedPanel *m_leds = nullptr;

private slots:
    void initTestCase();
    void cleanupTestCase();
    void init() { begin(); }

    void valueIsApplied_data() { addCaseLines(lines()); }
    void valueIsApplied();
};
} // namespace VASK
