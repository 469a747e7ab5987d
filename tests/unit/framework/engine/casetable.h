// Cases of the engine as lines of a table: a value as the user or the device brings it, and all that comes of
// it. For test programs that own an EngineRig.
#pragma once

#include "enginerig.h"
#include "menu/itemindex.h"
#include "menu/menutypes.h"

namespace VASK
{
using Values = QMap<int, QString>;

/// One value on its way; what is not said is expected to be empty, or not looked at.
struct Case {
    QString what;
    Values before; ///< items and process data
    ENUM_MODE_SET_XML mode = SET_XML_USER;
    ENUM_MenuIndex index = MENU_END;
    QString value;
    QStringList sent;            ///< to the device
    QStringList reported;        ///< what rows are told as the device's
    QStringList reloaded;        ///< what rows are told to show or to reload
    bool watchesReloads = false; ///< else they are not looked at
    int answer = 1;              ///< of every message
    QStringList messages;
    Values after;
    QString enabled; ///< "1019+" can be chosen then, "1019-" cannot
    QString label;   ///< of the home screen
    QString text;    ///< in it

    explicit Case(const char *name, const Values &start = {}) : what(name), before(start) {}
    Case &byUser(ENUM_MenuIndex item, const QString &newValue)
    {
        index = item;
        value = newValue;
        return *this;
    }
    Case &byDevice(ENUM_MenuIndex item, const QString &newValue)
    {
        mode = SET_XML_DEVICE;
        return byUser(item, newValue);
    }
    Case &sends(const QStringList &lines)
    {
        sent = lines;
        return *this;
    }
    Case &tells(const QStringList &lines)
    {
        reported = lines;
        return *this;
    }
    Case &refreshes(const QStringList &lines)
    {
        reloaded = lines;
        watchesReloads = true;
        return *this;
    }
    Case &answers(int result)
    {
        answer = result;
        return *this;
    }
    Case &asks(const QStringList &keys)
    {
        messages = keys;
        return *this;
    }
    Case &leaves(const Values &values, const QString &enables = QString())
    {
        after = values;
        enabled = enables;
        return *this;
    }
    Case &shows(const char *name, const QString &shown)
    {
        label = name;
        text = shown;
        return *this;
    }
};
using Cases = QVector<Case>;

/// A row of test data for each case.
inline void addCaseRows(const Cases &cases)
{
    QTest::addColumn<int>("row");
    for (int row = 0; row < cases.size(); ++row)
        QTest::addRow("%s, %s", qPrintable(cases.at(row).what),
                      cases.at(row).mode == SET_XML_USER ? "user" : "device")
            << row;
}

inline void runCase(EngineRig &rig, const Case &line)
{
    for (auto item = line.before.cbegin(); item != line.before.cend(); ++item)
        rig.engine->SetParaToXml(item.value(), ENUM_MenuIndex(item.key()), SET_XML_STORE);
    rig.answer = line.answer;
    rig.engine->SetParaToXml(line.value, line.index, line.mode);
    rig.settle();
    QCOMPARE(rig.device->sent.take(), line.sent);
    QCOMPARE(rig.reported.take(), line.reported);
    const QStringList reloaded = rig.reloaded.take();
    if (line.watchesReloads)
        QCOMPARE(reloaded, line.reloaded);
    QCOMPARE(rig.messages, line.messages);
    for (auto item = line.after.cbegin(); item != line.after.cend(); ++item) {
        const QString value = rig.value(ENUM_MenuIndex(item.key()));
        QVERIFY2(value == item.value(), qPrintable(QString("%1 is %2").arg(item.key()).arg(value)));
    }
    for (const QString &entry : line.enabled.split(' ', Qt::SkipEmptyParts))
        QVERIFY2(rig.enabled(ENUM_MenuIndex(entry.chopped(1).toInt())) == entry.endsWith('+'),
                 qPrintable(entry));
    if (!line.label.isEmpty())
        QCOMPARE(rig.shown(qPrintable(line.label)), line.text);
}
} // namespace VASK
