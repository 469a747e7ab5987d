// What may be dialled: every limit that other values move, at it and above it, in the states that move it;
// the rates that can be chosen, and the rate that an output takes.

#include "tests/testprogram.h"
#include "tests/unit/rig/enginerig.h"

using namespace VASK;

using State = QMap<int, int>; ///< items and process data that a limit reads

namespace
{
enum Stereo { off, doubling, sequential };

/// A wall of cabinets of that size on the second port, at 60 Hz: 4,108,800 dots a picture with blanking,
/// 659,722 dots a port; 3D halves both.
State wall(int cabinet, Stereo stereo = off, const State &more = {})
{
    State state{{PARA_CabinetWidth, cabinet},
                {PARA_CabinetHeight, cabinet},
                {PARA_OutputRate, 6000},
                {MENU_Mode3D_Status, stereo != off},
                {MENU_Mode3D_Format, stereo == sequential ? 2 : 0},
                {MENU_Quick_CabinetRow, 8},
                {MENU_Quick_CabinetCol, 15},
                {MENU_Quick_FlowWay, 0},
                {MENU_Advanced_EthernetPort, 2},
                {MENU_Advanced_CabinetRow, 2},
                {MENU_Advanced_CabinetCol, 2},
                {MENU_Advanced_HorOffset, 0},
                {MENU_Advanced_VerOffset, 0}};
    for (auto entry = more.cbegin(); entry != more.cend(); ++entry)
        state[entry.key()] = entry.value();
    return state;
}
} // namespace

Q_DECLARE_METATYPE(State)

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
        // most: what stays; one more becomes this, and so does much more
        const DataRows<State, int, int> row{"state", "index", "most"};
        const State output{{PARA_OutputWidth, 1920}, {PARA_OutputHeight, 1080}};
        row("load area width", output, MENU_ImageMosaic_LoadAreaWidth, 1920);
        row("load area height", output, MENU_ImageMosaic_LoadAreaHeight, 1080);
        const State area{{MENU_ImageMosaic_LoadAreaWidth, 1000}, {MENU_ImageMosaic_LoadAreaHeight, 500}};
        row("load area X", area, MENU_ImageMosaic_LoadAreaInitialX, 31768);
        row("load area Y", area, MENU_ImageMosaic_LoadAreaInitialY, 32268);
        row("mosaic width", {{MENU_Mosaic_Height, 1080}}, MENU_Mosaic_Width, 2048);
        row("mosaic height", {{MENU_Mosaic_Width, 2048}}, MENU_Mosaic_Height, 1080);
        // 24 Hz stands at row 1: the clock carries more than the 4092 that a size may have, and 460 us of
        // blanking are 46 lines, which bring 4050 lines to 4096
        row("EDID width", {{MENU_HDMI2_EDIDHeight, 600}, {MENU_HDMI2_EDIDCustomRate, 1}},
            MENU_HDMI2_EDIDWidth, 4092);
        row("EDID height", {{MENU_DVI2_EDIDWidth, 800}, {MENU_DVI2_EDIDCustomRate, 1}}, MENU_DVI2_EDIDHeight,
            4049);

        // The device has 8192 lines of 10240 pixels, and 1024 cabinets a port.
        row("quick rows by lines", wall(128, off, {{MENU_Quick_CabinetCol, 2}}), MENU_Quick_CabinetRow, 64);
        row("quick columns by pixels", wall(128, off, {{MENU_Quick_CabinetRow, 2}}), MENU_Quick_CabinetCol,
            80);
        row("port's rows by lines", wall(128, off, {{MENU_Advanced_VerOffset, 8192 - 384}}),
            MENU_Advanced_CabinetRow, 3);
        row("port's columns by pixels", wall(128, off, {{MENU_Advanced_HorOffset, 10240 - 256}}),
            MENU_Advanced_CabinetCol, 2);
        row("port's X by pixels", wall(128), MENU_Advanced_HorOffset, 9984);
        row("port's Y by lines", wall(128), MENU_Advanced_VerOffset, 7936);
        row("cabinets of a port", wall(1, off, {{MENU_Advanced_CabinetCol, 32}}), MENU_Advanced_CabinetRow,
            32);

        // 15 columns are 1952 dots with blanking: 2104 lines, 1052 when doubled, 20 of them blank
        row("quick rows", wall(128), MENU_Quick_CabinetRow, 16);
        row("quick rows, doubled", wall(128, doubling), MENU_Quick_CabinetRow, 8);
        row("quick rows, sequential", wall(128, sequential), MENU_Quick_CabinetRow, 16);
        // 8 rows are 1044 lines with blanking: 3935 dots, 1967 when doubled
        row("quick columns", wall(128), MENU_Quick_CabinetCol, 30);
        row("quick columns, doubled", wall(128, doubling), MENU_Quick_CabinetCol, 15);
        row("quick columns, sequential", wall(128, sequential), MENU_Quick_CabinetCol, 30);

        const State total50{{MENU_Quick_CabinetRow, 10}, {MENU_Quick_CabinetCol, 5}};
        row("port one", wall(128, off, total50), MENU_Quick_PortOneCab, 40);
        row("port one, doubled", wall(128, doubling, total50), MENU_Quick_PortOneCab, 20);
        row("port one, sequential", wall(128, sequential, total50), MENU_Quick_PortOneCab, 40);
        row("port one, all that there are",
            wall(128, off, {{MENU_Quick_CabinetRow, 3}, {MENU_Quick_CabinetCol, 4}}), MENU_Quick_PortOneCab,
            12);
        row("port one, cabinet unknown", wall(0, doubling, total50), MENU_Quick_PortOneCab, 50);

        // 256 lines: 2577 dots a port, 1288 when doubled
        row("port's rows", wall(128), MENU_Advanced_CabinetRow, 20);
        row("port's rows, doubled", wall(128, doubling), MENU_Advanced_CabinetRow, 10);
        row("port's columns", wall(128), MENU_Advanced_CabinetCol, 20);
        row("port's columns, doubled", wall(128, doubling), MENU_Advanced_CabinetCol, 10);
        row("port's columns, sequential", wall(128, sequential), MENU_Advanced_CabinetCol, 20);
        row("port's rows, cabinet unknown", wall(0, doubling, {{MENU_Advanced_CabinetCol, 8}}),
            MENU_Advanced_CabinetRow, 128);
        row("port's columns, cabinet unknown", wall(0, off, {{MENU_Advanced_CabinetRow, 32}}),
            MENU_Advanced_CabinetCol, 32);

        // The first port has 1920 lines, 1940 with blanking: the wall may be 2084 pixels wide; and the other
        // way round. The doubling does not count here.
        const State tall{{MENU_AdvancedPort1_Rows, 15}};
        const State wide{{MENU_AdvancedPort1_Cols, 15}};
        row("port's columns beside a tall port", wall(128, off, tall), MENU_Advanced_CabinetCol, 16);
        row("port's rows beside a wide port", wall(128, off, wide), MENU_Advanced_CabinetRow, 16);
        row("port's X beside a tall port", wall(128, off, tall), MENU_Advanced_HorOffset, 2084 - 128);
        row("port's X beside a tall port, doubled", wall(128, doubling, tall), MENU_Advanced_HorOffset,
            2084 - 128);
        row("port's Y beside a wide port", wall(128, off, wide), MENU_Advanced_VerOffset, 2084 - 128);
        const State full{{MENU_AdvancedPort1_Rows, 64}, {MENU_AdvancedPort1_Cols, 64}};
        row("one column beside a port that takes all", wall(128, off, full), MENU_Advanced_CabinetCol, 1);
        row("no X beside a port that takes all", wall(128, off, full), MENU_Advanced_HorOffset, 0);

        // 2048 lines, 2068 with blanking: 1954 pixels, 960 when doubled. 2048 pixels: 1955 lines, 967.
        const State low{{MENU_Advanced_VerOffset, 2048 - 256}};
        const State right{{MENU_Advanced_HorOffset, 2048 - 256}};
        row("port's X", wall(128, off, low), MENU_Advanced_HorOffset, 1954 - 256);
        row("port's X, doubled", wall(128, doubling, low), MENU_Advanced_HorOffset, 960 - 256);
        row("port's X, sequential", wall(128, sequential, low), MENU_Advanced_HorOffset, 1954 - 256);
        row("port's Y", wall(128, off, right), MENU_Advanced_VerOffset, 1955 - 256);
        row("port's Y, doubled", wall(128, doubling, right), MENU_Advanced_VerOffset, 967 - 256);
        row("port's X, cabinet unknown", wall(0), MENU_Advanced_HorOffset, 10240);
        row("port's Y, cabinet unknown", wall(0, doubling), MENU_Advanced_VerOffset, 8192);
    }
    void screenLimits()
    {
        const auto [state, index, most] = fetched<State, int, int>({"state", "index", "most"});
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
            put({{MENU_MainLayer_InputSource + i * STRIDE_Layer, 2 - i},
                 {crop, 1600},
                 {crop + 1, 800},
                 {crop + 2, 100},
                 {crop + 3, 50}});
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
        put({{width, 1920}, {height, 1080}, {rate, 9}});
        QCOMPARE(permitted(width, 2296), 2296);
        QCOMPARE(permitted(width, 2298), 2296);
        QCOMPARE(permitted(height, 1283), 1283);
        QCOMPARE(permitted(height, 1284), 1283);
        // At 24 Hz and 600 lines the slow clock asks for 25e6 / 24 / 639 = 1630.2 dots.
        put({{height, 600}, {rate, 1}});
        QCOMPARE(permitted(width, 800), 1471);
        QCOMPARE(permitted(width, 1472), 1472);
        // The rates of this input, and of no other: 1920x1080 up to 71 Hz.
        put({{height, 1080}});
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
        put({{MENU_HDMI1_EDIDHeight, 4092}});
        QCOMPARE(permitted(MENU_HDMI1_EDIDWidth, 4092), 2730);
        QCOMPARE(permitted(MENU_HDMI1_EDIDWidth, 2730), 2730);
        QCOMPARE(permitted(MENU_HDMI1_EDIDWidth, 2731), 2729); // stays odd
        put({{MENU_HDMI1_EDIDWidth, 4092}});
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
        put({{MENU_Output_Mode, 1}});
        m_rig->fromDevice(MENU_Output_Resolution, "0");
        put({{MENU_Output_FrameRate, 3}});
        m_rig->fromUser(MENU_Output_Apply, "");
        QCOMPARE(areaAndRate(), QString("1024x768, 120 Hz 1"));
        QCOMPARE(m_rig->value(PARA_OutputRate), QString("6000"));
        // Back to the own one: the device tells its size.
        put({{MENU_Output_Mode, 0}});
        m_rig->fromUser(MENU_Output_Apply, "");
        m_rig->fromDevice(PARA_ReportedHeight, "1080");
        QCOMPARE(areaAndRate(), QString("1920x1080, 120 Hz 0"));
    }

    void valuesBesideTheirMost()
    {
        put({{PARA_OutputRate, 6000}}); // the cabinet is unknown
        QCOMPARE(permitted(MENU_Quick_CabinetRow, 200), 200);
        QCOMPARE(permitted(MENU_Quick_CabinetCol, 200), 200);
        put({{PARA_CabinetWidth, 128}, {PARA_CabinetHeight, 128}, {MENU_Quick_CabinetCol, 20}});
        QCOMPARE(permitted(MENU_Quick_CabinetRow, 0), 1);
        put({{MENU_Quick_CabinetRow, 10}});
        QCOMPARE(permitted(MENU_Quick_PortOneCab, 10), 34);      // its share of six
        QCOMPARE(permitted(MENU_MainLayerCrop_HorWidth, 64), 0); // of nothing
        put({{MENU_HDMI1_EDIDHeight, 1080}, {MENU_DVI_EDIDWidth, 1920}});
        QCOMPARE(permitted(MENU_HDMI1_EDIDWidth, 1921), 1921);
        QCOMPARE(permitted(MENU_HDMI1_EDIDWidth, 700), 800);
        QCOMPARE(permitted(MENU_DVI_EDIDHeight, 500), 600);
        QCOMPARE(permitted(MENU_ScreenBrightness, 77), 77);
    }

    void portOneWarnsOfOverload()
    {
        // 34 cabinets are the share of six; rounded up to columns (20) 40, to rows (10) 40, to rows (45) 45.
        for (bool byRows : {false, true}) {
            put({{PARA_CabinetWidth, 128},
                 {PARA_CabinetHeight, 128},
                 {PARA_OutputRate, 6000},
                 {MENU_Quick_CabinetRow, 45},
                 {MENU_Quick_CabinetCol, 4},
                 {MENU_Quick_FlowWay, byRows}});
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
        put({{PARA_OutputWidth, 1920}, {PARA_OutputHeight, 1080}});
        for (const auto &expected : rows) {
            put({{MENU_Mode3D_Status, expected.stereo}, {MENU_Mode3D_Format, expected.format}});
            QCOMPARE(m_rig->engine->CalParaLimit("9", MENU_OutputFrameRate), QString("9"));
            for (int row = 0; row < 17; ++row)
                QCOMPARE(m_rig->rowEnabled(MENU_OutputFrameRate, row), row <= expected.lastRow);
            QCOMPARE(m_rig->reloaded.take(), QStringList{"OutputFrameRate="});
        }
    }

    void edidRateRows()
    {
        // 800x600: 25e6 / 960 / 629 lines = 41.1 Hz; the ceiling is 120
        put({{MENU_HDMI2_EDIDWidth, 800}, {MENU_HDMI2_EDIDHeight, 600}});
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
        put({{MENU_HDMI1_EDIDWidth, 1920}, {MENU_HDMI1_EDIDHeight, 1080}});
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
        const State output{{MENU_WorkMode, 0}, {PARA_OutputWidth, 1920}, {PARA_OutputHeight, 1080}};
        const State sender{{MENU_WorkMode, 2}};
        const State heavy{{PARA_OutputHeight, 2160}}; // (2160 + 20) * (1921 + 31) * 60 = 255e6
        const State stereo{{MENU_Mode3D_Status, 1}, {MENU_Mode3D_Format, 0}};
        const struct {
            const char *name;
            State state;
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
    void put(const State &state)
    {
        for (auto entry = state.cbegin(); entry != state.cend(); ++entry)
            m_rig->engine->SetParaToXml(QString::number(entry.value()), ENUM_MenuIndex(entry.key()),
                                        SET_XML_STORE);
    }
    int permitted(int index, int value)
    {
        return m_rig->engine->CalParaLimit(QString::number(value), ENUM_MenuIndex(index)).toInt();
    }
    EngineRig *m_rig = nullptr;
};

FPD_TEST(TestLimits)
#include "tst_limits.moc"
