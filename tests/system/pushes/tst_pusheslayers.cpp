// What the device reports of the layers: their windows, crops, the spliced picture and the input mosaic, in
// the running panel.
#include "menu/itemindex.h"
#include "testkit/homescreen.h"
#include "tests/system/pushes/pushes.h"
#include "tests/testprogram.h"

using namespace VASK;

namespace
{
struct Window {
    int status, input, priority, x, y, width, height, opacity;
};

/// The record of a layer's window, as the device tells it.
QString record(int layer, const Window &window)
{
    return QString::number(0x13020010 + 48 * layer, 16) + ' ' + littleEndian(window.status, 2) +
           littleEndian(window.input, 1) + littleEndian(window.priority, 2) + littleEndian(window.x, 4) +
           littleEndian(window.y, 4) + littleEndian(window.width, 4) + littleEndian(window.height, 4) +
           QString(2 * 26, '0') + littleEndian(window.opacity, 1);
}

struct Crop {
    int status, x, y, width, height;
};

QString record(int layer, int source, const Crop &crop)
{
    return QString::number(0x13024014 + 132 * layer + 16 * source, 16) + " 1100" +
           littleEndian(crop.status, 1) + littleEndian(crop.x, 2) + littleEndian(crop.y, 2) +
           littleEndian(crop.width, 2) + littleEndian(crop.height, 2);
}

PushRow cropRow(int layer, int source, const Crop &crop)
{
    const int first = 3000 + 6 * layer;
    return PushRow(QString("layer %1, source %2").arg(layer).arg(source), record(layer, source, crop))
        .stores(QString("%1=%2 %3=%4 %5=%6 %7=%8 %9=")
                    .arg(first)
                    .arg(crop.status)
                    .arg(first + 1)
                    .arg(crop.width)
                    .arg(first + 2)
                    .arg(crop.height)
                    .arg(first + 3)
                    .arg(crop.x)
                    .arg(first + 4) +
                QString::number(crop.y));
}

/// The write of the main layer's window.
QString mainWindowWrite(int x, int y, int width, int height)
{
    return "13020015 00 " + littleEndian(x, 4) + littleEndian(y, 4) + littleEndian(width, 4) +
           littleEndian(height, 4);
}
} // namespace

class TestPushesLayers : public PushesTest
{
    Q_OBJECT
private slots:
    void windows()
    {
        const char *const cutTransition = "13000001 00 00";
        expect({
            PushRow("main", record(0, {1, 1, 2, 100, -50, 1000, 700, 80}))
                .stores(
                    "2101=1 2105=100 3141=100 2106=-50 3142=-50 2103=1000 3139=1000 2104=700 3140=700 2107=2 "
                    "2109=80 2108/Enable=false")
                .shows({"mainname:HDMI2", "main:" + noSignal()}),
            PushRow("PIP 1", record(1, {1, 2, 0, -20, 30, 640, 480, 70}))
                .stores("2110=1 2111=2 2115=-20 3145=-20 2116=30 3146=30 2113=640 3143=640 2114=480 3144=480 "
                        "2117=0 2119=70 2118/Enable=false 1019=1 1019/Enable=false 1020/Enable=false")
                .shows({"pip1name:DVI", "pip1:" + noSignal()})
                .answers({cutTransition}),
            PushRow("PIP 2", record(2, {1, 3, 1, 500, 600, 320, 200, 60}))
                .stores(
                    "2120=1 2121=3 2125=500 3149=500 2126=600 3150=600 2123=320 3147=320 2124=200 3148=200 "
                    "2127=1 2129=60 2128/Enable=false")
                .shows({"pip2name:SDI", "pip2:" + noSignal()})
                .answers({cutTransition}),
            PushRow("as it is", record(0, {1, 1, 2, 100, -50, 1000, 700, 80})),
            PushRow("PIP 1 off", record(1, {0, 2, 0, -20, 30, 640, 480, 70}))
                .stores("2110=0")
                .shows({"pip1off:" + m_walk.text("Inactive")}),
            PushRow("PIP 2 off", record(2, {0, 3, 1, 500, 600, 320, 200, 60}))
                .stores("2120=0 1019/Enable=true 1020/Enable=true")
                .shows({"pip2off:" + m_walk.text("Inactive")}),
            PushRow("main, back", record(0, {1, 0, 0, 0, 0, 1920, 1080, 100}))
                .stores("2101=0 2105=0 3141=0 2106=0 3142=0 2103=1920 3139=1920 2104=1080 3140=1080 2107=0 "
                        "2109=100 2108/Enable=true")
                .shows({"mainname:HDMI1", "main:1920x1080@60"}),
            PushRow("PIPs, back", record(1, {0, 0, 1, 0, 0, 480, 270, 100}) + ';' +
                                      record(2, {0, 0, 2, 480, 0, 480, 270, 100}))
                .stores(
                    "2111=0 2115=0 3145=0 2116=0 3146=0 2113=480 3143=480 2114=270 3144=270 2117=1 2119=100 "
                    "2118/Enable=true 2121=0 2125=480 3149=480 2126=0 3150=0 2123=480 3147=480 2124=270 "
                    "3148=270 2127=2 2129=100 2128/Enable=true"),
            PushRow("opaque beyond its limit", record(0, {1, 0, 0, 0, 0, 1920, 1080, 200}))
                .answers({"1302003f 00 64"}),
            PushRow("main off, without its last byte", record(0, {0, 0, 0, 0, 0, 1920, 1080, 100}).chopped(2))
                .stores("2100=0 2109=0")
                .shows({"mainoff:" + m_walk.text("Inactive")}),
            PushRow("main on", record(0, {1, 0, 0, 0, 0, 1920, 1080, 100}))
                .stores("2100=1 2109=100")
                .shows({"main:1920x1080@60"}),
        });
    }

    void movedLayerIsFullScreenNoMore()
    {
        QVERIFY(m_panel.press("scale"));
        QVERIFY(homescreen::waitToSee(m_panel, "led3:on"));
        QVERIFY(m_pushes.flush());
        expect({
            PushRow("another width", record(0, {1, 0, 0, 0, 0, 1280, 1080, 100}))
                .stores("2102=2 2103=1280 3139=1280 2103/Enable=true 2104/Enable=true 2105/Enable=true "
                        "2106/Enable=true")
                .shows({"led3:off"}),
        });
    }

    void positionIsWrittenBack()
    {
        const QString there = mainWindowWrite(100, -50, 1280, 1080);
        const QString back = mainWindowWrite(0, 0, 1280, 1080);
        expect({
            PushRow("moved", "020001f0 64000000ceffffff")
                .stores("2105=100 3141=100 2106=-50 3142=-50")
                .answers({there, there}),
            PushRow("moved back", "020001f0 0000000000000000")
                .stores("2105=0 3141=0 2106=0 3142=0")
                .answers({back, back}),
        });
    }

    /// The crop of any source is that of the layer.
    void crops()
    {
        constexpr int sources[] = {9, 6, 6}; // of the layers
        QVector<PushRow> rows;
        for (int source = 0; source < sources[0]; ++source)
            for (int layer = 0; layer < 3; ++layer)
                if (source < sources[layer])
                    rows << cropRow(layer, source,
                                    {1 - source % 2, 20 + 10 * layer + source, 40 + 10 * layer + source,
                                     1000 - 100 * layer - 2 * source, 700 - 100 * layer - 2 * source});
        // Beyond the input, too.
        rows << cropRow(0, 8, {0, 2000, 1500, 3000, 2500});
        expect(rows);
    }

    /// Pixel for pixel is there for what a PIP layer can carry.
    void largeCropOfAPip()
    {
        expect({
            PushRow("too large", record(1, 0, {1, 1, 2, 2000, 1625}))
                .stores("3006=1 3007=2000 3008=1625 3009=1 3010=2 2112/Params1/1=Disable"),
            PushRow("just small enough", record(1, 0, {1, 3, 4, 1999, 1625}))
                .stores("3007=1999 3009=3 3010=4 2112/Params1/1=Enable"),
        });
    }

    void pixelToPixelFollowsTheCrop()
    {
        QVERIFY(m_walk.go({MENU_LayerSettings, MENU_MainLayer, MENU_MainLayer_ScalingMode}));
        QVERIFY(m_walk.turn(Left, 1));
        QVERIFY(m_walk.press(keys::Ok));
        QVERIFY(m_walk.home());
        QVERIFY(m_pushes.flush());
        QCOMPARE(m_panel.stored(MENU_MainLayer_ScalingMode), QString("1"));
        const QString cropped = mainWindowWrite(0, 0, 800, 600);
        const QString whole = mainWindowWrite(0, 0, 1920, 1080);
        expect({
            PushRow("cropped", record(0, 0, {1, 40, 50, 800, 600}))
                .stores("3000=1 3001=800 3002=600 3003=40 3004=50 2103=800 2104=600")
                .answers({cropped, cropped}),
            PushRow("whole again", record(0, 0, {0, 41, 51, 801, 601}))
                .stores("3000=0 3001=801 3002=601 3003=41 3004=51 2103=1920 2104=1080")
                .answers({whole, whole}),
        });
    }

    void mosaic()
    {
        const auto record = [](const QString &layout, int width, int height, int first, int second) {
            return "13060000 0201" + layout + "0101" + QString(2 * 10, '0') + littleEndian(first, 6) +
                   littleEndian(width, 2) + littleEndian(height, 2) + QString(2 * 6, '0') +
                   littleEndian(second, 16);
        };
        constexpr int dvi1 = 0, dvi2 = 106, opt1 = 233, opt2 = 234;
        expect({
            PushRow("one above the other", record("0201", 1000, 500, dvi2, dvi1))
                .tells("3071=0 3072=1000 3073=500 3074=3/2")
                .stores("3071=0 3072=1000 3073=500 3074=3 3074/PerBase=2 3074/PixValue=1000x1000 "
                        "3203=3 3204=1000 3205=500"),
            PushRow("side by side", record("0102", 800, 600, opt1, opt2))
                .tells("3071=1 3072=800 3073=600 3074=4/5")
                .stores("3071=1 3072=800 3073=600 3074=4 3074/PerBase=5 3074/PixValue=1600x600 "
                        "3201=800 3202=600 3206=4"),
            PushRow("no such layout", record("0303", 640, 480, 17, 18))
                .tells("3071=0 3072=640 3073=480 3074=0/1")
                .stores("3071=0 3072=640 3073=480 3074=0 3074/PerBase=1 3074/PixValue=640x960 "
                        "3203=0 3204=640 3205=480"),
        });
    }

    /// The wall's area counts while splicing is on, which the flash alone can say.
    void spliced()
    {
        const auto area = [](int width, int height, int x, int y) {
            return "13030000 " + QString(2 * 16, '0') + littleEndian(x, 4) + littleEndian(y, 4) +
                   littleEndian(width, 2) + littleEndian(height, 2);
        };
        expect({PushRow("not spliced", area(1001, 601, 41, 51))});
        QVERIFY(m_panel.ask({"panel", "stop"}).ok);
        QVERIFY(m_panel.ask({"flash", "write", "2053", "a8"}).ok);
        QVERIFY(m_panel.ask({"reports", "on"}).ok);
        QVERIFY(m_panel.start());
        QVERIFY(m_pushes.begin());
        QCOMPARE(m_panel.stored(MENU_ImageMosaic_Status), QString("1"));
        expect({
            PushRow("area", area(1000, 600, 40, 50))
                .stores("1041=2000 1042=1200 1043=1000 1044=600 1045=40 1046=50"),
            PushRow("short", "13030000 " + QString(2 * 24, '0') + "2003")
                .stores("1041=1600 1042=0 1043=800 1044=0 1045=0 1046=0"),
            PushRow("main layer of another size", record(0, {1, 0, 0, 0, 0, 3000, 2000, 100}))
                .stores("2103=3000 3139=3000 2104=2000 3140=2000"),
        });
    }

private:
    QString noSignal() const { return m_walk.text("No Signal"); }
};

FPD_TEST(TestPushesLayers)

#include "tst_pusheslayers.moc"
