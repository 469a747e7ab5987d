// What may be dialled: every limit that other values move, at it and above it, in the states that move it;
// the rates that can be chosen, and the rate that an output takes.

#include "tests/testprogram.h"
#include "tests/unit/rig/caseline.h"

using namespace VASK;

namespace
{
enum Stereo { off, doubling, sequential };

/// A wall of cabinets of that size on the second port, at 60 Hz: 4,108,800 dots a picture with blanking,
/// 659,722 dots a port; 3D halves both.
QString wall(int cabinet, Stereo stereo = off)
{
    return QString("CabinetWidth=%1 CabinetHeight=%1 OutputRate=6000 Mode3D_{Status=%2 Format=%3} "
                   "Quick_{CabinetRow=8 CabinetCol=15 FlowWay=0} Advanced_{EthernetPort=2 CabinetRow=2 "
                   "CabinetCol=2 HorOffset=0 VerOffset=0} ")
        .arg(cabinet)
        .arg(stereo == off ? 0 : 1)
        .arg(stereo == sequential ? 2 : 0);
}
} // namespace

class TestLimits : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        m_rig = new EngineRig;
        m_rig->addRows({CONFIG_HDMI1_EDIDCustom, CONFIG_HDMI2_EDIDCustom, CONFIG_DVI_EDIDCustom,
                        CONFIG_DVI2_EDIDCustom});
    }
    void cleanupTestCase() { delete m_rig; }
    void init() { m_rig->reset(); }

    void screenLimits_data()
    {
        // limit: an item and the most that stays of it; one more becomes this, and so does much more
        addColumns<QString, QString>({"state", "limit"});
        const auto row = [](const char *name, const QString &state, const QString &limit) {
            addRow(QString("%1: %2").arg(name, limit), state, limit);
        };
        const QString output = "OutputWidth=1920 OutputHeight=1080";
        row("load area", output, "ImageMosaic_LoadAreaWidth=1920");
        row("load area", output, "ImageMosaic_LoadAreaHeight=1080");
        const QString area = "ImageMosaic_{LoadAreaWidth=1000 LoadAreaHeight=500}";
        row("load area", area, "ImageMosaic_LoadAreaInitialX=31768");
        row("load area", area, "ImageMosaic_LoadAreaInitialY=32268");
        row("mosaic", "Mosaic_Height=1080", "Mosaic_Width=2048");
        row("mosaic", "Mosaic_Width=2048", "Mosaic_Height=1080");
        // 24 Hz stands at row 1: the clock carries more than the 4092 that a size may have, and 460 us of
        // blanking are 46 lines, which bring 4050 lines to 4096
        row("EDID", "HDMI2_{EDIDHeight=600 EDIDCustomRate=1}", "HDMI2_EDIDWidth=4092");
        row("EDID", "DVI2_{EDIDWidth=800 EDIDCustomRate=1}", "DVI2_EDIDHeight=4049");
        // The device has 8192 lines of 10240 pixels, and 1024 cabinets a port.
        row("by lines", wall(128) + "Quick_CabinetCol=2", "Quick_CabinetRow=64");
        row("by pixels", wall(128) + "Quick_CabinetRow=2", "Quick_CabinetCol=80");
        row("by lines", wall(128) + "Advanced_VerOffset=7808", "Advanced_CabinetRow=3");
        row("by pixels", wall(128) + "Advanced_HorOffset=9984", "Advanced_CabinetCol=2");
        row("by pixels", wall(128), "Advanced_HorOffset=9984");
        row("by lines", wall(128), "Advanced_VerOffset=7936");
        row("cabinets of a port", wall(1) + "Advanced_CabinetCol=32", "Advanced_CabinetRow=32");
        // 15 columns are 1952 dots with blanking: 2104 lines, 1052 when doubled, 20 of them blank
        row("by the picture", wall(128), "Quick_CabinetRow=16");
        row("doubled", wall(128, doubling), "Quick_CabinetRow=8");
        row("sequential", wall(128, sequential), "Quick_CabinetRow=16");
        // 8 rows are 1044 lines with blanking: 3935 dots, 1967 when doubled
        row("by the picture", wall(128), "Quick_CabinetCol=30");
        row("doubled", wall(128, doubling), "Quick_CabinetCol=15");
        row("sequential", wall(128, sequential), "Quick_CabinetCol=30");
        const QString total50 = "Quick_{CabinetRow=10 CabinetCol=5}";
        row("by the port", wall(128) + total50, "Quick_PortOneCab=40");
        row("doubled", wall(128, doubling) + total50, "Quick_PortOneCab=20");
        row("sequential", wall(128, sequential) + total50, "Quick_PortOneCab=40");
        row("all that there are", wall(128) + "Quick_{CabinetRow=3 CabinetCol=4}", "Quick_PortOneCab=12");
        row("cabinet unknown", wall(0, doubling) + total50, "Quick_PortOneCab=50");
        // 256 lines: 2577 dots a port, 1288 when doubled
        row("by the port", wall(128), "Advanced_CabinetRow=20");
        row("doubled", wall(128, doubling), "Advanced_CabinetRow=10");
        row("by the port", wall(128), "Advanced_CabinetCol=20");
        row("doubled", wall(128, doubling), "Advanced_CabinetCol=10");
        row("sequential", wall(128, sequential), "Advanced_CabinetCol=20");
        row("cabinet unknown", wall(0, doubling) + "Advanced_CabinetCol=8", "Advanced_CabinetRow=128");
        row("cabinet unknown", wall(0) + "Advanced_CabinetRow=32", "Advanced_CabinetCol=32");
        // The first port has 1920 lines, 1940 with blanking: the wall may be 2084 pixels wide; and the other
        // way round. The doubling does not count here.
        const QString tall = "AdvancedPort1_Rows=15", wide = "AdvancedPort1_Cols=15";
        row("beside a tall port", wall(128) + tall, "Advanced_CabinetCol=16");
        row("beside a wide port", wall(128) + wide, "Advanced_CabinetRow=16");
        row("beside a tall port", wall(128) + tall, "Advanced_HorOffset=1956");
        row("beside a tall port, doubled", wall(128, doubling) + tall, "Advanced_HorOffset=1956");
        row("beside a wide port", wall(128) + wide, "Advanced_VerOffset=1956");
        const QString full = "AdvancedPort1_{Rows=64 Cols=64}";
        row("beside a port that takes all", wall(128) + full, "Advanced_CabinetCol=1");
        row("beside a port that takes all", wall(128) + full, "Advanced_HorOffset=0");
        // 2048 lines, 2068 with blanking: 1954 pixels, 960 when doubled. 2048 pixels: 1955 lines, 967.
        const QString low = "Advanced_VerOffset=1792", right = "Advanced_HorOffset=1792";
        row("by the picture", wall(128) + low, "Advanced_HorOffset=1698");
        row("doubled", wall(128, doubling) + low, "Advanced_HorOffset=704");
        row("sequential", wall(128, sequential) + low, "Advanced_HorOffset=1698");
        row("by the picture", wall(128) + right, "Advanced_VerOffset=1699");
        row("doubled", wall(128, doubling) + right, "Advanced_VerOffset=711");
        row("cabinet unknown", wall(0), "Advanced_HorOffset=10240");
        row("cabinet unknown", wall(0, doubling), "Advanced_VerOffset=8192");
    }
    void screenLimits()
    {
        const auto [state, limit] = fetched<QString, QString>({"state", "limit"});
        const ENUM_MenuIndex index = itemnames::item(limit.section('=', 0, 0));
        const int most = limit.section('=', 1).toInt();
        put(state);
        QCOMPARE(permitted(index, most), most);
        QCOMPARE(permitted(index, most + 1), most);
        // 512 cabinets of 128 pixels are as many pixels as 16 bits do not hold.
        for (int value : {most + 2, 512, 520, 65535})
            QCOMPARE(permitted(index, qMax(value, most)), most);
    }

    void cropOfEachLayer()
    {
        // Every layer shows another input, every input has another size.
        for (int i = 0; i < 3; ++i) {
            m_rig->input(i, 97 + i, 3, 1900 + 2 - i, 1000 + 2 - i, 16667);
            const int crop = MENU_MainLayerCrop_HorWidth + i * STRIDE_Crop;
            put(line(MENU_MainLayer_InputSource + i * STRIDE_Layer, 2 - i));
            const int crops[] = {1600, 800, 100, 50};
            for (int field = 0; field < 4; ++field)
                put(line(crop + field, crops[field]));
        }
        for (int layer = 0; layer < 3; ++layer) {
            const int width = 1900 + layer, height = 1000 + layer;
            const int most[] = {width - 100, height - 50, width - 1600, height - 800};
            for (int field = 0; field < 4; ++field)
                for (int value : {most[field] - 1, most[field], most[field] + 1, 32768})
                    QCOMPARE(permitted(MENU_MainLayerCrop_HorWidth + layer * STRIDE_Crop + field, value),
                             qMin(value, most[field]));
        }
    }

    void edidOfEachInput_data()
    {
        QTest::addColumn<int>("input");
        for (int input = 0; input < 4; ++input)
            QTest::addRow("input %d", input) << input;
    }
    void edidOfEachInput()
    {
        QFETCH(int, input);
        const int width = MENU_HDMI1_EDIDWidth + input * STRIDE_InputPicture;
        const int height = width + 1;
        const int rate = width + 2;
        // At 60 Hz: 165e6 / 60 / (1080 + 39) = 2457.5 dots a line; 165e6 / 60 / 2080 = 1322.1 lines, 39
        // blank.
        put(line(width, 1920) + line(height, 1080) + line(rate, 9));
        QCOMPARE(permitted(width, 2296), 2296);
        QCOMPARE(permitted(width, 2298), 2296);
        QCOMPARE(permitted(height, 1283), 1283);
        QCOMPARE(permitted(height, 1284), 1283);
        // At 24 Hz and 600 lines the slow clock asks for 25e6 / 24 / 639 = 1630.2 dots.
        put(line(height, 600) + line(rate, 1));
        QCOMPARE(permitted(width, 800), 1471);
        QCOMPARE(permitted(width, 1472), 1472);
        // The rates of this input, and of no other: 1920x1080 up to 71 Hz.
        put(line(height, 1080));
        m_rig->forget();
        QCOMPARE(permitted(rate, 1), 1);
        for (int other = 0; other < 4; ++other) {
            const auto list = ENUM_MenuIndex(MENU_HDMI1_EDIDCustomRate + other * STRIDE_InputPicture);
            QVERIFY(m_rig->rowEnabled(list, 9));
            QCOMPARE(m_rig->rowEnabled(list, 10), other != input);
        }
        QCOMPARE(m_rig->reloaded.take(), QStringList{itemnames::line(rate, "")});
    }

    void frameStoreLimits()
    {
        // No rate of the menu is slow enough to come here.
        ST_ItemInfo rates = m_rig->info(MENU_HDMI1_EDIDCustomRate);
        rates.params["0"] = "8";
        rates.value = "0";
        m_rig->store->updataMenuItem(MENU_HDMI1_EDIDCustomRate, rates);
        // Twelve times the store's 64-byte units: 0x10000000 / 512 = 524288 of them hold a frame.
        put("HDMI1_EDIDHeight=4092");
        QCOMPARE(permitted(MENU_HDMI1_EDIDWidth, 4092), 2730);
        QCOMPARE(permitted(MENU_HDMI1_EDIDWidth, 2730), 2730);
        QCOMPARE(permitted(MENU_HDMI1_EDIDWidth, 2731), 2729); // stays odd
        put("HDMI1_EDIDWidth=4092");
        QCOMPARE(permitted(MENU_HDMI1_EDIDHeight, 4092), 2730);
    }

    void outputInForceCounts()
    {
        auto areaAndRate = [this] {
            const int width = permitted(MENU_ImageMosaic_LoadAreaWidth, 9000);
            const int height = permitted(MENU_ImageMosaic_LoadAreaHeight, 9000);
            permitted(MENU_OutputFrameRate, 0);
            return QString("%1x%2, 120 Hz %3")
                .arg(width)
                .arg(height)
                .arg(m_rig->rowEnabled(MENU_OutputFrameRate, 16));
        };
        QCOMPARE(areaAndRate(), QString("0x0, 120 Hz 1")); // nothing is known yet
        m_rig->process(PARA_ReportedWidth, 1920);
        m_rig->fromDevice(PARA_ReportedHeight, "1080");
        QCOMPARE(areaAndRate(), QString("1920x1080, 120 Hz 0"));
        // The software's output: 1024x768 at 60 Hz.
        put("Output_Mode=1");
        m_rig->fromDevice(MENU_Output_Resolution, "0");
        put("Output_FrameRate=3");
        m_rig->fromUser(MENU_Output_Apply, "");
        QCOMPARE(areaAndRate(), QString("1024x768, 120 Hz 1"));
        QCOMPARE(m_rig->value(PARA_OutputRate), QString("6000"));
        // Back to the own one: the device tells its size.
        put("Output_Mode=0");
        m_rig->fromUser(MENU_Output_Apply, "");
        m_rig->fromDevice(PARA_ReportedHeight, "1080");
        QCOMPARE(areaAndRate(), QString("1920x1080, 120 Hz 0"));
    }

    void valuesBesideTheirMost()
    {
        put("OutputRate=6000"); // the cabinet is unknown
        QCOMPARE(permitted(MENU_Quick_CabinetRow, 200), 200);
        QCOMPARE(permitted(MENU_Quick_CabinetCol, 200), 200);
        put("CabinetWidth=128 CabinetHeight=128 Quick_CabinetCol=20");
        QCOMPARE(permitted(MENU_Quick_CabinetRow, 0), 1);
        put("Quick_CabinetRow=10");
        QCOMPARE(permitted(MENU_Quick_PortOneCab, 10), 34);      // its share of six
        QCOMPARE(permitted(MENU_MainLayerCrop_HorWidth, 64), 0); // of nothing
        put("HDMI1_EDIDHeight=1080 DVI_EDIDWidth=1920");
        QCOMPARE(permitted(MENU_HDMI1_EDIDWidth, 1921), 1921);
        QCOMPARE(permitted(MENU_HDMI1_EDIDWidth, 700), 800);
        QCOMPARE(permitted(MENU_DVI_EDIDHeight, 500), 600);
        QCOMPARE(permitted(MENU_ScreenBrightness, 77), 77);
    }

    void portOneWarnsOfOverload()
    {
        // 34 cabinets are the share of six; rounded up to columns (20) 40, to rows (10) 40, to rows (45) 45.
        for (bool byRows : {false, true}) {
            put("CabinetWidth=128 CabinetHeight=128 OutputRate=6000 Quick_{CabinetRow=45 CabinetCol=4} " +
                line(MENU_Quick_FlowWay, byRows));
            // What may be dialled stays; the load of the whole lines is only warned of.
            QCOMPARE(m_rig->engine->CalParaLimit("30", MENU_Quick_PortOneCab), QString("30"));
            QCOMPARE(m_rig->messages, byRows ? QStringList{"OverLoad"} : QStringList());
        }
    }

    void outputRateRows()
    {
        const struct {
            int stereo, format, lastRow; ///< the fastest that can be chosen
        } rows[] = {{0, 0, 14}, {1, 0, 7}, {1, 2, 14}};
        // (1920 + 33) * (1080 + 20) = 2,148,300 dots: 114.75 Hz, half of it when 3D doubles
        put("OutputWidth=1920 OutputHeight=1080");
        for (const auto &expected : rows) {
            put(line(MENU_Mode3D_Status, expected.stereo) + line(MENU_Mode3D_Format, expected.format));
            QCOMPARE(m_rig->engine->CalParaLimit("9", MENU_OutputFrameRate), QString("9"));
            for (int row = 0; row < 17; ++row)
                QCOMPARE(m_rig->rowEnabled(MENU_OutputFrameRate, row), row <= expected.lastRow);
            QCOMPARE(m_rig->reloaded.take(), QStringList{"OutputFrameRate="});
        }
    }

    void edidRateRows()
    {
        // 800x600: 25e6 / 960 / 629 lines = 41.1 Hz; the ceiling is 120
        put("HDMI2_EDIDWidth=800 HDMI2_EDIDHeight=600");
        const QString before = m_rig->value(MENU_HDMI2_EDIDCustomRate);
        QCOMPARE(m_rig->engine->CalParaLimit(before, MENU_HDMI2_EDIDCustomRate), before);
        const ST_ItemInfo list = m_rig->info(MENU_HDMI2_EDIDCustomRate);
        for (auto option = list.params.cbegin(); option != list.params.cend(); ++option) {
            const float rate = option.value().toFloat();
            QVERIFY2(list.params1.value(option.key()) ==
                         (rate >= 41 && rate <= 120 ? optionEnable : optionDisable),
                     qPrintable(option.value()));
        }
    }

    void edidRatesThatAreNone()
    {
        put("HDMI1_EDIDWidth=1920 HDMI1_EDIDHeight=1080");
        for (const char *rate : {"-60", "-0.01", "0", "0.001", "0.02", "nan", "inf", "1e30", "fast"}) {
            ST_ItemInfo rates = m_rig->info(MENU_HDMI1_EDIDCustomRate);
            rates.params["0"] = rate;
            rates.value = "0";
            m_rig->store->updataMenuItem(MENU_HDMI1_EDIDCustomRate, rates);
            QVERIFY2(permitted(MENU_HDMI1_EDIDWidth, 1920) >= 800, rate);
            QVERIFY2(permitted(MENU_HDMI1_EDIDHeight, 1080) >= 600, rate);
            m_rig->engine->CalParaLimit("0", MENU_HDMI1_EDIDCustomRate);
            QVERIFY2(!m_rig->rowEnabled(MENU_HDMI1_EDIDCustomRate, 0), rate);
        }
    }

    void outputFollowsSource()
    {
        const QString output = "WorkMode=0 OutputWidth=1920 OutputHeight=1080", sender = "WorkMode=2",
                      heavy = "OutputHeight=2160", // (2160 + 20) * (1921 + 31) * 60 = 255e6
            stereo = "Mode3D_{Status=1 Format=0}";
        const struct {
            const char *name;
            QString state;
            int rate, outputRate, taken;
        } rows[] = {
            {"equal", {}, 6000, 6000, 6000},
            {"lower edge", {}, 5970, 6000, 5970},
            {"below", {}, 5969, 6000, 6000},
            {"upper edge", {}, 6029, 6000, 6029},
            {"above", {}, 6031, 6000, 6000},
            {"no source", {}, 0, 5994, 5994},
            {"a sending card follows everything", sender, 3000, 6000, 3000},
            {"too much for the output", heavy, 5994, 5970, 5970},
            {"too much when doubled", stereo, 6000, 5990, 5990},
        };
        for (const auto &row : rows) {
            put(output);
            put(row.state);
            QVERIFY2(m_rig->engine->OutputFrameAdj(row.rate, row.outputRate) == row.taken, row.name);
        }
    }

private:
    void put(const QString &state) { caseline::prepare(*m_rig, state); }
    static QString line(int item, int value) { return itemnames::line(item, QString::number(value)) + ' '; }
    int permitted(int index, int value)
    {
        return m_rig->engine->CalParaLimit(QString::number(value), ENUM_MenuIndex(index)).toInt();
    }
    EngineRig *m_rig = nullptr;
};

FPD_TEST(TestLimits)
#include "tst_limits.moc"
