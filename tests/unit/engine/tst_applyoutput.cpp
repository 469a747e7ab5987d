// The output: HDMI output, synchronisation, genlock and 3D.

#include "enginerig.h"

using namespace VASK;

class TestApplyOutput : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { m_rig = new EngineRig; }
    void cleanupTestCase() { delete m_rig; }
    void init();

    void rateGoesOutAsARate();
    void syncSourceIsNamed();
    void ratesFollowResolution_data();
    void ratesFollowResolution();
    void chosenRateThatIsGoneGivesWay();
    void modeIsShownOnlyOnceStarted();
    void syncOffFreesTheOutput_data();
    void syncOffFreesTheOutput();
    void reportedSyncOffSendsNoSwitch();
    void unchangedSyncOffSendsNothingTwice();
    void syncOnTakesTheSource_data();
    void syncOnTakesTheSource();
    void applyAsMonitor();
    void applyAsVideoOutput();
    void appliedBySomebodyElse();
    void genlockReport_data();
    void genlockReport();
    void stereoOnLeavesTheMainLayer();
    void stereoThatOverloadsIsRefused();
    void reportedStereoIsNotRefused();
    void stereoOffGivesTransitionsBack_data();
    void stereoOffGivesTransitionsBack();
    void stereoFormat_data();
    void stereoFormat();
    void stereoFormatThatOverloadsIsRefused();
    void rightEyeStartIsKeptByFormat();
    void reportedEmitterGoesOn();

private:
    EngineRig *m_rig = nullptr;
};

void TestApplyOutput::init()
{
    m_rig->reset();
    m_rig->process(PARA_OutputWidth, 1920);
    m_rig->process(PARA_OutputHeight, 1080);
    m_rig->process(PARA_ReportedWidth, 1920);
    m_rig->process(PARA_ReportedHeight, 1080);
    m_rig->process(PARA_OutputRate, 6000);
    // Input 1 runs at 59.94 Hz, the reference at 50 Hz.
    m_rig->input(0, 97, 3, 1920, 1080, 16667);
    m_rig->input(1, 98, 3, 1920, 1080, 16683);
    m_rig->input(8, 254, 3, 1920, 1080, 20000);
}

void TestApplyOutput::rateGoesOutAsARate()
{
    m_rig->fromUser(MENU_OutputFrameRate, "8");
    QCOMPARE(m_rig->device->sent.take(), QStringList{"2015=59.94"});
    m_rig->fromDevice(MENU_OutputFrameRate, "9");
    QCOMPARE(m_rig->device->sent.take(), QStringList());
    QCOMPARE(m_rig->reported.take(), QStringList{"2015=9"});
}

void TestApplyOutput::syncSourceIsNamed()
{
    m_rig->fromUser(MENU_Sync_Source, "1");
    QCOMPARE(m_rig->shown("labSynName"), QString("HDMI2"));
    QCOMPARE(m_rig->device->sent.take(), QStringList{"2351=1"});
}

void TestApplyOutput::ratesFollowResolution_data()
{
    QTest::addColumn<int>("resolution");
    QTest::addColumn<int>("rates");
    QTest::newRow("output") << int(MENU_Output_Resolution) << int(MENU_Output_FrameRate);
    QTest::newRow("HDMI1") << int(MENU_HDMI1_EDIDResolution) << int(MENU_HDMI1_EDIDFrameRate);
    QTest::newRow("HDMI2") << int(MENU_HDMI2_EDIDResolution) << int(MENU_HDMI2_EDIDFrameRate);
    QTest::newRow("DVI") << int(MENU_DVI_EDIDResolution) << int(MENU_DVI_EDIDFrameRate);
    QTest::newRow("DVI2") << int(MENU_DVI2_EDIDResolution) << int(MENU_DVI2_EDIDFrameRate);
}

void TestApplyOutput::ratesFollowResolution()
{
    QFETCH(int, resolution);
    QFETCH(int, rates);
    m_rig->set(ENUM_MenuIndex(rates), "2");
    m_rig->fromUser(ENUM_MenuIndex(resolution), "0"); // 1024*768
    const ST_ItemInfo list = m_rig->info(ENUM_MenuIndex(rates));
    QCOMPARE(list.params.values(), (QStringList{"48", "50", "59.94", "60", "75", "85"}));
    QCOMPARE(list.params1.size(), 6);
    QCOMPARE(list.value, QString("2"));
    QVERIFY(m_rig->reloaded.take().contains(QString("%1=").arg(rates)));
    QCOMPARE(m_rig->device->sent.take(), QStringList{QString("%1=0").arg(resolution)});
}

void TestApplyOutput::chosenRateThatIsGoneGivesWay()
{
    m_rig->set(MENU_Output_FrameRate, "5");
    m_rig->fromUser(MENU_Output_Resolution, "15"); // 3840*2160: 30 Hz and nothing else
    QCOMPARE(m_rig->info(MENU_Output_FrameRate).params.values(), QStringList{"30"});
    QCOMPARE(m_rig->value(MENU_Output_FrameRate), QString("0"));
}

void TestApplyOutput::modeIsShownOnlyOnceStarted()
{
    m_rig->fromDevice(MENU_Output_Mode, "1");
    QCOMPARE(m_rig->reported.take(), QStringList());
    ParaProcess::init_20m_flg = true;
    m_rig->fromDevice(MENU_Output_Mode, "0");
    QCOMPARE(m_rig->reported.take(), QStringList{"2352=0"});
    m_rig->fromUser(MENU_Output_Mode, "1");
    QCOMPARE(m_rig->device->sent.take(), QStringList());
}

void TestApplyOutput::syncOffFreesTheOutput_data()
{
    QTest::addColumn<QString>("workMode");
    QTest::addColumn<QString>("outputMode");
    QTest::addColumn<int>("rate");
    QTest::addColumn<QString>("resolution");
    QTest::addColumn<QStringList>("sent");
    QTest::newRow("own rate") << "0"
                              << "0" << 5994 << "1920x1080@59.94"
                              << QStringList{"2350=0", "2015=59.94", "2350=0"};
    QTest::newRow("software configuration")
        << "0"
        << "1" << 5000 << "1920x1080@50" << QStringList{"2350=0", "2355=1024x768x50", "2350=0"};
    QTest::newRow("sending card: its input's")
        << "2"
        << "0" << 6000 << "1920x1080@60" << QStringList{"2350=0", "2350=0"};
}

void TestApplyOutput::syncOffFreesTheOutput()
{
    QFETCH(QString, workMode);
    QFETCH(QString, outputMode);
    m_rig->set(MENU_WorkMode, workMode);
    m_rig->set(MENU_OutputMode, outputMode);
    m_rig->set(MENU_OutputFrameRate, "8");
    m_rig->set(MENU_MainLayer_InputSource, "0");
    m_rig->fromDevice(MENU_Output_Resolution, "0");
    m_rig->set(MENU_Output_FrameRate, "1");
    m_rig->set(MENU_Sync_Status, "1");
    m_rig->fromUser(MENU_Sync_Status, "0");
    QTEST(m_rig->value(PARA_OutputRate).toInt(), "rate");
    QTEST(m_rig->shown("labScreenRes"), "resolution");
    QTEST(m_rig->device->sent.take(), "sent");
}

void TestApplyOutput::reportedSyncOffSendsNoSwitch()
{
    m_rig->set(MENU_Sync_Status, "1");
    m_rig->fromDevice(MENU_Sync_Status, "0");
    QCOMPARE(m_rig->device->sent.take(), QStringList{"2015=60"});
    QCOMPARE(m_rig->reported.take(), QStringList{"2350=0"});
}

void TestApplyOutput::unchangedSyncOffSendsNothingTwice()
{
    m_rig->set(MENU_Sync_Status, "0");
    m_rig->fromUser(MENU_Sync_Status, "0");
    QCOMPARE(m_rig->device->sent.take(), QStringList{"2350=0"});
}

void TestApplyOutput::syncOnTakesTheSource_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("workMode");
    QTest::addColumn<QString>("stereo");
    QTest::addColumn<int>("rate");
    QTest::addColumn<QString>("resolution");
    QTest::newRow("near enough") << "1"
                                 << "0"
                                 << "0" << 5994 << "1920x1080@59.94";
    QTest::newRow("no such input") << "5"
                                   << "0"
                                   << "0" << 6000 << "1920x1080@60";
    QTest::newRow("the reference is too far off") << "0"
                                                  << "0"
                                                  << "0" << 6000 << "1920x1080@60";
    QTest::newRow("a sending card follows it") << "0"
                                               << "2"
                                               << "0" << 5000 << "1920x1080@50";
    QTest::newRow("nothing to follow") << "5"
                                       << "2"
                                       << "0" << 6000 << "1920x1080@60";
}

void TestApplyOutput::syncOnTakesTheSource()
{
    QFETCH(QString, source);
    QFETCH(QString, workMode);
    m_rig->set(MENU_Sync_Source, source);
    m_rig->set(MENU_WorkMode, workMode);
    m_rig->set(MENU_LowLatency, "1");
    m_rig->fromUser(MENU_Sync_Status, "1");
    QTEST(m_rig->value(PARA_OutputRate).toInt(), "rate");
    QTEST(m_rig->shown("labScreenRes"), "resolution");
    QCOMPARE(m_rig->device->sent.take(), QStringList{"2350=1"});
    QCOMPARE(m_rig->messages, QStringList());
}

void TestApplyOutput::applyAsMonitor()
{
    m_rig->set(MENU_OutputMode, "1");
    m_rig->set(MENU_Output_Mode, "0");
    m_rig->fromDevice(MENU_Output_Resolution, "0");
    m_rig->set(MENU_Output_FrameRate, "3");
    m_rig->forget();
    m_rig->fromUser(MENU_Output_Apply, "0");
    QCOMPARE(m_rig->messages, QStringList{"Waiting"});
    QCOMPARE(m_rig->value(MENU_OutputMode), QString("0"));
    QCOMPARE(m_rig->device->sent.take(), (QStringList{"2352=0", "2355=1024x768x60"}));
}

void TestApplyOutput::applyAsVideoOutput()
{
    m_rig->set(MENU_Output_Mode, "1");
    m_rig->fromDevice(MENU_Output_Resolution, "0");
    m_rig->set(MENU_Output_FrameRate, "2");
    m_rig->set(MENU_Mode3D_Status, "1");
    m_rig->set(MENU_MainLayer_ScalingMode, "0");
    m_rig->set(MENU_PIP1_ScalingMode, "1");
    m_rig->set(MENU_PIP2_ScalingMode, "2");
    m_rig->set(MENU_ImageMosaic_Status, "1");
    for (ENUM_MenuIndex list : {MENU_PIP1_ScalingMode, MENU_PIP2_ScalingMode}) {
        ST_ItemInfo item = m_rig->info(list);
        item.params1["0"] = optionDisable;
        m_rig->store->updataMenuItem(list, item);
    }
    m_rig->forget();
    m_rig->fromUser(MENU_Output_Apply, "0");

    QCOMPARE(m_rig->value(MENU_OutputMode), QString("1"));
    QCOMPARE(m_rig->value(PARA_OutputWidth) + 'x' + m_rig->value(PARA_OutputHeight), QString("1024x768"));
    QCOMPARE(m_rig->value(PARA_OutputRate), QString("5994"));
    QCOMPARE(m_rig->shown("labScreenRes"), QString("1024x768@59.94"));
    QVERIFY(!m_rig->enabled(MENU_Mode3D));
    QCOMPARE(m_rig->value(MENU_Mode3D_Status), QString("0"));
    QCOMPARE(m_rig->value(MENU_MainLayer_HorWidth), QString("1024"));
    QCOMPARE(m_rig->value(MENU_MainLayer_VerHeight), QString("768"));
    QCOMPARE(m_rig->value(MENU_PIP1_HorWidth), QString("800"));
    QVERIFY(m_rig->rowEnabled(MENU_PIP1_ScalingMode, 0) && m_rig->rowEnabled(MENU_PIP2_ScalingMode, 0));
    QCOMPARE(m_rig->device->sent.take(),
             (QStringList{"2359=0", "2104=768", "2352=1", "2355=1024x768x59.94"}));
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
    QTest::addColumn<int>("reported");
    QTest::addColumn<int>("state"); ///< of the home screen, -1: untouched
    QTest::newRow("no synchronisation") << "0" << 2 << -1;
    QTest::newRow("0: off") << "1" << 0 << 1;
    QTest::newRow("1: off") << "1" << 1 << 1;
    QTest::newRow("2: on") << "1" << 2 << 0;
    QTest::newRow("3: waits") << "1" << 3 << 2;
    QTest::newRow("4: failed") << "1" << 4 << 3;
    QTest::newRow("5: no state") << "1" << 5 << -1;
}

void TestApplyOutput::genlockReport()
{
    QFETCH(QString, sync);
    QFETCH(int, reported);
    QFETCH(int, state);
    m_rig->set(MENU_Sync_Status, sync);
    m_rig->set(MENU_Sync_Source, "1");
    QSignalSpy states(m_rig->engine, SIGNAL(signal_sync_state(qint32)));
    QSignalSpy problems(m_rig->engine, SIGNAL(signal_sync_state(qint8, QString)));
    m_rig->fromDevice(PARA_GenlockState, QString::number(reported));
    if (state < 0) {
        QCOMPARE(states.count() + problems.count(), 0);
        return;
    }
    QCOMPARE(states.takeFirst().first().toInt(), state);
    QCOMPARE(problems.takeFirst().last().toString(), QString::number(reported));
    QCOMPARE(m_rig->shown("labScreenRes"), QString("1920x1080@59.94"));
}

void TestApplyOutput::stereoOnLeavesTheMainLayer()
{
    m_rig->set(MENU_Mode3D_Format, "2");
    m_rig->set(MENU_PIP1_Status, "1");
    m_rig->set(MENU_PIP2_Status, "0");
    m_rig->fromUser(MENU_Mode3D_Status, "1");
    QCOMPARE(m_rig->messages, QStringList{"Open3DOnlyMainLayerEffectTip"});
    QVERIFY(!m_rig->enabled(MENU_MainLayerTransition));
    QVERIFY(!m_rig->enabled(MENU_TransitionDuration));
    QCOMPARE(m_rig->value(MENU_MainLayerTransition), QString("1"));
    QCOMPARE(m_rig->value(MENU_PIP1_Status), QString("0"));
    QVERIFY(!m_rig->home->findChild<QLabel *>("labWindowOffDisplay_2")->isHidden());
    QCOMPARE(m_rig->shown("labScreenRes"), QString("1920x1080@60"));
    QCOMPARE(m_rig->device->sent.take(), (QStringList{"1019=1", "2110=0", "2359=1"}));
}

void TestApplyOutput::stereoThatOverloadsIsRefused()
{
    // (1080 + 20) * (1921 + 31) * 120 = 257.7e6
    m_rig->set(MENU_Mode3D_Format, "0");
    m_rig->fromUser(MENU_Mode3D_Status, "1");
    QCOMPARE(m_rig->value(MENU_Mode3D_Status), QString("0"));
    QCOMPARE(m_rig->messages, QStringList{"OverLoad"});
    QCOMPARE(m_rig->device->sent.take(), QStringList());
    QVERIFY(m_rig->reloaded.take().contains("2359="));
}

void TestApplyOutput::reportedStereoIsNotRefused()
{
    m_rig->set(MENU_Mode3D_Format, "1");
    m_rig->set(MENU_PIP1_Status, "1");
    m_rig->fromDevice(MENU_Mode3D_Status, "1");
    QCOMPARE(m_rig->value(MENU_Mode3D_Status), QString("1"));
    QCOMPARE(m_rig->value(MENU_PIP1_Status), QString("1"));
    QCOMPARE(m_rig->shown("labScreenRes"), QString("1920x1080@120"));
    QCOMPARE(m_rig->messages, QStringList());
    QCOMPARE(m_rig->device->sent.take(), QStringList());
    QCOMPARE(m_rig->reported.take(), QStringList{"2359=1"});
}

void TestApplyOutput::stereoOffGivesTransitionsBack_data()
{
    QTest::addColumn<QString>("pip2");
    QTest::addColumn<bool>("given");
    QTest::newRow("only the main layer") << "0" << true;
    QTest::newRow("another layer is on") << "1" << false;
}

void TestApplyOutput::stereoOffGivesTransitionsBack()
{
    QFETCH(QString, pip2);
    QFETCH(bool, given);
    m_rig->store->UpdataItemEnable(MENU_MainLayerTransition, false);
    m_rig->store->UpdataItemEnable(MENU_TransitionDuration, false);
    m_rig->set(MENU_Mode3D_Status, "1");
    m_rig->set(MENU_PIP1_Status, "0");
    m_rig->set(MENU_PIP2_Status, pip2);
    m_rig->fromUser(MENU_Mode3D_Status, "0");
    QCOMPARE(m_rig->enabled(MENU_MainLayerTransition), given);
    QCOMPARE(m_rig->enabled(MENU_TransitionDuration), given);
    QCOMPARE(m_rig->device->sent.take(), QStringList{"2359=0"});
}

void TestApplyOutput::stereoFormat_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<bool>("startEnabled");
    QTest::addColumn<QStringList>("sent");
    QTest::newRow("side by side") << "0" << true << QStringList{"3077=961", "2360=0"};
    QTest::newRow("top and bottom") << "1" << true << QStringList{"3077=1125", "2360=1"};
    QTest::newRow("frame sequential") << "2" << false << QStringList{"2360=2"};
}

void TestApplyOutput::stereoFormat()
{
    QFETCH(QString, format);
    QFETCH(QStringList, sent);
    m_rig->engine->setRightEyeStart(0, 961);
    m_rig->engine->setRightEyeStart(1, 1125);
    m_rig->fromUser(MENU_Mode3D_Format, format);
    QTEST(m_rig->enabled(MENU_Mode3D_RightEyeStart), "startEnabled");
    QCOMPARE(m_rig->device->sent.take(), sent);
    m_rig->fromDevice(MENU_Mode3D_Format, format);
    QCOMPARE(m_rig->device->sent.take(), QStringList());
}

void TestApplyOutput::stereoFormatThatOverloadsIsRefused()
{
    m_rig->set(MENU_Mode3D_Status, "1");
    m_rig->set(MENU_Mode3D_Format, "2");
    m_rig->fromUser(MENU_Mode3D_Format, "1");
    QCOMPARE(m_rig->value(MENU_Mode3D_Format), QString("2"));
    QCOMPARE(m_rig->messages, QStringList{"OverLoad"});
    QCOMPARE(m_rig->device->sent.take(), QStringList());
}

void TestApplyOutput::rightEyeStartIsKeptByFormat()
{
    for (const char *format : {"0", "1", "2"}) {
        m_rig->set(MENU_Mode3D_Format, format);
        m_rig->fromUser(MENU_Mode3D_RightEyeStart, QString("100%1").arg(format));
    }
    QCOMPARE(m_rig->value(MENU_RightEyeStartSide), QString("1000"));
    QCOMPARE(m_rig->value(MENU_RightEyeStartTop), QString("1001"));
}

void TestApplyOutput::reportedEmitterGoesOn()
{
    m_rig->fromDevice(MENU_Mode3D_ThirdPartyEmitter, "1");
    m_rig->fromUser(MENU_Mode3D_SignalDelayTime, "250");
    QCOMPARE(m_rig->device->sent.take(), (QStringList{"3079=1", "3078=250"}));
    QCOMPARE(m_rig->reported.take(), QStringList());
}

QTEST_MAIN(TestApplyOutput)
#include "tst_applyoutput.moc"
