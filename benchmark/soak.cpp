// A long session, played at speed: at its end the store holds what the device holds, and the home screen
// shows it. FPD_SOAK_SECONDS is how long it takes: 600 play a whole hour. FPD_SOAK_SPEED and FPD_SOAK_SEED
// choose another speed and another session.
#include "benchmark/soaksession.h"
#include "client/agreement.h"
#include "client/consoleclient.h"
#include "client/mirrored.h"
#include "client/panel.h"

#include <QApplication>
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

QString Soak::run()
{
    const int seconds = setting("FPD_SOAK_SECONDS", 120);
    const int speed = setting("FPD_SOAK_SPEED", 6);
    const auto seed = unsigned(setting("FPD_SOAK_SEED", 1));
    if (!m_panel.startReady())
        return "the panel does not start";
    QString fault = agreement::disagreement(m_panel);
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
        fault = agreement::disagreement(m_panel);
    printf("%d registers written by the panel, %d items compared\n", m_panel.writes().size(),
           mirrored::count());
    // Without the fibers, which could stand in for a port.
    if (fault.isEmpty() && m_panel.ask({"push", "020001f2", "00"}).ok)
        fault = agreement::missingAtHome(m_panel);
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
