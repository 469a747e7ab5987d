// What the device reports of its output: 3D, synchronisation, size, display mode and genlock, in the running
// panel.
#include "testkit/homescreen.h"
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
                .stores("2359=1 1019=1 1019/Enable=false 1020/Enable=false")
                .shows({"screen:1920x1080@120"}),
            // The row of the right eye's start stands on no page: what it would show stays as it is.
            PushRow("frame by frame", "02000042 18")
                .stores("2360=2 3077/Enable=false")
                .shows({"screen:1920x1080@60"}),
            PushRow("top and bottom", "02000042 08")
                .stores("2360=1 3077/Enable=true")
                .shows({"screen:1920x1080@120"}),
            PushRow("start for top and bottom", "0200008b e803").stores("3077=1000 3214=1000"),
            PushRow("side by side", "02000042 28").stores("2360=0"),
            PushRow("start for side by side", "02000089 4c04").stores("3077=1100 3213=1100"),
            PushRow("right eye first", "02000041 32").stores("2361=1"),
            PushRow("no eye", "02000041 33"),
            PushRow("left eye first", "02000041 64").stores("2361=0"),
            PushRow("off", "02000039 00")
                .stores("2359=0 1019/Enable=true 1020/Enable=true")
                .shows({"screen:1920x1080@60"}),
            // The rows that would send them on stand on no page.
            PushRow("emitter on", "02002001 01").stores("3079=1"),
            PushRow("emitter off", "02002001 00").stores("3079=0"),
            PushRow("delay", "02002002 48e801").stores("3078=1000"),
        });
    }

    void synchronisation()
    {
        const char *const rateOfTheList = "13040007 00 7017";
        const char *const firstSource = "1300002b 00 01";
        expect({
            PushRow("on, second source", "1300002a 0102").stores("2351=1 2350=1").shows({"sync:HDMI2"}),
            PushRow("as it is", "1300002a 0102"),
            PushRow("off", "1300002a 0002").stores("2350=0").answers({rateOfTheList}),
            PushRow("no source", "1300002a 0000")
                .tells("2351=255")
                .stores("2351=0")
                .shows({"sync:HDMI1"})
                .answers({firstSource}),
            PushRow("on, no word of a source", "1300002a 01")
                .tells("2351=255 2350=1")
                .stores("2350=1")
                .answers({firstSource}),
            PushRow("off again", "1300002a 0001").stores("2350=0").answers({rateOfTheList}),
        });
    }

    void output()
    {
        QCOMPARE(
            m_pushes.run({
                PushRow("video output", "13042007 01").stores("2352=1"),
                PushRow("monitor", "13042007 00").stores("2352=0"),
                PushRow("smaller and slower", "13040003 0005d0028813")
                    .tells("3241=5000 3237=1280 3238=720")
                    .shows({"screen:1280x720@50"}),
                PushRow("too narrow for columns", "13040003 bf00c8007017")
                    .stores("1007/Params1/0=Disable 1007/Params1/1=Disable")
                    .shows({"screen:191x200@60"}),
                PushRow("room for three columns", "13040003 c000c8007017")
                    .stores("1007/Params1/0=Enable")
                    .shows({"screen:192x200@60"}),
                PushRow("no room for four", "13040003 ff00c8007017").shows({"screen:255x200@60"}),
                PushRow("room for four", "13040003 0001c8007017")
                    .stores("1007/Params1/1=Enable")
                    .shows({"screen:256x200@60"}),
                PushRow("fraction of a hertz", "13040003 800738046a17").shows({"screen:1920x1080@59.94"}),
                PushRow("near it", "13040003 800738046b17;13040003 000500046b17")
                    .shows({"screen:1280x1024@59.94"}),
                PushRow("whole hertz", "13040003 80073804f715").shows({"screen:1920x1080@56"}),
                PushRow("of a sending card", "13040010 00000000032c017017")
                    .tells("3246=6000 3243=768 3244=300"),
                PushRow("as before", "13040003 800738047017").shows({"screen:1920x1080@60"}),
            }),
            QString());
    }

    void fullScreenLayerFollowsTheOutput()
    {
        QVERIFY(m_panel.press("scale"));
        QVERIFY(homescreen::waitToSee(m_panel, "led3:on"));
        QVERIFY(m_pushes.flush());
        QCOMPARE(m_panel.stored(2102), QString("0"));
        expect({
            PushRow("smaller", "13040003 0005d0027017")
                .stores("2103=1280 2104=720")
                .shows({"screen:1280x720@60"})
                .answers({"13020015 00 000000000000000000050000d0020000"}),
            PushRow("as before", "13040003 800738047017")
                .stores("2103=1920 2104=1080")
                .answers({"13020015 00 00000000000000008007000038040000"}),
        });
    }

    void displayMode()
    {
        const QVector<PushRow> rows{
            PushRow("frozen", "13000004 04")
                .stores("1021/Choice=0 1022/Choice=1 1025/Enable=false")
                .shows({"led12:on"}),
            PushRow("black", "13000004 05").stores("1022/Choice=0 1023/Choice=1").shows({"led12:off"}),
            PushRow("test pattern", "13000004 06")
                .stores("1023/Choice=0 1022/Enable=false 1023/Enable=false")
                .shows({"led14:on"}),
            PushRow("normal", "13000004 03")
                .stores("1021/Choice=1 1022/Enable=true 1023/Enable=true 1025/Enable=true")
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
        expect({PushRow("without synchronisation", "1300009d 02").tells("3393=2")});
        const QImage off = homescreen::syncPicture(m_panel);
        expect({PushRow("synchronisation on", "1300002a 0101").stores("2350=1")});
        QVector<QImage> pictures{off};
        for (const PushRow &row : {PushRow("locked", "1300009d 02").tells("3393=2"),
                                   PushRow("waiting", "1300009d 03").tells("3393=3")}) {
            expect({row});
            QVERIFY(m_panel.settle());
            pictures << homescreen::syncPicture(m_panel);
        }
        QVERIFY(areDistinct(pictures));
        expect({PushRow("no such state", "1300009d 05")});
        QCOMPARE(homescreen::syncPicture(m_panel), pictures.last());
        expect({PushRow("free again", "1300009d 01").tells("3393=1")});
        QVERIFY(m_panel.waitUntil([&] { return homescreen::syncPicture(m_panel) == off; }));
        QCOMPARE(
            m_pushes.run({PushRow("off", "1300002a 0001").stores("2350=0").answers({"13040007 00 7017"})}),
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
