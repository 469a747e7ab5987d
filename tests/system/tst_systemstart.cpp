// How the panel starts, with everything in place and with parts of the board missing.
#include "client/homescreen.h"
#include "client/loglines.h"
#include "tests/system/systemtest.h"
#include "tests/testprogram.h"

#include <QDir>
#include <unistd.h>

using namespace VASK;

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
        QCOMPARE(m_fresh->logLines(loglines::started).size(), 1);
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
        QCOMPARE(m_fresh->logLines(loglines::started).size(), 0);
        QVERIFY(m_fresh->ask({"flag", "give"}).ok);
        QVERIFY(m_fresh->waitForLog(loglines::started));
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
        QCOMPARE(m_fresh->logLines(loglines::textsMissing).size(), 1);
        QVERIFY(m_fresh->press(keys::Ok));
        QVERIFY(m_fresh->waitForLog(loglines::okReleased));
    }

    /// The texts of the tables are shown then.
    void startsWithDamagedTexts_data()
    {
        const DataRows<int, int> row{"from", "to"};
        row("cut", 9000, -1);
        row("offsets", 40, 2300);
        row("messages", 5000, 9000);
    }
    void startsWithDamagedTexts()
    {
        const auto [from, to] = fetched<int, int>({"from", "to"});
        QFile texts(m_fresh->file(configFolder + "/fpd_ZH.qm"));
        QVERIFY(texts.open(QIODevice::ReadWrite));
        if (to < 0)
            QVERIFY(texts.resize(from));
        else
            QVERIFY(texts.seek(from) && texts.write(QByteArray(to - from, '\x5a')) > 0);
        texts.close();
        QVERIFY(m_fresh->start() && m_fresh->ask({"wait", "ready"}).ok);
        QCOMPARE(m_fresh->logLines(loglines::textsMissing).size(), 1);
        QVERIFY(m_fresh->press(keys::Ok));
        QVERIFY(m_fresh->waitFor("LayerSettings"));
    }

    /// One look at the LCD when the emulator says so, and no patience.
    void readyIsWhatTheLcdShows()
    {
        QVERIFY(m_fresh->start() && m_fresh->ask({"wait", "ready"}).ok);
        for (const char *sight : {"mainname:HDMI1", "main:1920x1080@60", "screen:1920x1080@60", "bright:60%",
                                  "port1:green", "port4:green", "port5:dark"})
            QVERIFY2(homescreen::sees(*m_fresh, sight), sight);
    }

    /// The device is silent: what its flash holds is what there is.
    void theFirstPictureIsTheSnapshots()
    {
        QVERIFY(m_fresh->ask({"reports", "off"}).ok);
        constexpr const char *pip1Source = "e842";
        QVERIFY(m_fresh->ask({"flash", "write", pip1Source, "01"}).ok);
        QVERIFY(m_fresh->start() && m_fresh->ask({"wait", "ready"}).ok);
        for (const char *sight : {"mainname:HDMI1", "screen:1920x1080@60", "port1:dark"})
            QVERIFY2(homescreen::sees(*m_fresh, sight), sight);
        QVERIFY(m_fresh->waitUntil([this] { return m_fresh->stored(MENU_PIP1_InputSource) == "1"; }));
    }

    void aFiberConverterIsReady()
    {
        QVERIFY(m_fresh->start());
        QVERIFY(m_fresh->waitUntil([this] { return !m_fresh->stored(MENU_WorkMode).isEmpty(); }));
        for (const char *reports : {"on", "off"}) {
            QVERIFY(m_fresh->ask({"panel", "stop"}).ok && m_fresh->setStored(MENU_WorkMode, "1"));
            QVERIFY(m_fresh->ask({"reports", reports}).ok);
            QVERIFY(m_fresh->start() && m_fresh->ask({"wait", "ready"}).ok);
        }
    }

    void startsWithReadOnlyConfigFolder()
    {
        const QString folder = m_fresh->file(configFolder);
        QVERIFY(QFile::setPermissions(folder, QFile::ReadOwner | QFile::ExeOwner));
        QVERIFY(m_fresh->start());
        QVERIFY(m_fresh->press(keys::Ok));
        QVERIFY(m_fresh->waitForLog(loglines::okReleased));
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
        QVERIFY(m_fresh->waitForLog(loglines::okReleased));
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
