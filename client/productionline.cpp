#include "client/productionline.h"

#include "client/loglines.h"

#include <QRegularExpression>

namespace
{
constexpr QRect title(0, 0, 320, 24); ///< pixels, as below
constexpr int columns[] = {0, 100, 176, 304};
constexpr int rowHeight = 27;

const QStringList names[][3] = {
    {{"MAIN", "PIP1", "PIP2", "SCALE"},
     {"HDMI1", "HDMI2", "DVI1", "SDI"},
     {"DOWN", "UP", "ESC", "PRESET", "FN"}},
    {{"HDMI1", "HDMI2", "DVI"}, {"NET1", "NET2", "NET3", "NET4", "NET5", "NET6"}, {"USB-IN", "ETHRNET"}},
};

/// The colours of the table, by their full ink; a space for untested.
char stateOf(const QImage &cell)
{
    struct Ink {
        QRgb colour;
        char mark;
    };
    constexpr Ink inks[] = {{0xff17bc1e, '+'}, {0xffc40f0f, '-'}, {0xfff2f2f2, ' '}};
    for (int y = 0; y < cell.height(); ++y)
        for (int x = 0; x < cell.width(); ++x)
            for (const Ink &ink : inks)
                if (cell.pixel(x, y) == ink.colour)
                    return ink.mark;
    return '?';
}
} // namespace

bool ProductionLine::begin()
{
    return m_panel.hold(QString("%1+%2+%3").arg(keys::Fn, keys::Freeze, keys::Test));
}

bool ProductionLine::waitFor(Step step)
{
    const QString wanted = QString::fromUtf8("生产测试（%1）").arg(int(step));
    return m_panel.waitToDraw(wanted, 14, title);
}

bool ProductionLine::pressKeys(const QString &but)
{
    bool done = true;
    for (const char *key :
         {"main", "pip1", "pip2", "scale", "in1", "in2", "in3", "in4", "esc", "preset", "fn"})
        done = done && (key == but || m_panel.press(key));
    return done && (but == "left" || m_panel.turn(Left)) && (but == "right" || m_panel.turn(Right));
}

bool ProductionLine::keyRounds(int done)
{
    constexpr int rounds = 3;
    bool next = true;
    for (int round = done; next && round < rounds; ++round)
        next = pressKeys() && ok();
    return next && waitFor(InOut);
}

bool ProductionLine::passInOut()
{
    QList<QStringList> plugs{{"link", "usb", "1"}, {"link", "eth", "1"}};
    for (const QString &port : names[1][1])
        plugs << QStringList{"port", port.right(1), "link", "on"};
    for (const char *input : {"hdmi1", "hdmi2", "dvi"})
        plugs << QStringList{"signal", input, "on"};
    bool passed = m_panel.askAll(plugs);
    // The message comes a second at most behind the last input, and covers the table.
    for (const QString &input : names[1][0]) {
        m_panel.mark();
        passed = passed && ok() &&
                 m_panel.waitUntil([&] { return saved() || table(InOut).contains(input + '+'); });
    }
    return passed && m_panel.waitUntil([this] { return saved(); });
}

/// The message box logs its text.
bool ProductionLine::saved()
{
    return !m_panel.logLines(loglines::messageUp)
                .filter(QRegularExpression(QString("^") + loglines::messageUp))
                .isEmpty();
}

QString ProductionLine::table(Step step)
{
    const QImage screen = m_panel.screen();
    QStringList seen;
    for (int column = 0; column < 3; ++column) {
        int top = title.bottom() + 1;
        for (const QString &name : names[step == InOut ? 1 : 0][column]) {
            const QRect cell(columns[column], top, columns[column + 1] - columns[column], rowHeight);
            const bool there = m_panel.draws(name, 18, cell);
            seen << (name + (there ? stateOf(screen.copy(cell)) : '?')).trimmed();
            top += rowHeight;
        }
    }
    return seen.join(' ');
}

bool ProductionLine::waitForTable(Step step, const QString &wanted)
{
    QString seen;
    const bool found = m_panel.waitUntil([&] { return (seen = table(step)) == wanted; });
    if (!found)
        qWarning("the table shows %s", qPrintable(seen));
    return found;
}
