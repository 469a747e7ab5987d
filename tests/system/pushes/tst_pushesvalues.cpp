// What the device reports of pictures, sound, on-screen display, wall and network, in the running panel.
#include "tests/system/pushes/pushes.h"
#include "tests/testprogram.h"

class TestPushesValues : public PushesTest
{
    Q_OBJECT
private slots:
    void pictures()
    {
        expect({
            PushRow("HDMI 1", "13050000 003d3e003f4000")
                .stores("HDMI1_{Brightness=61 Contrast=62 Saturation=63 Hue=64}"),
            PushRow("HDMI 2", "13050014 000a0b000cf6ff")
                .stores("HDMI2_{Brightness=10 Contrast=11 Saturation=12 Hue=-10}"),
            PushRow("DVI", "13050028 000d0e000f4cff")
                .stores("DVI_{Brightness=13 Contrast=14 Saturation=15 Hue=-180}"),
            PushRow("DVI 2", "1305003c 0010110012b400")
                .stores("DVI2_{Brightness=16 Contrast=17 Saturation=18 Hue=180}"),
            PushRow("SDI", "13050050 00131400150100")
                .stores("SDI_{Brightness=19 Contrast=20 Saturation=21 Hue=1}"),
            PushRow("OPT 1", "13050064 00161700180200"),
            PushRow("OPT 2", "13050078 00161700180200"),
            PushRow("mosaic", "1305008c 00161700180200"),
            PushRow("short", "13050000 0028").stores("HDMI1_{Brightness=40 Contrast=0 Saturation=0 Hue=0}"),
            PushRow("beyond the limits", "13050000 00650100020300")
                .stores("HDMI1_{Brightness=100 Contrast=1 Saturation=2 Hue=3}")
                .answers({"13050001 00 64"}),
        });
    }

    void sound()
    {
        QVector<PushRow> rows{
            PushRow("HDMI 1, from outside", "13019015 02").stores("AudioInput_HDMI1=1"),
            PushRow("HDMI 2, from outside", "13019025 00").stores("AudioInput_HDMI2=1"),
            PushRow("DVI, from outside", "13019035 01").stores("AudioInput_DVI=1"),
            PushRow("DVI 2, from outside", "13019045 02").stores("AudioInput_DVI2=1"),
            PushRow("SDI, from outside", "13019055 01").stores("AudioInput_SDI=1"),
            PushRow("OPT 1, from outside", "13019065 01").stores("AudioInput_OPT1_1=1"),
            PushRow("OPT 2, from outside", "13019075 01").stores("AudioInput_OPT1_2=1"),
            PushRow("mosaic, from outside", "13019085 02").stores("AudioInput_Mosaic=1"),
            PushRow("no sound of that number", "13019015 03"),
            PushRow("none either", "13019085 ff"),
            PushRow("output off, volume", "1300009e f037").stores("Audio_{AudioOutput=4 Volume=55}"),
            PushRow("HDMI 1, its own", "13019015 01").stores("AudioInput_HDMI1=0"),
            PushRow("HDMI 2, its own", "13019025 01").stores("AudioInput_HDMI2=0"),
        };
        for (int input = 2; input < 8; ++input)
            rows << PushRow(QString("none from input %1").arg(input),
                            QString::number(0x13019015 + 16 * input, 16) + " 00")
                        .stores(itemnames::line(VASK::MENU_AudioInput_HDMI1 + input, "0"));
        rows << PushRow("output of PIP 2", "1300009e 0321").stores("Audio_{AudioOutput=3 Volume=33}")
             << PushRow("output of nobody", "1300009e 072c").stores("Audio_Volume=44")
             << PushRow("output without a volume", "1300009e 02").stores("Audio_{AudioOutput=2 Volume=0}")
             << PushRow("volume", "1300009f 0b").stores("Audio_Volume=11")
             << PushRow("volume beyond its limit", "1300009f 65")
                    .stores("Audio_Volume=100")
                    .answers({"1300009f 00 64"})
             << PushRow("no volume", "1300009f").stores("Audio_Volume=0");
        expect(rows);
    }

    void onScreenDisplay()
    {
        const QString gap(2 * 28, '0'); // bytes 4 to 31
        QVector<PushRow> rows{
            PushRow("on", "13411000 01000005" + gap + "38ffffff2c010000")
                .stores("OSDState=1 OSDChoice=5 OSDInitialX=-200 OSDInitialY=300 OSDPriority=0"),
            PushRow("off, in front", "13411000 000e0002" + gap + "4d000000f8ffffff")
                .stores("OSDState=0 OSDChoice=2 OSDInitialX=77 OSDInitialY=-8 OSDPriority=1"),
            PushRow("short", "13411000 010f")
                .stores("OSDState=1 OSDChoice=0 OSDInitialX=0 OSDInitialY=0 OSDPriority=0"),
        };
        for (const char *state : {"00", "01"})
            for (int picture = 0; picture < 8; ++picture)
                rows << PushRow(QString("picture %1: %2").arg(picture).arg(state),
                                QString("1341200%1 %2").arg(picture).arg(state))
                            .stores(QString("OSDChoice/Params1/%1=%2")
                                        .arg(picture)
                                        .arg(state == QString("01") ? "Enable" : "Disable"));
        expect(rows);
    }

    void wall()
    {
        expect({
            PushRow("mapping on", "01000088 05 --device 1").stores("Mapping=1"),
            PushRow("mapping off", "01000088 ff").stores("Mapping=0"),
            PushRow("half as bright", "02000001 80 --device 1")
                .stores("ScreenBrightness=50")
                .shows({"bright:50%"}),
            PushRow("bright", "02000001 ff --device 1").stores("ScreenBrightness=100").shows({"bright:100%"}),
            PushRow("dark", "02000001 00").stores("ScreenBrightness=0"),
            PushRow("second of two registers", "02000000 1c99 --device 1")
                .stores("ScreenBrightness=60")
                .shows({"bright:60%"}),
            PushRow("part of a register", "02000016 aabbcc --device 1"),
            PushRow("other registers of the card", "02000002 80 --device 1;02000003 81 --device 1;02000004 "
                                                   "82 --device 1;01000011 01 --device 1"),
            PushRow("size of a cabinet", "02100006 00020010").tells("CabinetWidth=512 CabinetHeight=4096"),
            PushRow("low latency on", "02000074 78").stores("LowLatency=1"),
            PushRow("low latency off", "02000074 01").stores("LowLatency=0"),
            PushRow("set up by a PC", "0200004a 00").stores("SoftwareConfigured=1"),
        });
    }

    void network()
    {
        const QString waiting = "ip:" + m_walk.text("WaitIP");
        expect({
            PushRow("automatic", "1300001a a8")
                .stores("Net_NetMode=1 DhcpDone=0 Net_{IPAddress/Enable=false SubnetMask/Enable=false "
                        "Gateway/Enable=false Apply/Enable=false Reset/Enable=false}")
                .shows({waiting}),
            PushRow("address", "13000006 c000a80005000700ff00ff00fe000000c0a80501")
                .stores("Net_{IPAddress=192.168.5.7 SubnetMask=255.255.254.0 Gateway=192.168.5.1} DhcpDone=1")
                .shows({"ip:192.168.5.7"}),
            PushRow("automatic again", "1300001a a8").stores("DhcpDone=0").shows({waiting}),
            PushRow("manual", "1300001a 00")
                .stores("Net_{NetMode=0 IPAddress/Enable=true SubnetMask/Enable=true Gateway/Enable=true "
                        "Apply/Enable=true Reset/Enable=true}")
                .shows({"ip:192.168.5.7"}),
            PushRow("another address", "13000006 0a00000000000900ff000000000000000a000001")
                .stores("Net_{IPAddress=10.0.0.9 SubnetMask=255.0.0.0 Gateway=10.0.0.1} DhcpDone=1")
                .shows({"ip:10.0.0.9"}),
        });
    }
};

FPD_TEST(TestPushesValues)
#include "tst_pushesvalues.moc"
