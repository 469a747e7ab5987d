// The output: the rates that a size has, who applies it, and what synchronisation and 3D tell the home
// screen.

#include "enginerig.h"
#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "tests/testprogram.h"

using namespace VASK;

class TestApplyOutput : public QObject
{
    Q_OBJECT
private slots:
    /// On a model with a second DVI input, the page of the standard modes of HDMI 2 being open.
    void initTestCase()
    {
        m_rig = new EngineRig;
        m_rig->addRows({CONFIG_DVI2_EDID, CONFIG_HDMI2_EDIDStandard});
    }
    void cleanupTestCase() { delete m_rig; }
    void init();

    void ratesFollowResolution_data();
    void ratesFollowResolution();
    void modeIsShownOnlyOnceStarted();
    void appliedBySomebodyElse();
    void genlockReport_data();
    void genlockReport();
    void stereoShowsThePipsOff();

private:
    EngineRig *m_rig = nullptr;
};

void TestApplyOutput::init()
{
    m_rig->reset();
    m_rig->process(PARA_OutputWidth, 1920);
    m_rig->process(PARA_OutputHeight, 1080);
    m_rig->process(PARA_OutputRate, 6000);
    m_rig->input(1, 98, 3, 1920, 1080, 16683); // 59.94 Hz
}

void TestApplyOutput::ratesFollowResolution_data()
{
    QTest::addColumn<bool>("byUser");
    QTest::addColumn<int>("resolution");
    QTest::addColumn<QString>("size");
    QTest::addColumn<QString>("rates");
    QTest::addColumn<QString>("chosen"); ///< of 2 before
    const QString of1024x768 = "48 50 59.94 60 75 85";
    QTest::newRow("output") << true << int(MENU_Output_Resolution) << "0" << of1024x768 << "2";
    QTest::newRow("output, the rate is gone")
        << true << int(MENU_Output_Resolution) << "15" << QString("30") << "0";
    QTest::newRow("DVI 2") << true << int(MENU_DVI2_EDIDResolution) << "0" << of1024x768 << "2";
    QTest::newRow("HDMI 2") << false << int(MENU_HDMI2_EDIDResolution) << "6" << QString("60") << "0";
}

void TestApplyOutput::ratesFollowResolution()
{
    QFETCH(bool, byUser);
    QFETCH(int, resolution);
    QFETCH(QString, size);
    const auto rates = ENUM_MenuIndex(resolution + 1);
    m_rig->set(rates, "2");
    m_rig->engine->SetParaToXml(size, ENUM_MenuIndex(resolution), byUser ? SET_XML_USER : SET_XML_DEVICE);
    m_rig->settle();
    const ST_ItemInfo list = m_rig->info(rates);
    QTEST(list.params.values().join(' '), "rates");
    QCOMPARE(list.params1.keys(), list.params.keys());
    QTEST(list.value, "chosen");
    QVERIFY(m_rig->reloaded.take().contains(itemnames::line(rates, "")));
    const QString line = itemnames::line(resolution, size);
    QCOMPARE(m_rig->device->sent.take(), byUser ? QStringList{line} : QStringList());
    QCOMPARE(m_rig->reported.take(), byUser ? QStringList() : QStringList({line, line})); // two pages have it
}

void TestApplyOutput::modeIsShownOnlyOnceStarted()
{
    m_rig->fromDevice(MENU_Output_Mode, "1");
    QCOMPARE(m_rig->reported.take(), QStringList());
    ParaProcess::init_20m_flg = true;
    m_rig->fromDevice(MENU_Output_Mode, "0");
    QCOMPARE(m_rig->reported.take(), QStringList{"Output_Mode=0"});
    m_rig->fromUser(MENU_Output_Mode, "1");
    QCOMPARE(m_rig->device->sent.take(), QStringList());
}

void TestApplyOutput::appliedBySomebodyElse()
{
    QSignalSpy waits(m_rig->engine, &ParaProcess::signal_createdialog);
    ParaProcess::init_20m_flg = true;
    m_rig->set(MENU_Output_Mode, "0");
    m_rig->fromDevice(MENU_Output_Apply, "");
    QCOMPARE(waits.count(), 0);
    m_rig->fromDevice(EVENT_VideoServiceStarted, "1");
    m_rig->forget();
    m_rig->engine->SetParaToXml("", MENU_Output_Apply, SET_XML_DEVICE);
    // The home screen tells it, on its own thread.
    QCOMPARE(waits.count(), 1);
    QCOMPARE(m_rig->messages, QStringList());
}

void TestApplyOutput::genlockReport_data()
{
    QTest::addColumn<QString>("sync");
    QTest::addColumn<QList<int>>("states"); ///< of the home screen for each report from 0 on, -1: untouched
    QTest::newRow("off") << "0" << QList<int>{-1, -1, -1, -1, -1, -1};
    QTest::newRow("on") << "1" << QList<int>{1, 1, 0, 2, 3, -1};
}

void TestApplyOutput::genlockReport()
{
    QFETCH(QString, sync);
    QFETCH(QList<int>, states);
    m_rig->set(MENU_Sync_Source, "1");
    m_rig->set(MENU_Sync_Status, sync);
    for (int report = 0; report < states.size(); ++report) {
        QSignalSpy told(m_rig->engine, SIGNAL(signal_sync_state(qint32)));
        QSignalSpy problems(m_rig->engine, SIGNAL(signal_sync_state(qint8, QString)));
        m_rig->fromDevice(PARA_GenlockState, QString::number(report));
        QCOMPARE(told.count(), states[report] < 0 ? 0 : 1);
        QCOMPARE(problems.count(), told.count());
        if (told.isEmpty())
            continue;
        QCOMPARE(told.first().first().toInt(), states[report]);
        QCOMPARE(problems.first().last().toString(), QString::number(report));
        QCOMPARE(m_rig->shown("labScreenRes"), QString("1920x1080@59.94"));
    }
}

void TestApplyOutput::stereoShowsThePipsOff()
{
    m_rig->set(MENU_Mode3D_Format, "2");
    m_rig->fromUser(MENU_PIP1_Status, "1");
    const auto *off = m_rig->home->findChild<QLabel *>("labWindowOffDisplay_2");
    QVERIFY(off->isHidden());
    m_rig->fromUser(MENU_Mode3D_Status, "1");
    QVERIFY(!off->isHidden());
}

FPD_TEST(TestApplyOutput)

#include "tst_applyoutput.moc"
