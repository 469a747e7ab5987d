// Presets, name, self test and the three resets: what the device keeps and what it gives back.
#include "emulator/model/devicename.h"
#include "emulator/model/inputs.h"
#include "emulator/model/ports.h"
#include "emulator/model/presets.h"
#include "emulator/model/selftest.h"
#include "modelrig.h"
#include "tests/testprogram.h"

class TestDevicePresets : public QObject
{
    Q_OBJECT
private slots:
    void presetsBringTheWallBack()
    {
        ModelRig rig;
        rig.write(0x13020040, "01");
        rig.write(0x13020042, "020000"); // PIP 1 with DVI
        rig.write(0x13024014 + 132 + 32, "0002010500060000040003");
        rig.write(0x13050001, "4b");
        const QByteArray wanted = rig.flashHex(0xE800, 0x1200 - 0x400);
        rig.write(0x13510102, "06");
        rig.write(0x13020040, "00");
        rig.write(0x13020042, "000011");
        rig.write(0x13050001, "0a");
        QVERIFY(rig.flashHex(0xE800, 0x1200 - 0x400) != wanted);
        const Reports reports = rig.write(0x13510100, "06");
        QCOMPARE(rig.flashHex(0xE800, 0x1200 - 0x400), wanted);
        QCOMPARE(rig.flashHex(0x2F10, 1), QByteArray("06"));
        QCOMPARE(ModelRig::hexOf(reports, 0x13020040).left(10), QByteArray("0100020100"));
        QCOMPARE(ModelRig::hexOf(reports, 0x13024014 + 132 + 32), QByteArray("0002010500060000040003"));
        QCOMPARE(ModelRig::hexOf(reports, 0x13050000).left(4), QByteArray("114b"));
        QCOMPARE(rig.shown("preset 7"), QString("preset 7: used"));
    }

    void presetsAreCopiedAndDeleted()
    {
        ModelRig rig;
        const QString news = QString::fromUtf8("新闻直播");
        QCOMPARE(rig.flashHex(0x4200 + 512, 9), QByteArray("d0c2cec5d6b1b2a500"));
        QCOMPARE(rig.shown("preset 2"), "preset 2: saved " + news);
        rig.write(0x13510106, "00010009");
        QCOMPARE(rig.flashHex(0x3000 + 9 * 0x1200, 0x1200), rig.flashHex(0x4200, 0x1200));
        rig.write(0x13510102, "01"); // what is saved again keeps its name
        QCOMPARE(rig.shown("preset 2"), "preset 2: saved " + news);
        rig.write(0x13510104, "0001");
        QCOMPARE(rig.shown("preset 2"), QString("preset 2: blank"));
        QCOMPARE(rig.flashHex(0x2F10, 1), QByteArray("00"));
        rig.write(0x13510104, "0000"); // the one in use
        QCOMPARE(rig.flashHex(0x2F10, 1), QByteArray("ff"));
        rig.write(0x13510100, "09");
        rig.write(0x13510102, "09"); // saved again it waits to be loaded
        QCOMPARE(rig.flashHex(0x2F10, 1), QByteArray("ff"));
        QCOMPARE(rig.shown("preset 10"), "preset 10: saved " + news);
    }

    void badPresetsChangeNothing()
    {
        ModelRig rig;
        const QByteArray before = rig.flashHex(0x2000, 0x10000);
        QVERIFY(rig.write(0x13510100, "05").isEmpty()); // blank
        QVERIFY(rig.write(0x13510100, "0a").isEmpty());
        rig.write(0x13510102, "ff");
        rig.write(0x13510104, "00");
        rig.write(0x13510104, "000a");
        rig.write(0x13510106, "000500");
        rig.write(0x13510106, "00050001"); // blank onto a stored one
        QCOMPARE(rig.flashHex(0x2000, 0x10000), before);
    }

    void namesFitTheirRecords()
    {
        ModelRig rig;
        Registers &registers = rig.model.registers();
        const QString name = QString::fromUtf8("主舞台 1");
        QCOMPARE(ModelRig::hexOf(devicename::rename(registers, name), 0x0FF00001), QByteArray("01"));
        QCOMPARE(rig.flashHex(0xD14000, 1), QByteArray("9a"));
        QCOMPARE(rig.flashHex(0xD14100, 12), QByteArray("3b4e1e82f05320003100").append("0000"));
        QCOMPARE(devicename::nameOf(rig.flash), name);
        devicename::rename(registers, QString(40, 'x'));
        QCOMPARE(devicename::nameOf(rig.flash), QString(32, 'x'));
        QCOMPARE(rig.flashHex(0xD14140, 2), QByteArray("0000"));
        devicename::rename(registers, QString());
        QCOMPARE(rig.flashHex(0xD14000, 1), QByteArray("00"));
    }

    void selfTestTellsItsRecords()
    {
        ModelRig rig;
        const Reports reports = rig.write(0x13800000, "00");
        const Report *report = ModelRig::find(reports, 0x13800000);
        QVERIFY(report && report->bytes.endsWith('\0'));
        const QList<QByteArray> records = report->bytes.chopped(1).split(';');
        QCOMPARE(records.size(), 29); // a header, 27 values and nothing behind the last
        for (const QByteArray &record : records.mid(1, 27))
            QVERIFY2(record.split(':').size() == 6 && record.endsWith(":normal"), record);

        Registers &registers = rig.model.registers();
        const auto found = [&] { return ModelRig::find(rig.write(0x13800000, "00"), 0x13800000)->bytes; };
        QVERIFY(selftest::setFault(registers, "F_TEMP", "97"));
        QVERIFY(selftest::setFault(registers, "S1_TEMP", QString(63, '9')));
        QVERIFY(found().contains(";F_TEMP:--:--:97:--:error;F_D_CLK_ST:--:--:normal:--:normal;"));
        QVERIFY(found().endsWith("999:--:error;" + QByteArray(1, '\0')));
        for (const char *text : {"", "--", "a:b", "a;b", "温"})
            QVERIFY2(!selftest::setFault(registers, "F_DDR", QString::fromUtf8(text)), text);
        QVERIFY(!selftest::setFault(registers, "F_DDR", QString(64, 'x')));
        QVERIFY(!selftest::setFault(registers, "FPGA_DDR", "error") &&
                !selftest::heal(registers, "FPGA_DDR"));
        QVERIFY(selftest::heal(registers, "S1_TEMP"));
        QCOMPARE(rig.shown("self test"), QString("self test: F_TEMP 97"));
        QVERIFY(selftest::heal(registers));
        QVERIFY(!found().contains("error"));
    }

    void resetsSpareWhatTheyShould_data()
    {
        const DataRows<QByteArray, bool, bool> row{"kind", "sparesAddress", "sparesUserData"};
        row("all but the address", "00", true, false);
        row("everything", "01", false, false);
        row("all but user data", "02", true, true);
    }
    void resetsSpareWhatTheyShould()
    {
        const auto [kind, sparesAddress, sparesUserData] =
            fetched<QByteArray, bool, bool>({"kind", "sparesAddress", "sparesUserData"});
        ModelRig rig;
        Registers &registers = rig.model.registers();
        const QByteArray factoryLayers = rig.flashHex(0xE800, 0xE00);
        rig.write(0x13000006, "0a00000001000200ff00ff00ff0000000a000001");
        rig.write(0x13020015, "0a000000ecffffff80020000e0010000");
        rig.write(0x02000074, "78");
        rig.write(0x13510102, "04");
        devicename::rename(registers, "Stage");
        ports::set(registers, 0, ports::State::link, false);
        ports::set(registers, 1, ports::State::backup, true);
        inputs::setSignal(registers, inputs::hdmi1, inputs::Signal());

        const Reports reports = rig.write(0x01000002, kind);
        QCOMPARE(reports.first().address, 0x01000002u);
        QCOMPARE(reports.first().bytes.toHex(), kind);
        QCOMPARE(rig.flashHex(0xE800, 0xE00), factoryLayers);
        QCOMPARE(rig.shown("low latency"), QString("low latency: off"));
        QCOMPARE(rig.shown("address"),
                 QString(sparesAddress ? "address: 10.0.1.2" : "address: 192.168.0.10"));
        QCOMPARE(rig.shown("preset 5"), QString(sparesUserData ? "preset 5: saved" : "preset 5: blank"));
        QCOMPARE(rig.shown("preset 1"),
                 QString(sparesUserData ? "preset 1: used Concert" : "preset 1: blank"));
        QCOMPARE(rig.shown("name"), QString(sparesUserData ? "name: Stage" : "name: LED Wall 4x4"));
        // Cables stay where they are, whatever is reset; the device tells what it is now.
        QVERIFY(!inputs::signalOf(registers, inputs::hdmi1).stable);
        QCOMPARE(rig.shown("port 1"), QString("port 1: link off, backup off, engaged off"));
        QCOMPARE(rig.shown("port 2"), QString("port 2: link on, backup off, engaged off"));
        QCOMPARE(ModelRig::hexOf(reports, 0x13020010), rig.flashHex(0xE810, 48));
        QVERIFY(!ModelRig::find(reports, 0x14000000));
        QVERIFY(rig.write(0x01000002, "03").isEmpty());
    }
};

FPD_TEST_GUILESS(TestDevicePresets)
#include "tst_devicepresets.moc"
