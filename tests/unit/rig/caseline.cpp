#include "tests/unit/rig/caseline.h"

#include "framework/input/keyevent.h"
#include "framework/input/keypadevent.h"
#include "menu/keycodes.h"
#include "menu/ledindex.h"
#include "netstatus.h"

namespace VASK
{
using namespace caseline;

QStringList caseline::wordsOf(const QString &text)
{
    return itemnames::expanded(text).split(' ', Qt::SkipEmptyParts);
}

namespace
{
/// The item of a field or of a row of a list.
ST_ItemInfo ownerOf(const EngineRig &rig, const QString &state)
{
    const QString name = state.section('=', 0, 0);
    return name.contains('/') ? rig.info(itemnames::item(name.section('/', 0, 0))) : ST_ItemInfo();
}

/// Not the value but what an item keeps beside it: "X/PixValue=", "X/PerBase=", "X/Tag=", "X/Icon=".
QString *ownField(ST_ItemInfo &item, const QString &state)
{
    const QMap<QString, QString *> fields{
        {"PixValue", &item.pixValue}, {"PerBase", &item.perBase}, {"Tag", &item.tag}, {"Icon", &item.icon}};
    return fields.value(state.section('=', 0, 0).section('/', 1));
}
} // namespace

void caseline::pressKeys(QWidget &window, const QString &keys)
{
    static const QMap<QString, unsigned char> codes{
        {"left", KEY_KNOB_LEFT}, {"right", KEY_KNOB_RIGHT}, {"ok", KEY_OK}, {"preset", KEY_PRESET}};
    for (const QString &key : keys.split(' ')) {
        const bool isKnob = key == "left" || key == "right"; // which has no release
        KeypadEvent event(isKnob ? KEY_PRESSED : KEY_RELEASED, codes.value(key), 1, false);
        QCoreApplication::sendEvent(&window, &event);
    }
}

void caseline::prepare(EngineRig &rig, const QString &states)
{
    for (const QString &state : wordsOf(states)) {
        const bool on = state.endsWith('+');
        const QString place = state.chopped(1);
        ST_ItemInfo own = ownerOf(rig, state);
        if (QString *field = ownField(own, state)) {
            *field = state.section('=', 1);
            rig.store->updataMenuItem(own.index, own);
        } else if (state.endsWith('!') || state.endsWith('?'))
            rig.store->UpdataItemCurChoice(itemnames::item(place),
                                           state.endsWith('!') ? SELECTED : UNSELECTED);
        else if (state.contains('='))
            rig.engine->SetParaToXml(state.section('=', 1), itemnames::item(state.section('=', 0, 0)),
                                     SET_XML_STORE);
        else if (!place.contains('/'))
            rig.store->UpdataItemEnable(itemnames::item(place), on);
        else
            rig.store->changeItem(itemnames::item(place.section('/', 0, 0)), [&](ST_ItemInfo &list) {
                const QString row = place.section('/', 1);
                if (!list.params.contains(row))
                    list.params[row] = "MOSAIC"; // which only some devices offer
                list.params1[row] = on ? optionEnable : optionDisable;
            });
    }
}

namespace
{
bool stands(EngineRig &rig, const QString &state)
{
    ST_ItemInfo own = ownerOf(rig, state);
    if (const QString *field = ownField(own, state))
        return *field == state.section('=', 1);
    if (state.contains('='))
        return rig.value(itemnames::item(state.section('=', 0, 0))) == state.section('=', 1);
    const QString place = state.chopped(1);
    const ENUM_MenuIndex item = itemnames::item(place.section('/', 0, 0));
    if (state.endsWith('!') || state.endsWith('?'))
        return (rig.choice(item) == SELECTED) == state.endsWith('!');
    return (place.contains('/') ? rig.rowEnabled(item, place.section('/', 1).toInt()) : rig.enabled(item)) ==
           state.endsWith('+');
}

void step(EngineRig &rig, const QString &text)
{
    const QStringList words = text.split(' ');
    const QString line = text.section(' ', 1);
    const auto number = [&words](int word) { return words.value(word).toInt(); };
    if (words[0] == "user" || words[0] == "device") {
        rig.engine->SetParaToXml(line.section('=', 1), itemnames::item(line.section('=', 0, 0)),
                                 words[0] == "user" ? SET_XML_USER : SET_XML_DEVICE);
    } else if (words[0] == "input") {
        // The period comes last and stands for the whole record.
        constexpr int interlaced = 1, period = 5;
        const int first = PARA_InputRecordFirst + STRIDE_InputRecord * number(1);
        rig.input(number(1), number(2), number(3), number(4), number(5), number(6));
        rig.process(ENUM_MenuIndex(first + interlaced), number(7));
        rig.fromDevice(ENUM_MenuIndex(first + period), words.value(6));
    } else if (words[0] == "flash") {
        rig.writeFlash(words.value(1).toInt(nullptr, 16), QByteArray::fromHex(words.value(2).toLatin1()));
    } else if (words[0] == "fault") {
        QFile fault(rig.statePath(hostlink::flashFaultFile)); // so many reads fail
        QVERIFY(fault.open(QIODevice::WriteOnly) && fault.write(words.value(1).toLatin1()) > 0);
    } else if (words[0] == "start") {
        rig.engine->InitReadParaFrom20M();
        rig.engine->InitializeMainWindow();
    } else if (words[0] == "initialize") {
        rig.engine->Initialize();
    } else if (words[0] == "home") {
        rig.engine->InitializeMainWindow();
    } else if (words[0] == "dialog") {
        rig.operate = [line](QDialog &dialog) { pressKeys(dialog, line); };
    } else if (words[0] == "load") {
        rig.engine->QuickLoadScene(number(1));
    } else if (words[0] == "mode") {
        rig.engine->UpdataDispMode(number(1));
    } else if (words[0] == "started") {
        ParaProcess::init_20m_flg = true;
    } else {
        prepare(rig, text);
    }
    rig.settle();
}

void compareLeds(const LedPanel *leds, const QString &names, bool lit)
{
    static const QMap<QString, ENUM_LedIndex> byName{{"SCALE", LED_SCALE}, {"FREEZE", LED_FREEZE},
                                                     {"TEST", LED_TEST},   {"FN", LED_FN},
                                                     {"IN6", LED_INPUT6},  {"PRESET", LED_PRESET}};
    for (const QString &name : wordsOf(names)) {
        QVERIFY2(leds && byName.contains(name), qPrintable(name));
        QVERIFY2(leds->lit(byName.value(name)) == lit, qPrintable(name));
    }
}

/// 'd' for disabled, 'e' for enabled, 'b' for a backup, by the port's picture.
QChar portState(const EngineRig &rig, int port)
{
    const auto *label = rig.home->findChild<QLabel *>(QString("labNet%1").arg(port));
    const QImage shown = label ? label->pixmap(Qt::ReturnByValue).toImage() : QImage();
    for (const char *name : {"dport%1_disable", "eport%1_enable", "bhotbackupport%1_enable"})
        if (shown == QPixmap(":/resource/image/mainWindow/" + QString(name + 1).arg(port) + ".png").toImage())
            return QLatin1Char(name[0]);
    return '?';
}

void comparePorts(const EngineRig &rig, const QString &states)
{
    QString found;
    for (int port = 0; port < states.size(); ++port)
        found += states[port] == '.' ? QChar('.') : portState(rig, port + 1);
    QCOMPARE(found, states);
}

/// As they are noted when they are told to load all of their item again.
QStringList rowsOf(ENUM_MenuIndex item)
{
    QStringList rows;
    for (const ST_MenuConfig &page : qAsConst(g_config))
        for (const st_MenuItemInfo &row : page.rowsMap)
            if (row.menuIndex == item)
                rows << itemnames::line(item, QString::number(row.itemObject));
    return rows;
}

void comparePart(EngineRig &rig, const LedPanel *leds, const QString &verb, const QString &rest)
{
    static const QMap<QString, const char *> labels{
        {"screen", "labScreenRes"},     {"ip", "labIp"},
        {"sync", "labSynName"},         {"bright", "labBright"},
        {"name", "labLayerSrc1_Name"},  {"picture", "labLayerSrc1_Res"},
        {"name2", "labLayerSrc2_Name"}, {"picture2", "labLayerSrc2_Res"},
        {"name3", "labLayerSrc3_Name"}, {"picture3", "labLayerSrc3_Res"}};
    if (verb == "reloads") {
        QCOMPARE(rig.reloaded.take(), wordsOf(rest));
    } else if (verb == "reloading") {
        const QStringList reloaded = rig.reloaded.take();
        for (const QString &line : wordsOf(rest))
            QVERIFY2(reloaded.contains(line), qPrintable(line));
    } else if (verb == "redraws") {
        const QStringList redrawn = rig.redrawn.take();
        for (const QString &item : wordsOf(rest))
            for (const QString &row : rowsOf(itemnames::item(item)))
                QVERIFY2(redrawn.contains(row), qPrintable(row));
    } else if (verb == "leaves") {
        compareStates(rig, rest);
    } else if (verb == "visible" || verb == "hidden") {
        const auto *label = rig.home->findChild<QLabel *>(rest);
        QVERIFY2(label && label->isHidden() == (verb == "hidden"), qPrintable(rest));
    } else if (verb == "looks") {
        QCOMPARE(rig.looks, wordsOf(rest));
    } else if (verb == "text") {
        for (const QString &state : rest.split(", "))
            QCOMPARE(rig.value(itemnames::item(state.section('=', 0, 0))), state.section('=', 1));
    } else if (verb == "options") {
        const ST_ItemInfo list = rig.info(itemnames::item(rest.section('=', 0, 0)));
        QCOMPARE(list.params.values().join(' '), rest.section('=', 1));
        QCOMPARE(list.params1.keys(), list.params.keys());
    } else if (verb == "priority") {
        QCOMPARE(QString::number(get_pc_connect_priority()), rest);
    } else if (verb == "ports") {
        comparePorts(rig, rest);
    } else if (verb == "lit" || verb == "dark") {
        compareLeds(leds, rest, verb == "lit");
    } else if (labels.contains(verb)) {
        QCOMPARE(rig.shown(labels.value(verb)), rest);
    } else {
        qFatal("no part of a case: %s", qPrintable(verb));
    }
}
} // namespace

void caseline::compareStates(EngineRig &rig, const QString &states)
{
    for (const QString &state : wordsOf(states))
        QVERIFY2(stands(rig, state), qPrintable("not so: " + state));
}

void addCaseLines(const CaseLines &lines)
{
    QTest::addColumn<int>("row");
    for (int row = 0; row < lines.size(); ++row)
        QTest::addRow("%s: %s", qPrintable(lines.at(row).what), qPrintable(lines.at(row).change)) << row;
}

void runCaseLine(EngineRig &rig, const CaseLine &line, const LedPanel *leds)
{
    QMap<QString, QString> parts;
    for (const QString &part : line.outcome.split("; ", Qt::SkipEmptyParts)) {
        const QString verb = part.section(' ', 0, 0);
        QVERIFY2(!parts.contains(verb), qPrintable("twice: " + verb));
        parts[verb] = part.section(' ', 1);
    }
    for (const QString &part : line.before.split("; "))
        step(rig, part);
    rig.forget();
    rig.answer = parts.contains("answers") ? parts.take("answers").toInt() : 1;
    for (const QString &part : line.change.split("; "))
        step(rig, part);

    QStringList sent = rig.device->sent.take();
    if (parts.contains("of")) {
        const QString some = parts.take("of");
        const QStringList items = wordsOf(some.section(':', 0, 0));
        const auto isOther = [&items](const QString &one) { return !items.contains(one.section('=', 0, 0)); };
        sent.erase(std::remove_if(sent.begin(), sent.end(), isOther), sent.end());
        QCOMPARE(sent, wordsOf(some.section(':', 1)));
    } else {
        QCOMPARE(sent, wordsOf(parts.take("sends")));
        QCOMPARE(rig.reported.take(), wordsOf(parts.take("tells")));
    }
    const QString asked = parts.take("asks");
    if (asked.isEmpty())
        QCOMPARE(rig.messages.join(' '), asked);
    else
        QTRY_COMPARE(rig.messages.join(' '),
                     asked); // one that a report raises comes by way of the home screen
    for (auto part = parts.cbegin(); part != parts.cend() && !QTest::currentTestFailed(); ++part)
        comparePart(rig, leds, part.key(), part.value());
}

void CaseTest::initTestCase()
{
    m_rig = makeRig();
    const CaseLines all = lines();
    if (std::none_of(all.begin(), all.end(), [](const CaseLine &line) {
            return line.outcome.contains("lit ") || line.outcome.contains("dark ");
        }))
        return; // nobody looks at the LEDs: no driver, no thread of it
    m_leds = new LedPanel(m_rig->statePath("").toStdString());
    KeyEvent::getInstance()->InitKeyDriver(qApp);
}

void CaseTest::cleanupTestCase()
{
    delete m_leds;
    delete m_rig;
}

void CaseTest::valueIsApplied()
{
    QFETCH(int, row);
    runCaseLine(*m_rig, lines().at(row), m_leds);
}
} // namespace VASK
