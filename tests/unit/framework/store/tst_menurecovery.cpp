// The store's three files against damage and against death in the middle of a save.

#include "boardio.h"
#include "framework/store/menuanalysis.h"
#include "menu/itemindex.h"
#include "menu/objectindex.h"
#include "tests/testprogram.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QtTest>
#include <csignal>
#include <functional>
#include <memory>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace VASK;

namespace
{
const QStringList names{"config.xml", "config_backup.xml", "config_factory.xml"};
enum File { CONFIG = 1, BACKUP = 2, FACTORY = 4 };

QString path(const QString &name)
{
    return board::filePath("/usr/vask/etc/fpd/config/" + name);
}

QByteArray contents(const QString &name)
{
    QFile file(path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool isWhole(const QString &name)
{
    const QByteArray bytes = contents(name);
    return bytes.startsWith("<?xml") && bytes.endsWith("</MenuItemList>\n") &&
           bytes.count("<Items Index=") == 408 && !bytes.contains('\xFF') && !bytes.contains('\0');
}

QString valueOf(const MenuAnalysis &store)
{
    QString value;
    store.GetItemCurValue(MENU_ScreenBrightness, value);
    return value;
}

using Damage = std::function<QByteArray(QByteArray)>;

QByteArray bytesAt(QByteArray file, int position, const QByteArray &bytes)
{
    return file.replace(position, bytes.size(), bytes);
}

const QList<QPair<const char *, Damage>> damages{
    {"removed", nullptr},
    {"empty", [](QByteArray) { return QByteArray(); }},
    {"cut in the head", [](QByteArray file) { return file.left(20); }},
    {"cut in the middle", [](QByteArray file) { return file.left(file.size() / 2); }},
    {"cut before the last tag",
     [](QByteArray file) { return file.left(file.lastIndexOf("</MenuItemList")); }},
    {"cut in the last tag", [](QByteArray file) { return file.left(file.size() - 3); }},
    {"cut and zeros", [](QByteArray file) { return file.left(5000) + QByteArray(file.size() - 5000, '\0'); }},
    {"garbage", [](QByteArray file) { return QByteArray(file.size(), '\xA5'); }},
    {"text that is no xml", [](QByteArray) { return QByteArray("hello\n"); }},
    {"garbage behind it", [](QByteArray file) { return file + "\x01\x02garbage"; }},
    {"half of it twice", [](QByteArray file) { return file + file.mid(file.size() / 2); }},
    {"zeros in a text",
     [](QByteArray file) { return bytesAt(file, file.indexOf("ScreenBrightness"), QByteArray(4, '\0')); }},
    {"no utf-8", [](QByteArray file) { return bytesAt(file, file.indexOf("ScreenBrightness"), "\xFF"); }},
    {"half a character", [](QByteArray file) { return bytesAt(file, file.indexOf("锁屏"), "x"); }},
    {"a wrong tag", [](QByteArray file) { return bytesAt(file, file.lastIndexOf("<Value>"), "<Valve>"); }},
    {"a lost quote", [](QByteArray file) { return bytesAt(file, file.indexOf("\">"), "x"); }},
};

/// Saves one value after the other without end, and says which one it is about to save.
[[noreturn]] void saveForEver(MenuAnalysis &store, int pipe, int value)
{
    for (;;) {
        ++value;
        if (write(pipe, &value, sizeof value) != sizeof value)
            _exit(1);
        store.UpdataItemCurValue(MENU_ScreenBrightness, QString::number(value));
        store.slot_updateXml();
    }
}

/// Lets a child save until it dies, of its own preparation or, after so many microseconds, by a signal that
/// takes all that it has started along. Gives the value that it began to save last. Without a store the child
/// makes its own, so that its start can be hit as well.
int dieWhileSaving(MenuAnalysis *store, int value, const std::function<void()> &prepare, int microseconds)
{
    int pipes[2];
    if (pipe(pipes) != 0)
        return -1;
    if (store)
        store->endSync(); // its thread would be missing in the child
    const pid_t child = fork();
    if (child == 0) {
        setpgid(0, 0);
        alarm(20); // a death that fails to come must not hold up the test
        close(pipes[0]);
        prepare();
        if (!store) {
            store = new MenuAnalysis(ENUM_MENUANALYSIS);
            store->initlize();
        }
        saveForEver(*store, pipes[1], value);
    }
    setpgid(child, child);
    close(pipes[1]);
    int begun = value;
    if (microseconds >= 0) {
        // A loaded machine may take long until the first save begins.
        if (store && read(pipes[0], &begun, sizeof begun) != sizeof begun)
            begun = value;
        usleep(useconds_t(microseconds));
        kill(-child, SIGKILL);
    }
    waitpid(child, nullptr, 0);
    while (read(pipes[0], &begun, sizeof begun) == sizeof begun)
        ;
    close(pipes[0]);
    return begun;
}

/// Death with exactly so many bytes of config.xml written.
void dieAfterBytes(int bytes)
{
    const rlimit limit{rlim_t(bytes), rlim_t(bytes)};
    setrlimit(RLIMIT_FSIZE, &limit);
    const rlimit noCore{0, 0};
    setrlimit(RLIMIT_CORE, &noCore);
    signal(SIGXFSZ, SIG_DFL); // whoever started the test may have it ignored
}

/// Puts a tool in front of the machine's own.
void setTool(const QString &name, const QString &script)
{
    // A place in memory may forbid programs: the tools lie elsewhere.
    static const QTemporaryDir tools;
    QFile::link(tools.path(), board::filePath("/bin"));
    QFile tool(tools.filePath(name));
    QVERIFY(tool.open(QIODevice::WriteOnly | QIODevice::Truncate));
    tool.write("#!/bin/sh\n" + script.toUtf8() + "\n");
    tool.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

void removeTools()
{
    QFile::remove(board::filePath("/bin/cp"));
    QFile::remove(board::filePath("/bin/sync"));
    QFile::remove(board::filePath("/bin"));
}

/// Where a save, or the start after it, dies.
struct Death {
    enum Place { IN_FILE, IN_COPY, AFTER_COPY, IN_SYNC } place;
    int bytes;
};

/// Arms the death and returns what the child has to do for it.
std::function<void()> arm(const Death &death)
{
    removeTools();
    const QString die = "kill -9 0";
    if (death.place == Death::IN_FILE)
        return [death] { dieAfterBytes(death.bytes); };
    if (death.place == Death::IN_COPY)
        setTool("cp", QString("head -c %1 \"$1\" > \"$2\"; ").arg(death.bytes) + die);
    if (death.place == Death::AFTER_COPY)
        setTool("cp", "cat \"$1\" > \"$2\"; " + die);
    if (death.place == Death::IN_SYNC)
        setTool("sync", die);
    return [] {};
}
} // namespace

class TestMenuRecovery : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    }

    void init()
    {
        // In memory where there is such a place: every save ends in a "sync".
        m_state.reset(new QTemporaryDir(QFileInfo("/dev/shm").isWritable()
                                            ? "/dev/shm/fpdrecovery-XXXXXX"
                                            : QDir::tempPath() + "/fpdrecovery-XXXXXX"));
        qputenv("FPD_STATE", m_state->path().toUtf8());
        QVERIFY(QDir().mkpath(path("")));
    }

    void damage_data()
    {
        QTest::addColumn<int>("damage");
        QTest::addColumn<int>("files");
        for (int damage = 0; damage < damages.size(); ++damage)
            for (int files = CONFIG; files < (CONFIG | BACKUP | FACTORY); ++files)
                QTest::addRow("%s, files %d", damages[damage].first, files) << damage << files;
    }

    void damage()
    {
        QFETCH(int, damage);
        QFETCH(int, files);
        {
            MenuAnalysis store(ENUM_MENUANALYSIS);
            store.initlize();
            store.UpdataItemCurValue(MENU_ScreenBrightness, "37");
            store.slot_updateXml();
        }
        for (int file = 0; file < names.size(); ++file) {
            if (!(files & 1 << file))
                continue;
            const QByteArray before = contents(names[file]);
            QFile target(path(names[file]));
            if (!damages[damage].second) {
                QVERIFY(target.remove());
                continue;
            }
            const QByteArray after = damages[damage].second(before);
            QVERIFY(after != before);
            QVERIFY(target.open(QIODevice::WriteOnly | QIODevice::Truncate));
            target.write(after);
        }
        // Only the factory copy is left when both others are gone.
        const QString expected = (files & (CONFIG | BACKUP)) == (CONFIG | BACKUP) ? "60" : "37";
        MenuAnalysis store(ENUM_MENUANALYSIS);
        QVERIFY(store.initlize());
        QCOMPARE(valueOf(store), expected);
        for (const QString &name : names)
            QVERIFY2(isWhole(name), qPrintable(name));
        QCOMPARE(contents("config_backup.xml"), contents("config.xml"));
        QVERIFY(contents("config_factory.xml").contains("<Value>60</Value>"));
    }

    void allThreeGone()
    {
        MenuAnalysis(ENUM_MENUANALYSIS).initlize();
        for (const QString &name : names) {
            QFile file(path(name));
            QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
            file.write("<MenuItemList>");
        }
        MenuAnalysis store(ENUM_MENUANALYSIS);
        store.initlize();
        QCOMPARE(valueOf(store), QString("60"));
        for (const QString &name : names)
            QVERIFY2(isWhole(name), qPrintable(name));
    }

    void aBackupThatIsOneSaveBehindIsCaughtUp()
    {
        {
            MenuAnalysis store(ENUM_MENUANALYSIS);
            store.initlize();
            store.UpdataItemCurValue(MENU_ScreenBrightness, "37");
            store.slot_updateXml();
            QVERIFY(QFile::remove(path("config_backup.xml")));
            QVERIFY(QFile::copy(path("config_factory.xml"), path("config_backup.xml")));
        }
        MenuAnalysis store(ENUM_MENUANALYSIS);
        store.initlize();
        QCOMPARE(valueOf(store), QString("37"));
        QCOMPARE(contents("config_backup.xml"), contents("config.xml"));
    }

    void aLostBackupIsMadeBeforeTheFileIsTouched()
    {
        MenuAnalysis store(ENUM_MENUANALYSIS);
        store.initlize();
        QVERIFY(QFile::remove(path("config_backup.xml")));
        store.UpdataItemCurValue(MENU_ScreenBrightness, "38");
        store.slot_updateXml();
        QVERIFY(isWhole("config_backup.xml"));
        QCOMPARE(contents("config_backup.xml"), contents("config.xml"));
    }

    void deathAtEveryStageOfASave()
    {
        auto store = startedStore("1000");
        const int size = contents("config.xml").size();
        QList<Death> deaths;
        for (int i = 0; i <= 24; ++i)
            deaths << Death{Death::IN_FILE, size * i / 25} << Death{Death::IN_COPY, size * i / 25};
        deaths << Death{Death::IN_FILE, size - 2} << Death{Death::IN_COPY, size - 2}
               << Death{Death::AFTER_COPY, 0} << Death{Death::IN_SYNC, 0};
        int value = 1000;
        for (const Death &death : qAsConst(deaths)) {
            const int begun = dieWhileSaving(store.get(), value, arm(death), -1);
            removeTools();
            // The next save may have begun, but it does not touch the file while the disk is waited for.
            const int latest = value + (death.place == Death::IN_SYNC ? 2 : 1);
            QVERIFY2(
                begun > value && begun <= latest,
                qPrintable(QString("place %1, byte %2 of %3").arg(death.place).arg(death.bytes).arg(size)));
            QCOMPARE(isWhole("config.xml"), death.place != Death::IN_FILE);
            QCOMPARE(isWhole("config_backup.xml"), death.place != Death::IN_COPY);
            store = std::make_unique<MenuAnalysis>(ENUM_MENUANALYSIS);
            QVERIFY(store->initlize());
            QCOMPARE(valueOf(*store).toInt(), death.place == Death::IN_FILE ? value : value + 1);
            value = valueOf(*store).toInt();
        }
    }

    void deathInTheRepairAfterADeath()
    {
        auto store = startedStore("1000");
        const int size = contents("config.xml").size();
        int value = 1000;
        for (Death::Place first : {Death::IN_FILE, Death::IN_COPY, Death::AFTER_COPY})
            for (int i = 0; i < 4; ++i) {
                const int begun = dieWhileSaving(store.get(), value, arm({first, size / 2}), -1);
                for (Death::Place second : {Death::IN_COPY, Death::AFTER_COPY, Death::IN_SYNC})
                    dieWhileSaving(nullptr, value, arm({second, size * i / 4}), 200000);
                removeTools();
                store = std::make_unique<MenuAnalysis>(ENUM_MENUANALYSIS);
                store->initlize();
                const int found = valueOf(*store).toInt();
                QVERIFY2(found >= value && found <= begun + 3, qPrintable(QString::number(found)));
                value = found;
            }
    }

    void killedAtAnyMoment()
    {
        constexpr int rounds = 100;
        constexpr int startEvery = 8; // every so many rounds the child's start is hit, too
        int value = 1000;
        QElapsedTimer clock;
        clock.start();
        auto store = startedStore(QString::number(value));
        const int startTime = int(clock.nsecsElapsed() / 1000);
        int span = startTime; // of the kills after a save has begun; grows until some saves come to their end
        QRandomGenerator random(20200229);
        for (int round = 0; round < rounds; ++round) {
            const bool hitStart = round % startEvery == 0;
            const int begun = dieWhileSaving(
                hitStart ? nullptr : store.get(), value, [] {},
                random.bounded(hitStart ? startTime * 2 : span));
            store = std::make_unique<MenuAnalysis>(ENUM_MENUANALYSIS);
            QVERIFY(store->initlize());
            const int found = valueOf(*store).toInt();
            QVERIFY2(found == begun || (begun > value && found == begun - 1),
                     qPrintable(QString("at %1, saving %2, found %3").arg(value).arg(begun).arg(found)));
            if (!hitStart)
                span = found > value ? qMax(span * 7 / 8, 1000) : span * 5 / 4;
            value = found;
        }
        QVERIFY(value > 1000 + rounds / 10); // else the kills have missed the saves
    }

private:
    static std::unique_ptr<MenuAnalysis> startedStore(const QString &value)
    {
        auto store = std::make_unique<MenuAnalysis>(ENUM_MENUANALYSIS);
        store->initlize();
        store->UpdataItemCurValue(MENU_ScreenBrightness, value);
        store->slot_updateXml();
        return store;
    }

    QScopedPointer<QTemporaryDir> m_state;
};

FPD_TEST(TestMenuRecovery)

#include "tst_menurecovery.moc"
