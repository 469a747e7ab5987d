// fpd-monkey STEPS [SEED]: plays so many steps with a panel of its own; see monkey.h. A fault shrinks to the
// shortest session that leads to it, which "fpdctl replay" plays. With kill or unplug in front: see kills.h.

#include "tools/monkey/kills.h"
#include "tools/monkey/monkey.h"
#include "tools/monkey/shrink.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>

namespace
{
constexpr int stepsToRest = 500;
constexpr int stepsOfAPanel = 5000; ///< longer sessions could not be made shorter
constexpr int shrinkSeconds = 600;
constexpr int replayMs = 300000;

QByteArray contents(const QString &name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool write(const QString &name, const QByteArray &bytes)
{
    QFile file(name);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

/// Plays the events and then the last step on a new panel; what is wrong then.
QString faultAfter(const QStringList &events, const QStringList &lastStep)
{
    Panel panel;
    const QString file = panel.statePath() + "/events.txt";
    ConsoleClient player;
    if (!panel.startReady() || !write(file, shrink::sessionOf(events)) ||
        !player.connectTo(panel.statePath()) || !player.ask({"replay", file}, replayMs).ok)
        return QString();
    return Monkey(panel, 0).repeat(lastStep);
}

void tellShortest(const QString &session, const Monkey &monkey, unsigned int seed)
{
    const QStringList events = shrink::eventsOf(session, monkey.lastStepMs());
    const QStringList lastStep = monkey.lastStep();
    printf("its last step: %s; shrinking %d events\n", qPrintable(lastStep.join(' ')), int(events.size()));
    fflush(stdout);
    const QStringList few = shrink::shortest(
        events, [&](const QStringList &less) { return !faultAfter(less, lastStep).isEmpty(); },
        shrinkSeconds);
    const QString file = QDir::current().filePath(QString("monkey-%1.session").arg(seed));
    write(file, shrink::sessionOf(few));
    printf("%d events in %s, and then \"%s\"; %s\n", int(few.size()), qPrintable(file),
           qPrintable(lastStep.join(' ')),
           few.size() < events.size() ? "they lead to a fault"
                                      : "they alone do not lead to it: the seed does");
}

/// Steps on a panel of their own. Empty, or what went wrong.
QString playPart(unsigned int seed, int steps)
{
    Panel panel;
    const QString file = panel.statePath() + "/session.txt";
    if (!panel.startReady() || !panel.ask({"record", file}).ok)
        return "the panel does not start";
    Monkey monkey(panel, seed);
    const QString fault = monkey.play(steps, stepsToRest);
    printf("seed %u: %d steps, %s\n", seed, monkey.stepsDone(), qPrintable(monkey.coverage()));
    fflush(stdout);
    if (fault.isEmpty())
        return fault;
    printf("%s\n", qPrintable(fault));
    fflush(stdout);
    panel.keepEvidence(QString("monkey-%1").arg(seed));
    panel.ask({"record", "stop"});
    const QString session = QString::fromUtf8(contents(file));
    panel.stop();
    tellShortest(session, monkey, seed);
    return fault;
}

int playAll(int steps, unsigned int seed)
{
    int faults = 0;
    for (int done = 0; done < steps; done += stepsOfAPanel, ++seed)
        faults += playPart(seed, qMin(steps - done, stepsOfAPanel)).isEmpty() ? 0 : 1;
    return faults;
}

int tellFault(const QString &fault)
{
    printf("%s", fault.isEmpty() ? "" : qPrintable(fault + '\n'));
    return fault.isEmpty() ? 0 : 1;
}
} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QStringList arguments = QCoreApplication::arguments().mid(1);
    const QString what =
        arguments.value(0) == "kill" || arguments.value(0) == "unplug" ? arguments.takeFirst() : "play";
    const int count = arguments.value(0).toInt();
    const unsigned int seed = arguments.value(1, "1").toUInt();
    if (count <= 0) {
        fprintf(stderr, "usage: fpd-monkey [kill|unplug] COUNT [SEED]\n");
        return 2;
    }
    QElapsedTimer passed;
    passed.start();
    const int faults = what == "play"   ? playAll(count, seed)
                       : what == "kill" ? tellFault(kills::kill(count, seed))
                                        : tellFault(kills::unplug(count, seed));
    printf("%s %d, from seed %u: %d s, %d faults\n", qPrintable(what), count, seed,
           int(passed.elapsed() / 1000), faults);
    return faults ? 1 : 0;
}
