// What the device reports of its output: 3D, synchronisation, size, display mode and genlock, in the running
// panel.
#include "client/homescreen.h"
#include "tests/system/pushes/pushes.h"
#include "tests/testprogram.h"

class TestPushesOutput : public PushesTest
{
    Q_OBJECT
private slots:
    void stereo()
    {
        expect({
            PushRow("on", "02000039 a8")
                .stores("Mode3D_Status=1 MainLayerTransition=1 MainLayerTransition/Enable=false "
                        "TransitionDuration/Enable=false")
                .shows({"screen:1920x1080@120"}),
            // The row of the right eye's start stands on no page: what it would show stays as it is.
            PushRow("frame by frame", "02000042 18")
                .stores("Mode3D_{Format=2 RightEyeStart/Enable=false}")
                .shows({"screen:1920x1080@60"}),
            PushRow("top and bottom", "02000042 08")
                .stores("Mode3D_{Format=1 RightEyeStart/Enable=true}")
                .shows({"screen:1920x1080@120"}),
            PushRow("start for top and bottom", "0200008b e803")
                .stores("Mode3D_RightEyeStart=1000 RightEyeStartTop=1000"),
            PushRow("side by side", "02000042 28").stores("Mode3D_Format=0"),
            PushRow("start for side by side", "02000089 4c04")
                .stores("Mode3D_RightEyeStart=1100 RightEyeStartSide=1100"),
            PushRow("right eye first", "02000041 32").stores("Mode3D_EyePriority=1"),
            PushRow("no eye", "02000041 33"),
            PushRow("left eye first", "02000041 64").stores("Mode3D_EyePriority=0"),
            PushRow("off", "02000039 00")
                .stores("Mode3D_Status=0 MainLayerTransition/Enable=true TransitionDuration/Enable=true")
                .shows({"screen:1920x1080@60"}),
            // The rows that would send them on stand on no page.
            PushRow("emitter on", "02002001 01").stores("Mode3D_ThirdPartyEmitter=1"),
            PushRow("emitter off", "02002001 00").stores("Mode3D_ThirdPartyEmitter=0"),
            PushRow("delay", "02002002 48e801").stores("Mode3D_SignalDelayTime=1000"),
        });
    }

    void synchronisation()
    {
        const char *const rateOfTheList = "13040007 00 7017";
        const char *const firstSource = "1300002b 00 01";
        expect({
            PushRow("on, second source", "1300002a 0102")
                .stores("Sync_{Source=1 Status=1}")
                .shows({"sync:HDMI2"}),
            PushRow("as it is", "1300002a 0102"),
            PushRow("off", "1300002a 0002").stores("Sync_Status=0").answers({rateOfTheList}),
            PushRow("no source", "1300002a 0000")
                .tells("Sync_Source=255")
                .stores("Sync_Source=0")
                .shows({"sync:HDMI1"})
                .answers({firstSource}),
            PushRow("on, no word of a source", "1300002a 01")
                .tells("Sync_{Source=255 Status=1}")
                .stores("Sync_Status=1")
                .answers({firstSource}),
            PushRow("off again", "1300002a 0001").stores("Sync_Status=0").answers({rateOfTheList}),
        });
    }

    void output()
    {
        QCOMPARE(
            m_pushes.run({
                PushRow("video output", "13042007 01").stores("Output_Mode=1"),
                PushRow("monitor", "13042007 00").stores("Output_Mode=0"),
                PushRow("smaller and slower", "13040003 0005d0028813")
                    .tells("OutputRate=5000 ReportedWidth=1280 ReportedHeight=720")
                    .shows({"screen:1280x720@50"}),
                PushRow("too narrow for columns", "13040003 bf00c8007017")
                    .stores("Layout/Params1/0=Disable Layout/Params1/1=Disable")
                    .shows({"screen:191x200@60"}),
                PushRow("room for three columns", "13040003 c000c8007017")
                    .stores("Layout/Params1/0=Enable")
                    .shows({"screen:192x200@60"}),
                PushRow("no room for four", "13040003 ff00c8007017").shows({"screen:255x200@60"}),
                PushRow("room for four", "13040003 0001c8007017")
                    .stores("Layout/Params1/1=Enable")
                    .shows({"screen:256x200@60"}),
                PushRow("fraction of a hertz", "13040003 800738046a17").shows({"screen:1920x1080@59.94"}),
                PushRow("near it", "13040003 800738046b17;13040003 000500046b17")
                    .shows({"screen:1280x1024@59.94"}),
                PushRow("whole hertz", "13040003 80073804f715").shows({"screen:1920x1080@56"}),
                PushRow("of a sending card", "13040010 00000000032c017017")
                    .tells("ReportedRate=6000 ReportedWidthAlias=768 ReportedHeightAlias=300"),
                PushRow("as before", "13040003 800738047017").shows({"screen:1920x1080@60"}),
            }),
            QString());
    }

    void fullScreenLayerFollowsTheOutput()
    {
        QVERIFY(m_panel.press("scale"));
        QVERIFY(homescreen::waitToSee(m_panel, "led3:on"));
        QVERIFY(m_pushes.flush());
        QCOMPARE(m_panel.stored(VASK::MENU_MainLayer_ScalingMode), QString("0"));
        expect({
            PushRow("smaller", "13040003 0005d0027017")
                .stores("MainLayer_{HorWidth=1280 VerHeight=720}")
                .shows({"screen:1280x720@60"})
                .answers({"13020015 00 000000000000000000050000d0020000"}),
            PushRow("as before", "13040003 800738047017")
                .stores("MainLayer_{HorWidth=1920 VerHeight=1080}")
                .answers({"13020015 00 00000000000000008007000038040000"}),
        });
    }

    void displayMode()
    {
        const QVector<PushRow> rows{
            PushRow("frozen", "13000004 04")
                .stores("Normal/Choice=0 Freeze/Choice=1 TestPattern/Enable=false")
                .shows({"led12:on"}),
            PushRow("black", "13000004 05").stores("Freeze/Choice=0 FTB/Choice=1").shows({"led12:off"}),
            PushRow("test pattern", "13000004 06")
                .stores("FTB/Choice=0 Freeze/Enable=false FTB/Enable=false")
                .shows({"led14:on"}),
            PushRow("normal", "13000004 03")
                .stores("Normal/Choice=1 Freeze/Enable=true FTB/Enable=true TestPattern/Enable=true")
                .shows({"led14:off"}),
        };
        QVector<QImage> pictures;
        for (const PushRow &row : rows) {
            expect({row});
            QVERIFY(m_panel.settle());
            pictures << homescreen::modePicture(m_panel);
        }
        QVERIFY(areDistinct(pictures));
        QCOMPARE(m_pushes.run({PushRow("normal once more", "13000004 03"), PushRow("no mode", "13000004 02"),
                               PushRow("none either", "13000004 07")}),
                 QString());
        QCOMPARE(homescreen::modePicture(m_panel), pictures.last());
    }

    void genlock()
    {
        expect({PushRow("without synchronisation", "1300009d 02").tells("GenlockState=2")});
        const QImage off = homescreen::syncPicture(m_panel);
        expect({PushRow("synchronisation on", "1300002a 0101").stores("Sync_Status=1")});
        QVector<QImage> pictures{off};
        for (const PushRow &row : {PushRow("locked", "1300009d 02").tells("GenlockState=2"),
                                   PushRow("waiting", "1300009d 03").tells("GenlockState=3")}) {
            expect({row});
            QVERIFY(m_panel.settle());
            pictures << homescreen::syncPicture(m_panel);
        }
        QVERIFY(areDistinct(pictures));
        expect({PushRow("no such state", "1300009d 05")});
        QCOMPARE(homescreen::syncPicture(m_panel), pictures.last());
        expect({PushRow("free again", "1300009d 01").tells("GenlockState=1")});
        QVERIFY(m_panel.waitUntil([&] { return homescreen::syncPicture(m_panel) == off; }));
        QCOMPARE(m_pushes.run(
                     {PushRow("off", "1300002a 0001").stores("Sync_Status=0").answers({"13040007 00 7017"})}),
                 QString());
    }

private:
    bool areDistinct(const QVector<QImage> &pictures)
    {
        for (int i = 0; i < pictures.size(); ++i)
            for (int j = 0; j < i; ++j)
                if (pictures[i] == pictures[j])
                    return false;
        return true;
    }
};

FPD_TEST(TestPushesOutput)
#include "tst_pushesoutput.moc"
