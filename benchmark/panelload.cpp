// What the whole panel costs, measured from outside with the floor beside each number. One line a question:
// name, measured, floor, ratio.
#include "benchmark/procfs.h"
#include "fpd_hostlink.h"
#include "framework/protocol/packageframe.h"
#include "framework/protocol/packagerequestproto3rd.h"
#include "tests/system/menuwalk.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QThread>
#include <QTime>
#include <algorithm>
#include <cstdio>
#include <sys/resource.h>
#include <time.h>

using namespace VASK;

namespace
{
void print(const char *what, double measured, double floor, const char *unit)
{
    printf("%-34s %10.2f %s   floor %9.2f %s   x%.1f\n", what, measured, unit, floor, unit,
           floor > 0 ? measured / floor : 0);
    fflush(stdout);
}

qint64 nowNs()
{
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return qint64(now.tv_sec) * 1000000000 + now.tv_nsec;
}

double median(QVector<double> values)
{
    std::sort(values.begin(), values.end());
    return values.isEmpty() ? 0 : values[values.size() / 2];
}

/// CPU of a bare label, as wait4 tells it.
double bareLabelMs(const Panel &panel)
{
    const QString build = QCoreApplication::applicationDirPath() + "/..";
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    QDir().mkpath(panel.statePath() + "/floor");
    environment.insert("FPD_STATE", panel.statePath() + "/floor");
    environment.insert("QT_QPA_PLATFORM", "panellcd");
    environment.insert("QT_QPA_PLATFORM_PLUGIN_PATH", build + "/plugins/platforms");
    process.setProcessEnvironment(environment);
    rusage before{}, after{};
    getrusage(RUSAGE_CHILDREN, &before);
    process.start(build + "/bin/barelabel", QStringList());
    process.waitForFinished();
    getrusage(RUSAGE_CHILDREN, &after);
    const auto ms = [](const rusage &usage) {
        return (usage.ru_utime.tv_sec + usage.ru_stime.tv_sec) * 1000.0 +
               (usage.ru_utime.tv_usec + usage.ru_stime.tv_usec) / 1000.0;
    };
    return ms(after) - ms(before);
}

/// From the key word to the change of the LCD, in ms; negative if nothing changed.
double lcdAnswerMs(Panel &panel, const QStringList &words)
{
    QFile lcd(panel.statePath() + hostlink::lcdFile);
    if (!lcd.open(QIODevice::ReadOnly))
        return -1;
    const uchar *memory = lcd.map(0, hostlink::lcdFileSize);
    const auto *counter = reinterpret_cast<const volatile quint64 *>(memory + hostlink::lcdBytes);
    const quint64 before = *counter;
    const qint64 start = nowNs();
    panel.ask(words);
    while (*counter == before || *counter % 2 != 0) {
        if (nowNs() - start > 2000000000)
            return -1;
        QThread::usleep(50);
    }
    return double(qint64(counter[1]) - start) / 1e6;
}

void measureStart(Panel &panel)
{
    QElapsedTimer passed;
    passed.start();
    panel.powerDevice();
    panel.start();
    panel.ask({"wait", "ready"});
    const int id = procfs::panelOf(panel.statePath());
    print("start-up, CPU", procfs::cpuMs(id), bareLabelMs(panel), "ms");
    printf("%-34s %10lld ms\n", "start-up, wall with the device", static_cast<long long>(passed.elapsed()));
    printf("%-34s %10.1f MB\n", "memory at the home screen", procfs::memoryMb(id));
}

void measureIdle(Panel &panel)
{
    constexpr int seconds = 10;
    const int id = procfs::panelOf(panel.statePath());
    const QMap<QString, double> before = procfs::threadsMs(id);
    QThread::sleep(seconds);
    const QMap<QString, double> after = procfs::threadsMs(id);
    double sum = 0;
    for (auto thread = after.begin(); thread != after.end(); ++thread)
        sum += thread.value() - before.value(thread.key());
    printf("%-34s %10.2f %% of a core, of which\n", "idle", sum / seconds / 10);
    for (auto thread = after.begin(); thread != after.end(); ++thread)
        printf("    %-30s %10.2f %%\n", qPrintable(thread.key()),
               (thread.value() - before.value(thread.key())) / seconds / 10);
}

void measureKeys(Panel &panel)
{
    MenuWalk walk(panel);
    walk.openMenu();
    QVector<double> cursor, value, frame;
    for (int i = 0; i < 40; ++i)
        cursor << lcdAnswerMs(panel, {"word", i % 2 ? "0120" : "0121"});
    walk.home();
    walk.go({MENU_AdvancedSetting, MENU_Audio, MENU_Audio_Volume});
    for (int i = 0; i < 40; ++i)
        value << lcdAnswerMs(panel, {"word", i % 2 ? "0120" : "0121"});
    for (int i = 0; i < 20; ++i) {
        QThread::msleep(400); // past the hold-back of the step before
        panel.ask({"writes", "--clear"});
        const qint64 start = nowNs();
        panel.ask({"word", i % 2 ? "0120" : "0121"});
        while (panel.writes().isEmpty() && nowNs() - start < 1000000000)
            QThread::usleep(200);
        frame << double(nowNs() - start) / 1e6;
    }
    QVector<double> trips; // one way through the emulator and back, with nothing done
    for (int i = 0; i < 100; ++i) {
        const qint64 start = nowNs();
        panel.ask({"leds"});
        trips << double(nowNs() - start) / 1e6;
    }
    const double tripMs = median(trips);
    print("key to LCD, cursor, median", median(cursor), tripMs, "ms");
    print("key to LCD, value, median", median(value), tripMs, "ms");
    printf("%-34s %10.2f ms\n", "key to LCD, worst", *std::max_element(value.begin(), value.end()));
    constexpr double tickMs = 10; // the send ticker's period: half of it on average
    print("key to frame on the bus, median", median(frame), tickMs / 2, "ms");
    walk.home();
}

/// The store writes its file and a copy of it and has them on the disk: so does the floor.
void measureStore(Panel &panel)
{
    MenuWalk walk(panel);
    walk.go({MENU_AdvancedSetting, MENU_Audio, MENU_Audio_Volume});
    panel.mark();
    walk.turn(Right, 1);
    panel.waitForLog("slot_updateXml m_activityElementList");
    QThread::msleep(300);
    // Each stage of the writing is logged with its time.
    QVector<QTime> times;
    for (const QString &line : panel.logLines("\""))
        if (const QTime time = QTime::fromString(QString(line).remove('"').trimmed(), "hh:mm:ss.zzz");
            time.isValid())
            times << time;
    walk.home();
    QFile store(panel.file("/usr/vask/etc/fpd/config/config.xml"));
    if (times.size() < 2 || !store.open(QIODevice::ReadOnly))
        return;
    const QByteArray bytes = store.readAll();
    QElapsedTimer plain;
    plain.start();
    for (const char *name : {"/one", "/two"}) {
        QFile copy(panel.statePath() + name);
        copy.open(QIODevice::WriteOnly);
        copy.write(bytes);
        copy.flush();
        fsync(copy.handle());
    }
    print("store flush", times.first().msecsTo(times.last()), double(plain.nsecsElapsed()) / 1e6, "ms");
}

void measureReports(Panel &panel)
{
    constexpr int count = 20000;
    const int id = procfs::panelOf(panel.statePath());
    const double memory = procfs::memoryMb(id), cpu = procfs::cpuMs(id);
    QList<QStringList> burst;
    for (int i = 0; i < 200; ++i)
        burst << QStringList{"push", "02000001", QString("%1").arg(i, 2, 16, QChar('0')), "--device", "1"};
    panel.mark();
    QElapsedTimer passed;
    passed.start();
    for (int i = 0; i < count / burst.size(); ++i)
        panel.askAll(burst);
    panel.ask({"push", "02000001", "99", "--device", "1"});
    panel.waitForLog("ReportMsgToParaProcess 1 ");
    const double perSecond = count * 1000.0 / passed.elapsed();

    const QByteArray bytes = QByteArray::fromHex("aa55000000fe000000000000000000140100016956");
    QElapsedTimer parsing;
    parsing.start();
    int parsed = 0;
    while (parsing.elapsed() < 500) {
        PackageRequestProto3rd package;
        parsed += package.unPackageReply(bytes);
    }
    printf("%-34s %10.0f /s   floor (parsing alone) %.0f /s\n", "reports handled", perSecond,
           parsed * 1000.0 / parsing.elapsed());
    printf("%-34s %10.1f us CPU\n", "a report", (procfs::cpuMs(id) - cpu) * 1000 / count);
    printf("%-34s %10.1f MB more\n", "memory after them", procfs::memoryMb(id) - memory);
}
/// A minute of reports at the full rate while the knob turns and pages open.
void measureLoad(Panel &panel)
{
    constexpr int burst = 500, seconds = 60;
    const int id = procfs::panelOf(panel.statePath());
    QList<QStringList> reports;
    for (int i = 0; i < burst; ++i)
        reports << QStringList{"push", "02000001", QString::number(0x20 + i % 64, 16), "--device", "1"};
    MenuWalk walk(panel);
    walk.openMenu();
    panel.askAll(reports);
    const double memory = procfs::memoryMb(id);
    QVector<double> answers;
    int count = 0;
    QElapsedTimer passed;
    passed.start();
    while (passed.elapsed() < seconds * 1000) {
        panel.askAll(reports);
        count += burst;
        answers << lcdAnswerMs(panel, {"word", answers.size() % 2 ? "0120" : "0121"});
        // At most ten thousand a second.
        QThread::msleep(ulong(qMax<qint64>(0, count / 10 - passed.elapsed())));
        if (answers.size() % 100 == 0) {
            walk.press(keys::Ok);
            walk.press(keys::Esc);
        }
    }
    printf("%-34s %10.0f /s for a minute\n", "reports under load", count * 1000.0 / passed.elapsed());
    printf("%-34s %10.2f ms median, %.2f ms worst\n", "key to LCD under load", median(answers),
           *std::max_element(answers.begin(), answers.end()));
    printf("%-34s %10.1f MB more\n", "memory after it", procfs::memoryMb(id) - memory);
}
} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    Panel panel;
    measureStart(panel);
    measureIdle(panel);
    measureKeys(panel);
    measureStore(panel);
    measureReports(panel);
    measureLoad(panel);
    return 0;
}
