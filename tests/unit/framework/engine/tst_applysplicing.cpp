// Splicing: what it takes from the layers, what it gives back, and the area that this device loads.

#include "caseline.h"
#include "layerrig.h"
#include "menu/itemindex.h"
#include "tests/testprogram.h"

using namespace VASK;

class TestApplySplicing : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { m_rig = new LayerRig; }
    void cleanupTestCase() { delete m_rig; }
    void init() { m_rig->start(); }

    void valueIsApplied_data();
    void valueIsApplied();
    void onTakesEverything();
    void onForASendingCard();
    void onLeavesTheTransitionLocked();
    void offOffersWhatFits_data();
    void offOffersWhatFits();

private:
    QString pageState() const;
    LayerRig *m_rig = nullptr;
};

namespace
{
const QString pageOn = " ImageMosaic_{TotalHPixels+ TotalVPixels+ LoadAreaWidth+ LoadAreaHeight+ "
                       "LoadAreaInitialX+ LoadAreaInitialY+ Reset+}";
const QString pageOff = " ImageMosaic_{TotalHPixels- TotalVPixels- LoadAreaWidth- LoadAreaHeight- "
                        "LoadAreaInitialX- LoadAreaInitialY- Reset-}";
const QString dialled =
    "ImageMosaic_{TotalHPixels=77 TotalVPixels=77 LoadAreaWidth=77 LoadAreaHeight=77 LoadAreaInitialX=77 "
    "LoadAreaInitialY=77} MainLayer_{HorWidth=800 VerHeight=600 InitialX=11 InitialY=12} ";
const QString factory =
    "leaves ImageMosaic_{TotalHPixels=3840 TotalVPixels=2160 LoadAreaWidth=1920 LoadAreaHeight=1080 "
    "LoadAreaInitialX=0 LoadAreaInitialY=0} MainLayer_{InitialX=11 InitialY=12} ";
const CaseLines lines{
    {"on, all stands already", "MainLayer_Status=1 Sync_Status=1", "user ImageMosaic_Status=1",
     "sends ImageMosaic_{LoadAreaWidth=1920 LoadAreaHeight=1080} MainLayer_{HorWidth=3840 VerHeight=2160 "
     "InitialX=0 InitialY=0} ImageMosaic_{Status=1 TotalHPixels=3840 TotalVPixels=2160 LoadAreaInitialY=0 "
     "Status=1}"},
    {"on",
     "ImageMosaic_{TotalHPixels=3000 TotalVPixels=2000 LoadAreaInitialY=9} PIP1_Status=1 "
     "MainLayer_{ScalingMode=1 HorWidth=700 InitialY=5} PIP1_{ScalingMode/0+ ScalingMode/1-}",
     "device ImageMosaic_Status=1",
     "sends ImageMosaic_{TotalHPixels=3000 TotalVPixels=2000 LoadAreaInitialY=9}; tells "
     "ImageMosaic_Status=1; leaves MainLayer_ScalingMode=2 PIP1_Status=1 MainLayer_{HorWidth=700 InitialY=5 "
     "ScalingMode/0- ScalingMode/1-} PIP1_{ScalingMode/0+ ScalingMode/1-}" +
         pageOn},
    {"off",
     "PIP1_Status=1 MainLayer_{ScalingMode=1 HorWidth=700 InitialY=5} PIP1_{ScalingMode/0+ ScalingMode/1-}",
     "device ImageMosaic_Status=0",
     "tells ImageMosaic_Status=0; leaves MainLayer_ScalingMode=1 PIP1_Status=1 MainLayer_{HorWidth=700 "
     "InitialY=5 ScalingMode/0+ ScalingMode/1+} PIP1_{ScalingMode/0+ ScalingMode/1-}" +
         pageOff},
    {"width", "", "user ImageMosaic_TotalHPixels=5000",
     "sends MainLayer_HorWidth=5000 ImageMosaic_TotalHPixels=5000; leaves MainLayer_{HorWidth=5000 "
     "CustomWidth=5000}"},
    {"width", "MainLayer_HorWidth=5000", "device ImageMosaic_TotalHPixels=4000",
     "tells ImageMosaic_TotalHPixels=4000; leaves MainLayer_HorWidth=5000"},
    {"height", "", "user ImageMosaic_TotalVPixels=5000",
     "sends MainLayer_VerHeight=5000 ImageMosaic_TotalVPixels=5000; leaves MainLayer_{VerHeight=5000 "
     "CustomHeight=5000}"},
    {"height", "MainLayer_VerHeight=5000", "device ImageMosaic_TotalVPixels=4000",
     "tells ImageMosaic_TotalVPixels=4000; leaves MainLayer_VerHeight=5000"},
    {"area holds its start", "ImageMosaic_{LoadAreaInitialX=32000 LoadAreaInitialY=100}",
     "user ImageMosaic_LoadAreaWidth=1000",
     "sends ImageMosaic_LoadAreaWidth=1000; reloads ImageMosaic_{LoadAreaInitialX=31768 "
     "LoadAreaInitialY=100}; leaves ImageMosaic_{LoadAreaInitialX=31768 LoadAreaInitialY=100}"},
    {"reset", dialled + "ImageMosaic_Status=1", "user ImageMosaic_Reset=0",
     "sends ImageMosaic_LoadAreaInitialY=0 MainLayer_VerHeight=2160; " + factory +
         "MainLayer_{HorWidth=3840 VerHeight=2160 CustomWidth=3840 CustomHeight=2160}"},
    {"reset, not spliced", dialled + "MainLayer_{CustomWidth=1 CustomHeight=2}", "user ImageMosaic_Reset=0",
     factory + "MainLayer_{HorWidth=800 VerHeight=600 CustomWidth=1 CustomHeight=2}"},
};
} // namespace

void TestApplySplicing::valueIsApplied_data()
{
    addCaseLines(lines);
}

void TestApplySplicing::valueIsApplied()
{
    QFETCH(int, row);
    runCaseLine(*m_rig, lines.at(row));
}

/// Which rows of the splicing page can be reached, from the totals to the reset.
QString TestApplySplicing::pageState() const
{
    QString flags;
    for (int item = 1041; item <= 1047; ++item)
        flags += m_rig->enabled(ENUM_MenuIndex(item)) ? 'y' : 'n';
    return flags;
}

void TestApplySplicing::onTakesEverything()
{
    m_rig->fromUser(MENU_MainLayer_Status, "0");
    m_rig->fromUser(MENU_PIP1_Status, "1");
    m_rig->fromUser(MENU_PIP2_Status, "1");
    m_rig->setGeometry(0, {"800", "600", "11", "12"});
    m_rig->setGeometry(1, {"320", "240", "21", "22"});
    for (int layer = 0; layer < 3; ++layer) {
        m_rig->setDialled(layer, false);
        m_rig->set(LayerRig::of(MENU_MainLayer_ScalingMode, layer), "1");
        m_rig->setRows(LayerRig::of(MENU_MainLayer_ScalingMode, layer), true);
    }
    m_rig->set(MENU_Layout, "0");
    m_rig->forget();
    m_rig->fromUser(MENU_ImageMosaic_Status, "1");

    QCOMPARE(m_rig->device->sent.take(),
             (QStringList{"MainLayer_Status=1", "ImageMosaic_LoadAreaWidth=1920",
                          "ImageMosaic_LoadAreaHeight=1080", "MainLayer_HorWidth=3840",
                          "MainLayer_VerHeight=2160", "MainLayer_InitialX=0", "MainLayer_InitialY=0",
                          "PIP1_Status=0", "PIP2_Status=0", "Sync_Status=1", "ImageMosaic_Status=1",
                          "ImageMosaic_TotalHPixels=3840", "ImageMosaic_TotalVPixels=2160",
                          "ImageMosaic_LoadAreaInitialY=0", "ImageMosaic_Status=1"}));
    QCOMPARE(m_rig->geometry(0), QString("3840 2160 0 0"));
    QVERIFY(m_rig->remembered(0).startsWith("3840 2160 "));
    QCOMPARE(m_rig->remembered(1), QString("320 240 21 22"));
    for (int layer = 0; layer < 3; ++layer) {
        const ENUM_MenuIndex scaling = LayerRig::of(MENU_MainLayer_ScalingMode, layer);
        QCOMPARE(m_rig->layerShown(layer), layer == 0);
        QCOMPARE(m_rig->dialled(layer), QString("yyyy"));
        QCOMPARE(m_rig->value(scaling), QString("2"));
        QCOMPARE(m_rig->rows(scaling), QString("nn"));
    }
    QVERIFY(m_rig->mosaicOffered());
    QCOMPARE(m_rig->transition(), QString("y"));
    QCOMPARE(m_rig->value(MENU_Sync_Status), QString("1"));
    QCOMPARE(m_rig->value(MENU_Layout), QString("2"));
    QCOMPARE(m_rig->value(PARA_LowestLayer), QString("0"));
    QCOMPARE(pageState(), QString("yyyyyyy"));
}

void TestApplySplicing::onForASendingCard()
{
    m_rig->set(MENU_WorkMode, "2");
    m_rig->setDialled(0, false);
    m_rig->fromUser(MENU_ImageMosaic_Status, "1");
    QCOMPARE(m_rig->dialled(0), QString("nnyy"));
    QVERIFY(m_rig->remembered(0).startsWith("3840 2160 "));
    const QStringList sent = m_rig->device->sent.take();
    QVERIFY(!sent.contains("MainLayer_HorWidth=3840") && !sent.contains("MainLayer_VerHeight=2160"));
    QVERIFY(sent.contains("MainLayer_InitialY=0"));
}

void TestApplySplicing::onLeavesTheTransitionLocked()
{
    const QPair<ENUM_MenuIndex, QString> locks[] = {
        {MENU_Mode3D_Status, "1"}, {MENU_MainLayer_InputSource, LayerRig::mosaicRow}, {MENU_WorkMode, "2"}};
    for (const auto &lock : locks) {
        m_rig->start();
        m_rig->setTransition(false);
        m_rig->set(lock.first, lock.second);
        m_rig->fromUser(MENU_ImageMosaic_Status, "1");
        QVERIFY2(m_rig->transition() == "n", QByteArray::number(lock.first));
    }
}

void TestApplySplicing::offOffersWhatFits_data()
{
    QTest::addColumn<int>("outputWidth");
    QTest::addColumn<int>("source");
    QTest::addColumn<QString>("rows");
    QTest::newRow("all") << 1920 << 0 << "yy";
    QTest::newRow("an output too large for full screen") << 3840 << 0 << "ny";
    QTest::newRow("an input too large for its pixels") << 1920 << 3 << "yn";
}

void TestApplySplicing::offOffersWhatFits()
{
    QFETCH(int, outputWidth);
    QFETCH(int, source);
    m_rig->fromUser(MENU_ImageMosaic_Status, "1");
    m_rig->process(PARA_OutputWidth, outputWidth);
    for (int layer : {1, 2})
        m_rig->set(LayerRig::of(MENU_MainLayer_InputSource, layer), QString::number(source));
    m_rig->forget();
    m_rig->fromUser(MENU_ImageMosaic_Status, "0");
    QTEST(m_rig->rows(MENU_PIP1_ScalingMode), "rows");
    QTEST(m_rig->rows(MENU_PIP2_ScalingMode), "rows");
    QCOMPARE(m_rig->rows(MENU_MainLayer_ScalingMode), QString("yy"));
    QCOMPARE(pageState(), QString("nnnnnnn"));
    QCOMPARE(m_rig->device->sent.take(), QStringList{"ImageMosaic_Status=0"});

    // What a crop leaves of the input counts.
    m_rig->set(MENU_PIP1Crop_Status, "1");
    m_rig->set(MENU_PIP1Crop_HorWidth, "1000");
    m_rig->fromUser(MENU_ImageMosaic_Status, "0");
    QVERIFY(m_rig->rowEnabled(MENU_PIP1_ScalingMode, 1));
}

FPD_TEST(TestApplySplicing)

#include "tst_applysplicing.moc"
