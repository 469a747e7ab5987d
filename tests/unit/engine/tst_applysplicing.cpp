// Splicing: what it takes from the layers, what it gives back, and the area that this device loads.

#include "layerrig.h"

using namespace VASK;

class TestApplySplicing : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { m_rig = new LayerRig; }
    void cleanupTestCase() { delete m_rig; }
    void init() { m_rig->start(); }

    void onTakesEverything();
    void onLeavesWhatStandsAlready();
    void onForASendingCard();
    void onLeavesTheTransitionLocked_data();
    void onLeavesTheTransitionLocked();
    void offOffersWhatFits_data();
    void offOffersWhatFits();
    void reported_data();
    void reported();
    void totals_data();
    void totals();
    void areaHoldsItsStart();
    void reset_data();
    void reset();

private:
    QString pageState() const;
    LayerRig *m_rig = nullptr;
};

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

    QCOMPARE(
        m_rig->device->sent.take(),
        (QStringList{"2100=1", "1043=1920", "1044=1080", "2103=3840", "2104=2160", "2105=0", "2106=0",
                     "2110=0", "2120=0", "2350=1", "1040=1", "1041=3840", "1042=2160", "1046=0", "1040=1"}));
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

void TestApplySplicing::onLeavesWhatStandsAlready()
{
    m_rig->set(MENU_MainLayer_Status, "1");
    m_rig->set(MENU_Sync_Status, "1");
    m_rig->fromUser(MENU_ImageMosaic_Status, "1");
    const QStringList sent = m_rig->device->sent.take();
    for (const char *line : {"2100=1", "2110=0", "2120=0", "2350=1"})
        QVERIFY2(!sent.contains(line), line);
}

void TestApplySplicing::onForASendingCard()
{
    m_rig->set(MENU_WorkMode, "2");
    m_rig->setDialled(0, false);
    m_rig->fromUser(MENU_ImageMosaic_Status, "1");
    QCOMPARE(m_rig->dialled(0), QString("nnyy"));
    QVERIFY(m_rig->remembered(0).startsWith("3840 2160 "));
    const QStringList sent = m_rig->device->sent.take();
    QVERIFY(!sent.contains("2103=3840") && !sent.contains("2104=2160"));
    QVERIFY(sent.contains("2106=0"));
}

void TestApplySplicing::onLeavesTheTransitionLocked_data()
{
    QTest::addColumn<int>("item");
    QTest::addColumn<QString>("value");
    QTest::newRow("3D") << int(MENU_Mode3D_Status) << "1";
    QTest::newRow("mosaic") << int(MENU_MainLayer_InputSource) << LayerRig::mosaicRow;
    QTest::newRow("sending card") << int(MENU_WorkMode) << "2";
}

void TestApplySplicing::onLeavesTheTransitionLocked()
{
    QFETCH(int, item);
    QFETCH(QString, value);
    m_rig->setTransition(false);
    m_rig->set(ENUM_MenuIndex(item), value);
    m_rig->fromUser(MENU_ImageMosaic_Status, "1");
    QCOMPARE(m_rig->transition(), QString("n"));
}

void TestApplySplicing::offOffersWhatFits_data()
{
    QTest::addColumn<int>("outputWidth");
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("rows");
    QTest::newRow("all") << 1920 << "0"
                         << "yy";
    QTest::newRow("an output too large for full screen") << 3840 << "0"
                                                         << "ny";
    QTest::newRow("an input too large for its pixels") << 1920 << "3"
                                                       << "yn";
}

void TestApplySplicing::offOffersWhatFits()
{
    QFETCH(int, outputWidth);
    QFETCH(QString, source);
    m_rig->fromUser(MENU_ImageMosaic_Status, "1");
    m_rig->process(PARA_OutputWidth, outputWidth);
    for (int layer : {1, 2})
        m_rig->set(LayerRig::of(MENU_MainLayer_InputSource, layer), source);
    m_rig->forget();
    m_rig->fromUser(MENU_ImageMosaic_Status, "0");
    QTEST(m_rig->rows(MENU_PIP1_ScalingMode), "rows");
    QTEST(m_rig->rows(MENU_PIP2_ScalingMode), "rows");
    QCOMPARE(m_rig->rows(MENU_MainLayer_ScalingMode), QString("yy"));
    QCOMPARE(pageState(), QString("nnnnnnn"));
    QCOMPARE(m_rig->device->sent.take(), QStringList{"1040=0"});

    // What a crop leaves of the input counts.
    m_rig->set(MENU_PIP1Crop_Status, "1");
    m_rig->set(MENU_PIP1Crop_HorWidth, "1000");
    m_rig->fromUser(MENU_ImageMosaic_Status, "0");
    QVERIFY(m_rig->rowEnabled(MENU_PIP1_ScalingMode, 1));
}

void TestApplySplicing::reported_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("rows");
    QTest::addColumn<QString>("page");
    QTest::addColumn<QStringList>("sent");
    QTest::newRow("on") << "1"
                        << "nn"
                        << "yyyyyyy" << QStringList{"1041=3000", "1042=2000", "1046=9"};
    QTest::newRow("off") << "0"
                         << "yy"
                         << "nnnnnnn" << QStringList();
}

void TestApplySplicing::reported()
{
    QFETCH(QString, value);
    m_rig->set(MENU_ImageMosaic_TotalHPixels, "3000");
    m_rig->set(MENU_ImageMosaic_TotalVPixels, "2000");
    m_rig->set(MENU_ImageMosaic_LoadAreaInitialY, "9");
    m_rig->set(MENU_PIP1_Status, "1");
    m_rig->set(MENU_MainLayer_ScalingMode, "1");
    const QString before = m_rig->geometry(0);
    const QString pipRows = m_rig->rows(MENU_PIP1_ScalingMode);
    m_rig->fromDevice(MENU_ImageMosaic_Status, value);
    QTEST(m_rig->rows(MENU_MainLayer_ScalingMode), "rows");
    QTEST(pageState(), "page");
    QTEST(m_rig->device->sent.take(), "sent");
    QCOMPARE(m_rig->value(MENU_MainLayer_ScalingMode), QString(value == "1" ? "2" : "1"));
    QCOMPARE(m_rig->geometry(0), before);
    QCOMPARE(m_rig->rows(MENU_PIP1_ScalingMode), pipRows);
    QCOMPARE(m_rig->value(MENU_PIP1_Status), QString("1"));
    QCOMPARE(m_rig->reported.take(), QStringList{LayerRig::line(1040, value)});
}

void TestApplySplicing::totals_data()
{
    QTest::addColumn<int>("item");
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("memory");
    QTest::newRow("width") << 1041 << 2103 << 3139;
    QTest::newRow("height") << 1042 << 2104 << 3140;
}

void TestApplySplicing::totals()
{
    QFETCH(int, item);
    QFETCH(int, size);
    QFETCH(int, memory);
    m_rig->fromUser(ENUM_MenuIndex(item), "5000");
    QCOMPARE(m_rig->value(ENUM_MenuIndex(size)), QString("5000"));
    QCOMPARE(m_rig->value(ENUM_MenuIndex(memory)), QString("5000"));
    QCOMPARE(m_rig->device->sent.take(),
             (QStringList{LayerRig::line(size, "5000"), LayerRig::line(item, "5000")}));
    m_rig->fromDevice(ENUM_MenuIndex(item), "4000");
    QCOMPARE(m_rig->value(ENUM_MenuIndex(size)), QString("5000"));
    QCOMPARE(m_rig->device->sent.take(), QStringList());
    QCOMPARE(m_rig->reported.take(), QStringList{LayerRig::line(item, "4000")});
}

void TestApplySplicing::areaHoldsItsStart()
{
    m_rig->set(MENU_ImageMosaic_LoadAreaInitialX, "32000");
    m_rig->set(MENU_ImageMosaic_LoadAreaInitialY, "100");
    m_rig->fromUser(MENU_ImageMosaic_LoadAreaWidth, "1000");
    QCOMPARE(m_rig->value(MENU_ImageMosaic_LoadAreaInitialX), QString("31768"));
    QCOMPARE(m_rig->value(MENU_ImageMosaic_LoadAreaInitialY), QString("100"));
    QCOMPARE(m_rig->device->sent.take(), QStringList{"1043=1000"});
    QVERIFY(m_rig->reloaded.take().contains("1045=31768"));
}

void TestApplySplicing::reset_data()
{
    QTest::addColumn<bool>("spliced");
    QTest::addColumn<QStringList>("sent");
    QTest::newRow("spliced") << true << QStringList{"1046=0", "2104=2160"};
    QTest::newRow("not spliced") << false << QStringList();
}

void TestApplySplicing::reset()
{
    QFETCH(bool, spliced);
    m_rig->set(MENU_ImageMosaic_Status, spliced ? "1" : "0");
    m_rig->setGeometry(0, {"800", "600", "11", "12"});
    for (int item = 1041; item <= 1046; ++item)
        m_rig->set(ENUM_MenuIndex(item), "77");
    m_rig->fromUser(MENU_ImageMosaic_Reset, "0");
    QStringList page;
    for (int item = 1041; item <= 1046; ++item)
        page << m_rig->value(ENUM_MenuIndex(item));
    QCOMPARE(page, (QStringList{"3840", "2160", "1920", "1080", "0", "0"}));
    QTEST(m_rig->device->sent.take(), "sent");
    QCOMPARE(m_rig->geometry(0), QString(spliced ? "3840 2160 11 12" : "800 600 11 12"));
    QCOMPARE(m_rig->remembered(0).startsWith("3840 2160 "), spliced);
}

QTEST_MAIN(TestApplySplicing)
#include "tst_applysplicing.moc"
