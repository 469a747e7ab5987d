// What follows when the device tells the size of its output.

#include "enginerig.h"
#include "menu/itemindex.h"
#include "tests/testprogram.h"

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

    void outputIsShown_data();
    void outputIsShown();
    void layoutsFitTheWidth();
    void fullScreenLayersFill();
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

void TestApplyOutputReport::outputIsShown_data()
{
    addColumns<QString, QString, QString, QString>({"workMode", "stereo", "format", "shown"});
    addRow("3D doubles", "0", "1", "1", "1920x1200@120");
    addRow("3D by frames", "0", "1", "2", "1920x1200@60");
    addRow("sending card", "2", "0", "0", "untouched");
}

void TestApplyOutputReport::outputIsShown()
{
    QFETCH(QString, workMode);
    QFETCH(QString, stereo);
    QFETCH(QString, format);
    m_rig->set(MENU_WorkMode, workMode);
    m_rig->set(MENU_Mode3D_Status, stereo);
    m_rig->set(MENU_Mode3D_Format, format);
    report(1920, 1200, 6000);
    QTEST(m_rig->shown("labScreenRes"), "shown");
    QCOMPARE(m_rig->device->sent.take(), QStringList());
}

/// In which three and four columns can stand side by side.
void TestApplyOutputReport::layoutsFitTheWidth()
{
    for (int width : {191, 192, 255, 256}) {
        m_rig->set(MENU_Layout, "0");
        report(width, 100, 6000);
        QCOMPARE(m_rig->rowEnabled(MENU_Layout, 0), width >= 192);
        QCOMPARE(m_rig->rowEnabled(MENU_Layout, 1), width >= 256);
        QCOMPARE(m_rig->value(MENU_Layout), QString("2"));
    }
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
    QCOMPARE(m_rig->device->sent.take(), (QStringList{"MainLayer_VerHeight=720", "PIP2_VerHeight=720"}));
    QCOMPARE(m_rig->value(PARA_LowestLayer), QString("2"));
}

void TestApplyOutputReport::fullScreenComesBackToPips()
{
    for (const bool splicing : {false, true}) {
        m_rig->reset();
        m_rig->set(MENU_ImageMosaic_Status, splicing ? "1" : "0");
        for (int layer = 0; layer < 3; ++layer)
            m_rig->store->changeItem(ofLayer(MENU_MainLayer_ScalingMode, layer),
                                     [](ST_ItemInfo &list) { list.params1["0"] = optionDisable; });
        report(1280, 720, 6000);
        QCOMPARE(m_rig->rowEnabled(MENU_PIP1_ScalingMode, 0), !splicing);
        QCOMPARE(m_rig->rowEnabled(MENU_PIP2_ScalingMode, 0), !splicing);
        QVERIFY(!m_rig->rowEnabled(MENU_MainLayer_ScalingMode, 0));
    }
}

void TestApplyOutputReport::senderShowsItsOwnOutput_data()
{
    addColumns<QString, int, QString, QString>({"workMode", "signalState", "stereo", "shown"});
    addRow("controller", "0", 0, "0", "untouched");
    addRow("reported rate, 3D", "2", 0, "1", "1600x900@119.88");
    addRow("input without a period", "2", 3, "0", "1600x900@59.94");
}

void TestApplyOutputReport::senderShowsItsOwnOutput()
{
    QFETCH(QString, workMode);
    QFETCH(int, signalState);
    QFETCH(QString, stereo);
    m_rig->set(MENU_WorkMode, workMode);
    m_rig->set(MENU_Mode3D_Status, stereo);
    m_rig->set(MENU_MainLayer_InputSource, "2");
    m_rig->input(2, 105, signalState, 1920, 1080, 0);
    m_rig->fromDevice(PARA_ReportedRate, "5994");
    m_rig->fromDevice(PARA_ReportedWidthAlias, "1600");
    m_rig->fromDevice(PARA_ReportedHeightAlias, "900");
    QTEST(m_rig->shown("labScreenRes"), "shown");
    QCOMPARE(m_rig->value(PARA_OutputHeight), QString("0"));
}

FPD_TEST(TestApplyOutputReport)

#include "tst_applyoutputreport.moc"
