#include "tests/system/keys/keytable.h"
#include "menu/ledindex.h"

#include <QMap>

using namespace VASK;

namespace keytable
{
namespace
{
using Chain = QList<ENUM_ConfigIndex>;

const Chain stays;
const Chain mainLayer{CONFIG_MainMenu, CONFIG_LayerSettings, CONFIG_MainLayer};
const Chain pip1{CONFIG_MainMenu, CONFIG_LayerSettings, CONFIG_PIP1};
const Chain pip2{CONFIG_MainMenu, CONFIG_LayerSettings, CONFIG_PIP2};
const Chain inputs{CONFIG_MainMenu, CONFIG_InputSettings};
const Chain synchronization{CONFIG_MainMenu, CONFIG_AdvancedSetting, CONFIG_Synchronization};
const Chain hdmiOutput{CONFIG_MainMenu, CONFIG_AdvancedSetting, CONFIG_HDMIOutput};
const Chain testPattern{CONFIG_MainMenu, CONFIG_DisplayControl, CONFIG_TestPattern};
const Chain presets{CONFIG_MainMenu, CONFIG_PresetSettings};

/// The main layer on HDMI 1; of the inputs HDMI 1 and SDI have a signal.
const Given start;
const Given frozen = start.showing(Display::Frozen);
const Given black = start.showing(Display::Black);
const Given testing = start.showing(Display::Testing);
const Given fnOutput = start.key(FnFunction::HDMIOutput);
const Given fnBlack = start.key(FnFunction::FTB);
const Given fnFreeze = start.key(FnFunction::Freeze);
const Given fnTest = start.key(FnFunction::TestPattern);
const Given onDvi = start.from(2);

constexpr const char *plain = "1000 B001 0000 0000";
constexpr const char *noSdi = "1000 B000 0000 0000";

QList<Row> layerRows()
{
    const Press tap = Press::Tap, hold = Press::Hold;
    return {
        {Controller, HomeAndPage, "main", tap, start.with("000"), mainLayer, "B000 B001 0000 0000",
         "main layer: on, hdmi1"},
        {Controller, Home | MainPage, "main", tap, start, mainLayer, "B000 B001 0000 0000", "main layer: on"},
        {Controller, HomeAndPage, "pip1", tap, start, pip1, "1B00 B001 0000 0000", "PIP 1: on, hdmi1"},
        {Controller, HomeAndPage, "pip2", tap, start, pip2, "10B0 B001 0000 0000", "PIP 2: on, hdmi1"},
        {Controller, Home | Pip1Page, "pip2", tap, start.with("110"), pip2, "11B0 B001 0000 0000",
         "PIP 1: on"},
        {Controller, Pip1Page | Pip1Crop, "pip1", tap, start.with("110"), pip1, "1B00 B001 0000 0000",
         "PIP 1: on"},
        {Sender, Home, "main", tap, start, mainLayer, "B000 B001 0000 0000", "main layer: on"},
        {Sender, Home, "main", tap, start.with("000"), mainLayer, "B000 B001 0000 0000", "main layer: on"},
        {Sender, DeepPage, "main", tap, start, stays, plain, "main layer: on"},
        {Sender, HomeAndPage, "pip1", tap, start, stays, plain, "PIP 1: off"},
        {Sender, HomeAndPage, "pip2", tap, start, stays, plain, "PIP 2: off"},

        {InBoth, Home, "main", hold, start, stays, "0000 1001 0000 0000", "main layer: off"},
        {Controller, DeepPage, "main", hold, start, stays, "0000 1001 0000 0000", "main layer: off"},
        {Controller, HomeAndPage, "pip1", hold, start.with("111"), stays, "1010 B001 0000 0000",
         "PIP 1: off"},
        {Controller, HomeAndPage, "pip2", hold, start.with("111"), stays, "1100 B001 0000 0000",
         "PIP 2: off"},
        {Controller, Pip1Page, "pip1", hold, start.with("110"), stays, "1B00 B001 0000 0000", "PIP 1: off"},
        {Controller, Home, "main+pip1+pip2", hold, start.with("000"), stays, "0000 1001 0000 0000",
         "main layer: off"},
        {Sender, Home, "pip1+pip2+scale", hold, start, stays, plain, "main layer: on"},
        {Sender, DeepPage, "main+pip1+pip2+scale", hold, start, stays, plain, "main layer: on"},

        {Controller, HomeAndPage, "scale", tap, start, stays, "1001 B001 0000 0000",
         "main layer: on, hdmi1, 1920x1080"},
        {Controller, HomeAndPage, "scale", tap, start.inFullScreen(), stays, plain,
         "main layer: on, hdmi1, 800x600"},
        {Controller, HomeAndPage, "scale", tap, start.with("010"), stays, "0101 B001 0000 0000",
         "PIP 1: on, hdmi1, 1920x1080"},
        {Controller, HomeAndPage, "scale", tap, start.with("000"), stays, "0000 1001 0000 0000", {}},
        {Sender, HomeAndPage, "scale", tap, start, stays, plain, "main layer: on"},
    };
}

QList<Row> sourceRows()
{
    const Press tap = Press::Tap, hold = Press::Hold;
    const Given toPip = start.with("110");
    QList<Row> list = {
        {InBoth, HomeAndPage, "in1", tap, onDvi, stays, plain, "main layer: on, hdmi1"},
        {InBoth, HomeAndPage, "in2", tap, start, stays, "1000 1B01 0000 0000", "main layer: on, hdmi2"},
        {InBoth, HomeAndPage, "in3", tap, start, stays, "1000 10B1 0000 0000", "main layer: on, dvi"},
        {InBoth, HomeAndPage, "in4", tap, start, stays, "1000 100B 0000 0000", "main layer: on, sdi"},
        {Controller, Home, "in4", tap, start.withoutSdi(), stays, noSdi, "main layer: on, hdmi1"},
        {InBoth, HomeAndPage, "in6+in7+in8", tap, start, stays, plain, "main layer: on, hdmi1"},
        // To the layer whose page is open.
        {Controller, Pip1Page | Pip1Crop, "in2", tap, toPip, stays, "1B00 BB01 0000 0000",
         "PIP 1: on, hdmi2"},
        {Controller, Pip2Page, "in4", tap, start.with("101"), stays, "10B0 B00B 0000 0000", "PIP 2: on, sdi"},
        {InBoth, MainPage, "in4", tap, start, stays, "B000 100B 0000 0000", "main layer: on, sdi"},

        {Controller, HomeAndPage, "in6+in7+in8+scale+fn", hold, start, stays, plain, {}},
        {Controller, Home, "in4", hold, start.withoutSdi(), stays, noSdi, {}},
    };
    const std::pair<const char *, ENUM_ConfigIndex> pages[] = {
        {"in1", CONFIG_HDMI1}, {"in2", CONFIG_HDMI2}, {"in3", CONFIG_DVI}, {"in4", CONFIG_SDI}};
    for (const auto &[key, page] : pages)
        list.append({Controller, HomeAndPage, key, hold, start, inputs + Chain{page}, plain, {}});
    for (const char *key : {"in1", "in2", "in3", "in4", "in6", "in7", "in8"})
        list.append({Sender, HomeAndPage, key, hold, start, inputs, plain, {}});
    return list;
}

QList<Row> displayRows()
{
    const Press tap = Press::Tap, hold = Press::Hold;
    constexpr const char *onlyFn = "1000 B001 0000 1000", *freeze = "1000 B001 0000 0100",
                         *fnAndFreeze = "1000 B001 0000 1100", *test = "1000 B001 0000 0010",
                         *fnAndTest = "1000 B001 0000 1010";
    const QString isNormal = "display: normal", isFrozen = "display: freeze", isBlack = "display: black",
                  isTest = "display: test pattern";
    return {
        {InBoth, HomeAndPage, "freeze", tap, start, stays, freeze, isFrozen},
        {InBoth, HomeAndPage, "freeze", tap, frozen, stays, plain, isNormal},
        {Controller, HomeAndPage, "freeze", tap, black, stays, freeze, isFrozen},
        {InBoth, HomeAndPage, "freeze", tap, testing, stays, test, isTest},
        {InBoth, HomeAndPage, "test", tap, start, testPattern, test, isTest},
        {InBoth, HomeAndPage, "test", tap, testing, stays, plain, isNormal},
        {Controller, HomeAndPage, "test", tap, frozen, testPattern, freeze, isFrozen},
        {Controller, HomeAndPage, "test", tap, black, testPattern, plain, isBlack},
        {Controller, HomeAndPage | PresetPage, "preset", tap, start, presets, plain, {}, LED_PRESET},
        {Sender, HomeAndPage, "preset", tap, start, stays, plain, {}},
        {InBoth, HomeAndPage, "fn", tap, start, synchronization, plain, {}, LED_FN},
        {Controller, SyncPage, "fn", tap, start, synchronization, plain, {}, LED_FN},
        {InBoth, TestPage, "test", tap, start, stays, plain, isNormal},
        {Controller, TestPage, "freeze", tap, start, stays, test, isTest},
        // A sending card has no such function.
        {Controller, HomeAndPage, "fn", tap, fnOutput, hdmiOutput, plain, {}, LED_FN},
        {InBoth, HomeAndPage, "fn", tap, fnBlack, stays, onlyFn, isBlack},
        {InBoth, HomeAndPage, "fn", tap, fnBlack.showing(Display::Black), stays, plain, isNormal},
        {Controller, Home, "fn", tap, fnBlack.showing(Display::Testing), stays, onlyFn, isBlack},
        {InBoth, HomeAndPage, "fn", tap, fnFreeze, stays, fnAndFreeze, isFrozen},
        {InBoth, HomeAndPage, "fn", tap, fnFreeze.showing(Display::Frozen), stays, plain, isNormal},
        {InBoth, HomeAndPage, "fn", tap, fnTest, testPattern, fnAndTest, isTest},
        {InBoth, HomeAndPage, "fn", tap, fnTest.showing(Display::Testing), stays, plain, isNormal},

        {InBoth, Home, "freeze", hold, start, {CONFIG_UserHiddenMenu}, plain, isNormal},
        {InBoth, Home, "test", hold, start, {CONFIG_ProductHiddenMenu}, plain, isNormal},
        {InBoth, DeepPage, "freeze+test", hold, start, stays, plain, isNormal},
        // Its release is not swallowed.
        {Controller, HomeAndPage, "preset", hold, start, presets, plain, {}, LED_PRESET},
        {Sender, HomeAndPage, "preset+fn", hold, start, stays, plain, {}},
    };
}

QString nameOf(Place place)
{
    const QMap<Place, QString> names = {
        {Home, "home"},
        {DeepPage, "a deep page"},
        {Pip1Page, "PIP 1"},
        {Pip1Crop, "its crop"},
        {Pip2Page, "PIP 2"},
        {MainPage, "the main layer"},
        {EditedRow, "an edited row"},
        {PresetPage, "the presets"},
        {TestPage, "the test patterns"},
        {SyncPage, "the synchronization"},
    };
    return names.value(place);
}

/// Nothing goes past a row that is being edited.
QList<Row> editRows()
{
    return {
        {Controller, EditedRow, "main+pip1+pip2+scale+in2+in4+fn+freeze+test+preset", Press::Tap, start,
         stays, plain, "main layer: on, hdmi1"},
        {Controller, EditedRow, "main+pip1+pip2+in1+in2+preset", Press::Hold, start, stays, plain,
         "main layer: on, hdmi1"},
    };
}
} // namespace

template <class Change> Given Given::changed(const QString &what, Change change) const
{
    Given given = *this;
    change(given);
    given.name += ", " + what;
    return given;
}

Given Given::with(const QString &layersOn) const
{
    return changed("layers " + layersOn, [&](Given &given) { given.layers = layersOn; });
}

Given Given::from(int source) const
{
    return changed(QString("source %1").arg(source), [&](Given &given) { given.mainSource = source; });
}

Given Given::showing(Display mode) const
{
    static const char *const names[] = {"normal", "frozen", "black", "testing"};
    return changed(names[int(mode)], [&](Given &given) { given.display = mode; });
}

Given Given::key(FnFunction function) const
{
    static const char *const names[] = {"synchronization", "HDMI output", "FTB", "freeze", "test"};
    return changed(QString("Fn is ") + names[int(function)], [&](Given &given) { given.fn = function; });
}

Given Given::inFullScreen() const
{
    return changed("full screen", [](Given &given) { given.fullScreen = true; });
}

Given Given::withoutSdi() const
{
    return changed("no SDI", [](Given &given) { given.hasSdi = false; });
}

QString Case::text() const
{
    return QString("mode %1, from %2: %3%4")
        .arg(mode == Controller ? 0 : 2)
        .arg(nameOf(place), QString(row->key) + (row->press == Press::Hold ? " held" : ""), row->given.name);
}

QList<Case> cases(Press press)
{
    static const QList<Row> rows = layerRows() + sourceRows() + displayRows() + editRows();
    QList<Case> list;
    for (Mode mode : {Controller, Sender})
        for (const Row &row : rows)
            for (Place place : {Home, DeepPage, Pip1Page, Pip1Crop, Pip2Page, MainPage, EditedRow, PresetPage,
                                TestPage, SyncPage})
                if (row.press == press && (row.modes & mode) && (row.places & place))
                    list.append({&row, mode, place});
    return list;
}
} // namespace keytable
