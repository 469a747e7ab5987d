// What the device reports of the layers: their windows, crops, the spliced picture and the input mosaic, in
// the running panel.
#include "client/homescreen.h"
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
    static const char *const layers[] = {"MainLayer", "PIP1", "PIP2"};
    return PushRow(QString("layer %1, source %2").arg(layer).arg(source), record(layer, source, crop))
        .stores(QString("%1Crop_{Status=%2 HorWidth=%3 VerHeight=%4 InitialX=%5 InitialY=%6}")
                    .arg(layers[layer])
                    .arg(crop.status)
                    .arg(crop.width)
                    .arg(crop.height)
                    .arg(crop.x)
                    .arg(crop.y));
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
                .stores("MainLayer_{InputSource=1 InitialX=100 CustomX=100 InitialY=-50 CustomY=-50 "
                        "HorWidth=1000 CustomWidth=1000 VerHeight=700 CustomHeight=700 Priority=2 Opacity=80 "
                        "InputCrop/Enable=false}")
                .shows({"mainname:HDMI2", "main:" + noSignal()}),
            PushRow("PIP 1", record(1, {1, 2, 0, -20, 30, 640, 480, 70}))
                .stores("PIP1_{Status=1 InputSource=2 InitialX=-20 CustomX=-20 InitialY=30 CustomY=30 "
                        "HorWidth=640 CustomWidth=640 VerHeight=480 CustomHeight=480 Priority=0 Opacity=70 "
                        "InputCrop/Enable=false} MainLayerTransition=1 MainLayerTransition/Enable=false "
                        "TransitionDuration/Enable=false")
                .shows({"pip1name:DVI", "pip1:" + noSignal()})
                .answers({cutTransition}),
            PushRow("PIP 2", record(2, {1, 3, 1, 500, 600, 320, 200, 60}))
                .stores("PIP2_{Status=1 InputSource=3 InitialX=500 CustomX=500 InitialY=600 CustomY=600 "
                        "HorWidth=320 CustomWidth=320 VerHeight=200 CustomHeight=200 Priority=1 Opacity=60 "
                        "InputCrop/Enable=false}")
                .shows({"pip2name:SDI", "pip2:" + noSignal()})
                .answers({cutTransition}),
            PushRow("as it is", record(0, {1, 1, 2, 100, -50, 1000, 700, 80})),
            PushRow("PIP 1 off", record(1, {0, 2, 0, -20, 30, 640, 480, 70}))
                .stores("PIP1_Status=0")
                .shows({"pip1off:" + m_walk.text("Inactive")}),
            PushRow("PIP 2 off", record(2, {0, 3, 1, 500, 600, 320, 200, 60}))
                .stores("PIP2_Status=0 MainLayerTransition/Enable=true TransitionDuration/Enable=true")
                .shows({"pip2off:" + m_walk.text("Inactive")}),
            PushRow("main, back", record(0, {1, 0, 0, 0, 0, 1920, 1080, 100}))
                .stores("MainLayer_{InputSource=0 InitialX=0 CustomX=0 InitialY=0 CustomY=0 HorWidth=1920 "
                        "CustomWidth=1920 VerHeight=1080 CustomHeight=1080 Priority=0 Opacity=100 "
                        "InputCrop/Enable=true}")
                .shows({"mainname:HDMI1", "main:1920x1080@60"}),
            PushRow("PIPs, back", record(1, {0, 0, 1, 0, 0, 480, 270, 100}) + ';' +
                                      record(2, {0, 0, 2, 480, 0, 480, 270, 100}))
                .stores("PIP1_{InputSource=0 InitialX=0 CustomX=0 InitialY=0 CustomY=0 HorWidth=480 "
                        "CustomWidth=480 VerHeight=270 CustomHeight=270 Priority=1 Opacity=100 "
                        "InputCrop/Enable=true} PIP2_{InputSource=0 InitialX=480 CustomX=480 InitialY=0 "
                        "CustomY=0 HorWidth=480 CustomWidth=480 VerHeight=270 CustomHeight=270 Priority=2 "
                        "Opacity=100 InputCrop/Enable=true}"),
            PushRow("opaque beyond its limit", record(0, {1, 0, 0, 0, 0, 1920, 1080, 200}))
                .answers({"1302003f 00 64"}),
            PushRow("main off, without its last byte", record(0, {0, 0, 0, 0, 0, 1920, 1080, 100}).chopped(2))
                .stores("MainLayer_{Status=0 Opacity=0}")
                .shows({"mainoff:" + m_walk.text("Inactive")}),
            PushRow("main on", record(0, {1, 0, 0, 0, 0, 1920, 1080, 100}))
                .stores("MainLayer_{Status=1 Opacity=100}")
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
                .stores("MainLayer_{ScalingMode=2 HorWidth=1280 CustomWidth=1280 HorWidth/Enable=true "
                        "VerHeight/Enable=true InitialX/Enable=true InitialY/Enable=true}")
                .shows({"led3:off"}),
        });
    }

    void positionIsWrittenBack()
    {
        const QString there = mainWindowWrite(100, -50, 1280, 1080);
        const QString back = mainWindowWrite(0, 0, 1280, 1080);
        expect({
            PushRow("moved", "020001f0 64000000ceffffff")
                .stores("MainLayer_{InitialX=100 CustomX=100 InitialY=-50 CustomY=-50}")
                .answers({there, there}),
            PushRow("moved back", "020001f0 0000000000000000")
                .stores("MainLayer_{InitialX=0 CustomX=0 InitialY=0 CustomY=0}")
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
                .stores("PIP1Crop_{Status=1 HorWidth=2000 VerHeight=1625 InitialX=1 InitialY=2} "
                        "PIP1_ScalingMode/Params1/1=Disable"),
            PushRow("just small enough", record(1, 0, {1, 3, 4, 1999, 1625}))
                .stores("PIP1Crop_{HorWidth=1999 InitialX=3 InitialY=4} PIP1_ScalingMode/Params1/1=Enable"),
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
                .stores("MainLayerCrop_{Status=1 HorWidth=800 VerHeight=600 InitialX=40 InitialY=50} "
                        "MainLayer_{HorWidth=800 VerHeight=600}")
                .answers({cropped, cropped}),
            PushRow("whole again", record(0, 0, {0, 41, 51, 801, 601}))
                .stores("MainLayerCrop_{Status=0 HorWidth=801 VerHeight=601 InitialX=41 InitialY=51} "
                        "MainLayer_{HorWidth=1920 VerHeight=1080}")
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
                .tells("Mosaic_{Layout=0 Width=1000 Height=500 Arrangement=3/2}")
                .stores("Mosaic_{Layout=0 Width=1000 Height=500 Arrangement=3 Arrangement/PerBase=2 "
                        "Arrangement/PixValue=1000x1000} MosaicLayout0_Source=3 MosaicLayout1_{Width=1000 "
                        "Height=500}"),
            PushRow("side by side", record("0102", 800, 600, opt1, opt2))
                .tells("Mosaic_{Layout=1 Width=800 Height=600 Arrangement=4/5}")
                .stores("Mosaic_{Layout=1 Width=800 Height=600 Arrangement=4 Arrangement/PerBase=5 "
                        "Arrangement/PixValue=1600x600} MosaicLayout0_{Width=800 Height=600} "
                        "MosaicLayout1_Source=4"),
            PushRow("no such layout", record("0303", 640, 480, 17, 18))
                .tells("Mosaic_{Layout=0 Width=640 Height=480 Arrangement=0/1}")
                .stores("Mosaic_{Layout=0 Width=640 Height=480 Arrangement=0 Arrangement/PerBase=1 "
                        "Arrangement/PixValue=640x960} MosaicLayout0_Source=0 MosaicLayout1_{Width=640 "
                        "Height=480}"),
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
                .stores("ImageMosaic_{TotalHPixels=2000 TotalVPixels=1200 LoadAreaWidth=1000 "
                        "LoadAreaHeight=600 LoadAreaInitialX=40 LoadAreaInitialY=50}"),
            PushRow("short", "13030000 " + QString(2 * 24, '0') + "2003")
                .stores("ImageMosaic_{TotalHPixels=1600 TotalVPixels=64 LoadAreaWidth=800 LoadAreaHeight=64 "
                        "LoadAreaInitialX=0 LoadAreaInitialY=0}"),
            PushRow("main layer of another size", record(0, {1, 0, 0, 0, 0, 3000, 2000, 100}))
                .stores("MainLayer_{HorWidth=3000 CustomWidth=3000 VerHeight=2000 CustomHeight=2000}"),
        });
    }

private:
    QString noSignal() const { return m_walk.text("No Signal"); }
};

FPD_TEST(TestPushesLayers)
#include "tst_pusheslayers.moc"
