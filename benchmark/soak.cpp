// A long session, played at speed: at its end the store holds what the device holds, and the home screen
// shows it. FPD_SOAK_SECONDS is how long it takes: 600 play a whole hour. FPD_SOAK_SPEED and FPD_SOAK_SEED
// choose another speed and another session.
#include "benchmark/soaksession.h"
#include "testkit/consoleclient.h"
#include "testkit/homescreen.h"
#include "testkit/mirrored.h"
#include "testkit/panel.h"

#include <QApplication>
#include <QRegularExpression>
#include <QTest>
#include <atomic>
#include <thread>

class Soak
{
public:
    /// Empty, or what went wrong.
    QString run();

private:
    QString replay(const QString &file, int speed, int seconds);
    bool comesToRest();
    QString disagreement();
    QString missingAtHome();

    Panel m_panel;
};

namespace
{
constexpr int homePorts = 6; ///< of the device's ten

int setting(const char *name, int otherwise)
{
    const int value = qEnvironmentVariableIntValue(name);
    return value > 0 ? value : otherwise;
}
} // namespace

/// Plays the session on a connection of its own, while cables are pulled and put back. Empty, or what went
/// wrong.
QString Soak::replay(const QString &file, int speed, int seconds)
{
    std::atomic<bool> ended{false};
    Answer answer;
    std::thread player([&] {
        ConsoleClient console;
        if (console.connectTo(m_panel.statePath()))
            answer = console.ask({"replay", file, QString::number(speed)}, seconds * 3000 + 60000);
        ended = true;
    });
    constexpr const char *cables[] = {"eth", "usb", "loop"}; // the priority is the panel's own to set
    for (int i = 0; !ended; ++i) {
        m_panel.ask({"link", cables[i / 2 % 3], i % 2 ? "0" : "1"});
        constexpr const char *states[] = {"link", "backup", "engaged"};
        m_panel.ask(
            {"port", QString::number(i * 5 % homePorts + 1), states[i % 3], i / 3 % 2 ? "on" : "off"});
        for (int waited = 0; waited < 30 && !ended; ++waited)
            QTest::qWait(100);
        m_panel.mark(); // the log so far has been read
    }
    player.join();
    printf("%s\n", qPrintable(answer.lines.join(' ')));
    return answer.ok ? QString() : "replay: " + answer.error;
}

/// Whatever is held back or told late has come, and the store is written.
bool Soak::comesToRest()
{
    constexpr int stillMs = 3000;
    QElapsedTimer still;
    still.start();
    int seen = -1;
    return m_panel.waitUntil([&] {
        const int now = m_panel.writes().size();
        if (now != seen)
            still.restart();
        seen = now;
        return still.hasExpired(stillMs);
    });
}

/// What the store does not keep, and the home screen shows: the size that leaves the device and its ports.
/// Empty, or the first sight that is not the device's.
QString Soak::missingAtHome()
{
    QStringList sights;
    const QStringList lines = m_panel.ask({"device", "show"}).lines;
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
    m_panel.waitUntil([&] {
        m_panel.press(keys::Esc);
        return homescreen::sees(m_panel, sights.value(0));
    });
    for (const QString &sight : sights)
        if (!homescreen::waitToSee(m_panel, sight))
            return sight;
    return sights.size() == 1 + homePorts ? QString() : "the device tells too little: " + sights.join(' ');
}

/// What store and device do not agree on, once they have come to rest.
QString Soak::disagreement()
{
    if (!comesToRest())
        return "panel and device do not come to rest";
    m_panel.waitUntil([this] { return mirrored::differences(m_panel).isEmpty(); });
    return mirrored::differences(m_panel).join('\n');
}

QString Soak::run()
{
    const int seconds = setting("FPD_SOAK_SECONDS", 120);
    const int speed = setting("FPD_SOAK_SPEED", 6);
    const auto seed = unsigned(setting("FPD_SOAK_SEED", 1));
    if (!m_panel.startReady())
        return "the panel does not start";
    QString fault = disagreement();
    const QString file = m_panel.statePath() + "/soak.txt";
    QFile session(file);
    if (!session.open(QIODevice::WriteOnly))
        return "no room for the session";
    session.write(soakSession(seed, qMax(1, seconds * speed / 60), speed));
    session.close();
    if (fault.isEmpty())
        fault = replay(file, speed, seconds);
    for (int i = 0; i < 8; ++i)
        m_panel.press(keys::Esc);
    if (fault.isEmpty())
        fault = disagreement();
    printf("%d registers written by the panel, %d items compared\n", m_panel.writes().size(),
           mirrored::count());
    // Without the fibers, which could stand in for a port.
    if (fault.isEmpty() && m_panel.ask({"push", "020001f2", "00"}).ok)
        fault = missingAtHome();
    if (fault.isEmpty())
        fault = m_panel.damage();
    if (!fault.isEmpty())
        m_panel.keepEvidence("soak");
    return fault;
}

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    const QString fault = Soak().run();
    printf("%s\n", fault.isEmpty() ? "store and home screen hold what the device holds" : qPrintable(fault));
    return fault.isEmpty() ? 0 : 1;
}
