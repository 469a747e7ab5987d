// What the device reports of its inputs and ports, as the home screen of the running panel shows it.
#include "client/homescreen.h"
#include "tests/system/pushes/pushes.h"
#include "tests/testprogram.h"

using namespace VASK;

namespace
{
constexpr int codes[] = {17, 18, 0, 48, 106, 233, 234, 224, 254}; ///< by which the device lists its inputs

struct Signal {
    int interlaced, state, width, height, periodUs, sampling;
};

QString record(int input, const Signal &signal)
{
    return QString::number(0x13010001 + 32 * input, 16) + ' ' + littleEndian(codes[input], 1) +
           littleEndian(signal.interlaced, 1) + littleEndian(signal.state, 1) +
           littleEndian(signal.width, 2) + littleEndian(signal.height, 2) + littleEndian(signal.periodUs, 2) +
           QString(2 * 17, '0') + littleEndian(signal.sampling, 6);
}

PushRow inputRow(const QString &name, int input, const Signal &signal)
{
    const int values[] = {codes[input],  signal.interlaced, signal.state,   signal.width,
                          signal.height, signal.periodUs,   signal.sampling};
    QStringList told;
    for (int value : values)
        told << itemnames::line(PARA_InputRecordFirst + STRIDE_InputRecord * input + told.size(),
                                QString::number(value));
    return PushRow(name, record(input, signal)).tells(told.join(' '));
}

/// A layer's window as it stands at first, with another source.
QString window(int layer, int status, int input)
{
    static const char *const geometry[] = {"00000000000000008007000038040000",
                                           "0000000000000000e00100000e010000",
                                           "e001000000000000e00100000e010000"};
    return QString::number(0x13020010 + 48 * layer, 16) + ' ' + littleEndian(status, 2) +
           littleEndian(input, 1) + littleEndian(layer, 2) + geometry[layer] + QString(2 * 26, '0') + "64";
}

/// The values of a group of ports, in the order of the ports.
QString ports(int first, const QString &states)
{
    QStringList told;
    for (QChar state : states)
        told << itemnames::line(first + told.size(), state);
    return told.join(' ');
}
} // namespace

class TestPushesInputs : public PushesTest
{
    Q_OBJECT
private slots:
    /// A device of the other family of codes, without SDI. The reference closes the list, in the order of
    /// arrival.
    void deviceListsItsInputs()
    {
        QVERIFY(restart());
        QVERIFY(m_pushes.flush());
        const QString sampled = "0003800738041a41" + QString(2 * 17, '0');
        expect({
            PushRow("HDMI 1", "13010001 61" + sampled + "01")
                .stores("HDMI1_ColorSample=YCbCr 4:2:2 MainLayer_InputCrop/Enable=true "
                        "PIP1_InputCrop/Enable=true PIP2_InputCrop/Enable=true")
                .shows({"main:1920x1080@60"}),
            PushRow("HDMI 2", "13010021 62" + sampled + "02").stores("HDMI2_ColorSample=YCbCr 4:4:4"),
            PushRow("DVI", "13010041 69" + sampled + "01").stores("DVI_ColorSample=YCbCr 4:2:2"),
            PushRow("DVI 2, which has no page", "13010061 6a" + sampled + "02"),
            PushRow("OPT 1", "13010081 e9"),
            PushRow("OPT 2", "130100a1 ea"),
            PushRow("mosaic", "130100c1 e0"),
            PushRow("reference", "13010101 fe")
                .stores("SDI/Enable=false AudioInput_SDI/Enable=false "
                        "MainLayer_InputSource/Params1/3=Disable PIP1_InputSource/Params1/3=Disable "
                        "PIP2_InputSource/Params1/3=Disable Sync_Source/Params1/3=Disable"),
            PushRow("SDI, too late", "130100e1 30"),
        });
        QVERIFY(m_panel.press("in2"));
        QVERIFY(m_panel.waitUntil([this] { return m_panel.writes().contains("13020012 00 010062"); }));
        QVERIFY(m_walk.home());
        // And the usual device again.
        QVERIFY(m_panel.ask({"panel", "stop"}).ok);
        for (const char *input : {"hdmi2", "dvi", "sdi", "dvi2", "opt1", "opt2", "mosaic", "reference"})
            QVERIFY(m_panel.ask({"signal", input, "off"}).ok);
        QVERIFY(m_panel.ask({"signal", "hdmi1", "on", "1920x1080@60", "rgb444"}).ok);
        QVERIFY(m_panel.ask({"reports", "on"}).ok);
        QVERIFY(m_panel.start());
        QVERIFY(m_pushes.begin());
        QVERIFY(m_pushes.push({window(0, 1, 0)}));
        QVERIFY(m_pushes.flush());
    }

    void records()
    {
        const QString noSignal = m_walk.text("No Signal");
        expect({
            PushRow("PIPs on", window(1, 1, 1) + ';' + window(2, 1, 2))
                .stores("PIP1_{Status=1 InputSource=1 InputCrop/Enable=false} PIP2_{Status=1 InputSource=2 "
                        "InputCrop/Enable=false} MainLayerTransition=1 MainLayerTransition/Enable=false "
                        "TransitionDuration/Enable=false")
                .shows({"pip1name:HDMI2", "pip2name:DVI"})
                .answers({"13000001 00 00", "13000001 00 00"}),
            inputRow("HDMI 1", 0, {0, 3, 1280, 720, 20000, 1})
                .stores("HDMI1_ColorSample=YCbCr 4:2:2")
                .shows({"main:1280x720@50"}),
            inputRow("HDMI 2, interlaced", 1, {1, 3, 1920, 1080, 16667, 2})
                .stores("PIP1_InputCrop/Enable=true HDMI2_ColorSample=YCbCr 4:4:4")
                .shows({"pip1:1920x1080i@60"}),
            inputRow("DVI, a fraction", 2, {0, 3, 1024, 768, 16683, 1})
                .stores("PIP2_InputCrop/Enable=true DVI_ColorSample=YCbCr 4:2:2")
                .shows({"pip2:1024x768@59.94"}),
            inputRow("SDI", 3, {0, 3, 1280, 720, 40000, 2}).stores("SDI_ColorSample=YCbCr 4:4:4"),
            inputRow("DVI 2", 4, {0, 3, 800, 600, 16667, 2}),
            inputRow("OPT 1", 5, {0, 3, 801, 601, 16667, 1}),
            inputRow("OPT 2", 6, {0, 0, 802, 602, 16667, 2}),
            inputRow("mosaic", 7, {0, 3, 3840, 1080, 16667, 0}),
            inputRow("reference", 8, {0, 3, 0, 0, 16683, 0}),
            PushRow("SDI on the main layer", window(0, 1, 3))
                .stores("MainLayer_InputSource=3")
                .shows({"mainname:SDI", "main:1280x720@25"}),
            inputRow("SDI lost", 3, {0, 1, 1280, 720, 40000, 9})
                .stores("MainLayer_InputCrop/Enable=false")
                .shows({"main:" + noSignal}),
            inputRow("DVI lost", 2, {0, 0, 0, 0, 0, 0})
                .stores("PIP2_InputCrop/Enable=false DVI_ColorSample=RGB 4:4:4")
                .shows({"pip2:" + noSignal}),
            PushRow("a short record", "13010021 12")
                .tells(
                    "InputRecordFirst+7=18 InputRecordFirst+8=0 InputRecordFirst+9=0 InputRecordFirst+10=0 "
                    "InputRecordFirst+11=0 InputRecordFirst+12=0 InputRecordFirst+13=0")
                .stores("PIP1_InputCrop/Enable=false HDMI2_ColorSample=RGB 4:4:4")
                .shows({"pip1:" + noSignal}),
            PushRow("HDMI 1 again", window(0, 1, 0))
                .stores("MainLayer_{InputSource=0 InputCrop/Enable=true}")
                .shows({"main:1280x720@50"}),
        });
    }

    void outputFollowsItsSource()
    {
        expect({
            PushRow("in step with the reference", "1300002a 0101")
                .stores("Sync_Status=1")
                .shows({"screen:1920x1080@59.94"}),
            PushRow("in step with DVI", "1300002a 0103").stores("Sync_Source=2").shows({"sync:DVI"}),
            inputRow("DVI a little faster", 2, {0, 3, 1024, 768, 16667, 0})
                .stores("PIP2_InputCrop/Enable=true")
                .shows({"screen:1920x1080@60", "pip2:1024x768@60"}),
            inputRow("DVI too slow", 2, {0, 3, 1024, 768, 20000, 0}).shows({"pip2:1024x768@50"}),
            inputRow("HDMI 1 a little slower", 0, {0, 3, 1280, 720, 16683, 0})
                .stores("HDMI1_ColorSample=RGB 4:4:4")
                .shows({"main:1280x720@59.94"}),
            PushRow("free", "1300002a 0003").stores("Sync_Status=0").answers({"13040007 00 7017"}),
            inputRow("DVI a little slower", 2, {0, 3, 1024, 768, 16683, 0}).shows({"pip2:1024x768@59.94"}),
        });
        QVERIFY(homescreen::sees(m_panel, "screen:1920x1080@60"));
    }

    void pixelToPixelFollowsTheInput()
    {
        QVERIFY(scaleToPixels({MENU_LayerSettings, MENU_MainLayer, MENU_MainLayer_ScalingMode}));
        QVERIFY(scaleToPixels({MENU_LayerSettings, MENU_PIP1, MENU_PIP1_ScalingMode}));
        QVERIFY(m_pushes.flush());
        QCOMPARE(m_panel.stored(MENU_MainLayer_ScalingMode), QString("1"));
        QCOMPARE(m_panel.stored(MENU_PIP1_ScalingMode), QString("1"));
        expect({
            inputRow("main", 0, {0, 3, 1600, 1200, 16667, 0})
                .stores("MainLayer_{HorWidth=1600 VerHeight=1200}")
                .shows({"main:1600x1200@60"})
                .answers({"13020015 00 000000000000000040060000b0040000"}),
            inputRow("main without a signal", 0, {0, 0, 1600, 1200, 16667, 0})
                .stores("MainLayer_{HorWidth=1920 VerHeight=1080 InputCrop/Enable=false}")
                .answers({"13020015 00 00000000000000008007000038040000"}),
            inputRow("PIP", 1, {0, 3, 1280, 720, 16667, 0})
                .stores("PIP1_{HorWidth=1280 VerHeight=720 InputCrop/Enable=true}")
                .shows({"pip1:1280x720@60"})
                .answers({"13020045 00 000000000000000000050000d0020000"}),
            inputRow("more than a PIP carries", 1, {0, 3, 2560, 1600, 16667, 0}).shows({"pip1:2560x1600@60"}),
        });
    }

    void links()
    {
        expect({
            PushRow("ports 1 to 4", "0200001f 0a")
                .tells(ports(PARA_PortLink, "0101"))
                .shows({"port1:dark", "port3:dark"}),
            PushRow("ports 5 to 8", "0200009f 03")
                .tells(ports(PARA_PortLink + 4, "1100"))
                .shows({"port5:green", "port6:green"}),
            PushRow("ports 9 and 10", "02000126 fe").tells(ports(PARA_PortLink + 8, "01")),
            PushRow("active 1 to 8", "020001e0 fe").tells(ports(PARA_PortActive, "10000000")),
            PushRow("active 9 and 10", "020001e1 02").tells(ports(PARA_PortActive + 8, "10")),
        });
        QCOMPARE(homescreen::portColour(m_panel, 2), QString("green"));
    }

    void backups()
    {
        expect({
            PushRow("port 2", "02000018 01800000")
                .tells(ports(PARA_PortBackup, "0100"))
                .shows({"port2:yellow"}),
            PushRow("port 5", "02000098 80000080")
                .tells(ports(PARA_PortBackup + 4, "1001"))
                .shows({"port5:yellow"}),
            PushRow("port 9", "02000100 8000").tells(ports(PARA_PortBackup + 8, "10")),
            PushRow("all that there are", "02000018 80808080;02000098 80800000")
                .stores("DeviceBackup=1 DeviceBackup/Choice=1")
                .shows({"port4:yellow", "port6:yellow"}),
            PushRow("none", "02000018 00000000;02000098 00000000")
                .stores("DeviceBackup=0 DeviceBackup/Choice=0")
                .shows({"port2:green", "port4:green", "port5:green", "port6:green"}),
            PushRow("port 2 engaged", "0200001e 08")
                .tells(ports(PARA_PortBackupEngaged, "0100"))
                .shows({"port2:blinking"}),
            PushRow("only ready", "0200001e 04").tells(ports(PARA_PortBackupEngaged, "0000")),
            PushRow("port 6 engaged", "0200009e 0c")
                .tells(ports(PARA_PortBackupEngaged + 4, "0100"))
                .shows({"port6:blinking"}),
            PushRow("no more", "0200009e 00").tells(ports(PARA_PortBackupEngaged + 4, "0000")),
            PushRow("port 10 engaged", "02000120 08").tells(ports(PARA_PortBackupEngaged + 8, "01")),
        });
    }

    void opticalLinks()
    {
        expect({
            PushRow("ports of link 1", "020001f2 21")
                .tells(ports(PARA_OPT1PortLink, "10000100"))
                .shows({"port1:green"}),
            PushRow("its last ports", "020001f3 02").tells(ports(PARA_OPT1PortLink + 8, "01")),
            PushRow("ports of link 2", "020001f4 10").tells(ports(PARA_OPT2PortLink, "00001000")),
            PushRow("its last ports too", "020001f5 01").tells(ports(PARA_OPT2PortLink + 8, "10")),
            PushRow("port 1 of link 1 engaged", "020001f6 02")
                .tells(ports(PARA_OPT1BackupEngaged, "1000"))
                .shows({"port1:blinking"}),
            PushRow("no more", "020001f6 00").tells(ports(PARA_OPT1BackupEngaged, "0000")),
            PushRow("port 6 of link 1 engaged", "020001f7 08")
                .tells(ports(PARA_OPT1BackupEngaged + 4, "0100"))
                .shows({"port6:blinking"}),
            PushRow("none of it", "020001f7 55").tells(ports(PARA_OPT1BackupEngaged + 4, "0000")),
            PushRow("port 10 of link 1 engaged", "020001f8 08")
                .tells(ports(PARA_OPT1BackupEngaged + 8, "01")),
            PushRow("port 3 of link 2 engaged", "020001f9 20").tells(ports(PARA_OPT2BackupEngaged, "0010")),
            PushRow("port 8 of link 2 engaged", "020001fa 80")
                .tells(ports(PARA_OPT2BackupEngaged + 4, "0001")),
            PushRow("port 9 of link 2 engaged", "020001fb 02").tells(ports(PARA_OPT2BackupEngaged + 8, "10")),
            // An input over the fiber is stable: the ports show their own cables.
            PushRow("link 1", "020001d7 01").tells("OPT1Link=1 OPT2Link=0").shows({"port1:dark"}),
            PushRow("link 2", "020001d7 02").tells("OPT1Link=0 OPT2Link=1").shows({"port1:green"}),
            PushRow("no port of link 1", "020001f2 00")
                .tells(ports(PARA_OPT1PortLink, "00000000"))
                .shows({"port1:dark"}),
        });
    }

private:
    bool scaleToPixels(const QList<ENUM_MenuIndex> &rows)
    {
        return m_walk.go(rows) && m_walk.turn(Left, 1) && m_walk.press(keys::Ok) && m_walk.home();
    }
};

FPD_TEST(TestPushesInputs)
#include "tst_pushesinputs.moc"
