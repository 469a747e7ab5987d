// The device changes its work mode and is reset, as the running panel follows it.
#include "client/homescreen.h"
#include "tests/system/pushes/pushes.h"
#include "tests/testprogram.h"

using namespace VASK;

namespace
{
/// DVI as it stands then: stable at 1280x720@75, or gone.
const char *const dviThere = "13010041 0000030005d0021534";
const char *const dviGone = "13010041 00000000000000000000";

/// What a sending card has no use for.
QString controllerItems(bool on)
{
    static const QString items = itemnames::expanded(
        "OutputFrameRate MainLayer_{Status ScalingMode HorWidth VerHeight Priority Opacity} PIP1 PIP2 Layout "
        "PresetSettings ImageMosaic MainLayerTransition TransitionDuration AudioInput_Mosaic Fn_HDMIOutput "
        "HDMIOutput Mode3D InputBackup_Mosaic");
    const QString state = QString("/Enable=") + (on ? "true" : "false");
    return ' ' + QString(items).replace(' ', state + ' ') + state;
}
} // namespace

class TestPushesModes : public PushesTest
{
    Q_OBJECT
private slots:
    void sendingCard()
    {
        expect({
            PushRow("a source for it", dviThere),
            PushRow("sending card", "1300002c 10")
                .stores("WorkMode=2 VideoController/Choice=0 SendingCard/Choice=1 MainLayer_{InputSource=2 "
                        "ScalingMode=1 HorWidth=1280 VerHeight=720} MainLayerTransition=1 "
                        "Audio_{AudioOutput/Params1/2=Disable AudioOutput/Params1/3=Disable} "
                        "Sync_{Source/Params1/1=Disable Source/Params1/2=Disable Source/Params1/3=Disable} "
                        "MainLayer_InputCrop/Enable=false" +
                        controllerItems(false))
                .shows({"mainname:DVI", "main:1280x720@75", "screen:1920x1080@75"})
                .answers({"020001f8 00 a5", "13020010 00 01", "13020040 00 00", "13020070 00 00",
                          "1300009e 00 01", "13020012 00 020000",
                          "13020015 00 00000000000000000005000038040000",
                          "13020015 00 000000000000000000050000d0020000",
                          "13020015 00 000000000000000000050000d0020000",
                          "13020015 00 000000000000000000050000d0020000", "1302003f 00 64", "13000001 00 00",
                          "1300002b 00 01", "1300002a 00 00"}),
        });
    }

    void outputOfTheSendingCard()
    {
        const QString window = "13020015 00 64000000ceffffff8007000038040000";
        expect({
            PushRow("its size, the input's rate", "13040010 0000004006b0047017")
                .shows({"screen:1600x1200@75"}),
            PushRow("the device's own size", "13040003 0005d0027017"),
            PushRow("input gone", dviGone)
                .stores("MainLayer_{HorWidth=1920 VerHeight=1080}")
                .shows({"main:" + m_walk.text("No Signal"), "screen:1280x720@60"})
                .answers({"13020015 00 00000000000000008007000038040000"}),
            PushRow("its size, its rate", "13040010 0000004006b0048813").shows({"screen:1600x1200@50"}),
            PushRow("a reference", "13010101 fe0003000000002b41"),
            PushRow("in step with it", "1300002a 0101")
                .stores("Sync_Status=1")
                .shows({"screen:1280x720@59.94"}),
            PushRow("a little faster", "13010101 fe0003000000001b41").shows({"screen:1280x720@60"}),
            PushRow("moved", "020001f0 64000000ceffffff")
                .stores("MainLayer_{InitialX=100 InitialY=-50}")
                .answers({"020001f0 00 6400000000000000", "020001f0 00 64000000ceffffff", window, window}),
            PushRow("free", "1300002a 0001").stores("Sync_Status=0"),
        });
    }

    void controllerAgain()
    {
        const QString window = "13020015 00 00000000000000002003000058020000";
        expect({
            PushRow("controller", "1300002c 00")
                .stores("WorkMode=0 VideoController/Choice=1 SendingCard/Choice=0 MainLayer_{ScalingMode=2 "
                        "HorWidth=800 CustomWidth=800 VerHeight=600 CustomHeight=600 InitialX=0 InitialY=0} "
                        "Audio_{AudioOutput/Params1/2=Enable AudioOutput/Params1/3=Enable} "
                        "Sync_{Source/Params1/1=Enable Source/Params1/2=Enable Source/Params1/3=Enable}" +
                        controllerItems(true))
                .answers({"13020012 00 020000", "13020015 00 64000000ceffffff2003000038040000",
                          "13020015 00 64000000ceffffff2003000058020000",
                          "13020015 00 00000000ceffffff2003000058020000", window, "020001f8 00 00", window,
                          window}),
            PushRow("as it is", "1300002c 00"),
        });
    }

    void reset_data()
    {
        const DataRows<QString, bool, bool> row{"code", "keepsNetwork", "keepsFn"};
        row("all but the network", "00", true, false);
        row("all but network and user data", "02", true, true);
        row("all", "01", false, false);
    }
    void reset()
    {
        const auto [code, keepsNetwork, keepsFn] =
            fetched<QString, bool, bool>({"code", "keepsNetwork", "keepsFn"});
        QVERIFY(m_panel.ask({"panel", "stop"}).ok);
        QVERIFY(m_panel.setStored(MENU_FnMode, "3"));
        QVERIFY(m_panel.setStored(MENU_MakerSign, "0"));
        QVERIFY(comeUp());
        QVERIFY(m_pushes.push(
            {"13050000 00212200230400", "13000006 0a00000000000900ff000000000000000a000001", "02000001 4d"}));
        QVERIFY(m_pushes.flush());
        QCOMPARE(m_panel.stored(MENU_HDMI1_Hue), QString("4"));
        QVERIFY(clearWrites());
        QVERIFY(m_pushes.push({"01000002 " + code}));
        QVERIFY(m_panel.waitFor(m_walk.text("IsResting")));
        QVERIFY(waitUntilStored(MENU_HDMI1_Hue, "0"));
        QCOMPARE(m_panel.stored(MENU_HDMI1_Saturation), QString("50"));
        QCOMPARE(m_panel.stored(MENU_Net_IPAddress),
                 keepsNetwork ? QString("10.0.0.9") : QString("192.168.0.10"));
        QCOMPARE(m_panel.stored(MENU_Net_Gateway),
                 keepsNetwork ? QString("10.0.0.1") : QString("192.168.0.1"));
        QCOMPARE(m_panel.stored(MENU_FnMode), keepsFn ? QString("3") : QString("0"));
        QCOMPARE(m_panel.stored(MENU_MakerSign), QString("0"));
        QCOMPARE(m_panel.stored(MENU_RestoreDone), QString("1"));
        // One reset a run.
        QVERIFY(m_pushes.push({"13050000 00212200230400"}));
        QVERIFY(m_pushes.push({"01000002 01"}));
        QVERIFY(m_pushes.flush());
        QCOMPARE(m_panel.stored(MENU_HDMI1_Hue), QString("4"));
        QCOMPARE(m_panel.writes(), QStringList());
    }

private:
    bool comeUp() { return m_panel.ask({"reports", "on"}).ok && m_panel.start() && m_pushes.begin(); }
};

FPD_TEST(TestPushesModes)
#include "tst_pushesmodes.moc"
