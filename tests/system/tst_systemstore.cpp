// The store's three files, damaged in every way that a power cut or a worn flash can think of: the next start
// repairs them and keeps the values while one of them is whole.
#include "client/procfs.h"
#include "fpd_hostlink.h"
#include "tests/system/systemtest.h"
#include "tests/testprogram.h"

#include <QFile>
#include <sys/resource.h>

namespace
{
constexpr int brightnessItem = 1;
const QString ownValue = "77";
const QStringList allFiles{"config", "config_backup", "config_factory"};

QByteArray damaged(const QByteArray &whole, const QString &how)
{
    if (how == "empty")
        return QByteArray();
    if (how == "cut")
        return whole.left(whole.size() / 2);
    if (how == "garbage")
        return QByteArray(5000, char(0x9c));
    QByteArray bytes = whole;
    return bytes.replace(bytes.size() / 2, 64, QByteArray(64, char(0xff))); // wrong bytes
}
} // namespace

class TestSystemStore : public SystemTest
{
    Q_OBJECT
protected:
    void begin() override
    {
        QVERIFY(m_panel.powerDevice());
        QVERIFY(m_panel.ask({"flag", "delay", "0"}).ok);
        QVERIFY(m_panel.start());
        QVERIFY(m_panel.ask({"panel", "stop"}).ok);
        m_whole = read("config");
        const QByteArray value = "<Value>" + m_panel.stored(brightnessItem).toUtf8() + "</Value>";
        QVERIFY(m_whole.contains(value));
        m_whole.replace(m_whole.indexOf(value), value.size(), "<Value>" + ownValue.toUtf8() + "</Value>");
    }

    /// Whatever the panel still writes does not meet the next case's files.
    void leave() override { m_panel.ask({"panel", "stop"}); }

private slots:
    void damagedFilesAreRepaired_data()
    {
        const DataRows<QStringList, QString> row{"files", "how"};
        const QList<QStringList> sets = {{"config"},
                                         {"config_backup"},
                                         {"config_factory"},
                                         {"config", "config_backup"},
                                         {"config", "config_factory"},
                                         {"config_backup", "config_factory"}};
        for (const QStringList &files : sets) {
            for (const char *how : {"wrong bytes", "empty", "cut", "garbage", "missing"})
                if (files == sets.first() || how == QString("wrong bytes"))
                    row(files.join("+") + " " + how, files, QString(how));
        }
    }
    void damagedFilesAreRepaired()
    {
        const auto [files, how] = fetched<QStringList, QString>({"files", "how"});
        for (const QString &name : allFiles)
            write(name, m_whole);
        for (const QString &name : files) {
            if (how == "missing")
                QFile::remove(file(name));
            else
                write(name, damaged(m_whole, how));
        }
        QVERIFY(m_panel.start());
        QCOMPARE(m_panel.stored(brightnessItem), ownValue);
    }

    void noWholeFileGivesTheDefaults()
    {
        for (const QString &name : allFiles)
            write(name, damaged(m_whole, "wrong bytes"));
        QVERIFY(m_panel.start());
        QCOMPARE(m_panel.stored(brightnessItem), QString("60"));
    }

    /// The disk is full for a while. The panel goes on, and keeps what was set as soon as there is room.
    void aFileSizeLimitEndsNothing()
    {
        for (const QString &name : allFiles)
            write(name, m_whole);
        QVERIFY(m_panel.start() && m_panel.ask({"wait", "ready"}).ok);
        const pid_t process = procfs::panelOf(m_panel.statePath());
        QVERIFY(process > 0);
        rlimit before;
        const rlimit full{4096, RLIM_INFINITY};
        m_panel.mark(); // it is told once, maybe of a save that runs already
        QCOMPARE(prlimit(process, RLIMIT_FSIZE, &full, &before), 0);
        m_walk.go({VASK::MENU_ScreenBrightness});
        m_walk.turn(Right, 3);
        QVERIFY(m_panel.waitForLog("cannot be written"));
        QCOMPARE(m_panel.stored(brightnessItem), ownValue);
        m_walk.turn(Right, 1);
        QVERIFY(m_panel.waitFor("81%"));
        m_walk.home();
        QVERIFY(m_panel.waitFor("81%"));
        QCOMPARE(prlimit(process, RLIMIT_FSIZE, &before, nullptr), 0);
        QVERIFY(waitUntilStored(brightnessItem, "81"));
        QVERIFY(m_panel.ask({"panel", "kill"}).ok && m_panel.start());
        QCOMPARE(m_panel.stored(brightnessItem), QString("81"));
    }

    /// A save that lasts: the keys are worked, shown and sent meanwhile, and are in the next one.
    void noKeyWaitsForTheDisk()
    {
        for (const QString &name : allFiles)
            write(name, m_whole);
        QVERIFY(m_panel.start() && m_panel.ask({"wait", "ready"}).ok);
        const QString fault = m_panel.file(hostlink::diskFaultFile);
        QVERIFY(QDir().mkpath(QFileInfo(fault).path()));
        QFile slow(fault);
        QVERIFY(slow.open(QIODevice::WriteOnly) && slow.write("slow 600000") > 0);
        slow.close();
        m_walk.go({VASK::MENU_ScreenBrightness});
        m_panel.mark();
        m_walk.turn(Right, 1);
        QVERIFY(m_panel.waitFor("78%"));
        QVERIFY(m_panel.waitForLog("slot_updateXml")); // and stands still before its first fsync is over
        for (int value = 79; value < 90; ++value) {
            m_walk.turn(Right, 1);
            QVERIFY(m_panel.waitFor(QString("%1%").arg(value)));
        }
        QCOMPARE(m_panel.stored(brightnessItem), ownValue);
        QVERIFY(QFile::remove(fault));
        QVERIFY(waitUntilStored(brightnessItem, "89"));
    }

private:
    QString file(const QString &name) const
    {
        return m_panel.file("/usr/vask/etc/fpd/config/" + name + ".xml");
    }

    QByteArray read(const QString &name) const
    {
        QFile input(file(name));
        return input.open(QIODevice::ReadOnly) ? input.readAll() : QByteArray();
    }

    void write(const QString &name, const QByteArray &content)
    {
        QFile output(file(name));
        QVERIFY(output.open(QIODevice::WriteOnly));
        output.write(content);
    }

    QByteArray m_whole; ///< a file with a value of its own
};

FPD_TEST(TestSystemStore)
#include "tst_systemstore.moc"
