#include "tools/monkey/kills.h"

#include "client/agreement.h"
#include "client/names/itemnames.h"
#include "client/panel.h"
#include "menu/itemindex.h"

#include <QThread>
#include <random>

using namespace VASK;

namespace
{
const QString brightness = itemnames::name(MENU_ScreenBrightness);

/// The values but the brightness, which is set. What else an item has follows from the running device.
QMap<QString, QString> others(const QMap<QString, QString> &fields)
{
    QMap<QString, QString> values;
    for (auto field = fields.cbegin(); field != fields.cend(); ++field)
        if (!field.key().contains('/') && !field.key().endsWith("ColorSample") && field.key() != brightness)
            values.insert(field.key(), *field);
    return values;
}

QString differences(const QMap<QString, QString> &before, const QMap<QString, QString> &now)
{
    QStringList lines;
    for (auto field = before.cbegin(); field != before.cend(); ++field)
        if (now.value(field.key()) != *field)
            lines << QString("%1 was %2 and is %3").arg(field.key(), *field, now.value(field.key()));
    return lines.join('\n');
}

bool comesUp(Panel &panel)
{
    return panel.start() && panel.ask({"wait", "ready"}).ok;
}
} // namespace

QString kills::kill(int count, unsigned int seed)
{
    std::mt19937 random(seed);
    const auto below = [&random](int most) { return int(random() % unsigned(most)); };
    Panel panel;
    if (!panel.startReady())
        return "the panel does not start";
    const QString fault = agreement::disagreement(panel);
    if (!fault.isEmpty())
        return fault;
    const QMap<QString, QString> first = others(panel.storedFields());
    for (int i = 0; i < count; ++i) {
        const QString kept = panel.stored(MENU_ScreenBrightness);
        const int step = kept.toInt() < 50 ? 1 : -1;
        panel.askAll({{"key", "ok"}, {"key", "ok"}, {"knob", step > 0 ? "right" : "left"}, {"key", "ok"}});
        QThread::msleep(unsigned(below(1400))); // the store is written a second later
        const bool isEmulator = below(4) == 0;
        if (isEmulator)
            panel.kill();
        else
            panel.ask({"panel", "kill"});
        if (isEmulator && !panel.powerDevice())
            return QString("kill %1: the emulator does not come up").arg(i);
        if (!comesUp(panel))
            return QString("kill %1: the panel does not come up again").arg(i);
        const QString now = panel.stored(MENU_ScreenBrightness);
        const QString lost = differences(first, others(panel.storedFields()));
        if ((now != kept && now.toInt() != kept.toInt() + step) || !lost.isEmpty())
            return QString("kill %1: brightness %2 became %3\n%4").arg(i).arg(kept, now, lost);
    }
    return panel.damage();
}

QString kills::unplug(int count, unsigned int seed)
{
    std::mt19937 random(seed);
    constexpr const char *parts[] = {"bus", "keypad"};
    Panel panel;
    if (!panel.startReady())
        return "the panel does not start";
    for (int i = 0; i < count; ++i) {
        const QString part = parts[random() % std::size(parts)];
        panel.askAll({{"fault", part, "down"}, {"fault", "flash", QString::number(random() % 3)}});
        QThread::msleep(random() % 40);
        panel.askAll({{"fault", part, "up"}});
        QThread::msleep(random() % 40);
        // Refused while nobody reads; and nothing is set meanwhile, as what is sent to no device is lost.
        panel.ask({"knob", random() % 2 ? "right" : "left"});
        panel.ask({"push", "02000001", QString::number(random() % 90 + 10), "--device", "1"});
    }
    panel.ask({"fault", "flash", "0"});
    if (!panel.waitUntil([&panel] { return panel.ask({"reports", "now"}).ok && panel.press(keys::Ok); }))
        return "panel and device do not find each other again";
    if (!panel.waitFor("\u4e3b\u83dc\u5355")) // the main menu
        return "the keypad does not come back";
    const QString fault = agreement::disagreement(panel);
    return fault.isEmpty() ? panel.damage() : fault;
}
