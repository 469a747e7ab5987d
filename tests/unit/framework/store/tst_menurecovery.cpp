// The store's three files against damage and against death in the middle of a save.

#include "tests/fulldisk.h"
#include "tests/testprogram.h"
#include "tests/unit/rig/storerig.h"

#include <QElapsedTimer>
#include <QRandomGenerator>
#include <functional>
#include <sys/wait.h>
#include <unistd.h>

using namespace VASK;
using namespace storerig;

namespace
{
enum File { CONFIG = 1, BACKUP = 2, FACTORY = 4 };

bool isWhole(const QString &name)
{
    const QByteArray bytes = contents(name);
    return bytes.startsWith("<?xml") && bytes.endsWith("</MenuItemList>\n") &&
           bytes.count("<Items Index=") == g_MenuXmlConfig.size() && !bytes.contains('\xFF') &&
           !bytes.contains('\0') && !bytes.contains("DOCTYPE");
}

using Damage = std::function<QByteArray(QByteArray)>;

QByteArray bytesAt(QByteArray file, int position, const QByteArray &bytes)
{
    return file.replace(position, bytes.size(), bytes);
}

/// Ten entities, each ten times the one before: a gigabyte of text for a parser that takes them.
const QByteArray doctype = [] {
    QByteArray text = "<!DOCTYPE MenuItemList [<!ENTITY a0 \"" + QByteArray(100, 'x') + "\">";
    for (char c = '1'; c <= '7'; ++c)
        text += QByteArray("<!ENTITY a") + c + " \"" + (QByteArray("&a") + char(c - 1) + ";").repeated(10) +
                "\">";
    return text + "]><MenuItemList V";
}();

/// A parser that calls itself for each element, or a tree that is freed so, ends the process.
QByteArray nested(QByteArray file, int depth)
{
    return file.insert(file.lastIndexOf("</Menu"),
                       QByteArray("<a>").repeated(depth) + QByteArray("</a>").repeated(depth));
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
    {"a control character",
     [](QByteArray file) { return bytesAt(file, file.indexOf("ScreenBrightness"), "\x01"); }},
    {"zeros in a name", [](QByteArray file) { return file.replace("Version=", QByteArray("Ver\0ion=", 8)); }},
    {"a wrong tag", [](QByteArray file) { return bytesAt(file, file.lastIndexOf("<Value>"), "<Valve>"); }},
    {"a lost quote", [](QByteArray file) { return bytesAt(file, file.indexOf("\">"), "x"); }},
    // Well-formed, and no store.
    {"another root", [](QByteArray file) { return file.replace("MenuItemList", "MenuPageList"); }},
    {"no items", [](QByteArray file) { return file.replace("Items", "Pages"); }},
    {"numbers that are none", [](QByteArray file) { return file.replace(" Index=\"", " Index=\"x"); }},
    {"a document type", [](QByteArray file) { return file.replace("<MenuItemList V", doctype); }},
    {"elements without end", [](QByteArray file) { return nested(file, 300000); }},
};

/// Saves one value after the other without end, and says which one it is about to save.
[[noreturn]] void saveForEver(Store &store, int pipe, int value)
{
    for (;;) {
        ++value;
        if (write(pipe, &value, sizeof value) != sizeof value)
            _exit(1);
        store.write(MENU_ScreenBrightness, QString::number(value));
    }
}

/// Lets a child save until it is killed, after so many microseconds, by a signal that takes all that it has
/// started along. Gives the value that it began to save last. Without a store the child makes its own, so
/// that its start can be hit as well.
int dieWhileSaving(Store *store, int value, int microseconds)
{
    int pipes[2];
    if (pipe(pipes) != 0)
        return -1;
    if (store)
        store->endSync(); // its thread would be missing in the child
    const pid_t child = fork();
    if (child == 0) {
        setpgid(0, 0);
        close(pipes[0]);
        if (!store)
            store = new Store;
        saveForEver(*store, pipes[1], value);
    }
    setpgid(child, child);
    close(pipes[1]);
    int begun = value;
    // A loaded machine may take long until the first save begins.
    if (store && read(pipes[0], &begun, sizeof begun) != sizeof begun)
        begun = value;
    usleep(useconds_t(microseconds));
    kill(-child, SIGKILL);
    waitpid(child, nullptr, 0);
    while (read(pipes[0], &begun, sizeof begun) == sizeof begun)
        ;
    close(pipes[0]);
    return begun;
}
} // namespace

class TestMenuRecovery : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
        m_state = freshState();
        Store().write(MENU_ScreenBrightness, "37");
        for (const QString &name : names)
            m_files << contents(name);
    }

    void init()
    {
        m_state = freshState();
        for (int file = 0; file < names.size(); ++file)
            write(names[file], m_files[file]);
    }

    void damage_data()
    {
        addColumns<int, int>({"damage", "files"});
        // Every damage in each of the files, and one of them in all combinations.
        for (int damage = 0; damage < damages.size(); ++damage)
            for (int files = CONFIG; files < (CONFIG | BACKUP | FACTORY); ++files)
                if (damage == 0 || files == CONFIG || files == (BACKUP | FACTORY))
                    QTest::addRow("%s, files %d", damages[damage].first, files) << damage << files;
    }
    void damage()
    {
        const auto [damage, files] = fetched<int, int>({"damage", "files"});
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
        Store store;
        QCOMPARE(store.value(), expected);
        store.slot_updateXml(); // the factory copy has time until here
        for (const QString &name : names)
            QVERIFY2(isWhole(name), qPrintable(name));
        QCOMPARE(contents("config_backup.xml"), contents("config.xml"));
        QVERIFY(contents("config_factory.xml").contains("<Value>60</Value>"));
    }

    void allThreeGone()
    {
        for (const QString &name : names)
            write(name, "<MenuItemList>");
        Store store;
        QCOMPARE(store.value(), QString("60"));
        for (const QString &name : names)
            QVERIFY2(isWhole(name), qPrintable(name));
    }

    /// A file that lacks what the other has, or has it twice, is nothing that a save has written.
    void aStoreThatIsNotAsItWasSaved_data()
    {
        const DataRows<QByteArray, QString> row{"how", "found"};
        row("an item is gone", "gone", "37");
        row("an item stands there twice", "twice", "38");
        row("an item stands in another", "inside", "38");
    }
    void aStoreThatIsNotAsItWasSaved()
    {
        QFETCH(QByteArray, how);
        const QByteArray &whole = m_files.first();
        QByteArray file = whole;
        const QByteArray second = "<Items Index=\"1\"><Value>38</Value></Items>";
        if (how == "gone")
            file = withoutItem(whole, MENU_ScreenBrightness);
        else if (how == "twice")
            file.insert(file.lastIndexOf("</Menu"), second);
        else
            file = withoutItem(whole, MENU_ScreenBrightness).replace("<Odd/>", second);
        if (how == "inside")
            file.insert(file.indexOf("</Items>"), second);
        write("config.xml", file);
        QFETCH(QString, found);
        Store store;
        QCOMPARE(store.value(), found);
        QCOMPARE(contents("config_backup.xml"), whole);
        // The first save makes it one store again, and a change goes to the one that is loaded.
        store.slot_updateXml();
        QVERIFY(isWhole("config.xml"));
        QCOMPARE(valueAfterRestart(), found);
        store.write(MENU_ScreenBrightness, "39");
        QVERIFY(isWhole("config.xml"));
        QCOMPARE(valueAfterRestart(), QString("39"));
    }

    /// Nothing can be written at the start or in a save, and what is whole stays so; then there is room
    /// again.
    void aFullDisk_data()
    {
        const DataRows<int, QString> row{"damaged", "expected"};
        row("config.xml", CONFIG, "37");
        row("the backup", BACKUP, "37");
        row("config.xml and the backup", (CONFIG | BACKUP), "60");
        row("no file", 0, "37");
    }
    void aFullDisk()
    {
        const auto [damaged, expected] = fetched<int, QString>({"damaged", "expected"});
        for (int file = 0; file < names.size(); ++file)
            if (damaged & 1 << file)
                write(names[file], contents(names[file]).left(5000));
        auto full = std::make_unique<FullDisk>(4096);
        Store store;
        QCOMPARE(store.value(), expected);
        if (damaged)
            QCOMPARE(valueAfterRestart(), expected);
        store.write(MENU_ScreenBrightness, "38");
        QVERIFY(valueAfterRestart() == expected);
        for (int file = 0; file < names.size(); ++file)
            QVERIFY2(damaged & 1 << file || isWhole(names[file]), qPrintable(names[file]));
        full.reset();
        store.slot_updateXml(); // nobody has changed anything: the save is repeated
        store.endSync();
        for (const QString &name : names)
            QVERIFY2(isWhole(name), qPrintable(name));
        QCOMPARE(contents("config_backup.xml"), contents("config.xml"));
        QCOMPARE(valueAfterRestart(), QString("38"));
    }

    void aBackupThatIsOneSaveBehindIsCaughtUp()
    {
        write("config_backup.xml", contents("config_factory.xml"));
        Store store;
        QCOMPARE(store.value(), QString("37"));
        QCOMPARE(contents("config_backup.xml"), contents("config.xml"));
    }

    void aLostBackupIsMadeByTheNextSave()
    {
        Store store;
        QVERIFY(QFile::remove(path("config_backup.xml")));
        store.write(MENU_ScreenBrightness, "38");
        QVERIFY(isWhole("config_backup.xml"));
        QCOMPARE(contents("config_backup.xml"), contents("config.xml"));
    }

    void killedAtAnyMoment()
    {
        constexpr int rounds = 100;
        constexpr int startEvery = 8; // every so many rounds the child's start is hit, too
        int value = 1000;
        QElapsedTimer clock;
        clock.start();
        auto store = std::make_unique<Store>();
        store->write(MENU_ScreenBrightness, QString::number(value));
        const int startTime = int(clock.nsecsElapsed() / 1000);
        int span = startTime; // of the kills after a save has begun; grows until some saves come to their end
        QRandomGenerator random(20200229);
        for (int round = 0; round < rounds; ++round) {
            const bool hitStart = round % startEvery == 0;
            const int begun = dieWhileSaving(hitStart ? nullptr : store.get(), value,
                                             random.bounded(hitStart ? startTime * 2 : span));
            store = std::make_unique<Store>();
            const int found = store->value().toInt();
            QVERIFY2(found == begun || (begun > value && found == begun - 1),
                     qPrintable(QString("at %1, saving %2, found %3").arg(value).arg(begun).arg(found)));
            if (!hitStart)
                span = found > value ? qMax(span * 7 / 8, 1000) : span * 5 / 4;
            value = found;
        }
        QVERIFY(value > 1000 + rounds / 10); // else the kills have missed the saves
    }

private:
    std::unique_ptr<QTemporaryDir> m_state;
    QList<QByteArray> m_files; ///< as each case finds them
};

FPD_TEST(TestMenuRecovery)
#include "tst_menurecovery.moc"
