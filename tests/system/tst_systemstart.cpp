// How the panel starts, with everything in place and with parts of the board missing.
#include "tests/system/panel.h"

#include <QDir>
#include <QTest>
#include <unistd.h>

class TestSystemStart : public QObject
{
    Q_OBJECT
private slots:
    void startUpReachesItsEnd();
    void waitsForTheDevice();
    void startsWithoutKeypad();
    void startsWithoutConfigFolder();
    void startsWithReadOnlyConfigFolder();
    void fiberConverterShowsNothing();
    void killedPanelStartsAgain();
    void runLeavesNothingRunning();
};

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

void TestSystemStart::startUpReachesItsEnd()
{
    Panel panel;
    QVERIFY(panel.powerDevice());
    QVERIFY(panel.start());
    QVERIFY(QFile::exists(panel.file("/etc/init.d/flag_fpdspi")));
    QCOMPARE(panel.logLines("init OK!").size(), 1);
    QVERIFY(panel.waitUntil([&panel] { return !panel.stored(1).isEmpty(); }));
    QVERIFY(QFile::exists(panel.file(configFolder + "/config_factory.xml")));
    QCOMPARE(panel.damage(), QString());
}

void TestSystemStart::waitsForTheDevice()
{
    Panel panel;
    QVERIFY(panel.powerDevice());
    QVERIFY(panel.ask({"flag", "withhold"}).ok);
    panel.mark();
    QVERIFY(panel.ask({"panel", "start"}).ok);
    QVERIFY(panel.waitUntil([&panel] { return panel.logLines("sleep end!").size() >= 10; }));
    QCOMPARE(panel.logLines("init OK!").size(), 0);
    QVERIFY(panel.ask({"flag", "give"}).ok);
    QVERIFY(panel.waitForLog("init OK!"));
    QCOMPARE(panel.damage(), QString());
}

void TestSystemStart::startsWithoutKeypad()
{
    Panel panel;
    QVERIFY(panel.powerDevice());
    QVERIFY(panel.ask({"fault", "keypad", "down"}).ok);
    QVERIFY(panel.start());
    QCOMPARE(panel.logLines("Init key failed").size(), 1);
    QVERIFY(!panel.press(keys::Ok));
    QCOMPARE(panel.damage(), QString());
}

void TestSystemStart::startsWithoutConfigFolder()
{
    Panel panel;
    QVERIFY(panel.powerDevice());
    QVERIFY(QDir(panel.file(configFolder)).removeRecursively());
    QVERIFY(panel.start());
    QCOMPARE(panel.logLines("is not a Dir").size(), 1);
    QCOMPARE(panel.logLines("main:load qm failed!").size(), 1);
    QVERIFY(panel.press(keys::Ok));
    QVERIFY(panel.waitForLog("TIMER_CancelTimer ==  34"));
    QCOMPARE(panel.damage(), QString());
}

void TestSystemStart::startsWithReadOnlyConfigFolder()
{
    Panel panel;
    QVERIFY(panel.powerDevice(withoutRootsRights()));
    const QString folder = panel.file(configFolder);
    QVERIFY(QFile::setPermissions(folder, QFile::ReadOwner | QFile::ExeOwner));
    QVERIFY(panel.start());
    QVERIFY(panel.press(keys::Ok));
    QVERIFY(panel.waitForLog("TIMER_CancelTimer ==  34"));
    QVERIFY(!QFile::exists(folder + "/config.xml"));
    QCOMPARE(panel.damage(), QString());
    QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

void TestSystemStart::fiberConverterShowsNothing()
{
    constexpr int itemWorkMode = 3210;
    Panel panel;
    QVERIFY(panel.startReady());
    QVERIFY(panel.waitUntil([&panel] { return panel.leds().contains('1'); }));
    QVERIFY(panel.ask({"panel", "stop"}).ok);
    QVERIFY(panel.setStored(itemWorkMode, "1"));
    QVERIFY(panel.start());
    QVERIFY(panel.waitForLog("StartComplate: 2"));
    // No home screen, so no way home either, and the keys stay dark.
    QCOMPARE(panel.logLines("m_returnMainWindow").size(), 0);
    QCOMPARE(panel.leds(), QString(16, '0'));
    QVERIFY(panel.press(keys::Ok));
    QVERIFY(panel.waitForLog("null == activeWid 34"));
    QVERIFY(panel.settle());
    QCOMPARE(panel.screen().pixelColor(160, 120), QColor(Qt::black));
    // A message is a window that opens and closes: the panel outlives it.
    panel.mark();
    QVERIFY(panel.ask({"calibrate", "on"}).ok);
    QVERIFY(panel.waitForLog("str:"));
    QVERIFY(panel.ask({"calibrate", "off"}).ok);
    QVERIFY(panel.waitForLog("slot_CloseDialog:"));
    QVERIFY(panel.press(keys::Ok));
    QVERIFY(panel.waitForLog("null == activeWid 34"));
    QCOMPARE(panel.damage(), QString());
}

void TestSystemStart::killedPanelStartsAgain()
{
    Panel panel;
    QVERIFY(panel.powerDevice());
    QVERIFY(panel.start());
    QVERIFY(panel.ask({"panel", "kill"}).ok);
    QVERIFY(!panel.press(keys::Ok));
    QVERIFY(panel.start());
    QVERIFY(panel.press(keys::Ok));
    QVERIFY(panel.waitForLog("TIMER_CancelTimer ==  34"));
    QCOMPARE(panel.damage(), QString());
}

void TestSystemStart::runLeavesNothingRunning()
{
    Panel panel;
    QVERIFY(panel.powerDevice());
    QVERIFY(panel.start());
    // Both processes carry the state folder in their command line or environment.
    const auto processes = [&panel] {
        QStringList found;
        for (const QString &id : QDir("/proc").entryList({"[1-9]*"}, QDir::Dirs)) {
            QFile command("/proc/" + id + "/cmdline"), environment("/proc/" + id + "/environ");
            if (!command.open(QIODevice::ReadOnly) || !environment.open(QIODevice::ReadOnly))
                continue;
            if (command.readAll().contains(panel.statePath().toUtf8()) ||
                environment.readAll().contains(panel.statePath().toUtf8()))
                found.append(id);
        }
        return found;
    };
    QCOMPARE(processes().size(), 2);
    panel.stop();
    QCOMPARE(processes(), QStringList());
    QCOMPARE(QDir(panel.file("/run")).entryList(QDir::Files | QDir::System), QStringList());
}

QTEST_MAIN(TestSystemStart)
#include "tst_systemstart.moc"
