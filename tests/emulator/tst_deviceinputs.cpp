// Sources come, go and change: what the device tells of it, also of what follows from it.
#include "emulator/model/inputs.h"
#include "emulator/model/output.h"
#include "emulator/model/ports.h"
#include "modelrig.h"
#include "tests/testprogram.h"

using inputs::Signal;

namespace
{
Signal live(const char *mode)
{
    Signal signal;
    signal.stable = true;
    signal.mode = VideoMode::parse(mode).value();
    return signal;
}
} // namespace

class TestDeviceInputs : public QObject
{
    Q_OBJECT
private slots:
    void listOfTheStart()
    {
        const ModelRig rig;
        const Reports reports = rig.model.reports();
        const int codes[] = {17, 18, 0, 48, 106, 233, 234, 224, 254};
        for (int input = 0; input < 9; ++input) {
            QCOMPARE(reports[input].address, 0x13010001u + 32 * unsigned(input));
            QCOMPARE(int(quint8(reports[input].bytes[0])), codes[input]);
        }
        QCOMPARE(reports[0].bytes.left(9).toHex(), QByteArray("110003800738041b41"));
        QCOMPARE(ModelRig::hexOf(reports, 0x13040003), QByteArray("800738047017"));
        QCOMPARE(ModelRig::hexOf(reports, 0x02100006), QByteArray("e0010e01"));
        QCOMPARE(ModelRig::hexOf(reports, 0x0200001F), QByteArray("0f"));
        QCOMPARE(ModelRig::hexOf(reports, 0x020001E0), QByteArray("f0"));
        // Layers, pictures, sound and so on tell what stands in the flash.
        for (const Report &report : reports) {
            const qint64 mirror = FlashImage::mirrorAddress(sendingSide, report.address);
            if (mirror >= 0 && (report.address < 0x13019015 || report.address > 0x13019094))
                QCOMPARE(rig.flashHex(quint32(mirror), report.bytes.size()), report.bytes.toHex());
        }
        // Both services are up after all that.
        QCOMPARE(reports.last().address, 0x14000000u);
        QCOMPARE(reports.last().bytes.toHex(), QByteArray("02"));
    }

    void records_data()
    {
        // mode: empty: pulled
        const DataRows<int, QString, QByteArray> row{"input", "mode", "record"};
        row("film rate", int(inputs::hdmi2), "3840x2160@23.98", "120003 000f 7008 e5a2");
        row("interlaced", int(inputs::sdi), "1920x1080i@59.94", "300103 8007 3804 2b41");
        row("pulled", int(inputs::hdmi1), "", "110000 0000 0000 0000");
    }
    void records()
    {
        const auto [input, mode, record] = fetched<int, QString, QByteArray>({"input", "mode", "record"});
        ModelRig rig;
        const Signal signal = mode.isEmpty() ? Signal() : live(qPrintable(mode));
        const Reports reports = inputs::setSignal(rig.model.registers(), input, signal);
        QCOMPARE(ModelRig::hexOf(reports, inputs::recordAddress(input)).left(18),
                 QByteArray::fromHex(record).toHex());
        QCOMPARE(inputs::signalOf(rig.model.registers(), input).stable, signal.stable);
        if (signal.stable) {
            QCOMPARE(inputs::signalOf(rig.model.registers(), input).mode.text(), mode);
            inputs::setSignal(rig.model.registers(), input, Signal());
            inputs::setSignal(rig.model.registers(), input, Signal()); // pulled and pulled
            QCOMPARE(inputs::lastSignal(rig.model.registers(), input).mode.text(), mode);
        }
    }

    void modes_data()
    {
        const DataRows<QString, bool> row{"text", "isMode"};
        row("whole rate", "1920x1080@60", true);
        row("hundredths", "1280x720@59.94", true);
        row("slowest", "1x1@16", true);
        row("too slow for a period", "1x1@15.99", false);
        row("too wide", "65536x1@60", false);
        row("no width", "0x1080@60", false);
        row("no rate", "1920x1080", false);
        row("thousandths", "1920x1080@59.940", false);
        row("too fast", "1920x1080@655.36", false);
    }
    void modes()
    {
        QFETCH(QString, text);
        const auto mode = VideoMode::parse(text);
        QTEST(mode.has_value(), "isMode");
        if (mode)
            QCOMPARE(mode->text(), text);
    }

    void outputFollowsItsSource()
    {
        ModelRig rig;
        Registers &registers = rig.model.registers();
        inputs::setSignal(registers, inputs::hdmi2, live("1920x1080@50"));
        rig.write(0x1300002B, "02");
        Reports reports = rig.write(0x1300002A, "01");
        QCOMPARE(ModelRig::hexOf(reports, 0x1300002A), QByteArray("0102"));
        QCOMPARE(ModelRig::hexOf(reports, 0x1300009D), QByteArray("02"));
        QCOMPARE(ModelRig::hexOf(reports, 0x13040003), QByteArray("800738048813"));
        reports = inputs::setSignal(registers, inputs::hdmi2, Signal());
        QCOMPARE(ModelRig::hexOf(reports, 0x1300009D), QByteArray("04"));
        QCOMPARE(ModelRig::hexOf(reports, 0x13040003), QByteArray("800738047017"));
        reports = inputs::setSignal(registers, inputs::hdmi1, live("1280x720@50"));
        QVERIFY(!ModelRig::find(reports, 0x1300009D));
        reports = rig.write(0x1300002A, "00");
        QCOMPARE(ModelRig::hexOf(reports, 0x1300009D), QByteArray("00"));
    }

    void softwareTakesTheOutputOver()
    {
        ModelRig rig;
        QVERIFY(rig.write(0x13041401, "000400037017").isEmpty());
        Reports reports = rig.write(0x13042007, "01");
        QCOMPARE(ModelRig::hexOf(reports, 0x13042007), QByteArray("01"));
        QCOMPARE(ModelRig::hexOf(reports, 0x13040003), QByteArray("000400037017"));
        QCOMPARE(rig.flashHex(0x2F00, 1), QByteArray("01"));
        // The panel sends the mode first and then the size.
        reports = rig.write(0x13041401, "000500038813");
        QCOMPARE(ModelRig::hexOf(reports, 0x13040003), QByteArray("000500038813"));
        QVERIFY(!ModelRig::find(reports, 0x13041401));
    }

    void aSendingCardFollowsTheReference()
    {
        ModelRig rig;
        inputs::setSignal(rig.model.registers(), inputs::reference, live("1920x1080@50"));
        rig.write(0x1300002A, "0102"); // to HDMI 2, where nothing is plugged in
        QVERIFY(rig.write(0x1300002C, "00").isEmpty());
        Reports reports = rig.write(0x1300002C, "10");
        QCOMPARE(ModelRig::hexOf(reports, 0x1300009D), QByteArray("02"));
        QCOMPARE(ModelRig::hexOf(reports, 0x13040003), QByteArray("800738048813"));
        QVERIFY(!ModelRig::find(reports, 0x1300002C));
        reports = rig.write(0x1300002C, "00");
        QCOMPARE(ModelRig::hexOf(reports, 0x1300009D), QByteArray("04"));
        QCOMPARE(ModelRig::hexOf(reports, 0x13040003), QByteArray("800738047017"));
    }

    void sourceTakesTheNewEdid()
    {
        ModelRig rig;
        const Reports reports = rig.write(0x13014200, "1100000a40067017");
        QCOMPARE(ModelRig::hexOf(reports, 0x13010001).left(18), QByteArray("110003000a40061b41"));
        QVERIFY(rig.write(0x13014200, "1201000a40067017").isEmpty()); // nothing is plugged in there
        QVERIFY(rig.write(0x13014200, "7701000a40067017").isEmpty()); // no such input
    }

    void mosaicLivesOnItsParts()
    {
        ModelRig rig;
        Registers &registers = rig.model.registers();
        QByteArray mosaic = QByteArray::fromHex("0201010201010000000000000000000011000000000080073804");
        mosaic = mosaic.leftJustified(32, '\0') + QByteArray::fromHex("12010000000080073804");
        mosaic = mosaic.leftJustified(48, '\0');
        QCOMPARE(ModelRig::hexOf(rig.write(0x13060000, mosaic.toHex()), 0x13060000), mosaic.toHex());
        QVERIFY(!inputs::signalOf(registers, inputs::mosaic).stable);
        const Reports reports = inputs::setSignal(registers, inputs::hdmi2, live("1920x1080@60"));
        QCOMPARE(ModelRig::hexOf(reports, inputs::recordAddress(inputs::mosaic)).left(18),
                 QByteArray("e00003000f38041b41"));
        inputs::setSignal(registers, inputs::hdmi1, Signal());
        QVERIFY(!inputs::signalOf(registers, inputs::mosaic).stable);
    }

    void portsTellWhatConcernsThem_data()
    {
        // idleAddress: 0: not told
        const DataRows<int, int, uint, QByteArray, uint, QByteArray> row{"port",  "state",       "address",
                                                                         "bytes", "idleAddress", "idle"};
        using ports::State;
        row("sixth link", 5, int(State::link), 0x0200009Fu, "02", 0x020001E0u, "d0");
        row("last link", 9, int(State::link), 0x02000126u, "02", 0x020001E1u, "01");
        row("first backup", 0, int(State::backup), 0x02000018u, "80000000", 0u, {});
        row("eighth backup", 7, int(State::backup), 0x02000098u, "00000080", 0u, {});
        row("fourth engaged", 3, int(State::engaged), 0x0200001Eu, "80", 0u, {});
        row("ninth engaged", 8, int(State::engaged), 0x02000120u, "02", 0u, {});
    }
    void portsTellWhatConcernsThem()
    {
        const auto [port, state, address, bytes, idleAddress, idle] =
            fetched<int, int, uint, QByteArray, uint, QByteArray>(
                {"port", "state", "address", "bytes", "idleAddress", "idle"});
        ModelRig rig;
        const Reports reports = ports::set(rig.model.registers(), port, ports::State(state), true);
        QCOMPARE(reports.size(), idleAddress ? 2 : 1);
        QCOMPARE(ModelRig::hexOf(reports, address), bytes);
        if (idleAddress)
            QCOMPARE(ModelRig::hexOf(reports, idleAddress), idle);
    }
};

FPD_TEST_GUILESS(TestDeviceInputs)
#include "tst_deviceinputs.moc"
