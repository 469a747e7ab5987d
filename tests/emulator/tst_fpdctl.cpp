// What is typed into a shell: fpdctl, fpd-emulator and the scripts, by their exit status and what they say.
#include "emulatorrig.h"
#include "tests/testprogram.h"

#include <QDir>
#include <QImage>
#include <QProcess>
#include <QRegularExpression>
#include <algorithm>
#include <sys/stat.h>

namespace
{
enum Status { done = 0, refused = 1, noEmulator = 2, wrongUsage = 3, timedOut = 4 };
constexpr int patienceMs = 30000;

QString program(const QString &name)
{
    return QCoreApplication::applicationDirPath() + "/../bin/" + name;
}

QString source(const QString &name)
{
    return qEnvironmentVariable("FPD_SOURCES") + '/' + name;
}

struct Result {
    int status = -1;
    QByteArray output, errors;
};

/// Runs a program to its end while the emulator of this process goes on; FPD_STATE and the display are what
/// is said here.
Result run(const QString &name, const QStringList &arguments, const QStringList &environment = {})
{
    QProcess process;
    QStringList all = QProcess::systemEnvironment();
    for (const char *own : {"FPD_STATE=", "DISPLAY=", "WAYLAND_DISPLAY=", "QT_QPA_PLATFORM="})
        all.erase(std::remove_if(all.begin(), all.end(),
                                 [own](const QString &text) { return text.startsWith(own); }),
                  all.end());
    process.setEnvironment(all + environment);
    process.start(name, arguments);
    if (!QTest::qWaitFor([&] { return process.state() == QProcess::NotRunning; }, patienceMs))
        return {-1, "it does not end", process.readAllStandardError()};
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
            process.readAllStandardOutput(), process.readAllStandardError()};
}

void write(const QString &name, const QByteArray &text)
{
    QDir().mkpath(QFileInfo(name).path());
    QFile file(name);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(text) == text.size());
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}
} // namespace

class TestFpdctl : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        m_rig = std::make_unique<EmulatorRig>();
        QVERIFY(m_rig->open());
    }
    void cleanupTestCase() { m_rig.reset(); }

    void callsEnd_data()
    {
        // call: STATE: of a running emulator
        // said: on standard output when done, else the reason
        const DataRows<QString, int, QString> row{"call", "status", "said"};
        row("--help", done, "\nsent ");
        row("-h", done, "Exit status: 0 done, 1 refused, 2 no emulator answers, 3 wrong usage, 4 timed out.");
        row("--version", done, "fpdctl 1.");
        row("help", done, "--timeout SECONDS");
        row("help key", done, "usage: key NAME|CODE");
        row("HELP Knob", done, "usage: knob left|right");
        row("screen --help", done, "--last: also of a panel that is not running");
        row("help nosuch", wrongUsage, "no such word: nosuch");
        row("", wrongUsage, "a word is missing");
        row("--state", wrongUsage, "--state needs a folder");
        row("--state= leds", wrongUsage, "--state needs a folder");
        row("leds --timeout soon", wrongUsage, "--timeout needs a number of seconds");
        row("--nosuch leds", wrongUsage, "no such option: --nosuch");
        row("state", noEmulator, "no emulator answers in /nosuch/told");
        row("--state /nosuch/state state", noEmulator, "no emulator answers in /nosuch/state");
        row("wait ready 0.1", noEmulator, "no emulator answers");
        row("--state STATE state", done, "STATE");
        row("--state=STATE state", done, "STATE");
        row("state --state STATE", done, "STATE");
        row("state --timeout=5 --state=STATE", done, "STATE");
        row("KEY Hdmi1 TAP --state STATE", done, "");
        row("rename --state STATE -- --state", done, "");
        row("panel status --state STATE", done, "stopped");
        row("writes --folow --state STATE", wrongUsage, "no such option: --folow");
        row("nosuch --state STATE", wrongUsage, "no such word: nosuch");
        row("wait log never 0.05 --state STATE", timedOut, "waited 0.05 s in vain");
        row("wait ready 0.05 --state STATE", timedOut, "in vain");
        row("log --follow --timeout 0.1 --state STATE", timedOut, "does not answer in time");
        row("leds --state STATE", refused, "stopped: its LEDs are off");
        row("screen - --state STATE", refused, "stopped: its LCD is dark");
        row("cd /nosuch --state STATE", refused, "no such folder");
    }
    void callsEnd()
    {
        auto [call, status, said] = fetched<QString, int, QString>({"call", "status", "said"});
        const Result result =
            run(program("fpdctl"), call.replace("STATE", m_rig->statePath()).split(' ', Qt::SkipEmptyParts),
                {"FPD_STATE=/nosuch/told"});
        const QByteArray &text = status == done ? result.output : result.errors;
        QCOMPARE(result.status, status);
        QVERIFY2(QString(text).contains(said.replace("STATE", m_rig->statePath())), text);
        QCOMPARE(result.errors.isEmpty(), status == done);
        QVERIFY2(status == done || (text.startsWith("fpdctl: ") && text.count('\n') == 1), text);
    }

    void callsOfProgramsEnd_data()
    {
        const DataRows<QString, int, QString> row{"call", "status", "said"};
        row("run --help", 0, "--no-panel");
        row("run --headless -h", 0, "--no-panel");
        row("test --help", 0, "./test [PRESET]");
        row("test asn", 2, "no such preset: asn");
        row("tools/setup.sh --help", 0, "tools/setup.sh [PRESET");
        row("tools/setup.sh rls", 2, "no such preset: rls");
        row("tools/lint --help", 0, "tools/lint [--format]");
        row("tools/tour --help", 0, "tools/tour DIR");
        row("tools/tour", 2, "tools/tour DIR");
        row("tools/rowsheets -h", 0, "tools/rowsheets DIR");
        row("benchmark/run --help", 0, "idle|keys");
        row("benchmark/run idel", 2, "nothing like \"idel\"");
        row("fpd-emulator --help", 0, "--no-panel");
        row("fpd-emulator --version", 0, "1.");
        row("fpd-emulator nosuch", 1, "there is no display");
        row("fpd-emulator --headless nosuch", 1, "fpd-emulator: \"nosuch\" is no option");
        row("fpd-emulator --nosuch --headless", 1, "Unknown option");
    }
    void callsOfProgramsEnd()
    {
        auto [call, status, said] = fetched<QString, int, QString>({"call", "status", "said"});
        QStringList words = call.split(' ');
        const QString name = words.takeFirst();
        const Result result = run(name == "fpd-emulator" ? program(name) : source(name), words);
        const QByteArray &text = status == 0 ? result.output : result.errors;
        QVERIFY2(result.status == status && QString(text).contains(said), result.output + result.errors);
        if (name != "fpd-emulator" || words.contains("--headless"))
            return;
        const Result dark = run(program(name), {}, {"DISPLAY=:nosuch", "QT_QPA_PLATFORM=xcb"});
        QVERIFY2(dark.status == 1 && dark.errors.contains("--headless runs without one"), dark.errors);
    }

    void aStoppedEmulatorIsNotWaitedForForEver()
    {
        QProcess process;
        process.start(program("fpdctl"), {"state", "--timeout", "0.3", "--state", m_rig->statePath()});
        QVERIFY(process.waitForFinished(patienceMs)); // without an event loop nobody answers
        QCOMPARE(process.exitCode(), int(timedOut));
    }

    void anEmulatorThatComesUpIsWaitedFor()
    {
        EmulatorRig rig;
        QProcess process;
        process.start(program("fpdctl"), {"wait", "ready", "20", "--state", rig.statePath()});
        QVERIFY(process.waitForStarted());
        QTest::qWait(100); // it has tried in vain by then, as a rule
        QVERIFY(rig.open());
        QTRY_COMPARE((emit rig.emulator->ready(), process.state()), QProcess::NotRunning);
        QCOMPARE(process.exitCode(), int(done));
    }

    void theLcdGoesToStandardOutput()
    {
        const Result result =
            run(program("fpdctl"), {"screen", "-", "--last", "--state", m_rig->statePath()});
        QCOMPARE(QImage::fromData(result.output, "PNG").size(),
                 QSize(hostlink::lcdWidth, hostlink::lcdHeight));
    }

    void aCrashedPanelIsTold()
    {
        // A build of its own, first without translations, then with a panel that logs and crashes when it is
        // told.
        QTemporaryDir folder;
        const QString emulator = folder.filePath("bin/fpd-emulator"), state = folder.filePath("state");
        write(folder.filePath("bin/fpd"),
              "#!/bin/sh\necho a line >&2\nread end < $FPD_STATE/end\nkill -SEGV $$\n");
        QVERIFY(QFile::copy(program("fpd-emulator"), emulator));
        const Result incomplete = run(emulator, {"--headless", "--state", state});
        QVERIFY2(incomplete.status == 1 && incomplete.errors.contains("the build is not complete"),
                 incomplete.errors);
        QVERIFY(QFile::link(program("../translation"), folder.filePath("translation")));

        QCOMPARE(mkfifo(qPrintable(state + "/end"), 0600), 0);
        QProcess process;
        process.start(emulator, {"--headless", "--state", state});
        const auto ask = [&](const QStringList &words) {
            return run(program("fpdctl"), words + QStringList{"--state", state});
        };
        QTRY_COMPARE(ask({"wait", "log", "a line", "--any"}).status, int(done));
        QCOMPARE(ask({"panel", "status"}).output, QByteArray("running\n"));
        QCOMPARE(ask({"wait", "log", "a line", "0.1"}).status,
                 int(timedOut)); // it came before that was asked
        QCOMPARE(ask({"wait", "log", "a line", "0.1", "--since", "600"}).status, int(done));
        QCOMPARE(ask({"log", "--plain"}).output, QByteArray("a line\n"));
        const QByteArray line = ask({"log"}).output;
        QVERIFY2(QRegularExpression("^\\d\\d:\\d\\d:\\d\\d\\.\\d{3} a line\n$").match(line).hasMatch(), line);

        write(state + "/end", "now\n");
        QTRY_COMPARE(ask({"panel", "status"}).output, QByteArray("crashed with signal 11\n"));
        for (const QStringList &words :
             {QStringList{"leds"}, QStringList{"screen", "-"}, QStringList{"wait", "ready"}}) {
            const Result result = ask(words);
            QVERIFY2(result.status == refused && result.errors.contains("crashed with signal 11"),
                     result.errors);
        }
        process.terminate();
        QVERIFY(process.waitForFinished(patienceMs));
        QCOMPARE(process.exitCode(), 1);
    }

    void runBuildsAndPassesWhatItIsTold()
    {
        QTemporaryDir clone;
        QVERIFY(QFile::copy(source("run"), clone.filePath("run")));
        write(clone.filePath("tools/setup.sh"), "#!/bin/sh\necho \"builds $*\"\n");
        write(clone.filePath("build/bin/fpd-emulator"), "#!/bin/sh\necho \"starts $*\"\n");
        const Result result = run(clone.filePath("run"), {"--no-panel", "--state=x y", "--nosuch"});
        QCOMPARE(result.output,
                 QByteArray("builds dev fpd-emulator fpdctl\nstarts --no-panel --state=x y --nosuch\n"));
    }

private:
    std::unique_ptr<EmulatorRig> m_rig;
};

FPD_TEST_GUILESS(TestFpdctl)
#include "tst_fpdctl.moc"
