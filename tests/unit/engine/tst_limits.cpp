// What may be dialled: every limit that other values move, at it and beside it.

#include "enginerig.h"
#include "framework/engine/advancedports.h"
#include "framework/engine/bandwidth.h"

using namespace VASK;

class TestLimits : public QObject
{
    Q_OBJECT
private slots:
    void init() { rig()->reset(); }
    void cleanupTestCase() { delete m_rig; }
    void limitsOneValue_data();
    void limitsOneValue();
    void portOneWarnsOfOverload_data();
    void portOneWarnsOfOverload();
    void outputRateRows_data();
    void outputRateRows();
    void edidRateRows_data();
    void edidRateRows();
    void advancedPortsTogether();
    void startLinesOfPorts();
    void outputFollowsSource_data();
    void outputFollowsSource();

private:
    EngineRig *rig()
    {
        if (!m_rig)
            m_rig = new EngineRig;
        return m_rig;
    }
    EngineRig *m_rig = nullptr;
};

namespace
{
using State = QMap<int, int>; ///< items and process data that a limit reads

void put(EngineRig &rig, const State &state)
{
    for (auto entry = state.cbegin(); entry != state.cend(); ++entry) {
        const auto index = ENUM_MenuIndex(entry.key());
        if (ProcessData::contains(index))
            rig.process(index, entry.value());
        else
            rig.set(index, QString::number(entry.value()));
    }
}
} // namespace

Q_DECLARE_METATYPE(State)

void TestLimits::limitsOneValue_data()
{
    QTest::addColumn<State>("state");
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("permitted");
    auto row = [](const char *name, const State &state, int index, int value, int permitted) {
        QTest::newRow(name) << state << index << value << permitted;
    };

    const State output{{PARA_OutputWidth, 1920}, {PARA_OutputHeight, 1080}};
    row("load area width at", output, MENU_ImageMosaic_LoadAreaWidth, 1920, 1920);
    row("load area width above", output, MENU_ImageMosaic_LoadAreaWidth, 1921, 1920);
    row("load area height above", output, MENU_ImageMosaic_LoadAreaHeight, 1081, 1080);
    const State area{{MENU_ImageMosaic_LoadAreaWidth, 1000}, {MENU_ImageMosaic_LoadAreaHeight, 500}};
    row("load area X at", area, MENU_ImageMosaic_LoadAreaInitialX, 31768, 31768);
    row("load area X above", area, MENU_ImageMosaic_LoadAreaInitialX, 31769, 31768);
    row("load area Y above", area, MENU_ImageMosaic_LoadAreaInitialY, 32768, 32268);

    // Quick: cabinets of 128x128 at 60 Hz. 246,528,000 / 60 = 4,108,800 dots with blanking.
    row("rows, cabinet unknown", {{PARA_OutputRate, 6000}}, MENU_Quick_CabinetRow, 200, 200);
    row("columns, cabinet unknown", {{PARA_OutputRate, 6000}}, MENU_Quick_CabinetCol, 200, 200);
    const State quick{{PARA_CabinetWidth, 128},   {PARA_CabinetHeight, 128},  {PARA_OutputRate, 6000},
                      {MENU_Quick_CabinetCol, 2}, {MENU_Quick_CabinetRow, 2}, {MENU_Mode3D_Status, 0},
                      {MENU_Mode3D_Format, 0},    {MENU_Quick_FlowWay, 0}};
    row("rows up to 8192 lines", quick, MENU_Quick_CabinetRow, 64, 64);
    row("rows above 8192 lines", quick, MENU_Quick_CabinetRow, 65, 64);
    row("columns up to 10240 pixels", quick, MENU_Quick_CabinetCol, 80, 80);
    row("columns above 10240 pixels", quick, MENU_Quick_CabinetCol, 81, 80);
    row("never below one", quick, MENU_Quick_CabinetRow, 0, 1);
    State wide = quick;
    wide[MENU_Quick_CabinetCol] =
        15; // 1920 pixels, 1952 with blanking: 2104 lines with blanking, 2084 without
    row("rows by bandwidth", wide, MENU_Quick_CabinetRow, 20, 16);
    wide[MENU_Mode3D_Status] = 1; // twice the rate: 1052 lines with blanking
    row("rows by bandwidth, 3D doubles", wide, MENU_Quick_CabinetRow, 20, 8);
    wide[MENU_Mode3D_Format] = 2;
    row("rows by bandwidth, frame sequential does not", wide, MENU_Quick_CabinetRow, 20, 16);
    State high = quick;
    high[MENU_Quick_CabinetRow] = 8; // 1024 lines, 1044 with blanking: 3935 pixels with blanking
    row("columns by bandwidth", high, MENU_Quick_CabinetCol, 40, 30);

    // Port one: 39,583,333 / 60 = 659,722 dots, 40 cabinets of 128x128.
    State port = quick;
    port[MENU_Quick_CabinetRow] = 10;
    port[MENU_Quick_CabinetCol] = 20;
    row("port one at its load", port, MENU_Quick_PortOneCab, 40, 40);
    row("port one above its load", port, MENU_Quick_PortOneCab, 41, 40);
    row("port one takes its share of six", port, MENU_Quick_PortOneCab, 10, 34);
    port[MENU_Quick_CabinetRow] = 3;
    port[MENU_Quick_CabinetCol] = 4;
    row("port one not more than there are", port, MENU_Quick_PortOneCab, 13, 12);
    row("port one at what there is", port, MENU_Quick_PortOneCab, 12, 12);

    // Advanced, second port on the page.
    const State advanced{{PARA_CabinetWidth, 128},      {PARA_CabinetHeight, 128},
                         {PARA_OutputRate, 6000},       {MENU_Advanced_EthernetPort, 2},
                         {MENU_Advanced_CabinetRow, 2}, {MENU_Advanced_CabinetCol, 2},
                         {MENU_Advanced_HorOffset, 0},  {MENU_Advanced_VerOffset, 0},
                         {MENU_Mode3D_Status, 0},       {MENU_Mode3D_Format, 0}};
    row("port rows at its load", advanced, MENU_Advanced_CabinetRow, 20, 20);
    row("port rows above its load", advanced, MENU_Advanced_CabinetRow, 21, 20);
    row("port columns above its load", advanced, MENU_Advanced_CabinetCol, 21, 20);
    State offset = advanced;
    offset[MENU_Advanced_VerOffset] = 8192 - 128 * 3;
    row("port rows by height", offset, MENU_Advanced_CabinetRow, 4, 3);
    offset[MENU_Advanced_HorOffset] = 10240 - 128 * 2;
    row("port columns by width", offset, MENU_Advanced_CabinetCol, 3, 2);
    State tiny = advanced;
    tiny[PARA_CabinetWidth] = tiny[PARA_CabinetHeight] = 1;
    tiny[MENU_Advanced_CabinetCol] = 32;
    row("1024 cabinets a port", tiny, MENU_Advanced_CabinetRow, 32, 32);
    row("above 1024 cabinets a port", tiny, MENU_Advanced_CabinetRow, 33, 32);
    State stereo = advanced;
    stereo[MENU_Mode3D_Status] = 1;
    row("port rows, 3D doubles", stereo, MENU_Advanced_CabinetRow, 20, 10);
    row("port X by width", advanced, MENU_Advanced_HorOffset, 10000, 9984);
    row("port Y by height", advanced, MENU_Advanced_VerOffset, 8000, 7936);
    State far = advanced;
    far[MENU_Advanced_VerOffset] = 2048 - 256; // 2048 lines, 2068 with blanking: 1986 pixels with blanking
    row("port X by bandwidth", far, MENU_Advanced_HorOffset, 5000, 1954 - 256);

    // Crop of an input of 1920x1080 in layer PIP 1.
    const State crop{{MENU_PIP1_InputSource, 1},
                     {PARA_InputRecordFirst + 7 + 3, 1920},
                     {PARA_InputRecordFirst + 7 + 4, 1080},
                     {MENU_PIP1Crop_HorWidth, 1800},
                     {MENU_PIP1Crop_VerHeight, 1000},
                     {MENU_PIP1Crop_InitialX, 100},
                     {MENU_PIP1Crop_InitialY, 50}};
    row("crop width at", crop, MENU_PIP1Crop_HorWidth, 1820, 1820);
    row("crop width above", crop, MENU_PIP1Crop_HorWidth, 1821, 1820);
    row("crop height above", crop, MENU_PIP1Crop_VerHeight, 1031, 1030);
    row("crop X above", crop, MENU_PIP1Crop_InitialX, 121, 120);
    row("crop Y above", crop, MENU_PIP1Crop_InitialY, 81, 80);
    row("crop of nothing", {{MENU_MainLayerCrop_InitialX, 0}}, MENU_MainLayerCrop_HorWidth, 64, 0);

    // A custom EDID; 60 Hz stands at row 9 of the rates.
    row("EDID width keeps odd", {{MENU_HDMI1_EDIDHeight, 1080}}, MENU_HDMI1_EDIDWidth, 1921, 1921);
    // 165e6 / 60 / (1080 + 39) = 2457.5 dots a line with 160 blank ones: 2297, made even
    row("EDID width above", {{MENU_HDMI1_EDIDHeight, 1080}}, MENU_HDMI1_EDIDWidth, 3000, 2296);
    // 165e6 / 60 / 2080 = 1322.1 lines, 39 of them blank
    row("EDID height above", {{MENU_DVI_EDIDWidth, 1920}}, MENU_DVI_EDIDHeight, 1284, 1283);
    row("EDID height at", {{MENU_DVI_EDIDWidth, 1920}}, MENU_DVI_EDIDHeight, 1283, 1283);
    row("EDID width at least 800", {{MENU_HDMI1_EDIDHeight, 1080}}, MENU_HDMI1_EDIDWidth, 700, 800);
    row("EDID height at least 600", {{MENU_DVI_EDIDWidth, 1920}}, MENU_DVI_EDIDHeight, 500, 600);

    // 24 Hz stands at row 1: the clock carries more than the 4092 that a size may have, and 460 us of
    // blanking are 46 lines, which bring 4050 lines to 4096
    State cinema{{MENU_HDMI2_EDIDHeight, 600}, {MENU_HDMI2_EDIDCustomRate, 1}};
    row("EDID width at its end", cinema, MENU_HDMI2_EDIDWidth, 4091, 4091);
    row("EDID width above its end", cinema, MENU_HDMI2_EDIDWidth, 5000, 4092);
    cinema = {{MENU_DVI2_EDIDWidth, 800}, {MENU_DVI2_EDIDCustomRate, 1}};
    row("EDID height by all its lines", cinema, MENU_DVI2_EDIDHeight, 4049, 4049);
    row("EDID height above all its lines", cinema, MENU_DVI2_EDIDHeight, 4092, 4049);

    row("mosaic at its area", {{MENU_Mosaic_Height, 1080}}, MENU_Mosaic_Width, 2048, 2048);
    row("mosaic above its area", {{MENU_Mosaic_Height, 1080}}, MENU_Mosaic_Width, 2049, 2048);
    row("mosaic height above", {{MENU_Mosaic_Width, 2048}}, MENU_Mosaic_Height, 1200, 1080);
    row("no limit but its own", {}, MENU_ScreenBrightness, 77, 77);
}

void TestLimits::limitsOneValue()
{
    QFETCH(State, state);
    QFETCH(int, index);
    QFETCH(int, value);
    QFETCH(int, permitted);
    put(*m_rig, state);
    QCOMPARE(m_rig->engine->CalParaLimit(QString::number(value), ENUM_MenuIndex(index)),
             QString::number(permitted));
}

void TestLimits::portOneWarnsOfOverload_data()
{
    QTest::addColumn<int>("flowWay");
    QTest::addColumn<bool>("warned");
    // 34 cabinets are the share of six; rounded up to columns (20) 40, to rows (10) 40, to rows (45) 45.
    QTest::newRow("whole columns fit") << 0 << false;
    QTest::newRow("whole rows do not") << 1 << true;
}

void TestLimits::portOneWarnsOfOverload()
{
    QFETCH(int, flowWay);
    QFETCH(bool, warned);
    put(*m_rig, {{PARA_CabinetWidth, 128},
                 {PARA_CabinetHeight, 128},
                 {PARA_OutputRate, 6000},
                 {MENU_Quick_CabinetRow, 45},
                 {MENU_Quick_CabinetCol, 4},
                 {MENU_Quick_FlowWay, flowWay}});
    // What may be dialled stays; the load of the whole lines is only warned of.
    QCOMPARE(m_rig->engine->CalParaLimit("30", MENU_Quick_PortOneCab), QString("30"));
    QCOMPARE(m_rig->messages, warned ? QStringList{"OverLoad"} : QStringList());
}

void TestLimits::outputRateRows_data()
{
    QTest::addColumn<State>("state");
    QTest::addColumn<int>("lastRow"); ///< the fastest that can be chosen
    // (1920 + 33) * (1080 + 20) = 2,148,300 dots: 114.75 Hz
    const State size{{PARA_OutputWidth, 1920}, {PARA_OutputHeight, 1080}};
    State stereo = size;
    stereo[MENU_Mode3D_Status] = 1;
    State sequential = stereo;
    sequential[MENU_Mode3D_Format] = 2;
    QTest::newRow("plain") << size << 14;
    QTest::newRow("3D side by side: half, 57.4 Hz") << stereo << 7;
    QTest::newRow("3D frame sequential: as plain") << sequential << 14;
}

void TestLimits::outputRateRows()
{
    QFETCH(State, state);
    QFETCH(int, lastRow);
    put(*m_rig, {{MENU_Mode3D_Format, 0}});
    put(*m_rig, state);
    QCOMPARE(m_rig->engine->CalParaLimit("9", MENU_OutputFrameRate), QString("9"));
    for (int row = 0; row < 17; ++row)
        QCOMPARE(m_rig->rowEnabled(MENU_OutputFrameRate, row), row <= lastRow);
    QCOMPARE(m_rig->reloaded.take(), QStringList{"2015="});
}

void TestLimits::edidRateRows_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::addColumn<float>("slowest");
    QTest::addColumn<float>("fastest");
    // 1920x1080: 165e6 / 2080 / f lines; at 70 Hz 1116 lines take 162.5 MHz, at 72 Hz they exceed
    QTest::newRow("large") << 1920 << 1080 << 23.f << 71.f;
    // 800x600: 25e6 / 960 / 629 lines = 41.1 Hz; the ceiling is 120
    QTest::newRow("small") << 800 << 600 << 41.f << 120.f;
}

void TestLimits::edidRateRows()
{
    QFETCH(int, width);
    QFETCH(int, height);
    QFETCH(float, slowest);
    QFETCH(float, fastest);
    put(*m_rig, {{MENU_HDMI2_EDIDWidth, width}, {MENU_HDMI2_EDIDHeight, height}});
    const QString before = m_rig->value(MENU_HDMI2_EDIDCustomRate);
    QCOMPARE(m_rig->engine->CalParaLimit(before, MENU_HDMI2_EDIDCustomRate), before);
    const ST_ItemInfo list = m_rig->info(MENU_HDMI2_EDIDCustomRate);
    for (auto option = list.params.cbegin(); option != list.params.cend(); ++option) {
        const float rate = option.value().toFloat();
        QVERIFY2(list.params1.value(option.key()) ==
                     (rate >= slowest && rate <= fastest ? optionEnable : optionDisable),
                 qPrintable(option.value()));
    }
}

void TestLimits::advancedPortsTogether()
{
    // The first port reaches to 2560x1600 already; (1600 + 20) * (2561 + 31) * 58 = 243.5e6
    put(*m_rig, {{PARA_CabinetWidth, 128},
                 {PARA_CabinetHeight, 128},
                 {PARA_OutputRate, 5800},
                 {MENU_AdvancedPort1_Rows, 1600 / 128},
                 {MENU_AdvancedPort1_Cols, 20},
                 {MENU_AdvancedPort1_Y, 64},
                 {MENU_AdvancedPort2_X, 0}});
    QVERIFY(!GetAdvCfgAdjust(*m_rig->engine, 1, AdvancedPorts::Columns, 20));
    QVERIFY(GetAdvCfgAdjust(*m_rig->engine, 1, AdvancedPorts::Columns, 21));
    QVERIFY(GetAdvCfgAdjust(*m_rig->engine, 1, AdvancedPorts::X, 2560));
    // Doubling by 3D does not count here.
    put(*m_rig, {{MENU_Mode3D_Status, 1}, {MENU_Mode3D_Format, 0}});
    QVERIFY(!GetAdvCfgAdjust(*m_rig->engine, 1, AdvancedPorts::Columns, 20));
}

void TestLimits::startLinesOfPorts()
{
    for (int port = 0; port < AdvancedPorts::count; ++port)
        QVERIFY(!GetAdvCfgPortAdjust(*m_rig->engine, port));
    put(*m_rig, {{MENU_AdvancedPort10_Y, 1}});
    for (int port = 0; port < AdvancedPorts::count; ++port)
        QVERIFY(GetAdvCfgPortAdjust(*m_rig->engine, port));
}

void TestLimits::outputFollowsSource_data()
{
    QTest::addColumn<State>("state");
    QTest::addColumn<int>("rate");
    QTest::addColumn<int>("outputRate");
    QTest::addColumn<int>("taken");
    const State controller{{MENU_WorkMode, 0}, {PARA_OutputWidth, 1920}, {PARA_OutputHeight, 1080}};
    State sender = controller;
    sender[MENU_WorkMode] = 2;
    State heavy = controller; // (2160 + 20) * (1921 + 31) * 60 = 255e6
    heavy[PARA_OutputHeight] = 2160;
    State stereo = controller;
    stereo[MENU_Mode3D_Status] = 1;
    stereo[MENU_Mode3D_Format] = 0;
    QTest::newRow("equal") << controller << 6000 << 6000 << 6000;
    QTest::newRow("lower edge") << controller << 5970 << 6000 << 5970;
    QTest::newRow("below") << controller << 5969 << 6000 << 6000;
    QTest::newRow("upper edge") << controller << 6029 << 6000 << 6029;
    QTest::newRow("above") << controller << 6031 << 6000 << 6000;
    QTest::newRow("no source") << controller << 0 << 5994 << 5994;
    QTest::newRow("a sending card follows everything") << sender << 3000 << 6000 << 3000;
    QTest::newRow("too much for the output") << heavy << 5994 << 5970 << 5970;
    QTest::newRow("too much when doubled") << stereo << 6000 << 5990 << 5990;
}

void TestLimits::outputFollowsSource()
{
    QFETCH(State, state);
    QFETCH(int, rate);
    QFETCH(int, outputRate);
    QFETCH(int, taken);
    put(*m_rig, state);
    QCOMPARE(m_rig->engine->OutputFrameAdj(rate, outputRate), taken);
}

QTEST_MAIN(TestLimits)
#include "tst_limits.moc"
