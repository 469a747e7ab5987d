#include "client/homescreen.h"

#include "client/lcdtext.h"

#include <QColor>

namespace homescreen
{
namespace
{
struct Place {
    const char *name;
    QRect area;
    int pixelSize;
    bool bold;
};

const Place places[] = {
    {"mainoff", {60, 34, 200, 24}, 16, false}, {"pip1off", {60, 66, 200, 24}, 16, false},
    {"pip2off", {60, 99, 200, 24}, 16, false}, {"main", {132, 33, 188, 27}, 16, false},
    {"mainname", {58, 34, 74, 24}, 14, true},  {"pip1", {132, 65, 188, 27}, 16, false},
    {"pip1name", {58, 67, 74, 24}, 14, true},  {"pip2", {132, 98, 188, 27}, 16, false},
    {"pip2name", {58, 100, 74, 24}, 14, true}, {"screen", {60, 139, 178, 23}, 16, false},
    {"bright", {262, 138, 58, 23}, 16, false}, {"ip", {184, 4, 136, 20}, 13, false},
    {"sync", {212, 174, 78, 28}, 12, true},
};

bool seesText(Panel &panel, const Place &place, const QString &text)
{
    QFont font("Arial");
    font.setPixelSize(place.pixelSize);
    font.setBold(place.bold);
    return !lcdtext::find(panel.screen(), text, font, place.area).isEmpty();
}

const QRect mode(194, 208, 46, 30);
/// The frame of the source's name; the name itself stands in the middle of it.
const QRect sync(216, 175, 70, 4);

bool blinks(Panel &panel, int port)
{
    for (const char *colour : {"yellow", "green", "yellow"})
        if (!panel.waitUntil([&] { return portColour(panel, port) == colour; }))
            return false;
    return true;
}
} // namespace

QString portColour(const Panel &panel, int port)
{
    constexpr int strong = 150; // of 255
    constexpr int weak = 90;
    const QPoint corner(63 + 40 * ((port - 1) % 3), port <= 3 ? 180 : 208);
    const QImage picture = panel.screen().copy(QRect(corner, QSize(24, 21)));
    int green = 0;
    int yellow = 0;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x) {
            const QColor pixel = picture.pixelColor(x, y);
            if (pixel.green() > strong && pixel.blue() < weak)
                ++(pixel.red() > strong ? yellow : green);
        }
    constexpr int much = 50; // pixels
    return yellow > much ? "yellow" : green > much ? "green" : "dark";
}

QImage modePicture(const Panel &panel)
{
    return panel.screen().copy(mode);
}

QImage syncPicture(const Panel &panel)
{
    return panel.screen().copy(sync);
}

bool sees(Panel &panel, const QString &sight)
{
    const QString place = sight.section(':', 0, 0);
    const QString what = sight.section(':', 1);
    if (place.startsWith("port"))
        return portColour(panel, place.midRef(4).toInt()) == what;
    if (place.startsWith("led"))
        return panel.leds().mid(place.midRef(3).toInt(), 1) == (what == "on" ? "1" : "0");
    for (const Place &text : places)
        if (place == text.name)
            return seesText(panel, text, what);
    qWarning("no such place: %s", qPrintable(place));
    return false;
}

bool waitToSee(Panel &panel, const QString &sight)
{
    if (sight.startsWith("port") && sight.endsWith(":blinking"))
        return blinks(panel, sight.section(':', 0, 0).midRef(4).toInt());
    return panel.waitUntil([&] { return sees(panel, sight); });
}
} // namespace homescreen
