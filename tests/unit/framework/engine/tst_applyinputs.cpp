// What follows from the report of an input: layers, output rate, LEDs, colour sampling and the production
// test.

#include "enginerig.h"
#include "framework/input/keyevent.h"
#include "framework/productiontest/productiontest.h"
#include "ledpanel.h"
#include "menu/itemindex.h"
#include "menu/ledindex.h"
#include "tests/testprogram.h"

using namespace VASK;

namespace
{
ENUM_MenuIndex period(int input)
{
    return ENUM_MenuIndex(PARA_InputRecordFirst + STRIDE_InputRecord * input + 5);
}
ENUM_MenuIndex ofLayer(int ofMain, int layer)
{
    return ENUM_MenuIndex(ofMain + STRIDE_Layer * layer);
}
} // namespace

class TestApplyInputs : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void cleanupTestCase() { delete m_rig; }
    void init();
    void cleanup() { ProductionTest::m_cur_step = FACTORY_STEP_NONE; }

    void mainLayerShowsItsInput_data();
    void mainLayerShowsItsInput();
    void layerKeepsItsSize_data();
    void layerKeepsItsSize();
    void pipTakesTheSize_data();
    void pipTakesTheSize();
    void sendingCardLeavesCropAndPipAlone();
    void otherInputChangesNoLayer();
    void outputRateFollows_data();
    void outputRateFollows();
    void sourceLedsFollow();
    void samplingGoesToItsPage_data();
    void samplingGoesToItsPage();
    void inputUnderTest();

private:
    /// The record of an input arrives whole.
    void report(int input, int code, int signalState, int width, int height, int periodUs)
    {
        m_rig->input(input, code, signalState, width, height, periodUs);
        m_rig->fromDevice(period(input), QString::number(periodUs));
    }
    QString layerText(int layer) const
    {
        static const char *const labels[] = {"labLayerSrc1_Res", "labLayerSrc2_Res", "labLayerSrc3_Res"};
        return m_rig->shown(labels[layer]);
    }
    EngineRig *m_rig = nullptr;
    LedPanel *m_leds = nullptr;
};

/// On a model with a page for DVI 2.
void TestApplyInputs::initTestCase()
{
    m_rig = new EngineRig;
    m_rig->addRows({CONFIG_DVI2_Attributes});
    m_leds = new LedPanel(m_rig->statePath("").toStdString());
    KeyEvent::getInstance()->InitKeyDriver(qApp);
}

void TestApplyInputs::init()
{
    m_rig->reset();
    for (int layer = 0; layer < 3; ++layer) {
        m_rig->set(ofLayer(MENU_MainLayer_InputSource, layer), QString::number(layer));
        m_rig->home->SetLayerRes(ENUM_MainWindowLayerIndex(layer), "untouched");
    }
    m_rig->process(PARA_OutputWidth, 1920);
    m_rig->process(PARA_OutputHeight, 1200);
    m_rig->process(PARA_OutputRate, 6000);
    m_rig->home->SetScreenRes("untouched");
    m_rig->forget();
}

void TestApplyInputs::mainLayerShowsItsInput_data()
{
    addColumns<int, int, int, QString>({"signalState", "interlaced", "periodUs", "text"});
    addRow("near a whole rate", 3, 0, 16640, "1280x720@60");
    addRow("interlaced", 3, 1, 20000, "1280x720i@50");
    addRow("unstable", 2, 0, 16667, "No Signal");
}

void TestApplyInputs::mainLayerShowsItsInput()
{
    QFETCH(int, signalState);
    QFETCH(int, interlaced);
    QFETCH(int, periodUs);
    m_rig->input(0, 97, signalState, 1280, 720, periodUs);
    m_rig->process(ENUM_MenuIndex(PARA_InputRecordFirst + 1), interlaced);
    m_rig->fromDevice(period(0), QString::number(periodUs));
    QTEST(layerText(0), "text");
    QCOMPARE(layerText(1) + layerText(2), QString("untoucheduntouched"));
    QCOMPARE(m_rig->enabled(MENU_MainLayer_InputCrop), signalState == 3);
    QVERIFY(m_rig->reloaded.take().contains("MainLayer_InputCrop="));
    QCOMPARE(m_rig->device->sent.take(), QStringList());
}

void TestApplyInputs::layerKeepsItsSize_data()
{
    addColumns<int, QString, QString>({"layer", "crop", "scaling"});
    addRow("main layer, cropped", 0, "1", "1");
    addRow("PIP 1, cropped", 1, "1", "1");
    addRow("full screen", 0, "0", "0");
}

void TestApplyInputs::layerKeepsItsSize()
{
    QFETCH(int, layer);
    QFETCH(QString, crop);
    QFETCH(QString, scaling);
    m_rig->set(ENUM_MenuIndex(MENU_MainLayerCrop_Status + STRIDE_Crop * layer), crop);
    m_rig->set(ofLayer(MENU_MainLayer_ScalingMode, layer), scaling);
    report(layer, 97, 3, 2000, 1080, 16667);
    QCOMPARE(m_rig->device->sent.take(), QStringList());
    QCOMPARE(m_rig->value(ofLayer(MENU_MainLayer_HorWidth, layer)), QString("800"));
    QCOMPARE(layerText(layer), QString("2000x1080@60"));
}

/// As large as a PIP may be, and larger. Where it does not take the size the option comes back with what
/// fits, unless pictures are spliced.
void TestApplyInputs::pipTakesTheSize_data()
{
    addColumns<int, int, QString, QString, QString, bool>(
        {"layer", "height", "scaling", "splicing", "sent", "offered"});
    addRow("PIP 1", 1, 1625, "1", "0", "PIP1_VerHeight=1625", false);
    addRow("PIP 2", 2, 1625, "1", "0", "PIP2_VerHeight=1625", false);
    addRow("larger", 2, 1626, "1", "0", "", false);
    addRow("option comes back", 1, 1625, "2", "0", "", true);
    addRow("not with a larger one", 1, 1626, "2", "0", "", false);
    addRow("nor while splicing", 1, 1080, "2", "1", "", false);
}

void TestApplyInputs::pipTakesTheSize()
{
    QFETCH(int, layer);
    QFETCH(int, height);
    QFETCH(QString, scaling);
    QFETCH(QString, splicing);
    const ENUM_MenuIndex list = ofLayer(MENU_MainLayer_ScalingMode, layer);
    m_rig->set(MENU_ImageMosaic_Status, splicing);
    m_rig->set(list, scaling);
    m_rig->store->changeItem(list, [](ST_ItemInfo &item) { item.params1["1"] = optionDisable; });
    report(layer, 98, 3, 2000, height, 20000);
    const QString sent = m_rig->device->sent.take().join(' ');
    QTEST(sent, "sent");
    QTEST(m_rig->rowEnabled(list, 1), "offered");
    QCOMPARE(m_rig->value(ofLayer(MENU_MainLayer_HorWidth, layer)), QString(sent.isEmpty() ? "800" : "2000"));
    QCOMPARE(layerText(layer), QString("2000x%1@50").arg(height));
    QVERIFY(m_rig->enabled(ofLayer(MENU_MainLayer_InputCrop, layer)));
    QVERIFY(!m_rig->enabled(ofLayer(MENU_MainLayer_InputCrop, 3 - layer)));
}

void TestApplyInputs::sendingCardLeavesCropAndPipAlone()
{
    m_rig->set(MENU_WorkMode, "2");
    m_rig->set(MENU_PIP1_InputSource, "0");
    report(0, 97, 3, 1920, 1080, 20000);
    QVERIFY(!m_rig->enabled(MENU_MainLayer_InputCrop));
    m_rig->home->SetLayerRes(LAYER_PIP1, "untouched");
    report(0, 97, 0, 0, 0, 0);
    QCOMPARE(layerText(0) + layerText(1), QString("No Signaluntouched"));
}

void TestApplyInputs::otherInputChangesNoLayer()
{
    report(7, 48, 3, 1920, 1080, 20000);
    QCOMPARE(layerText(0) + m_rig->shown("labScreenRes"), QString("untoucheduntouched"));
    QCOMPARE(m_rig->device->sent.take() + m_rig->reloaded.take(), QStringList());
    QCOMPARE(m_rig->value(PARA_OutputRate), QString("6000"));
}

void TestApplyInputs::outputRateFollows_data()
{
    // Input 0 is the main layer's, 1 the source of synchronisation, 8 the reference.
    addColumns<QString, QString, int, int, int, int, QString>(
        {"workMode", "sync", "input", "signalState", "periodUs", "rate", "shown"});
    const QString left = "untouched";
    addRow("controller, follows", "0", "1", 1, 3, 16683, 5994, "1920x1200@59.94");
    addRow("controller, out of reach", "0", "1", 1, 3, 20000, 6000, "1920x1200@60");
    addRow("controller, other input", "0", "1", 0, 3, 16683, 6000, left);
    addRow("controller, no period", "0", "1", 1, 0, 0, 6000, left);
    addRow("sender, signal lost", "2", "0", 0, 0, 20000, 5000, "1920x1200@60");
    addRow("sender, other input", "2", "0", 1, 3, 20000, 6000, left);
    addRow("sender, reference lost", "2", "1", 8, 0, 20000, 6000, left);
    addRow("sender, main input with sync", "2", "1", 0, 3, 20000, 6000, left);
}

void TestApplyInputs::outputRateFollows()
{
    QFETCH(QString, workMode);
    QFETCH(QString, sync);
    QFETCH(int, input);
    QFETCH(int, signalState);
    QFETCH(int, periodUs);
    QFETCH(int, rate);
    m_rig->set(MENU_WorkMode, workMode);
    m_rig->set(MENU_Sync_Status, sync);
    m_rig->set(MENU_Sync_Source, "1");
    if (signalState == 0)
        m_rig->process(PARA_OutputRate, rate);
    report(input, input == 8 ? 254 : 97 + input, signalState, 1920, 1080, periodUs);
    QCOMPARE(m_rig->value(PARA_OutputRate).toInt(), rate);
    QTEST(m_rig->shown("labScreenRes"), "shown");
}

void TestApplyInputs::sourceLedsFollow()
{
    report(5, 106, 3, 1920, 1080, 20000);
    QVERIFY(m_leds->lit(LED_INPUT6));
    report(5, 106, 0, 0, 0, 0);
    QVERIFY(!m_leds->lit(LED_INPUT6));
}

void TestApplyInputs::samplingGoesToItsPage_data()
{
    addColumns<int, int, QString, int, QString>({"input", "code", "value", "item", "text"});
    const int codes[][2] = {{96, MENU_HDMI1_ColorSample}, {17, MENU_HDMI1_ColorSample},
                            {18, MENU_HDMI2_ColorSample}, {104, MENU_DVI_ColorSample},
                            {1, MENU_DVI_ColorSample},    {2, MENU_DVI2_ColorSample}};
    for (const auto &row : codes)
        addRow(QString("code %1").arg(row[0]), 1, row[0], "2", row[1], "YCbCr 4:4:4");
    addRow("unknown sampling", 0, 97, "3", MENU_HDMI1_ColorSample, "RGB 4:4:4");
    addRow("sixth input", 5, 97, "1", MENU_HDMI1_ColorSample, "RGB 4:4:4");
}

void TestApplyInputs::samplingGoesToItsPage()
{
    QFETCH(int, input);
    QFETCH(int, code);
    QFETCH(QString, value);
    QFETCH(int, item);
    m_rig->input(input, code, 3, 1920, 1080, 16667);
    m_rig->fromDevice(ENUM_MenuIndex(period(input) + 1), value);
    QTEST(m_rig->value(ENUM_MenuIndex(item)), "text");
    QCOMPARE(m_rig->device->sent.take(), QStringList());
}

void TestApplyInputs::inputUnderTest()
{
    QStringList told;
    QObject listener;
    connect(m_rig->engine, &ParaProcess::signal_Source_Stable, &listener, [&told] { told << "stable"; });
    connect(m_rig->engine, &ParaProcess::signal_update_menuitem, &listener,
            [&told](en_inout_test_index index, en_item_state state) {
                told << QString("%1:%2").arg(index).arg(state);
            });
    report(1, 98, 0, 0, 0, 0);
    ProductionTest::m_cur_step = FACTORY_STEP_IN_OUT;
    ProductionTest::InputTestNumCur = INOUT_HDMI2;
    report(1, 98, 3, 1920, 1080, 16667);
    report(0, 97, 0, 0, 0, 0); // another one between must not hide the loss
    report(1, 98, 0, 0, 0, 0);
    report(1, 98, 0, 0, 0, 0);
    QCOMPARE(told, (QStringList{"stable", "1:2"}));
    ProductionTest::m_cur_step = FACTORY_STEP_KEYS;
    report(1, 98, 3, 1920, 1080, 16667);
    QCOMPARE(told.size(), 2);
}

FPD_TEST(TestApplyInputs)

#include "tst_applyinputs.moc"
