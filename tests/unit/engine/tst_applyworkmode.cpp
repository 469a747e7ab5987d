// The three work modes: what the menu, the home screen, the LEDs and the device get when one gives way to
// another.

#include "enginerig.h"
#include "framework/keyevent.h"
#include "ledpanel.h"

using namespace VASK;

namespace
{
enum Mode { Controller, Fiber, Sender };
constexpr ENUM_MenuIndex modeItems[] = {MENU_VideoController, MENU_FiberConverter, MENU_SendingCard};
constexpr ENUM_MenuIndex mainMenu[] = {MENU_ScreenBrightness, MENU_ScreenSetting,   MENU_LayerSettings,
                                       MENU_InputSettings,    MENU_PresetSettings,  MENU_ImageMosaic,
                                       MENU_DisplayControl,   MENU_AdvancedSetting, MENU_FactoryReset};
/// What a sending card takes from the user, apart from the main menu.
constexpr ENUM_MenuIndex videoPath[] = {MENU_OutputFrameRate,
                                        MENU_MainLayer_Status,
                                        MENU_MainLayer_ScalingMode,
                                        MENU_MainLayer_HorWidth,
                                        MENU_MainLayer_VerHeight,
                                        MENU_MainLayer_Priority,
                                        MENU_MainLayer_Opacity,
                                        MENU_PIP1,
                                        MENU_PIP2,
                                        MENU_Layout,

                                        MENU_MainLayerTransition,
                                        MENU_TransitionDuration,
                                        MENU_Fn_HDMIOutput,
                                        MENU_HDMIOutput,
                                        MENU_Mode3D,
                                        MENU_InputBackup_Mosaic};
constexpr int fallback = 2;
} // namespace

class TestApplyWorkMode : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void cleanupTestCase() { delete m_rig; }
    void init();
    void cleanup();

    void modeIsMarkedAndSent_data();
    void modeIsMarkedAndSent();
    void sameModeOnlyAnswers_data();
    void sameModeOnlyAnswers();
    void reportedModeReachesTheRow();
    void fiberDimsTheMainMenu();
    void fiberTakesTheLeds();
    void fiberGivesTheHomeScreenBack_data();
    void fiberGivesTheHomeScreenBack();
    void senderDimsTheVideoPath();
    void senderSendsTheFixedPicture();
    void senderShowsTheFallbackInput_data();
    void senderShowsTheFallbackInput();
    void senderLowersTheMainLayer_data();
    void senderLowersTheMainLayer();
    void senderTakesTheFnOutput_data();
    void senderTakesTheFnOutput();
    void senderEndsStereoAndSoftwareOutput();
    void senderTakesListOptions();
    void videoPathComesBack_data();
    void videoPathComesBack();
    void rateComesBack_data();
    void rateComesBack();
    void transitionsStayOffUnderAPip();
    void mosaicFollowsThePips();
    void syncSourcesComeBack_data();
    void syncSourcesComeBack();
    void makerSignComesBack_data();
    void makerSignComesBack();

private:
    /// The device works in a mode from the start on.
    void startIn(Mode mode)
    {
        if (mode != Controller)
            m_rig->fromUser(modeItems[mode], "1");
        m_rig->forget();
    }
    void addOption(ENUM_MenuIndex list, const QString &key, const QString &text)
    {
        ST_ItemInfo item = m_rig->info(list);
        item.params[key] = text;
        item.params1[key] = optionEnable;
        m_rig->store->updataMenuItem(list, item);
    }
    QStringList sentOf(const QStringList &items)
    {
        QStringList sent;
        for (const QString &line : m_rig->device->sent.take())
            if (items.contains(line.section('=', 0, 0)))
                sent << line;
        return sent;
    }
    EngineRig *m_rig = nullptr;
    LedPanel *m_leds = nullptr;
};

void TestApplyWorkMode::initTestCase()
{
    m_rig = new EngineRig;
    m_leds = new LedPanel(m_rig->statePath("").toStdString());
    KeyEvent::getInstance()->InitKeyDriver(qApp);
}

void TestApplyWorkMode::init()
{
    m_rig->reset();
    m_rig->process(PARA_OutputWidth, 1920);
    m_rig->process(PARA_OutputHeight, 1200);
    m_rig->process(PARA_OutputRate, 6000);
    m_rig->input(fallback, 105, 3, 1280, 1024, 16683);
    ParaProcess::bHaveSDI = true;
}

void TestApplyWorkMode::cleanup()
{
    KeyEvent::LightFiber(false);
    m_rig->home->hide();
}

void TestApplyWorkMode::modeIsMarkedAndSent_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    QTest::addColumn<QStringList>("sent"); ///< of the mode items and the sending card's command
    const QStringList controller{"1068=0", "1069=0", "3397=0", "1067=1"};
    const QStringList fiber{"1068=1", "3397=0"};
    const QStringList sender{"1069=1", "3397=1", "1068=0", "1069=1"};
    QTest::newRow("controller to fiber") << int(Controller) << int(Fiber) << fiber;
    QTest::newRow("controller to sender") << int(Controller) << int(Sender) << sender;
    QTest::newRow("fiber to controller") << int(Fiber) << int(Controller) << controller;
    QTest::newRow("fiber to sender") << int(Fiber) << int(Sender) << sender;
    QTest::newRow("sender to controller") << int(Sender) << int(Controller) << controller;
    QTest::newRow("sender to fiber") << int(Sender) << int(Fiber) << fiber;
}

void TestApplyWorkMode::modeIsMarkedAndSent()
{
    QFETCH(int, from);
    QFETCH(int, to);
    startIn(Mode(from));
    m_rig->fromUser(modeItems[to], "1");
    QTEST(sentOf({"1067", "1068", "1069", "3397"}), "sent");
    QCOMPARE(m_rig->value(MENU_WorkMode).toInt(), to);
    for (int mode = Controller; mode <= Sender; ++mode)
        QCOMPARE(m_rig->choice(modeItems[mode]) == SELECTED, mode == to);
}

void TestApplyWorkMode::sameModeOnlyAnswers_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QStringList>("sent");
    QTest::newRow("controller") << int(Controller) << QStringList{"1067=1"};
    QTest::newRow("fiber") << int(Fiber) << QStringList();
    QTest::newRow("sender") << int(Sender) << QStringList{"1069=1"};
}

void TestApplyWorkMode::sameModeOnlyAnswers()
{
    QFETCH(int, mode);
    startIn(Mode(mode));
    m_rig->fromUser(modeItems[mode], "1");
    QTEST(m_rig->device->sent.take(), "sent");
    QCOMPARE(m_rig->reloaded.take(), QStringList());
}

void TestApplyWorkMode::reportedModeReachesTheRow()
{
    ParaProcess::init_20m_flg = true;
    m_rig->fromDevice(MENU_SendingCard, "");
    QCOMPARE(m_rig->value(MENU_WorkMode), QString("2"));
    QVERIFY(m_rig->reported.take().contains("1069="));
    QCOMPARE(sentOf({"1069", "3397"}), (QStringList{"1069=1", "3397=1"}));
    m_rig->fromDevice(MENU_VideoController, "");
    QCOMPARE(m_rig->value(MENU_WorkMode), QString("0"));
    QCOMPARE(sentOf({"1067", "3397"}), QStringList{"3397=0"});
}

void TestApplyWorkMode::fiberDimsTheMainMenu()
{
    startIn(Fiber);
    for (ENUM_MenuIndex item : mainMenu)
        QVERIFY2(!m_rig->enabled(item), qPrintable(QString::number(item)));
    for (ENUM_MenuIndex item : {MENU_OSDSettings, MENU_SystemSetting})
        QVERIFY(m_rig->enabled(item));
    m_rig->fromUser(MENU_SendingCard, "1");
    for (ENUM_MenuIndex item : mainMenu)
        QCOMPARE(m_rig->enabled(item), item != MENU_PresetSettings && item != MENU_ImageMosaic);
    m_rig->fromUser(MENU_FiberConverter, "1");
    m_rig->fromUser(MENU_VideoController, "1");
    for (ENUM_MenuIndex item : mainMenu)
        QVERIFY2(m_rig->enabled(item), qPrintable(QString::number(item)));
}

void TestApplyWorkMode::fiberTakesTheLeds()
{
    KeyEvent::SendLedCommand(LED_TEST, LED_ON);
    m_rig->fromUser(MENU_FiberConverter, "1");
    QVERIFY(!m_leds->lit(LED_TEST));
    KeyEvent::SendLedCommand(LED_TEST, LED_ON);
    QVERIFY(!m_leds->lit(LED_TEST));
    m_rig->fromUser(MENU_VideoController, "1");
    QVERIFY(m_leds->lit(LED_TEST));
    KeyEvent::SendLedCommand(LED_TEST, LED_OFF);
}

void TestApplyWorkMode::fiberGivesTheHomeScreenBack_data()
{
    QTest::addColumn<int>("to");
    QTest::addColumn<bool>("pageOpen");
    QTest::newRow("controller, a page is open") << int(Controller) << true;
    QTest::newRow("controller, nothing is shown") << int(Controller) << false;
    QTest::newRow("sender, a page is open") << int(Sender) << true;
    QTest::newRow("sender, nothing is shown") << int(Sender) << false;
}

void TestApplyWorkMode::fiberGivesTheHomeScreenBack()
{
    QFETCH(int, to);
    QFETCH(bool, pageOpen);
    startIn(Fiber);
    MenuDirectory *menu = MainWindow::m_pMainMenu;
    menu->m_pparerentdirectory = nullptr;
    if (pageOpen) {
        m_rig->home->show();
        menu->show();
        QApplication::setActiveWindow(menu);
    }
    m_rig->fromUser(modeItems[to], "1");
    QCOMPARE(m_rig->home->isVisible(), !pageOpen);
    QVERIFY(menu->m_pparerentdirectory == m_rig->home);
    menu->hide();
}

void TestApplyWorkMode::senderDimsTheVideoPath()
{
    startIn(Sender);
    for (ENUM_MenuIndex item : videoPath)
        QVERIFY2(!m_rig->enabled(item), qPrintable(QString::number(item)));
    for (ENUM_MenuIndex item : {MENU_MainLayer_InputCrop, MENU_AudioInput_Mosaic})
        QVERIFY2(!m_rig->enabled(item), qPrintable(QString::number(item)));
    for (ENUM_MenuIndex item :
         {MENU_PIP1_Status, MENU_PIP2_Status, MENU_MainLayer_InitialX, MENU_MainLayer_InitialY})
        QVERIFY2(m_rig->enabled(item), qPrintable(QString::number(item)));
    QCOMPARE(m_rig->value(MENU_Layout), QString("2"));
    QCOMPARE(m_rig->value(MENU_InputBackup_Mosaic), QString("0"));
}

void TestApplyWorkMode::senderSendsTheFixedPicture()
{
    m_rig->set(MENU_PIP1_Status, "1");
    m_rig->set(MENU_Sync_Source, "1");
    m_rig->fromUser(MENU_SendingCard, "1");
    const QStringList expected{"1069=1", "3397=1",    "2100=1",    "2110=0", "2120=0", "2356=1",
                               "2101=2", "2103=1280", "2104=1024", "2105=0", "2106=0", "2109=100",
                               "1019=1", "2351=0",    "2350=0",    "1068=0", "1069=1"};
    QStringList sent = m_rig->device->sent.take();
    sent.removeAll("2343=0"); // no page of this model has its row
    for (const char *priority : {"2107=", "2117=", "2127="})
        sent = sent.filter(QRegularExpression(QString("^(?!%1)").arg(priority)));
    QCOMPARE(sent, expected);
    QCOMPARE(m_rig->value(MENU_MainLayer_ScalingMode) + m_rig->value(MENU_PIP1_Status), QString("10"));
    QCOMPARE(m_rig->shown("labSynName"), QString("HDMI1"));
}

void TestApplyWorkMode::senderShowsTheFallbackInput_data()
{
    QTest::addColumn<int>("signalState");
    QTest::addColumn<int>("periodUs");
    QTest::addColumn<QString>("layer");
    QTest::addColumn<QString>("screen");
    QTest::addColumn<int>("rate");
    QTest::newRow("stable") << 3 << 16683 << "1280x1024@59.94"
                            << "1920x1200@59.94" << 5994;
    QTest::newRow("rate unknown") << 3 << 0 << "1280x1024@60"
                                  << "1920x1200@60" << 6000;
    QTest::newRow("no signal") << 0 << 20000 << "No Signal"
                               << "1920x1200@50" << 5000;
}

void TestApplyWorkMode::senderShowsTheFallbackInput()
{
    QFETCH(int, signalState);
    QFETCH(int, periodUs);
    m_rig->input(fallback, 105, signalState, 1280, 1024, periodUs);
    m_rig->set(MENU_MainLayer_InputSource, "0");
    m_rig->fromUser(MENU_SendingCard, "1");
    QCOMPARE(m_rig->shown("labLayerSrc1_Name"), QString("DVI"));
    QTEST(m_rig->shown("labLayerSrc1_Res"), "layer");
    QTEST(m_rig->shown("labScreenRes"), "screen");
    QTEST(m_rig->value(PARA_OutputRate).toInt(), "rate");
    const auto *off = m_rig->home->findChild<QLabel *>("labWindowOffDisplay_2");
    QVERIFY(off && !off->isHidden());
}

void TestApplyWorkMode::senderLowersTheMainLayer_data()
{
    QTest::addColumn<QStringList>("before"); ///< of main layer, PIP 1 and PIP 2
    QTest::addColumn<QStringList>("after");
    QTest::addColumn<QStringList>("sent");
    QTest::newRow("on top") << QStringList{"2", "0", "1"} << QStringList{"0", "1", "2"}
                            << QStringList{"2117=1", "2127=2", "2107=1"};
    QTest::newRow("between") << QStringList{"1", "2", "0"} << QStringList{"0", "2", "1"}
                             << QStringList{"2117=2", "2127=1", "2107=1"};
    QTest::newRow("at the bottom") << QStringList{"0", "1", "2"} << QStringList{"0", "1", "2"}
                                   << QStringList();
}

void TestApplyWorkMode::senderLowersTheMainLayer()
{
    QFETCH(QStringList, before);
    const ENUM_MenuIndex items[] = {MENU_MainLayer_Priority, MENU_PIP1_Priority, MENU_PIP2_Priority};
    for (int layer = 0; layer < 3; ++layer)
        m_rig->set(items[layer], before[layer]);
    KeyEvent::SendLedCommand(LED_SCALE, LED_ON);
    m_rig->fromUser(MENU_SendingCard, "1");
    QStringList after;
    for (ENUM_MenuIndex item : items)
        after << m_rig->value(item);
    QTEST(after, "after");
    QTEST(sentOf({"2107", "2117", "2127"}), "sent");
    QVERIFY(!m_leds->lit(LED_SCALE));
    QCOMPARE(m_rig->value(PARA_LowestLayer), QString("0"));
}

void TestApplyWorkMode::senderTakesTheFnOutput_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");
    QTest::newRow("HDMI output") << "1"
                                 << "0";
    QTest::newRow("freeze") << "3"
                            << "3";
}

void TestApplyWorkMode::senderTakesTheFnOutput()
{
    QFETCH(QString, before);
    QFETCH(QString, after);
    m_rig->fromUser(ENUM_MenuIndex(MENU_Fn_Synchronization + before.toInt()), "1");
    m_rig->fromUser(MENU_SendingCard, "1");
    QCOMPARE(m_rig->value(MENU_FnMode), after);
    for (int function = 0; function < 5; ++function)
        QCOMPARE(m_rig->choice(ENUM_MenuIndex(MENU_Fn_Synchronization + function)) == SELECTED,
                 function == after.toInt());
}

void TestApplyWorkMode::senderEndsStereoAndSoftwareOutput()
{
    m_rig->set(MENU_Mode3D_Status, "1");
    m_rig->set(MENU_OutputMode, "1");
    m_rig->set(MENU_OutputFrameRate, "8");
    m_rig->fromUser(MENU_SendingCard, "1");
    QCOMPARE(m_rig->value(MENU_Mode3D_Status) + m_rig->value(MENU_OutputMode), QString("00"));
    QCOMPARE(sentOf({"2015", "2359"}), (QStringList{"2015=59.94", "2359=0"}));
    QCOMPARE(m_rig->shown("labScreenRes"), QString("1920x1200@59.94")); // not doubled
}

void TestApplyWorkMode::senderTakesListOptions()
{
    addOption(MENU_MainLayer_InputSource, "4", "MOSAIC");
    startIn(Sender);
    QVERIFY(!m_rig->rowEnabled(MENU_MainLayer_InputSource, 4));
    QVERIFY(m_rig->rowEnabled(MENU_MainLayer_InputSource, 0));
    for (int row = 0; row < 4; ++row)
        QCOMPARE(m_rig->rowEnabled(MENU_Sync_Source, row), row == 0);
    for (int row = 0; row < 5; ++row)
        QCOMPARE(m_rig->rowEnabled(MENU_Audio_AudioOutput, row), row != 2 && row != 3);
    m_rig->fromUser(MENU_VideoController, "1");
    QVERIFY(m_rig->rowEnabled(MENU_MainLayer_InputSource, 4));
    for (int row = 0; row < 5; ++row)
        QVERIFY(m_rig->rowEnabled(MENU_Audio_AudioOutput, row));
}

void TestApplyWorkMode::videoPathComesBack_data()
{
    QTest::addColumn<int>("to");
    QTest::addColumn<int>("signalState");
    QTest::addColumn<bool>("crop");
    QTest::addColumn<bool>("audio");
    QTest::newRow("controller") << int(Controller) << 3 << true << true;
    QTest::newRow("controller, no signal") << int(Controller) << 0 << false << true;
    QTest::newRow("fiber") << int(Fiber) << 3 << true << false;
    QTest::newRow("fiber, no signal") << int(Fiber) << 0 << true << false;
}

void TestApplyWorkMode::videoPathComesBack()
{
    QFETCH(int, to);
    QFETCH(int, signalState);
    startIn(Sender);
    m_rig->input(fallback, 105, signalState, 1280, 1024, 16683);
    m_rig->fromUser(modeItems[to], "1");
    for (ENUM_MenuIndex item : videoPath)
        QVERIFY2(m_rig->enabled(item), qPrintable(QString::number(item)));
    QTEST(m_rig->enabled(MENU_MainLayer_InputCrop), "crop");
    QTEST(m_rig->enabled(MENU_AudioInput_Mosaic), "audio");
    QStringList geometry;
    for (int place = 0; place < 4; ++place) {
        const QString shown = m_rig->value(ENUM_MenuIndex(MENU_MainLayer_HorWidth + place));
        QCOMPARE(m_rig->value(ENUM_MenuIndex(MENU_MainLayer_CustomWidth + place)), shown);
        geometry << shown;
    }
    QCOMPARE(geometry, (QStringList{"800", "600", "0", "0"}));
    QCOMPARE(m_rig->value(MENU_MainLayer_ScalingMode), QString("2"));
    QCOMPARE(sentOf({"2101", "2103", "2104"}), (QStringList{"2101=2", "2103=800", "2104=600"}));
    QCOMPARE(m_rig->shown("labLayerSrc1_Res"), QString(signalState == 3 ? "1280x1024@59.94" : "No Signal"));
}

void TestApplyWorkMode::rateComesBack_data()
{
    QTest::addColumn<QString>("sync");
    QTest::addColumn<int>("periodUs"); ///< of the source of synchronisation
    QTest::addColumn<int>("rate");
    QTest::addColumn<QString>("shown");
    QTest::newRow("free") << "0" << 16683 << 6000 << "1920x1200@60";
    QTest::newRow("source in reach") << "1" << 16683 << 5994 << "1920x1200@59.94";
    QTest::newRow("source out of reach") << "1" << 20000 << 6000 << "1920x1200@60";
}

void TestApplyWorkMode::rateComesBack()
{
    QFETCH(QString, sync);
    QFETCH(int, periodUs);
    m_rig->set(MENU_OutputFrameRate, "9");
    m_rig->input(fallback, 105, 3, 1280, 1024, 33333);
    startIn(Sender);
    m_rig->input(0, 97, 3, 1920, 1080, periodUs);
    m_rig->set(MENU_Sync_Status, sync);
    m_rig->fromUser(MENU_VideoController, "1");
    QTEST(m_rig->value(PARA_OutputRate).toInt(), "rate");
    QTEST(m_rig->shown("labScreenRes"), "shown");
}

void TestApplyWorkMode::transitionsStayOffUnderAPip()
{
    startIn(Sender);
    m_rig->set(MENU_PIP2_Status, "1");
    m_rig->fromUser(MENU_VideoController, "1");
    QVERIFY(!m_rig->enabled(MENU_MainLayerTransition) && !m_rig->enabled(MENU_TransitionDuration));
    const auto *off = m_rig->home->findChild<QLabel *>("labWindowOffDisplay_3");
    QVERIFY(off && off->isHidden());
}

void TestApplyWorkMode::mosaicFollowsThePips()
{
    addOption(MENU_MainLayer_InputSource, "4", "MOSAIC");
    startIn(Sender);
    m_rig->set(MENU_PIP1_Status, "1");
    m_rig->fromUser(MENU_FiberConverter, "1");
    QVERIFY(!m_rig->rowEnabled(MENU_MainLayer_InputSource, 4));
}

void TestApplyWorkMode::syncSourcesComeBack_data()
{
    QTest::addColumn<bool>("sdi");
    QTest::newRow("with SDI") << true;
    QTest::newRow("without SDI") << false;
}

void TestApplyWorkMode::syncSourcesComeBack()
{
    QFETCH(bool, sdi);
    ParaProcess::bHaveSDI = sdi;
    startIn(Sender);
    m_rig->fromUser(MENU_VideoController, "1");
    for (int row = 0; row < 4; ++row)
        QCOMPARE(m_rig->rowEnabled(MENU_Sync_Source, row), row != 3 || sdi);
}

void TestApplyWorkMode::makerSignComesBack_data()
{
    QTest::addColumn<QString>("sign");
    QTest::newRow("shown") << "1";
    QTest::newRow("hidden") << "0";
}

void TestApplyWorkMode::makerSignComesBack()
{
    QFETCH(QString, sign);
    startIn(Fiber);
    m_rig->set(MENU_MakerSign, sign);
    const auto *name = m_rig->home->findChild<QLabel *>("labDeviceName");
    m_rig->home->SetDevNameState(sign == "1" ? COMMON_OFF : COMMON_ON);
    m_rig->fromUser(MENU_VideoController, "1");
    QCOMPARE(name->isHidden(), sign != "1");
}

QTEST_MAIN(TestApplyWorkMode)
#include "tst_applyworkmode.moc"
