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
const QString pageOn = " 1041+ 1042+ 1043+ 1044+ 1045+ 1046+ 1047+";
const QString pageOff = " 1041- 1042- 1043- 1044- 1045- 1046- 1047-";
const QString dialled = "1041=77 1042=77 1043=77 1044=77 1045=77 1046=77 2103=800 2104=600 2105=11 2106=12 ";
const QString factory = "leaves 1041=3840 1042=2160 1043=1920 1044=1080 1045=0 1046=0 2105=11 2106=12 ";
const CaseLines lines{
    {"on, all stands already", "2100=1 2350=1", "user 1040=1",
     "sends 1043=1920 1044=1080 2103=3840 2104=2160 2105=0 2106=0 1040=1 1041=3840 1042=2160 1046=0 1040=1"},
    {"on", "1041=3000 1042=2000 1046=9 2110=1 2102=1 2103=700 2106=5 2112/0+ 2112/1-", "device 1040=1",
     "sends 1041=3000 1042=2000 1046=9; tells 1040=1; "
     "leaves 2102=2 2110=1 2103=700 2106=5 2102/0- 2102/1- 2112/0+ 2112/1-" +
         pageOn},
    {"off", "2110=1 2102=1 2103=700 2106=5 2112/0+ 2112/1-", "device 1040=0",
     "tells 1040=0; leaves 2102=1 2110=1 2103=700 2106=5 2102/0+ 2102/1+ 2112/0+ 2112/1-" + pageOff},
    {"width", "", "user 1041=5000", "sends 2103=5000 1041=5000; leaves 2103=5000 3139=5000"},
    {"width", "2103=5000", "device 1041=4000", "tells 1041=4000; leaves 2103=5000"},
    {"height", "", "user 1042=5000", "sends 2104=5000 1042=5000; leaves 2104=5000 3140=5000"},
    {"height", "2104=5000", "device 1042=4000", "tells 1042=4000; leaves 2104=5000"},
    {"area holds its start", "1045=32000 1046=100", "user 1043=1000",
     "sends 1043=1000; reloads 1045=31768 1046=100; leaves 1045=31768 1046=100"},
    {"reset", dialled + "1040=1", "user 1047=0",
     "sends 1046=0 2104=2160; " + factory + "2103=3840 2104=2160 3139=3840 3140=2160"},
    {"reset, not spliced", dialled + "3139=1 3140=2", "user 1047=0",
     factory + "2103=800 2104=600 3139=1 3140=2"},
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
    QCOMPARE(m_rig->device->sent.take(), QStringList{"1040=0"});

    // What a crop leaves of the input counts.
    m_rig->set(MENU_PIP1Crop_Status, "1");
    m_rig->set(MENU_PIP1Crop_HorWidth, "1000");
    m_rig->fromUser(MENU_ImageMosaic_Status, "0");
    QVERIFY(m_rig->rowEnabled(MENU_PIP1_ScalingMode, 1));
}

FPD_TEST(TestApplySplicing)

#include "tst_applysplicing.moc"
