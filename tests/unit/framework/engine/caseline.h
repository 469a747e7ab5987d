// Cases of the engine as lines of text: what stands before, the change, and all that comes of it. For test
// programs that own an EngineRig.
#pragma once

#include "enginerig.h"
#include "menu/itemindex.h"
#include "menu/menutypes.h"

namespace VASK
{
struct CaseLine {
    QString what;
    /// Items and process data, "Sync_Source=1 OutputRate=6000"; "Freeze-" cannot be chosen,
    /// "MainLayer_InputSource/4+" is a row of a list that can. A change before them is made first:
    /// "user SendingCard=1; Sync_Status=1". Items of one family may share their first word in braces.
    QString before;
    QString change; ///< "user Sync_Status=1" or "device Sync_Status=1"
    /// Parts, parted by semicolons. "sends", "tells" and "reloads" name lines, "Sync_Status=1
    /// OutputFrameRate=60"; "of Sync_Status Sync_Source:" with lines looks only at what is sent of those
    /// items. "asks" names the keys of messages, which "answers 0" refuses. "leaves" names states as before,
    /// and "SendingCard!" or "SendingCard?" for an item that is marked or not. "screen", "ip", "sync",
    /// "bright", "name" and "picture" are texts of the home screen, "visible" and "hidden" labels of it.
    /// Nothing else is sent, told or asked; reloads count where they are named.
    QString outcome;
};
using CaseLines = QVector<CaseLine>;

namespace caseline
{
inline QStringList wordsOf(const QString &text)
{
    return itemnames::expanded(text).split(' ', Qt::SkipEmptyParts);
}

inline void prepare(EngineRig &rig, const QString &states)
{
    for (const QString &state : wordsOf(states)) {
        const bool on = state.endsWith('+');
        const QString place = state.chopped(1);
        if (state.contains('='))
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

inline bool stands(EngineRig &rig, const QString &state)
{
    if (state.contains('='))
        return rig.value(itemnames::item(state.section('=', 0, 0))) == state.section('=', 1);
    const QString place = state.chopped(1);
    const ENUM_MenuIndex item = itemnames::item(place.section('/', 0, 0));
    if (state.endsWith('!') || state.endsWith('?'))
        return (rig.choice(item) == SELECTED) == state.endsWith('!');
    return (place.contains('/') ? rig.rowEnabled(item, place.section('/', 1).toInt()) : rig.enabled(item)) ==
           state.endsWith('+');
}

inline void compareStates(EngineRig &rig, const QString &states)
{
    for (const QString &state : wordsOf(states))
        QVERIFY2(stands(rig, state), qPrintable("not so: " + state));
}

inline void change(EngineRig &rig, const QString &words)
{
    const QString line = words.section(' ', 1);
    const bool byUser = words.startsWith("user ");
    if (!byUser && !words.startsWith("device "))
        qFatal("nobody's change: %s", qPrintable(words));
    rig.engine->SetParaToXml(line.section('=', 1), itemnames::item(line.section('=', 0, 0)),
                             byUser ? SET_XML_USER : SET_XML_DEVICE);
    rig.settle();
}

inline void comparePart(EngineRig &rig, const QString &verb, const QString &rest)
{
    static const QMap<QString, const char *> labels{
        {"screen", "labScreenRes"},    {"ip", "labIp"},
        {"sync", "labSynName"},        {"bright", "labBright"},
        {"name", "labLayerSrc1_Name"}, {"picture", "labLayerSrc1_Res"}};
    if (verb == "reloads") {
        QCOMPARE(rig.reloaded.take(), wordsOf(rest));
    } else if (verb == "leaves") {
        compareStates(rig, rest);
    } else if (verb == "visible" || verb == "hidden") {
        const auto *label = rig.home->findChild<QLabel *>(rest);
        QVERIFY2(label && label->isHidden() == (verb == "hidden"), qPrintable(rest));
    } else if (labels.contains(verb)) {
        QCOMPARE(rig.shown(labels.value(verb)), rest);
    } else {
        qFatal("no part of a case: %s", qPrintable(verb));
    }
}
} // namespace caseline

inline void addCaseLines(const CaseLines &lines)
{
    QTest::addColumn<int>("row");
    for (int row = 0; row < lines.size(); ++row)
        QTest::addRow("%s: %s", qPrintable(lines.at(row).what), qPrintable(lines.at(row).change)) << row;
}

inline void runCaseLine(EngineRig &rig, const CaseLine &line)
{
    QMap<QString, QString> parts;
    for (const QString &part : line.outcome.split("; ", Qt::SkipEmptyParts)) {
        const QString verb = part.section(' ', 0, 0);
        QVERIFY2(!parts.contains(verb), qPrintable("twice: " + verb));
        parts[verb] = part.section(' ', 1);
    }
    for (const QString &part : line.before.split("; "))
        if (part.startsWith("user ") || part.startsWith("device "))
            caseline::change(rig, part);
        else
            caseline::prepare(rig, part);
    rig.forget();
    rig.answer = parts.contains("answers") ? parts.take("answers").toInt() : 1;
    caseline::change(rig, line.change);

    QStringList sent = rig.device->sent.take();
    if (parts.contains("of")) {
        const QString some = parts.take("of");
        const QStringList items = caseline::wordsOf(some.section(':', 0, 0));
        const auto isOther = [&items](const QString &one) { return !items.contains(one.section('=', 0, 0)); };
        sent.erase(std::remove_if(sent.begin(), sent.end(), isOther), sent.end());
        QCOMPARE(sent, caseline::wordsOf(some.section(':', 1)));
    } else {
        QCOMPARE(sent, caseline::wordsOf(parts.take("sends")));
        QCOMPARE(rig.reported.take(), caseline::wordsOf(parts.take("tells")));
    }
    QCOMPARE(rig.messages, caseline::wordsOf(parts.take("asks")));
    for (auto part = parts.cbegin(); part != parts.cend() && !QTest::currentTestFailed(); ++part)
        caseline::comparePart(rig, part.key(), part.value());
}
} // namespace VASK
