#include "tests/system/keys/keycheck.h"
#include "client/loglines.h"
#include "menu/menutypes.h"

#include <QRegularExpression>
#include <QSize>
#include <QtEndian>

using namespace VASK;
using namespace keytable;

namespace
{
using Rows = QList<ENUM_MenuIndex>;

constexpr int layerCount = 3;
constexpr int sourceCodes[] = {17, 18, 0, 48}; ///< HDMI 1, HDMI 2, DVI, SDI
constexpr int noSourceCode = 255;
constexpr int inputRecordLength = 32;

QString hex(const QByteArray &bytes)
{
    return QString::fromLatin1(bytes.toHex());
}

/// The record by which the device tells of a layer.
QByteArray layerRecord(int layer, bool on, int source, const QSize &size)
{
    constexpr int length = 48, sourceAt = 2, priorityAt = 3, codeAt = 4, widthAt = 13, heightAt = 17,
                  opacityAt = 47, opaque = 100;
    QByteArray record(length, '\0');
    record[0] = char(on);
    record[sourceAt] = char(source);
    record[priorityAt] = char(layer);
    record[codeAt] = char(sourceCodes[source]);
    qToLittleEndian<qint32>(size.width(), record.data() + widthAt);
    qToLittleEndian<qint32>(size.height(), record.data() + heightAt);
    record[opacityAt] = opaque;
    return record;
}

Rows rowsTo(Place place)
{
    switch (place) {
    case Home:
        return {};
    case DeepPage:
        return {MENU_CommunicationSettings, MENU_NetworkSettings};
    case Pip1Page:
        return {MENU_LayerSettings, MENU_PIP1};
    case Pip1Crop:
        return {MENU_LayerSettings, MENU_PIP1, MENU_PIP1_InputCrop};
    case Pip2Page:
        return {MENU_LayerSettings, MENU_PIP2};
    case MainPage:
        return {MENU_LayerSettings, MENU_MainLayer};
    case EditedRow:
        return {MENU_SystemSetting, MENU_ReturntoHome};
    case PresetPage:
        return {MENU_PresetSettings};
    case TestPage:
        return {MENU_DisplayControl, MENU_TestPattern};
    case SyncPage:
        return {MENU_AdvancedSetting, MENU_Synchronization};
    default:
        return {};
    }
}

/// Position of the row that opens the page.
int rowOf(const ST_MenuConfig &page, ENUM_ConfigIndex child)
{
    for (int position = 0; position < page.rows; ++position) {
        const st_MenuItemInfo row = page.rowsMap.value(position);
        if (row.controlType == TYPE_SUBPAGE && row.subPage == child)
            return position;
    }
    return -1;
}

} // namespace

QString KeyCheck::start()
{
    const bool started = m_panel.startReady() && m_leds.start(m_panel.statePath()) &&
                         m_walk.speak("fpd_ZH") && m_panel.ask({"signal", "sdi", "on"}).ok;
    return started ? QString() : "the panel does not start";
}

QString KeyCheck::check(const Case &expected)
{
    const Row &row = *expected.row;
    const auto ledsHere = [this, &row] {
        return QString(row.leds).left(layerCount).contains('B') ? ledsShow(row.leds) : QString();
    };
    const auto leaveEdit = [this, &expected] {
        return expected.place == EditedRow && !m_walk.press(keys::Esc) ? "the edit does not end" : QString();
    };
    const std::function<QString()> steps[] = {
        [&] { return prepare(row.given, expected.mode); },
        [&] { return goTo(expected.place); },
        [&] { return pressKey(row); },
        [&] { return screenIs(row, expected.place); },
        [&] { return deviceShows(row.device); },
        ledsHere,
        leaveEdit,
        [&] { return wayBack(); },
        [&] { return ledsShow(atHome(row.leds)); },
    };
    for (const auto &step : steps) {
        const QString fault = step();
        if (!fault.isEmpty())
            return fault;
    }
    return {};
}

void KeyCheck::cleanUp(const QString &faultyCase)
{
    if (!faultyCase.isEmpty())
        m_panel.keepEvidence("keys-" + faultyCase);
    m_walk.home();
}

QString KeyCheck::prepare(const Given &given, Mode mode)
{
    if (mode != m_mode && !changeMode(mode))
        return "the work mode does not change";
    if (given.hasSdi != m_hasSdi && !changeSdi(given.hasSdi))
        return "the SDI input does not change";
    // The sending card's layer is as big as its source.
    const QSize mainSize = mode == Sender ? QSize(1920, 1080) : QSize(800, 600);
    QList<QStringList> reports;
    for (int layer = 0; layer < layerCount; ++layer) {
        const QByteArray record =
            layerRecord(layer, given.layers[layer] == '1', layer == 0 ? given.mainSource : 0,
                        layer == 0 ? mainSize : QSize(480, 270));
        reports.append({"push", QString::number(0x13020010 + layer * record.size(), 16), hex(record)});
    }
    constexpr int normalCode = 3;
    reports.append({"push", "13000004", hex(QByteArray(1, char(normalCode + int(given.display))))});
    if (!m_panel.askAll(reports) || !heard())
        return "the device's state does not come";
    if (given.fn != m_fn && !assignFn(given.fn))
        return "the Fn key is not assigned";
    if (given.fullScreen && !m_walk.press("scale"))
        return "no full screen";
    return {};
}

bool KeyCheck::changeMode(Mode mode)
{
    m_mode = mode;
    const bool toSender = mode == Sender;
    // What the panel writes then comes a little later than what it hears next.
    const QString lastWrite = toSender ? "1300002a" : "020001f8";
    return m_panel.ask({"writes", "--clear"}).ok &&
           m_panel.ask({"push", "1300002C", toSender ? "10" : "00"}).ok &&
           m_panel.waitUntil([&] { return !m_panel.writes().filter(lastWrite).isEmpty(); });
}

bool KeyCheck::changeSdi(bool present)
{
    m_hasSdi = present;
    if (present)
        return m_panel.ask({"signal", "sdi", "on"}).ok;
    const QByteArray record = QByteArray(1, char(noSourceCode)).leftJustified(inputRecordLength, '\0');
    return m_panel.ask({"push", "13010061", hex(record)}).ok;
}

bool KeyCheck::assignFn(FnFunction function)
{
    m_fn = function;
    return m_walk.go(
               {MENU_SystemSetting, MENU_Fn, ENUM_MenuIndex(MENU_Fn_Synchronization + int(function))}) &&
           m_walk.home();
}

bool KeyCheck::heard()
{
    // Reports are worked off in their order; of a service that there is not the panel only takes note.
    m_panel.mark();
    return m_panel.ask({"push", "14000000", "03"}).ok && m_panel.waitForLog(loglines::unknownService) &&
           m_panel.settle();
}

QString KeyCheck::goTo(Place place)
{
    if (place != Home && !m_walk.go(rowsTo(place)))
        return "no way to where the key is pressed";
    return {};
}

QString KeyCheck::pressKey(const Row &row)
{
    m_leds.mark();
    if (row.press == Press::Tap ? !m_walk.press(row.key) : !m_panel.hold(row.key) || !m_panel.settle())
        return "the key is not taken";
    if (row.flash >= 0 && !m_panel.waitUntil([&] { return m_leds.hasFlashed(row.flash); }))
        return "no flash of the key\n" + m_leds.history();
    return {};
}

QString KeyCheck::screenIs(const Row &row, Place place)
{
    if (row.chain.isEmpty() && place == Home)
        return m_walk.isHome() ? QString() : "left the home screen";
    if (!row.chain.isEmpty())
        m_walk.assume(row.chain);
    if (!m_walk.showsTitle())
        return "page is not " + m_walk.table().title;
    // Both hidden menus have the same title.
    const QString firstRow =
        m_walk.text(g_MenuXmlConfig.value(m_walk.table().rowsMap.value(0).menuIndex).tag);
    if (row.chain.size() == 1 && !m_panel.waitFor(firstRow))
        return "page does not begin with " + firstRow;
    return {};
}

QStringList KeyCheck::deviceLines(const QString &begin)
{
    return m_panel.ask({"device", "show"}).lines.filter(QRegularExpression("^ *" + begin));
}

QString KeyCheck::deviceShows(const QString &line)
{
    const bool shown = m_panel.waitUntil([&] { return !deviceLines(line).isEmpty(); });
    return shown ? QString() : "the device does not show " + line;
}

QString KeyCheck::atHome(const QString &leds)
{
    static const char *const layers[] = {"main layer", "PIP 1", "PIP 2"};
    QString steady = leds;
    for (int layer = 0; layer < layerCount; ++layer)
        if (leds[layer] == 'B')
            steady[layer] = deviceLines(QString(layers[layer]) + ": on").isEmpty() ? '0' : '1';
    return steady;
}

QString KeyCheck::ledsShow(const QString &leds)
{
    return m_leds.show(leds) ? QString() : leds + " is not what is seen:\n" + m_leds.history();
}

/// ESC page by page, each with its cursor on the row that had led on, as if the user had walked here.
QString KeyCheck::wayBack()
{
    while (m_walk.page() != CONFIG_END) {
        const ENUM_ConfigIndex child = m_walk.page();
        if (!m_walk.back())
            return "ESC is not taken";
        if (m_walk.page() == CONFIG_END)
            break;
        if (!m_walk.showsTitle())
            return "ESC does not lead to " + m_walk.table().title;
        if (!cursorLeadsTo(child))
            return "the cursor is elsewhere on " + m_walk.table().title;
    }
    return m_walk.isHome() ? QString() : "ESC does not lead home";
}

bool KeyCheck::cursorLeadsTo(ENUM_ConfigIndex child)
{
    const int row = rowOf(m_walk.table(), child);
    return row == 0 ? m_walk.turn(Right, 1) && m_panel.waitForLog(loglines::cursorRight)
                    : m_walk.turn(Left, 1) && m_panel.waitForLog(QString(loglines::cursorLeft).arg(row - 1));
}
