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
            PushRow("HDMI 1", "13050000 003d3e003f4000").stores("3025=61 3026=62 3027=63 3028=64"),
            PushRow("HDMI 2", "13050014 000a0b000cf6ff").stores("3037=10 3038=11 3039=12 3040=-10"),
            PushRow("DVI", "13050028 000d0e000f4cff").stores("3049=13 3050=14 3051=15 3052=-180"),
            PushRow("DVI 2", "1305003c 0010110012b400").stores("3061=16 3062=17 3063=18 3064=180"),
            PushRow("SDI", "13050050 00131400150100").stores("3066=19 3067=20 3068=21 3069=1"),
            PushRow("OPT 1", "13050064 00161700180200"),
            PushRow("OPT 2", "13050078 00161700180200"),
            PushRow("mosaic", "1305008c 00161700180200"),
            PushRow("short", "13050000 0028").stores("3025=40 3026=0 3027=0 3028=0"),
            PushRow("beyond the limits", "13050000 00650100020300")
                .stores("3025=100 3026=1 3027=2 3028=3")
                .answers({"13050001 00 64"}),
        });
    }

    void sound()
    {
        QVector<PushRow> rows{
            PushRow("HDMI 1, from outside", "13019015 02").stores("3080=1"),
            PushRow("HDMI 2, from outside", "13019025 00").stores("3081=1"),
            PushRow("DVI, from outside", "13019035 01").stores("3082=1"),
            PushRow("DVI 2, from outside", "13019045 02").stores("3083=1"),
            PushRow("SDI, from outside", "13019055 01").stores("3084=1"),
            PushRow("OPT 1, from outside", "13019065 01").stores("3085=1"),
            PushRow("OPT 2, from outside", "13019075 01").stores("3086=1"),
            PushRow("mosaic, from outside", "13019085 02").stores("3087=1"),
            PushRow("no sound of that number", "13019015 03"),
            PushRow("none either", "13019085 ff"),
            PushRow("output off, volume", "1300009e f037").stores("2356=4 2357=55"),
            PushRow("HDMI 1, its own", "13019015 01").stores("3080=0"),
            PushRow("HDMI 2, its own", "13019025 01").stores("3081=0"),
        };
        for (int input = 2; input < 8; ++input)
            rows << PushRow(QString("none from input %1").arg(input),
                            QString::number(0x13019015 + 16 * input, 16) + " 00")
                        .stores(QString("%1=0").arg(3080 + input));
        rows << PushRow("output of PIP 2", "1300009e 0321").stores("2356=3 2357=33")
             << PushRow("output of nobody", "1300009e 072c").stores("2357=44")
             << PushRow("output without a volume", "1300009e 02").stores("2356=2 2357=0")
             << PushRow("volume", "1300009f 0b").stores("2357=11")
             << PushRow("volume beyond its limit", "1300009f 65")
                    .stores("2357=100")
                    .answers({"1300009f 00 64"})
             << PushRow("no volume", "1300009f").stores("2357=0");
        expect(rows);
    }

    void onScreenDisplay()
    {
        const QString gap(2 * 28, '0'); // bytes 4 to 31
        QVector<PushRow> rows{
            PushRow("on", "13411000 01000005" + gap + "38ffffff2c010000")
                .stores("1008=1 1009=5 1010=-200 1011=300 1012=0"),
            PushRow("off, in front", "13411000 000e0002" + gap + "4d000000f8ffffff")
                .stores("1008=0 1009=2 1010=77 1011=-8 1012=1"),
            PushRow("short", "13411000 010f").stores("1008=1 1009=0 1010=0 1011=0 1012=0"),
        };
        for (const char *state : {"00", "01"})
            for (int picture = 0; picture < 8; ++picture)
                rows << PushRow(QString("picture %1: %2").arg(picture).arg(state),
                                QString("1341200%1 %2").arg(picture).arg(state))
                            .stores(QString("1009/Params1/%1=%2")
                                        .arg(picture)
                                        .arg(state == QString("01") ? "Enable" : "Disable"));
        expect(rows);
    }

    void wall()
    {
        expect({
            PushRow("mapping on", "01000088 05 --device 1").stores("2013=1"),
            PushRow("mapping off", "01000088 ff").stores("2013=0"),
            PushRow("half as bright", "02000001 80 --device 1").stores("1=50").shows({"bright:50%"}),
            PushRow("bright", "02000001 ff --device 1").stores("1=100").shows({"bright:100%"}),
            PushRow("dark", "02000001 00").stores("1=0"),
            PushRow("second of two registers", "02000000 1c99 --device 1")
                .stores("1=60")
                .shows({"bright:60%"}),
            PushRow("part of a register", "02000016 aabbcc --device 1"),
            PushRow("other registers of the card", "02000002 80 --device 1;02000003 81 --device 1;"
                                                   "02000004 82 --device 1;01000011 01 --device 1"),
            PushRow("size of a cabinet", "02100006 00020010").tells("3235=512 3236=4096"),
            PushRow("low latency on", "02000074 78").stores("1055=1"),
            PushRow("low latency off", "02000074 01").stores("1055=0"),
            PushRow("set up by a PC", "0200004a 00").stores("3211=1"),
        });
    }

    void network()
    {
        const QString waiting = "ip:" + m_walk.text("WaitIP");
        expect({
            PushRow("automatic", "1300001a a8")
                .stores("2374=1 3212=0 2375/Enable=false 2376/Enable=false 2377/Enable=false "
                        "2378/Enable=false 2379/Enable=false")
                .shows({waiting}),
            PushRow("address", "13000006 c000a80005000700ff00ff00fe000000c0a80501")
                .stores("2375=192.168.5.7 2376=255.255.254.0 2377=192.168.5.1 3212=1")
                .shows({"ip:192.168.5.7"}),
            PushRow("automatic again", "1300001a a8").stores("3212=0").shows({waiting}),
            PushRow("manual", "1300001a 00")
                .stores("2374=0 2375/Enable=true 2376/Enable=true 2377/Enable=true 2378/Enable=true "
                        "2379/Enable=true")
                .shows({"ip:192.168.5.7"}),
            PushRow("another address", "13000006 0a00000000000900ff000000000000000a000001")
                .stores("2375=10.0.0.9 2376=255.0.0.0 2377=10.0.0.1 3212=1")
                .shows({"ip:10.0.0.9"}),
        });
    }
};

FPD_TEST(TestPushesValues)
#include "tst_pushesvalues.moc"
