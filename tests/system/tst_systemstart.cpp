// How the panel starts, with everything in place and with parts of the board missing.
#include "tests/system/systemtest.h"
#include "tests/testprogram.h"

#include <QDir>
#include <unistd.h>

namespace
{
const QString configFolder = "/usr/vask/etc/fpd/config";

/// Root would write anywhere: a process without that right.
QStringList withoutRootsRights()
{
    if (geteuid() != 0)
        return {};
    return {"setpriv", "--bounding-set=-dac_override,-dac_read_search",
            "--inh-caps=-dac_override,-dac_read_search"};
}
} // namespace

class TestSystemStart : public SystemTest
{
    Q_OBJECT
protected:
    void begin() override {}
    Panel &panel() override { return *m_fresh; }

private slots:
    void init()
    {
        m_fresh = std::make_unique<Panel>();
        QVERIFY(m_fresh->powerDevice(withoutRootsRights()));
    }

    void startUpReachesItsEnd()
    {
        QVERIFY(m_fresh->start());
        QVERIFY(QFile::exists(m_fresh->file("/etc/init.d/flag_fpdspi")));
        QCOMPARE(m_fresh->logLines("init OK!").size(), 1);
        QVERIFY(m_fresh->waitUntil([this] { return !m_fresh->stored(1).isEmpty(); }));
        QVERIFY(QFile::exists(m_fresh->file(configFolder + "/config_factory.xml")));
        QVERIFY(m_fresh->waitFor("K2860", QRect(25, 0, 118, 24)));
    }

    void waitsForTheDevice()
    {
        QVERIFY(m_fresh->ask({"flag", "withhold"}).ok);
        m_fresh->mark();
        QVERIFY(m_fresh->ask({"panel", "start"}).ok);
        QVERIFY(m_fresh->waitUntil([this] { return m_fresh->logLines("sleep end!").size() >= 10; }));
        QCOMPARE(m_fresh->logLines("init OK!").size(), 0);
        QVERIFY(m_fresh->ask({"flag", "give"}).ok);
        QVERIFY(m_fresh->waitForLog("init OK!"));
    }

    void startsWithoutKeypad()
    {
        QVERIFY(m_fresh->ask({"fault", "keypad", "down"}).ok);
        QVERIFY(m_fresh->start());
        QCOMPARE(m_fresh->logLines("Init key failed").size(), 1);
        QVERIFY(!m_fresh->press(keys::Ok));
    }

    void startsWithoutConfigFolder()
    {
        QVERIFY(QDir(m_fresh->file(configFolder)).removeRecursively());
        QVERIFY(m_fresh->start());
        QCOMPARE(m_fresh->logLines("is not a Dir").size(), 1);
        QCOMPARE(m_fresh->logLines("main:load qm failed!").size(), 1);
        QVERIFY(m_fresh->press(keys::Ok));
        QVERIFY(m_fresh->waitForLog("TIMER_CancelTimer ==  34"));
    }

    void startsWithReadOnlyConfigFolder()
    {
        const QString folder = m_fresh->file(configFolder);
        QVERIFY(QFile::setPermissions(folder, QFile::ReadOwner | QFile::ExeOwner));
        QVERIFY(m_fresh->start());
        QVERIFY(m_fresh->press(keys::Ok));
        QVERIFY(m_fresh->waitForLog("TIMER_CancelTimer ==  34"));
        QVERIFY(!QFile::exists(folder + "/config.xml"));
        QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    void killedPanelStartsAgain()
    {
        QVERIFY(m_fresh->start());
        QVERIFY(m_fresh->ask({"panel", "kill"}).ok);
        QVERIFY(!m_fresh->press(keys::Ok));
        QVERIFY(m_fresh->start());
        QVERIFY(m_fresh->press(keys::Ok));
        QVERIFY(m_fresh->waitForLog("TIMER_CancelTimer ==  34"));
    }

    void runLeavesNothingRunning()
    {
        QVERIFY(m_fresh->start());
        // Both processes carry the state folder in their command line or environment.
        const auto processes = [this] {
            QStringList found;
            for (const QString &id : QDir("/proc").entryList({"[1-9]*"}, QDir::Dirs)) {
                QFile command("/proc/" + id + "/cmdline"), environment("/proc/" + id + "/environ");
                if (!command.open(QIODevice::ReadOnly) || !environment.open(QIODevice::ReadOnly))
                    continue;
                if (command.readAll().contains(m_fresh->statePath().toUtf8()) ||
                    environment.readAll().contains(m_fresh->statePath().toUtf8()))
                    found.append(id);
            }
            return found;
        };
        QCOMPARE(processes().size(), 2);
        m_fresh->stop();
        QCOMPARE(processes(), QStringList());
        QCOMPARE(QDir(m_fresh->file("/run")).entryList(QDir::Files | QDir::System), QStringList());
    }

private:
    std::unique_ptr<Panel> m_fresh = std::make_unique<Panel>();
};

FPD_TEST(TestSystemStart)
#include "tst_systemstart.moc"
