#include "client/agreement.h"

#include "client/homescreen.h"
#include "client/mirrored.h"
#include "client/panel.h"

#include <QElapsedTimer>
#include <QRegularExpression>

namespace agreement
{
namespace
{
constexpr int homePorts = 6; ///< of the device's ten

/// Whatever is held back or told late has come, and the store is written.
bool comesToRest(Panel &panel, int stillMs)
{
    QElapsedTimer still;
    still.start();
    int seen = -1;
    return panel.waitUntil([&] {
        const int now = panel.writes().size();
        if (now != seen)
            still.restart();
        seen = now;
        return still.hasExpired(stillMs);
    });
}
} // namespace

QString disagreement(Panel &panel, int stillMs, const QString &but)
{
    if (!comesToRest(panel, stillMs))
        return "panel and device do not come to rest";
    QStringList lines;
    panel.waitUntil([&] {
        lines = mirrored::differences(panel);
        for (const QString &line : lines.filter(QRegularExpression(but)))
            lines.removeAll(line);
        return lines.isEmpty();
    });
    return lines.join('\n');
}

QString missingAtHome(Panel &panel)
{
    QStringList sights;
    const QStringList lines = panel.ask({"device", "show"}).lines;
    const auto tells = [&lines](const char *line) { return lines.contains(QString("  ") + line); };
    // Of 3D the screen shows the pictures of both eyes, unless they come one by one.
    const bool doubled = tells("3D: on") && !tells("format: frame sequential");
    const QRegularExpression size("output: (\\d+x\\d+)@([\\d.]+).*");
    const QRegularExpression port("port (\\d+): link (on|off), backup (on|off), engaged (on|off)");
    for (const QString &line : lines) {
        const QRegularExpressionMatch output = size.match(line.trimmed()), told = port.match(line);
        if (output.hasMatch())
            sights << QString("screen:%1@%2")
                          .arg(output.captured(1))
                          .arg(output.captured(2).toDouble() * (doubled ? 2 : 1));
        if (!told.hasMatch() || told.captured(1).toInt() > homePorts)
            continue;
        const auto is = [&](int part) { return told.captured(part) == "on"; };
        const char *colour = !is(2) ? "dark" : is(4) ? "blinking" : is(3) ? "yellow" : "green";
        sights << "port" + told.captured(1) + ':' + colour;
    }
    // A timed message at the end of the session takes the keys until its time is over.
    panel.waitUntil([&] {
        panel.press(keys::Esc);
        return homescreen::sees(panel, sights.value(0));
    });
    for (const QString &sight : sights)
        if (!homescreen::waitToSee(panel, sight))
            return sight;
    return sights.size() == 1 + homePorts ? QString() : "the device tells too little: " + sights.join(' ');
}
} // namespace agreement
