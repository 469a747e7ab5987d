// What the device reports as events: its services' start, a name, cabinet files, calibration, an output that
// a PC has chosen, a self test; and what is no report, in the running panel.
#include "client/homescreen.h"
#include "tests/system/pushes/pushes.h"
#include "tests/testprogram.h"

using namespace VASK;

namespace
{
/// Reports that would change something if they were whole, or went to another side.
const QVector<QPair<const char *, QStringList>> nothings{
    {"for the wrong device",
     {"02000001 66 --device 4", "02002001 01 --device 4", "13000004 04 --device 2",
      "1300002a 0102 --device 1", "13040003 0005d0028813 --device 1", "0200001f ff --device 1",
      "0200004a 00 --device 1"}},
    {"too short for its numbers",
     {"13040003 0005d00288", "13040010 000000000a200370", "13041401 0005d00270", "02100006 000200",
      "13000006 c000a80005000700ff00ff00fe000000c0a805", "020001f0 64000000ceffff", "02000018 808080",
      "02000098 808080", "02000100 80", "02002002 48e8", "02000089 e8", "13024014 11000114002800e80370"}},
    {"without a byte", {"02000001", "01000088", "0200001f", "0200009f", "02000126", "0200001e", "020001d7",
                        "020001f2", "020001e0", "1300001a", "13000004", "13019015", "01000002", "0ff00000",
                        "1300002c", "0200009c", "14000000", "02000039", "02000041", "02000042", "02002001"}},
    {"of no meaning",
     {"01000002 03", "1300002c 01", "0200009c 01", "0ff00000 02", "14000000 03", "02000041 00", "13000004 09",
      "1300009d 05", "13019015 04", "13050064 00616263646566"}},
    {"of no register that is reported",
     {"13010121 110003000500034e2041", "13020011 01", "13024174 1100011400280064006400", "13012345 01",
      "02000017 00010001 --device 1", "02000016 000100 --device 1", "05000000 00 --device 1"}},
};
} // namespace

class TestPushesEvents : public PushesTest
{
    Q_OBJECT
private slots:
    void noReports()
    {
        // The status of a packet is kept, and no report is weighed by it.
        QCOMPARE(m_pushes.run({PushRow("some brightness", "02000001 4d --ack 1")
                                   .stores("ScreenBrightness=30")
                                   .shows({"bright:30%"})}),
                 QString());
        const QImage before = screenBelowTheAddress();
        QVector<PushRow> rows;
        for (const auto &kind : nothings)
            for (const QString &report : kind.second)
                rows << PushRow(QString("%1: %2").arg(kind.first, report), report);
        expect(rows);
        QVERIFY(m_panel.settle());
        QCOMPARE(screenBelowTheAddress(), before);
    }

    void servicesStart()
    {
        QVERIFY(m_panel.ask({"env", "set", "ver_rootfs", "V9.8.7"}).ok);
        const QString addressOff = "Net_{IPAddress/Enable=false SubnetMask/Enable=false Gateway/Enable=false "
                                   "Apply/Enable=false Reset/Enable=false}";
        expect({
            PushRow("video", "14000000 01")
                .tells("VideoServiceStarted=1")
                .stores("About_VersionValue=V9.8.7"),
            PushRow("automatic address", "1300001a a8").stores("Net_NetMode=1 DhcpDone=0 " + addressOff),
            PushRow("sender", "14000000 02").tells("SenderServiceStarted=2").answers({"1300001a 00 a8"}),
            PushRow("manual address", "1300001a 00")
                .stores("Net_NetMode=0 " + QString(addressOff).replace("false", "true")),
            PushRow("sender, manual address", "14000000 02").tells("SenderServiceStarted=2"),
        });
    }

    /// Protection that is not kept is switched off at each of the inputs.
    void protectionIsSwitchedOff()
    {
        QVERIFY(m_panel.ask({"panel", "stop"}).ok);
        QVERIFY(m_panel.setStored(MENU_HDCPMemory, "0"));
        QVERIFY(m_panel.ask({"reports", "on"}).ok);
        QVERIFY(m_panel.start());
        QVERIFY(m_pushes.begin());
        expect({
            PushRow("video", "14000000 01")
                .tells("VideoServiceStarted=1")
                .answers({"13019004 00 01", "13019014 00 01", "13019024 00 01", "13019034 00 01"}),
        });
    }

    void deviceGetsAName()
    {
        QString name;
        for (QChar letter : QString("Hall 7"))
            name += littleEndian(letter.unicode(), 2);
        QVERIFY(m_panel.ask({"flash", "write", "D14000", "9a"}).ok);
        QVERIFY(m_panel.ask({"flash", "write", "D14100", name.leftJustified(128, '0')}).ok);
        expect({PushRow("renamed", "0ff00001 00").shows({"ip:Hall 7"})});
    }

    void cabinetFilesArrive()
    {
        QVERIFY(m_walk.go({MENU_AdvancedSetting, MENU_ScreenSetting, MENU_LoadCabFiles}));
        QVERIFY(m_panel.waitFor("P1.5-480x270.cab"));
        const QString first = "P4-64x64.cab", later = "P5-48x48.cab";
        QVERIFY(renameFirstFile(first));
        QVERIFY(m_pushes.push({"0ff00000 00"}));
        QVERIFY(m_panel.settle());
        QVERIFY(m_panel.shows("P1.5-480x270.cab"));
        QVERIFY(m_pushes.push({"0ff00000 01"}));
        QVERIFY(m_panel.waitFor(first));
        QVERIFY(m_panel.shows("P2.5-128x128.cab"));
        // The page fills itself when it opens.
        QVERIFY(m_walk.home() && renameFirstFile(later));
        QVERIFY(m_pushes.push({"0ff00000 01"}) && m_pushes.flush());
        QCOMPARE(m_panel.stored(MENU_CabinetFile1), first);
    }

    void wallIsCalibrated()
    {
        QVERIFY(m_pushes.push({"0200009c 00"})); // none has begun
        QVERIFY(homescreen::sees(m_panel, "main:1920x1080@60"));
        QVERIFY(m_pushes.push({"0200009c a8"}));
        QVERIFY(m_panel.waitFor(m_walk.text("SoftCalibrating")));
        QVERIFY(m_pushes.push({"0200009c 00"}));
        QVERIFY(m_panel.waitFor(m_walk.text("SoftCalibrateExit")));
        QVERIFY(homescreen::waitToSee(m_panel, "main:1920x1080@60"));
    }

    void outputIsChosenByAPc()
    {
        // What the rates of a size leave of the list.
        const QString fourRates = "Output_{FrameRate/Params/0=48 FrameRate/Params/1=50 "
                                  "FrameRate/Params/2=59.94 FrameRate/Params/3=60}";
        const QString nineRates =
            "Output_{FrameRate/Params/0=23.98 FrameRate/Params/1=24 FrameRate/Params/2=25 "
            "FrameRate/Params/3=29.97 FrameRate/Params/4=30 FrameRate/Params/5=48 FrameRate/Params/6=50 "
            "FrameRate/Params/7=59.94 FrameRate/Params/8=60 FrameRate/Params1/4=Enable "
            "FrameRate/Params1/5=Enable FrameRate/Params1/6=Enable FrameRate/Params1/7=Enable "
            "FrameRate/Params1/8=Enable}";
        const QString waiting = m_walk.text("Waiting");
        const QVector<PushRow> rows{
            PushRow("with its list of rates", "13041401 4006b0048813")
                .tells("Output_{Resolution=5 FrameRate=1} Output_Apply=")
                .stores("Output_{Resolution=5 FrameRate=1} " + fourRates)
                .answers({"13042007 00 00"}),
            PushRow("video output", "13042007 01").stores("Output_Mode=1"),
            PushRow("to video output", "13041401 0005d0026a17")
                .tells("Output_{Resolution=1 FrameRate=7} Output_Apply=")
                .stores("Output_{Resolution=1 FrameRate=7} OutputMode=1 Mode3D/Enable=false " + nineRates)
                .shows({"screen:1280x720@59.94"})
                .answers({"13042007 00 01"}),
            PushRow("a size that there is not", "13041401 e703e7037017")
                .tells("Output_FrameRate=8 Output_Apply=")
                .stores("Output_FrameRate=8")
                .shows({"screen:1280x720@60"})
                .answers({"13042007 00 01"}),
            PushRow("monitor", "13042007 00").stores("Output_Mode=0"),
            PushRow("to monitor", "13041401 80073804f00a")
                .tells("Output_Resolution=7 Output_Apply=")
                .stores("Output_Resolution=7 OutputMode=0")
                .answers({"13042007 00 00"}),
        };
        QVERIFY(m_pushes.push({"13041401 800738047017"})); // as it is
        QVERIFY(m_panel.waitFor(waiting));
        QVERIFY(homescreen::waitToSee(m_panel, "main:1920x1080@60"));
        expect(rows);
    }

    /// The list of the self check is all that takes it.
    void selfTestIsTaken()
    {
        const QByteArray text(
            "HEAD;F_VERSION:--:V3.4.5:normal;F_CONNECT:--:lost:--:error;F_VCCINT:--:--;\0;");
        expect({PushRow("good and bad", "13800000 " + text.toHex())});
    }

private:
    bool renameFirstFile(const QString &name)
    {
        QFile index(m_panel.file("/usr/vask/etc/fpd/cabCfg/AllCabCfgFileName"));
        return index.open(QIODevice::ReadWrite) &&
               index.write(reinterpret_cast<const char *>(name.utf16()), 2 * name.size()) ==
                   2 * name.size() &&
               index.write(QByteArray(2 * 16, '\0')) > 0;
    }
    QImage screenBelowTheAddress() const { return m_panel.screen().copy(0, 28, 320, 212); }
};

FPD_TEST(TestPushesEvents)
#include "tst_pushesevents.moc"
