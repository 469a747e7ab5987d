// Every kind of register that the panel writes: what the flash holds of it and what the device tells of it.
#include "modelrig.h"
#include "tests/testprogram.h"

namespace
{
/// Hex digits of so many bytes, zeros behind those given.
QByteArray padded(const QByteArray &hex, int length)
{
    return hex.leftJustified(2 * length, '0');
}
} // namespace

class TestDeviceRegisters : public QObject
{
    Q_OBJECT
private slots:
    void writesReachFlashAndReports_data()
    {
        // reportAddress: 0: nothing is told
        const DataRows<uint, QByteArray, uint, QByteArray, uint, QByteArray> add{
            "address", "bytes", "flashAddress", "flashBytes", "reportAddress", "reportBytes"};
        const auto row = [&add](const char *name, uint address, const char *bytes, uint flashAddress,
                                const char *flashBytes, uint reportAddress = 0,
                                const QByteArray &reportBytes = {}) {
            add(name, address, QByteArray(bytes), flashAddress, QByteArray(flashBytes), reportAddress,
                reportBytes);
        };
        row("effect", 0x13000001, "00", 0x2001, "00");
        row("freeze", 0x13000004, "04", 0x2004, "0405", 0x13000004, "04");
        row("test pattern", 0x13000004, "0623", 0x2004, "0623", 0x13000004, "06");
        row("another pattern in the same mode", 0x13000004, "0307", 0x2004, "0307");
        row("address", 0x13000006, "0a0000000100020 0ff00ff00ff0000000a000001", 0x2006, "0a00000001000200",
            0x13000006, "0a00000001000200ff00ff00ff0000000a000001");
        row("sync switch", 0x1300002A, "01", 0x202A, "0101", 0x1300002A, "0101");
        row("sync source", 0x1300002B, "03", 0x202A, "0003", 0x1300002A, "0003");
        row("splicing", 0x13000053, "a8", 0x2053, "a8");
        row("audio output", 0x1300009E, "f0", 0x209E, "f032", 0x1300009E, "f032");
        row("volume", 0x1300009F, "14", 0x209E, "0114", 0x1300009E, "0114");
        row("sound of HDMI 2", 0x13019015, "02", 0x15633, "02", 0x13019025, "02");
        row("sound of DVI", 0x13019025, "02", 0x15635, "02", 0x13019035, "02");
        row("HDCP of HDMI 1", 0x13019004, "5a", 0x15630, "5a");
        row("brightness of the second input", 0x13050015, "5a", 0xEA15, "5a");
        row("layer off", 0x13020010, "00", 0xE810, "00");
        row("window of PIP 2", 0x13020075, "0a000000ecffffff80020000e0010000", 0xE875,
            "0a000000ecffffff80020000e0010000");
        row("crop", 0x13024014, "1100010500060000040003", 0xEE14, "1100010500060000040003");
        row("crop of an input on no layer", 0x13024034, "0002010500060000040003", 0xEE34,
            "0002010500060000040003");
        row("load area", 0x13030010, "01000000feffffff00032002", 0x12610, "01000000feffffff00032002",
            0x13030000, "0000000000000000000000000000000001000000feffffff00032002");
        row("output rate", 0x13040007, "8813", 0xF603, "8007380 48813", 0x13040003, "80073804 8813");
        row("size of software while the device's counts", 0x13041401, "0004000370 17", 0xF60A,
            "000400037017");
        row("input backup", 0x13120000, "5b", 0x10600, "5b");
        row("OSD on", 0x13411000, "01", 0xE00300, "010e00", 0x13411000, padded("010e", 40));
        row("OSD behind", 0x13411001, "00", 0xE00300, "0000", 0x13411000, padded("", 40));
        row("OSD position", 0x13411020, "9cffffff", 0xE00320, "9cffffff", 0x13411000,
            "000e0000000000000000000000000000000000000000000000000000000000009cffffff00000000");
        row("3D on", 0x02000039, "a8", 0x2400, "a8", 0x02000039, "a8");
        row("3D format", 0x02000042, "08", 0x2402, "08", 0x02000042, "08");
        row("3D eye", 0x02000041, "32", 0x2401, "32", 0x02000041, "32");
        row("low latency", 0x02000074, "78", 0xE01074, "78", 0x02000074, "78");
        row("backup of four ports", 0x02000018, "80808080", 0xE01018, "80808080", 0x02000018, "80808080");
        row("backup of the last ports", 0x02000100, "80808080", 0xE01100, "80808080", 0x02000100, "8080");
        row("sending card's own mode", 0x020001F8, "a5", 0xE011F8, "a5");
    }
    void writesReachFlashAndReports()
    {
        auto [address, bytes, flashAddress, reportAddress, flashBytes, reportBytes] =
            fetched<uint, QByteArray, uint, uint, QByteArray, QByteArray>(
                {"address", "bytes", "flashAddress", "reportAddress", "flashBytes", "reportBytes"});
        flashBytes = QByteArray::fromHex(flashBytes).toHex();
        reportBytes = QByteArray::fromHex(reportBytes).toHex();
        ModelRig rig;
        const Reports reports = rig.write(address, bytes);
        QCOMPARE(rig.flashHex(flashAddress, flashBytes.size() / 2), flashBytes);
        QCOMPARE(reports.isEmpty(), reportAddress == 0);
        if (reportAddress != 0)
            QCOMPARE(ModelRig::hexOf(reports, reportAddress), reportBytes);
    }

    void whatIsWrittenIsShown_data()
    {
        addColumns<uint, QByteArray, int, QString>({"address", "bytes", "deviceType", "line"});
        const auto row = [](uint address, const char *bytes, const char *line, int deviceType = sendingSide) {
            QTest::newRow(line) << address << QByteArray(bytes) << deviceType << QString(line);
        };
        row(0x13000001, "00", "transition: cut, 0.5 s");
        row(0x13000002, "4b00", "transition: fade, 0.75 s");
        row(0x13000033, "c800", "time to black: 2 s");
        row(0x13000042, "090807", "test picture: brightness 9, spacing 8, speed 7");
        row(0x13014200, "1201000a40067017", "last EDID: hdmi2 2560x1600@60");
        row(0x13060010, "1100000000008007380400000000000030",
            "parts of the mosaic: hdmi1 and sdi, 1920x1080 each, one above the other");
        row(0x13120010, "11001201", "partner of hdmi1: hdmi2");
        row(0x13120014, "69006a01", "partner of dvi: dvi2");
        row(0x13120010, "1100ff01", "partner of hdmi1: none");
        row(0x0200009D, "a5", "role of the device: backup");
        row(0x020001D7, "02", "OPT 2: link on, no ports");
        row(0x020001DA, "04", "OPT 2 mode: copy");
        row(0x02000002, "010203", "colours: red 1, green 2, blue 3", receivingCard);
        row(0x01000088, "05", "mapping: on", receivingCard);
        row(0x02810018, "1000", "quick configuration: 16 cabinets on the first port, flow way 0");
        row(0x02810011, "03", "quick configuration: 1 cabinets on the first port, flow way 3");
        row(0x02810000, "a8", "advanced configuration: on");
        row(0x02810096, "02030600f401c800", "place of port 2: 500,200, flow way 0");
    }
    void whatIsWrittenIsShown()
    {
        const auto [address, bytes, deviceType, line] =
            fetched<uint, QByteArray, int, QString>({"address", "bytes", "deviceType", "line"});
        ModelRig rig;
        QVERIFY(!rig.model.describe().contains("  " + line) || line.endsWith("none"));
        rig.write(address, bytes, quint8(deviceType));
        QVERIFY2(rig.model.describe().contains("  " + line), qPrintable(rig.model.describe().join('\n')));
    }

    void whatStaysTheSameIsNotTold()
    {
        ModelRig rig;
        for (const Report &report : rig.model.reports()) {
            const bool isMirror = FlashImage::mirrorAddress(sendingSide, report.address) >= 0;
            const bool isSound = report.address >> 12 == 0x13019; // told under the address of the next input
            // A report that comes back as a write must end there, or panel and device would never fall
            // silent.
            if (isMirror && !isSound)
                QVERIFY2(rig.write(report.address, report.bytes.toHex()).isEmpty(),
                         qPrintable(QString::number(report.address, 16)));
        }
    }

    void aSourceLeavesThePriorityAlone()
    {
        ModelRig rig;
        rig.write(0x13020043, "05");
        rig.write(0x13020042, "030030");
        QCOMPARE(rig.flashHex(0xE842, 3), QByteArray("030530"));
        QCOMPARE(rig.shown("PIP 1"), QString("PIP 1: off, sdi, 480x270 at 0,0, priority 5, opacity 100%"));
    }

    void onlyUnknownWindowsAreTold()
    {
        ModelRig rig;
        const auto toldAtStart = [&rig] {
            QList<uint> layers;
            for (const Report &report : rig.model.reports())
                if (report.address >> 8 == 0x130200)
                    layers << (report.address - 0x13020010) / 48;
            return layers;
        };
        const QByteArray window = "0a000000ecffffff80020000e0010000";
        QCOMPARE(toldAtStart(), (QList<uint>{0, 1, 2})); // a panel that has never met this device
        QCOMPARE(toldAtStart(), (QList<uint>{0, 1, 2})); // or was switched off before it stored that
        for (quint32 layer : {0, 1, 2})
            rig.write(0x13020015 + 48 * layer, window); // the panel's own
        QCOMPARE(toldAtStart(), QList<uint>());
        rig.write(0x13510100, "01"); // a preset
        QCOMPARE(toldAtStart(), (QList<uint>{0, 1, 2}));
        rig.write(0x13020045, window);
        QCOMPARE(toldAtStart(), (QList<uint>{0, 2}));
        rig.write(0x01000002, "01");
        QCOMPARE(toldAtStart(), (QList<uint>{0, 1, 2}));
    }

    void picturesFindTheRecordOfTheirInput()
    {
        ModelRig rig;
        rig.write(0x13050001 + 20 * 3, "46");   // brightness of input 3, SDI
        rig.write(0x13050005 + 20 * 4, "f6ff"); // hue of input 4, the second DVI
        rig.write(0x13050013 + 20 * 3, "01");   // range, by record
        QCOMPARE(rig.shown("sdi: brightness"),
                 QString("sdi: brightness 70, contrast 50, saturation 50, hue 0, limited range"));
        QCOMPARE(rig.shown("dvi2: brightness"),
                 QString("dvi2: brightness 50, contrast 50, saturation 50, hue -10, full range"));
        rig.write(0x13050000 + 20 * 4, "3032320032000000000000000000000000000000");
        QCOMPARE(rig.shown("sdi: brightness"),
                 QString("sdi: brightness 50, contrast 50, saturation 50, hue 0, limited range"));
        QVERIFY(rig.shown("dvi2: brightness").contains("hue -10"));
    }

    void theAddressOfAServerCounts()
    {
        ModelRig rig;
        const Reports reports = rig.write(0x1300001A, "a8");
        QCOMPARE(ModelRig::hexOf(reports, 0x1300001A), QByteArray("a8"));
        const Report *address = ModelRig::find(reports, 0x13000006);
        QVERIFY(address && address->afterMs > ModelRig::find(reports, 0x1300001A)->afterMs);
        QCOMPARE(rig.shown("address"), QString("address: 192.168.0.137"));
        QVERIFY(rig.write(0x13000006, "0a000000010002000a000000010002000a000001").isEmpty());
        QCOMPARE(rig.shown("address"), QString("address: 192.168.0.137"));
    }

    void rightEyeStartsDoNotMix()
    {
        ModelRig rig;
        QCOMPARE(ModelRig::hexOf(rig.write(0x02000089, "e8031c02"), 0x02000089), QByteArray("e803"));
        rig.write(0x02000042, "08");
        QCOMPARE(ModelRig::hexOf(rig.write(0x02000089, "f401f401"), 0x0200008B), QByteArray("f401"));
        QCOMPARE(rig.flashHex(0x2403, 4), QByteArray("e803f401"));
    }

    void aSendingCardMovesItsWindow()
    {
        ModelRig rig;
        const QByteArray links = rig.model.registers().read(0x020001F2, 6);
        QVERIFY(rig.write(0x020001F0, "64000000c8000000").isEmpty());
        QVERIFY(rig.shown("main layer: ").contains("at 100,200"));
        QCOMPARE(rig.model.registers().read(0x020001F2, 6), links);
    }

    void aReportFromOutsideIsHeld()
    {
        ModelRig rig;
        rig.model.adopt({0x0200001F, QByteArray::fromHex("03")});
        QCOMPARE(rig.shown("port 3"), QString("port 3: link off, backup off, engaged off"));
        rig.model.adopt({0x020001F2, QByteArray::fromHex("8102")});
        QCOMPARE(rig.shown("OPT 1"), QString("OPT 1: link off, ports 1 8 10"));
        rig.model.adopt({0x13019025, QByteArray::fromHex("02")});
        QCOMPARE(rig.shown("sound of hdmi2"), QString("sound of hdmi2: audio in"));
        const QByteArray before = rig.model.registers().read(0x020001F0, 8);
        rig.model.adopt({0x020001F0, QByteArray(8, 1)});
        QCOMPARE(rig.model.registers().read(0x020001F0, 8), before);
    }

    void memoryEndsAndSaysSo()
    {
        constexpr quint32 nobodys = 0x40000000, apart = 4096;
        constexpr int writes = 40000;
        ModelRig rig;
        int kept = 0;
        for (quint32 n = 0; n < writes; ++n) {
            rig.write(nobodys + apart * n, "a5");
            kept += rig.model.registers().u8(nobodys + apart * n) == 0xa5;
        }
        QVERIFY(kept > 10000 && kept < writes);
        QCOMPARE(rig.shown("bytes without room"), QString("bytes without room: %1").arg(writes - kept));
    }
};

FPD_TEST_GUILESS(TestDeviceRegisters)
#include "tst_deviceregisters.moc"
