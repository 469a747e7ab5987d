// What follows from the report of an input: layers, output rate, LEDs, colour sampling and the production
// test.

#include "enginerig.h"
#include "framework/keyevent.h"
#include "ledpanel.h"
#include "widget/dialog_factory.h"

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
    void cleanup() { Factory::m_cur_step = FACTORY_STEP_NONE; }

    void mainLayerShowsItsInput_data();
    void mainLayerShowsItsInput();
    void mainLayerTakesTheSize_data();
    void mainLayerTakesTheSize();
    void pipTakesTheSize_data();
    void pipTakesTheSize();
    void pipOptionComesBack_data();
    void pipOptionComesBack();
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

void TestApplyInputs::initTestCase()
{
    m_rig = new EngineRig;
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
    QTest::addColumn<int>("signalState");
    QTest::addColumn<int>("interlaced");
    QTest::addColumn<int>("periodUs");
    QTest::addColumn<QString>("text");
    QTest::newRow("progressive") << 3 << 0 << 16667 << "1280x720@60";
    QTest::newRow("fractional rate") << 3 << 0 << 16683 << "1280x720@59.94";
    QTest::newRow("near a whole rate") << 3 << 0 << 16640 << "1280x720@60";
    QTest::newRow("interlaced") << 3 << 1 << 20000 << "1280x720i@50";
    QTest::newRow("unstable") << 2 << 0 << 16667 << "No Signal";
    QTest::newRow("lost") << 0 << 0 << 0 << "No Signal";
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
    QVERIFY(m_rig->reloaded.take().contains("2108="));
    QCOMPARE(m_rig->device->sent.take(), QStringList());
}

void TestApplyInputs::mainLayerTakesTheSize_data()
{
    QTest::addColumn<QString>("crop");
    QTest::addColumn<QString>("scaling");
    QTest::addColumn<int>("signalState");
    QTest::addColumn<QStringList>("sent");
    QTest::newRow("pixel to pixel") << "0"
                                    << "1" << 3 << QStringList{"2104=2160"};
    QTest::newRow("no signal") << "0"
                               << "1" << 0 << QStringList{"2104=1080"};
    QTest::newRow("cropped") << "1"
                             << "1" << 3 << QStringList();
    QTest::newRow("full screen") << "0"
                                 << "0" << 3 << QStringList();
    QTest::newRow("custom") << "0"
                            << "2" << 3 << QStringList();
}

void TestApplyInputs::mainLayerTakesTheSize()
{
    QFETCH(QString, crop);
    QFETCH(QString, scaling);
    QFETCH(int, signalState);
    QFETCH(QStringList, sent);
    m_rig->set(MENU_MainLayerCrop_Status, crop);
    m_rig->set(MENU_MainLayer_ScalingMode, scaling);
    report(0, 97, signalState, 3840, 2160, 16667);
    QCOMPARE(m_rig->device->sent.take(), sent);
    const QString width = signalState == 3 ? "3840" : "1920";
    QCOMPARE(m_rig->value(MENU_MainLayer_HorWidth), sent.isEmpty() ? QString("800") : width);
    QCOMPARE(layerText(0), QString(signalState == 3 ? "3840x2160@60" : "No Signal"));
}

void TestApplyInputs::pipTakesTheSize_data()
{
    QTest::addColumn<int>("layer");
    QTest::addColumn<int>("height");
    QTest::addColumn<QString>("cropStatus");
    QTest::addColumn<bool>("follows");
    QTest::newRow("PIP 1") << 1 << 1080 << "0" << true;
    QTest::newRow("PIP 2") << 2 << 1080 << "0" << true;
    QTest::newRow("PIP 2, as large as may be") << 2 << 1625 << "0" << true;
    QTest::newRow("PIP 2, larger") << 2 << 1626 << "0" << false;
    QTest::newRow("PIP 1, cropped") << 1 << 1080 << "1" << false;
}

void TestApplyInputs::pipTakesTheSize()
{
    QFETCH(int, layer);
    QFETCH(int, height);
    QFETCH(QString, cropStatus);
    QFETCH(bool, follows);
    const auto heightItem = ofLayer(MENU_MainLayer_VerHeight, layer);
    m_rig->set(ENUM_MenuIndex(MENU_MainLayerCrop_Status + STRIDE_Crop * layer), cropStatus);
    m_rig->set(ofLayer(MENU_MainLayer_ScalingMode, layer), "1");
    report(layer, 98, 3, 2000, height, 20000);
    QCOMPARE(m_rig->device->sent.take(),
             follows ? QStringList{QString("%1=%2").arg(heightItem).arg(height)} : QStringList());
    QCOMPARE(m_rig->value(ofLayer(MENU_MainLayer_HorWidth, layer)), QString(follows ? "2000" : "800"));
    QCOMPARE(m_rig->value(heightItem), follows ? QString::number(height) : QString("600"));
    QCOMPARE(layerText(layer), QString("2000x%1@50").arg(height));
    QVERIFY(m_rig->enabled(ofLayer(MENU_MainLayer_InputCrop, layer)));
    QVERIFY(!m_rig->enabled(ofLayer(MENU_MainLayer_InputCrop, 3 - layer)));
}

void TestApplyInputs::pipOptionComesBack_data()
{
    QTest::addColumn<QString>("splicing");
    QTest::addColumn<int>("height");
    QTest::addColumn<bool>("offered");
    QTest::newRow("fits") << "0" << 1080 << true;
    QTest::newRow("too large") << "0" << 1626 << false;
    QTest::newRow("splicing") << "1" << 1080 << false;
}

void TestApplyInputs::pipOptionComesBack()
{
    QFETCH(QString, splicing);
    QFETCH(int, height);
    m_rig->set(MENU_ImageMosaic_Status, splicing);
    ST_ItemInfo list = m_rig->info(MENU_PIP1_ScalingMode);
    list.params1["1"] = optionDisable;
    m_rig->store->updataMenuItem(MENU_PIP1_ScalingMode, list);
    report(1, 98, 3, 2000, height, 20000);
    QTEST(m_rig->rowEnabled(MENU_PIP1_ScalingMode, 1), "offered");
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
    QTest::addColumn<QString>("workMode");
    QTest::addColumn<QString>("sync");
    QTest::addColumn<int>(
        "input"); ///< 0 is the main layer's, 1 the source of synchronisation, 8 the reference
    QTest::addColumn<int>("signalState");
    QTest::addColumn<int>("periodUs");
    QTest::addColumn<int>("rate");
    QTest::addColumn<QString>("shown");
    const QString left = "untouched";
    QTest::newRow("controller, free") << "0"
                                      << "0" << 1 << 3 << 16683 << 6000 << left;
    QTest::newRow("controller, follows") << "0"
                                         << "1" << 1 << 3 << 16683 << 5994 << "1920x1200@59.94";
    QTest::newRow("controller, out of reach") << "0"
                                              << "1" << 1 << 3 << 20000 << 6000 << "1920x1200@60";
    QTest::newRow("controller, other input") << "0"
                                             << "1" << 0 << 3 << 16683 << 6000 << left;
    QTest::newRow("controller, no period") << "0"
                                           << "1" << 1 << 0 << 0 << 6000 << left;
    QTest::newRow("sender, free") << "2"
                                  << "0" << 0 << 3 << 20000 << 5000 << "1920x1200@50";
    QTest::newRow("sender, signal lost") << "2"
                                         << "0" << 0 << 0 << 20000 << 5000 << "1920x1200@60";
    QTest::newRow("sender, other input") << "2"
                                         << "0" << 1 << 3 << 20000 << 6000 << left;
    QTest::newRow("sender, reference") << "2"
                                       << "1" << 8 << 3 << 16683 << 5994 << "1920x1200@59.94";
    QTest::newRow("sender, reference lost") << "2"
                                            << "1" << 8 << 0 << 20000 << 6000 << left;
    QTest::newRow("sender, main input with sync") << "2"
                                                  << "1" << 0 << 3 << 20000 << 6000 << left;
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
    QTest::addColumn<int>("input");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("value");
    QTest::addColumn<int>("item");
    QTest::addColumn<QString>("text");
    const int codes[][2] = {{96, MENU_HDMI1_ColorSample}, {97, MENU_HDMI1_ColorSample},
                            {98, MENU_HDMI2_ColorSample}, {104, MENU_DVI_ColorSample},
                            {105, MENU_DVI_ColorSample},  {0, MENU_DVI_ColorSample},
                            {1, MENU_DVI_ColorSample},    {2, MENU_DVI2_ColorSample},
                            {106, MENU_DVI2_ColorSample}, {48, MENU_SDI_ColorSample}};
    for (const auto &row : codes)
        QTest::addRow("code %d", row[0]) << 1 << row[0] << "2" << row[1] << "YCbCr 4:4:4";
    QTest::newRow("4:2:2") << 0 << 97 << "1" << int(MENU_HDMI1_ColorSample) << "YCbCr 4:2:2";
    QTest::newRow("RGB") << 4 << 48 << "0" << int(MENU_SDI_ColorSample) << "RGB 4:4:4";
    QTest::newRow("unknown sampling") << 0 << 97 << "3" << int(MENU_HDMI1_ColorSample) << "RGB 4:4:4";
    QTest::newRow("input without a page") << 0 << 233 << "1" << int(MENU_DVI_ColorSample) << "RGB 4:4:4";
    QTest::newRow("sixth input") << 5 << 97 << "1" << int(MENU_HDMI1_ColorSample) << "RGB 4:4:4";
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
    Factory::m_cur_step = FACTORY_STEP_IN_OUT;
    Factory::InputTestNumCur = INOUT_HDMI2;
    report(1, 98, 3, 1920, 1080, 16667);
    report(0, 97, 0, 0, 0, 0); // another one between must not hide the loss
    report(1, 98, 0, 0, 0, 0);
    report(1, 98, 0, 0, 0, 0);
    QCOMPARE(told, (QStringList{"stable", "1:2"}));
    Factory::m_cur_step = FACTORY_STEP_KEYS;
    report(1, 98, 3, 1920, 1080, 16667);
    QCOMPARE(told.size(), 2);
}

QTEST_MAIN(TestApplyInputs)
#include "tst_applyinputs.moc"
