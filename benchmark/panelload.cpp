// What the whole panel costs, measured from outside with the floor beside each number. One line a question:
// name, measured, floor, ratio.
#include "benchmark/flood.h"
#include "benchmark/tickspy.h"
#include "client/hexvalue.h"
#include "client/loglines.h"
#include "client/menuwalk.h"
#include "client/procfs.h"
#include "fpd_hostlink.h"
#include "framework/protocol/packet/packageframe.h"
#include "framework/protocol/packet/packagerequestproto3rd.h"
#include "framework/thread/ctimer.h"
#include "menu/itemindex.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QRandomGenerator>
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

struct Cost {
    double cpuMs;
    double memoryMb;
    double privateMb;
};

/// What a bare label takes; its CPU as wait4 tells it.
Cost bareLabel(const Panel &panel)
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
    const QList<QByteArray> memory = process.readAllStandardOutput().trimmed().split(' ');
    return {ms(after) - ms(before), memory.value(0).toDouble(), memory.value(1).toDouble()};
}

/// Key words of one step of the knob.
constexpr const char *left = "0120", *right = "0121";

/// What a region of the LCD holds.
QByteArray regionOf(const uchar *memory, const QRect &region)
{
    constexpr int bytesPerPixel = 4;
    QByteArray pixels;
    for (int y = region.top(); y <= region.bottom(); ++y)
        pixels.append(reinterpret_cast<const char *>(memory) +
                          (y * hostlink::lcdWidth + region.left()) * bytesPerPixel,
                      region.width() * bytesPerPixel);
    return pixels;
}

constexpr QRect wholeLcd(0, 0, hostlink::lcdWidth, hostlink::lcdHeight);
/// Of a page: its title, and of its first row the icon, which only the cursor changes.
constexpr QRect pageTitle(0, 0, 200, 24), firstIcon(0, 26, 30, 30);

/// From the key word, as the emulator hands it out, until that region of the LCD is another, in ms; negative
/// if it stays. One word is measured: the press of a key or its release.
double lcdAnswerMs(Panel &panel, const QStringList &words, const QRect &region)
{
    constexpr qint64 patienceNs = 2000000000;
    QFile lcd(panel.statePath() + hostlink::lcdFile);
    if (!lcd.open(QIODevice::ReadOnly))
        return -1;
    const uchar *memory = lcd.map(0, hostlink::lcdFileSize);
    const QByteArray before = regionOf(memory, region);
    panel.ask(words);
    const qint64 sentNs = panel.ask({"sent"}).lines.value(0).toLongLong();
    while (regionOf(memory, region) == before) {
        if (nowNs() - sentNs > patienceNs)
            return -1;
        QThread::usleep(50);
    }
    return double(nowNs() - sentNs) / 1e6;
}

/// Pauses that have nothing to do with the panel's own beats.
class RandomMoments
{
public:
    /// Up to so many ms more than at least.
    void wait(int atLeastMs, int moreMs)
    {
        QThread::usleep(static_cast<unsigned long>(atLeastMs * 1000 + m_random.bounded(moreMs * 1000)));
    }

private:
    QRandomGenerator m_random{20261125};
};

void printWaits(const char *what, QVector<double> waits)
{
    constexpr double noticeableMs = 50;
    std::sort(waits.begin(), waits.end());
    const auto noticeable = waits.end() - std::upper_bound(waits.begin(), waits.end(), noticeableMs);
    printf("%-34s %10.2f ms median, %.2f ms worst of %d, %d above %.0f, %d without\n", what, median(waits),
           waits.last(), waits.size(), int(noticeable), noticeableMs,
           int(std::count_if(waits.begin(), waits.end(), [](double wait) { return wait < 0; })));
}

void openMenuAtTheTop(Panel &panel, MenuWalk &walk)
{
    constexpr int moreThanRows = 16;
    walk.openMenu();
    panel.turn(Left, moreThanRows);
    panel.settle();
}

/// The middle of some starts; the last one stays up.
void measureStart(Panel &panel)
{
    constexpr int starts = 5;
    QVector<double> wall, cpu, memory, own, floorCpu, floorMemory, floorOwn;
    panel.powerDevice();
    panel.ask({"flag", "delay", "0"}); // the device answers at once
    for (int i = 0; i < starts; ++i) {
        panel.ask({"panel", "stop"});
        QElapsedTimer passed;
        passed.start();
        panel.start();
        wall << double(passed.elapsed());
        panel.ask({"wait", "ready"});
        const int id = procfs::panelOf(panel.statePath());
        cpu << procfs::cpuMs(id);
        memory << procfs::memoryMb(id);
        own << procfs::privateMb(id);
        const Cost floor = bareLabel(panel);
        floorCpu << floor.cpuMs;
        floorMemory << floor.memoryMb;
        floorOwn << floor.privateMb;
    }
    print("start-up, CPU", median(cpu), median(floorCpu), "ms");
    printf("%-34s %10.0f ms\n", "start-up, wall, to the home screen", median(wall));
    print("memory at the home screen", median(memory), median(floorMemory), "MB");
    print("of it the panel's own", median(own), median(floorOwn), "MB");
}

constexpr int idleSeconds = 30;

/// Share of a core in per cent that something took in a time of idling.
double share(double ms)
{
    return ms / idleSeconds / 10;
}

/// One line a thread, each with its floor: nothing would be least.
void measureThreads(int id)
{
    const QMap<QString, double> before = procfs::threadsMs(id);
    const QMap<QString, double> wakesBefore = procfs::wakes(id);
    QThread::sleep(idleSeconds);
    const QMap<QString, double> after = procfs::threadsMs(id), wakesAfter = procfs::wakes(id);
    double sum = 0;
    for (auto thread = after.begin(); thread != after.end(); ++thread)
        sum += thread.value() - before.value(thread.key());
    printf("%-34s %10.3f %% of a core, of which\n", "idle on the home screen", share(sum));
    for (auto thread = after.begin(); thread != after.end(); ++thread)
        printf("    thread %-23s %10.3f %%  %6.1f wakes/s\n", qPrintable(thread.key()),
               share(thread.value() - before.value(thread.key())),
               (wakesAfter.value(thread.key()) - wakesBefore.value(thread.key())) / idleSeconds);
}

/// The timer thread with nothing to fire, in this process.
double emptyTimerMs()
{
    CTimer timer;
    timer.Initialize();
    const auto timerMs = [] {
        double sum = 0;
        const QMap<QString, double> threads = procfs::threadsMs(int(getpid()));
        for (auto thread = threads.begin(); thread != threads.end(); ++thread)
            if (thread.key().startsWith("timer "))
                sum += thread.value();
        return sum;
    };
    constexpr int seconds = 10;
    QThread::msleep(100); // it has its name by then
    const double before = timerMs();
    QThread::sleep(seconds);
    const double spent = timerMs() - before;
    timer.UnInitialize();
    return spent * idleSeconds / seconds;
}

/// What each ticker's work costs by itself, in a panel with a spy inside.
void measureTickers()
{
    Panel panel;
    qputenv("LD_PRELOAD", (QCoreApplication::applicationDirPath() + "/../benchmark/libtickspy.so").toUtf8());
    panel.startReady();
    qunsetenv("LD_PRELOAD");
    panel.settle();
    QThread::sleep(3); // the reports of the start are read and their changes saved
    QFile file(panel.statePath() + tickspy::file);
    const auto read = [&file] {
        QVector<tickspy::Ticker> tickers(tickspy::mostTickers);
        if (file.isOpen() || file.open(QIODevice::ReadOnly)) {
            file.seek(0);
            file.read(reinterpret_cast<char *>(tickers.data()),
                      qint64(sizeof(tickspy::Ticker)) * tickers.size());
        }
        return tickers;
    };
    const QVector<tickspy::Ticker> before = read();
    QThread::sleep(idleSeconds);
    const QVector<tickspy::Ticker> after = read();
    for (int i = 0; i < after.size() && after[i].ticks > 0; ++i) {
        const double ticks = double(after[i].ticks - before[i].ticks);
        const double ms = double(after[i].cpuNs - before[i].cpuNs) / 1e6;
        printf("    work of %-22s %10.4f %%  %6.1f ticks/s  %8.2f us a tick\n", after[i].name, share(ms),
               ticks / idleSeconds, ticks > 0 ? ms * 1000 / ticks : 0);
    }
    constexpr double timerTicks = 100 * idleSeconds;
    const double ms = emptyTimerMs();
    printf("    work of %-22s %10.4f %%  %6.1f ticks/s  %8.2f us a tick, with the sleep\n",
           "timer, nothing armed", share(ms), timerTicks / idleSeconds, ms * 1000 / timerTicks);
}

void measureIdle(Panel &panel)
{
    QThread::sleep(3);
    measureThreads(procfs::panelOf(panel.statePath()));
    measureTickers();
}

void measureKeys(Panel &panel)
{
    constexpr int keyCount = 2000, frameCount = 40;
    constexpr int pauseMs = 50;
    MenuWalk walk(panel);
    RandomMoments moments;
    openMenuAtTheTop(panel, walk);
    QVector<double> cursor, value, frame;
    const auto step = [&](QVector<double> &waits, const QRect &region) {
        moments.wait(0, pauseMs);
        waits << lcdAnswerMs(panel, {"word", waits.size() % 2 ? left : right}, region);
    };
    while (cursor.size() < keyCount)
        step(cursor, firstIcon);
    walk.home();
    walk.go({MENU_AdvancedSetting, MENU_Audio, MENU_Audio_Volume});
    while (value.size() < keyCount)
        step(value, wholeLcd);
    for (int i = 0; i < frameCount; ++i) {
        moments.wait(400, pauseMs); // past the hold-back of the step before
        panel.ask({"writes", "--clear"});
        const qint64 start = nowNs();
        panel.ask({"word", i % 2 ? left : right});
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
    printWaits("key to LCD, cursor", cursor);
    printWaits("key to LCD, value", value);
    constexpr double tickMs = 10; // the send ticker's period: half of it on average
    print("key to frame on the bus, median", median(frame), tickMs / 2, "ms");
    walk.home();
}

/// From the release of OK until the last change of the LCD that follows.
double pageMs(Panel &panel)
{
    QFile lcd(panel.statePath() + hostlink::lcdFile);
    if (!lcd.open(QIODevice::ReadOnly))
        return -1;
    const uchar *memory = lcd.map(0, hostlink::lcdFileSize);
    panel.ask({"key", keys::Ok, "press"});
    QThread::msleep(30);
    panel.ask({"key", keys::Ok, "release"});
    const qint64 sentNs = panel.ask({"sent"}).lines.value(0).toLongLong();
    panel.settle();
    constexpr int changesAt = 8; // behind the counter of the changes: the time of the last
    qint64 lastNs = 0;
    memcpy(&lastNs, memory + hostlink::lcdBytes + changesAt, sizeof lastNs);
    return double(lastNs - sentNs) / 1e6;
}

/// The pages of the main menu, each for the first time since the start, and again.
void measurePages(Panel &panel)
{
    constexpr int pages = 9; // below the brightness
    constexpr int rounds = 4;
    panel.ask({"panel", "stop"});
    panel.start();
    panel.ask({"wait", "settled"});
    MenuWalk walk(panel);
    openMenuAtTheTop(panel, walk);
    QVector<double> first, again;
    for (int round = 0; round < rounds; ++round) {
        for (int page = 0; page < pages; ++page) {
            panel.turn(Right);
            panel.settle();
            (round == 0 ? first : again) << pageMs(panel);
            panel.press(keys::Esc);
            panel.settle();
        }
        panel.turn(Left, pages);
        panel.settle();
    }
    printWaits("a page opened for the first time", first);
    printWaits("a page opened again", again);
    walk.home();
}

/// The store writes its file, has it on the disk and copies it: so does the floor.
void measureStore(Panel &panel)
{
    MenuWalk walk(panel);
    walk.go({MENU_AdvancedSetting, MENU_Audio, MENU_Audio_Volume});
    panel.mark();
    walk.turn(Right, 1);
    panel.waitForLog(loglines::storeChanged);
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
        QFile file(panel.statePath() + name);
        file.open(QIODevice::WriteOnly);
        file.write(bytes);
        file.flush();
        if (name == QByteArray("/one"))
            fsync(file.handle());
    }
    print("store flush", times.first().msecsTo(times.last()), double(plain.nsecsElapsed()) / 1e6, "ms");
}

double parsedPerSecond()
{
    const QByteArray bytes = QByteArray::fromHex("aa55000000fe000000000000000000140100016956");
    QElapsedTimer parsing;
    parsing.start();
    int parsed = 0;
    while (parsing.elapsed() < 500) {
        PackageRequestProto3rd package;
        parsed += package.unPackageReply(bytes);
    }
    return parsed * 1000.0 / double(parsing.elapsed());
}

/// Reports of one register until the panel has read the last of them, which tells the item another value than
/// all before.
void measureBurst(Panel &panel, const char *name, const QList<QStringList> &burst, const QStringList &last,
                  const char *lastRead)
{
    constexpr int count = 20000;
    const int id = procfs::panelOf(panel.statePath());
    const double cpu = procfs::cpuMs(id);
    QFile log(panel.statePath() + "/panel.log");
    if (!log.open(QIODevice::ReadOnly) || !log.seek(log.size()))
        return;
    QElapsedTimer passed;
    passed.start();
    for (int i = 0; i < count / burst.size(); ++i)
        panel.askAll(burst);
    panel.ask(last);
    int read = 0;
    bool ended = false;
    while (!ended && !passed.hasExpired(60000)) {
        for (QByteArray line = log.readLine(); !line.isEmpty(); line = log.readLine()) {
            if (!line.endsWith('\n')) { // the rest of it is still to come
                log.seek(log.pos() - line.size());
                break;
            }
            read += line.startsWith("Proto3rd addr:");
            ended = ended || line.startsWith(lastRead);
        }
        if (QFileInfo(log.fileName()).size() < log.pos()) { // the device has begun another file
            log.close();
            log.open(QIODevice::ReadOnly);
        }
        panel.mark(); // the device drops a reader of the log that lets too much of it wait
        QThread::msleep(2);
    }
    const double seconds = double(passed.elapsed()) / 1000;
    printf("%-34s %10.0f /s, of them read %.0f /s, %.0f us CPU a read one%s\n", name, count / seconds,
           read / seconds, (procfs::cpuMs(id) - cpu) * 1000 / read, ended ? "" : ": no end");
}

void measureReports(Panel &panel)
{
    const double memory = procfs::memoryMb(procfs::panelOf(panel.statePath()));
    QList<QStringList> brightness, records, same;
    for (int i = 0; i < 200; ++i) {
        brightness << QStringList{"push", "02000001", frames::le(i, 1), "--device", "1"};
        same << QStringList{"push", "13010001", "110003800738048813"};
        records << QStringList{"push", "13010001", "11000380073804" + frames::le(16000 + i, 2)};
    }
    measureBurst(panel, "reports of one register, folded", brightness,
                 {"push", "02000001", "ff", "--device", "1"}, "ReportMsgToParaProcess 1 \"100\"");
    measureBurst(panel, "reports of an input, all read", records, {"push", "13010001", "110003800738041a41"},
                 "ReportMsgToParaProcess 3252 \"16666\"");
    measureBurst(panel, "reports that change nothing", same, {"push", "13010001", "110003800738041941"},
                 "ReportMsgToParaProcess 3252 \"16665\"");
    printf("%-34s %10.0f /s\n", "floor: parsing alone", parsedPerSecond());
    printf("%-34s %10.1f MB more\n", "memory after them",
           procfs::memoryMb(procfs::panelOf(panel.statePath())) - memory);
}

/// A minute of reports at the full rate while the knob turns and pages open.
void measureLoad(Panel &panel)
{
    constexpr int seconds = 60, perSecond = 10000, keysPerPage = 20;
    const int id = procfs::panelOf(panel.statePath());
    MenuWalk walk(panel);
    openMenuAtTheTop(panel, walk);
    Flood flood(panel);
    flood.start(perSecond);
    QVector<double> answers, pages;
    QVector<double> memory; // every ten seconds; by the first look all that is made once is there
    QElapsedTimer passed;
    passed.start();
    while (passed.elapsed() < seconds * 1000) {
        answers << lcdAnswerMs(panel, {"word", answers.size() % 2 ? left : right}, firstIcon);
        QThread::msleep(20);
        if (answers.size() % keysPerPage == 0) {
            lcdAnswerMs(panel, {"word", right}, firstIcon); // the second row opens a page
            panel.ask({"key", keys::Ok, "press"});
            QThread::msleep(30);
            pages << lcdAnswerMs(panel, {"key", keys::Ok, "release"}, pageTitle);
            lcdAnswerMs(panel, {"key", keys::Esc}, pageTitle);
            QThread::msleep(100); // the title is drawn before the rows
            lcdAnswerMs(panel, {"word", left}, firstIcon);
        }
        flood.readLog();
        if (passed.elapsed() >= 10000 * (memory.size() + 1))
            memory << procfs::memoryMb(id);
    }
    if (!flood.stop())
        puts("    the panel did not come to the end of it");
    printf("%-34s %10.0f /s for a minute, %d of %d read apart, others folded\n", "reports under load",
           flood.perSecond(), flood.handled(), flood.pushed());
    printf("%-34s %10s\n", "lost of them", flood.lost().isEmpty() ? "nothing" : qPrintable(flood.lost()));
    printWaits("key to LCD under load", answers);
    printWaits("OK to an open page under load", pages);
    printf("%-34s", "memory, every ten seconds");
    for (double megabytes : qAsConst(memory))
        printf(" %10.1f", megabytes);
    puts(" MB");
}

struct Measurement {
    const char *name;
    void (*measure)(Panel &panel);
};

constexpr Measurement measurements[] = {
    {"idle", measureIdle},   {"keys", measureKeys},       {"pages", measurePages},
    {"store", measureStore}, {"reports", measureReports}, {"load", measureLoad},
};
} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    Panel panel;
    const QStringList only = application.arguments().mid(1);
    measureStart(panel);
    for (const Measurement &row : measurements)
        if (only.isEmpty() || only.contains(row.name))
            row.measure(panel);
    return 0;
}
