// What follows when the device tells the size of its output.

#include "enginerig.h"

using namespace VASK;

namespace
{
ENUM_MenuIndex ofLayer(int ofMain, int layer)
{
    return ENUM_MenuIndex(ofMain + STRIDE_Layer * layer);
}
} // namespace

class TestApplyOutputReport : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { m_rig = new EngineRig; }
    void cleanupTestCase() { delete m_rig; }
    void init();

    void outputIsTakenOver_data();
    void outputIsTakenOver();
    void layoutsFitTheWidth_data();
    void layoutsFitTheWidth();
    void fullScreenLayersFill();
    void fullScreenComesBackToPips_data();
    void fullScreenComesBackToPips();
    void senderShowsItsOwnOutput_data();
    void senderShowsItsOwnOutput();

private:
    void report(int width, int height, int rate)
    {
        m_rig->fromDevice(PARA_OutputRate, QString::number(rate));
        m_rig->fromDevice(PARA_ReportedWidth, QString::number(width));
        m_rig->fromDevice(PARA_ReportedHeight, QString::number(height));
    }
    EngineRig *m_rig = nullptr;
};

void TestApplyOutputReport::init()
{
    m_rig->reset();
    m_rig->home->SetScreenRes("untouched");
}

void TestApplyOutputReport::outputIsTakenOver_data()
{
    QTest::addColumn<QString>("workMode");
    QTest::addColumn<QString>("stereo");
    QTest::addColumn<QString>("format");
    QTest::addColumn<int>("rate");
    QTest::addColumn<QString>("shown");
    QTest::newRow("controller") << "0"
                                << "0"
                                << "0" << 6000 << "1920x1200@60";
    QTest::newRow("snapped") << "0"
                             << "0"
                             << "0" << 5993 << "1920x1200@59.94";
    QTest::newRow("3D doubles") << "0"
                                << "1"
                                << "1" << 6000 << "1920x1200@120";
    QTest::newRow("3D by frames") << "0"
                                  << "1"
                                  << "2" << 6000 << "1920x1200@60";
    QTest::newRow("sending card") << "2"
                                  << "0"
                                  << "0" << 6000 << "untouched";
}

void TestApplyOutputReport::outputIsTakenOver()
{
    QFETCH(QString, workMode);
    QFETCH(QString, stereo);
    QFETCH(QString, format);
    QFETCH(int, rate);
    m_rig->set(MENU_WorkMode, workMode);
    m_rig->set(MENU_Mode3D_Status, stereo);
    m_rig->set(MENU_Mode3D_Format, format);
    report(1920, 1200, rate);
    QTEST(m_rig->shown("labScreenRes"), "shown");
    QCOMPARE(m_rig->value(PARA_OutputWidth) + "x" + m_rig->value(PARA_OutputHeight), QString("1920x1200"));
    QCOMPARE(m_rig->device->sent.take(), QStringList());
}

void TestApplyOutputReport::layoutsFitTheWidth_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<bool>("three");
    QTest::addColumn<bool>("four");
    QTest::newRow("191") << 191 << false << false;
    QTest::newRow("192") << 192 << true << false;
    QTest::newRow("255") << 255 << true << false;
    QTest::newRow("256") << 256 << true << true;
}

void TestApplyOutputReport::layoutsFitTheWidth()
{
    QFETCH(int, width);
    m_rig->set(MENU_Layout, "0");
    report(width, 100, 6000);
    QTEST(m_rig->rowEnabled(MENU_Layout, 0), "three");
    QTEST(m_rig->rowEnabled(MENU_Layout, 1), "four");
    QCOMPARE(m_rig->value(MENU_Layout), QString("2"));
}

void TestApplyOutputReport::fullScreenLayersFill()
{
    m_rig->set(MENU_MainLayer_Status, "1");
    m_rig->set(MENU_PIP2_Status, "1");
    m_rig->set(MENU_PIP2_Priority, "0");
    m_rig->set(MENU_MainLayer_Priority, "2");
    m_rig->set(MENU_MainLayer_ScalingMode, "0");
    m_rig->set(MENU_PIP2_ScalingMode, "0");
    report(1280, 720, 6000);
    for (int layer : {0, 2}) {
        QCOMPARE(m_rig->value(ofLayer(MENU_MainLayer_HorWidth, layer)), QString("1280"));
        QCOMPARE(m_rig->value(ofLayer(MENU_MainLayer_VerHeight, layer)), QString("720"));
    }
    QCOMPARE(m_rig->value(MENU_PIP1_HorWidth), QString("800"));
    QCOMPARE(m_rig->device->sent.take(), (QStringList{"2104=720", "2124=720"}));
    QCOMPARE(m_rig->value(PARA_LowestLayer), QString("2"));
}

void TestApplyOutputReport::fullScreenComesBackToPips_data()
{
    QTest::addColumn<QString>("splicing");
    QTest::addColumn<bool>("offered");
    QTest::newRow("free") << "0" << true;
    QTest::newRow("splicing") << "1" << false;
}

void TestApplyOutputReport::fullScreenComesBackToPips()
{
    QFETCH(QString, splicing);
    m_rig->set(MENU_ImageMosaic_Status, splicing);
    for (int layer = 0; layer < 3; ++layer) {
        ST_ItemInfo list = m_rig->info(ofLayer(MENU_MainLayer_ScalingMode, layer));
        list.params1["0"] = optionDisable;
        m_rig->store->updataMenuItem(list.index, list);
    }
    report(1280, 720, 6000);
    QTEST(m_rig->rowEnabled(MENU_PIP1_ScalingMode, 0), "offered");
    QTEST(m_rig->rowEnabled(MENU_PIP2_ScalingMode, 0), "offered");
    QVERIFY(!m_rig->rowEnabled(MENU_MainLayer_ScalingMode, 0));
}

void TestApplyOutputReport::senderShowsItsOwnOutput_data()
{
    QTest::addColumn<QString>("workMode");
    QTest::addColumn<int>("signalState");
    QTest::addColumn<int>("periodUs");
    QTest::addColumn<QString>("stereo");
    QTest::addColumn<QString>("shown");
    QTest::newRow("controller") << "0" << 0 << 0 << "0"
                                << "untouched";
    QTest::newRow("reported rate") << "2" << 0 << 20000 << "0"
                                   << "1600x900@59.94";
    QTest::newRow("reported rate, 3D") << "2" << 0 << 0 << "1"
                                       << "1600x900@119.88";
    QTest::newRow("rate of the input") << "2" << 3 << 20000 << "0"
                                       << "1600x900@50";
    QTest::newRow("input without a period") << "2" << 3 << 0 << "0"
                                            << "1600x900@59.94";
}

void TestApplyOutputReport::senderShowsItsOwnOutput()
{
    QFETCH(QString, workMode);
    QFETCH(int, signalState);
    QFETCH(int, periodUs);
    QFETCH(QString, stereo);
    m_rig->set(MENU_WorkMode, workMode);
    m_rig->set(MENU_Mode3D_Status, stereo);
    m_rig->set(MENU_MainLayer_InputSource, "2");
    m_rig->input(2, 105, signalState, 1920, 1080, periodUs);
    m_rig->fromDevice(PARA_ReportedRate, "5994");
    m_rig->fromDevice(PARA_ReportedWidthAlias, "1600");
    m_rig->fromDevice(PARA_ReportedHeightAlias, "900");
    QTEST(m_rig->shown("labScreenRes"), "shown");
    QCOMPARE(m_rig->value(PARA_OutputHeight), QString("0"));
}

QTEST_MAIN(TestApplyOutputReport)
#include "tst_applyoutputreport.moc"
