// The four resets: what survives, what comes back, what the user is told, and once in a run of the program.

#include "enginerig.h"
#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "menu/objectindex.h"
#include "netstatus.h"
#include "tests/testprogram.h"

using namespace VASK;

class TestApplyReset : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { m_rig = new EngineRig; }
    void cleanupTestCase() { delete m_rig; }
    void init();

    void keepsWhatSurvives_data();
    void keepsWhatSurvives();
    void fnKeyIsMarkedAgain();
    void sendingCardStaysOne_data();
    void sendingCardStaysOne();
    void resetAllEndsTheSendingCard();
    void clearsPictures_data();
    void clearsPictures();
    void tellsTheOutcome_data();
    void tellsTheOutcome();
    void runsOnce_data();
    void runsOnce();
    void reportedClearAllIsTold();
    void clearAll();

private:
    /// What a shell tool of the board prints.
    void tool(const char *name, const char *script)
    {
        QFile file(m_rig->statePath(QString("/bin/%1").arg(name)));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(QByteArray("#!/bin/sh\n") + script + "\n");
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    QString factory(ENUM_MenuIndex index) const { return g_MenuXmlConfig.value(index).value; }
    EngineRig *m_rig = nullptr;
};

void TestApplyReset::init()
{
    m_rig->reset();
    tool("fpga", "case $1 in -v) echo 'FPGA version is V1.2.3';; r) echo 0x01;; esac");
}

void TestApplyReset::keepsWhatSurvives_data()
{
    addColumns<int, bool, bool, bool>({"reset", "keepsNetwork", "keepsFn", "fromUser"});
    for (bool fromUser : {true, false}) {
        const QString who = fromUser ? "user" : "device";
        addRow("save IP, " + who, MENU_SaveIP, true, false, fromUser);
        addRow("save user data, " + who, MENU_SaveUserData, true, true, fromUser);
        addRow("reset all, " + who, MENU_ResetAll, false, false, fromUser);
    }
}

void TestApplyReset::keepsWhatSurvives()
{
    QFETCH(int, reset);
    QFETCH(bool, keepsNetwork);
    QFETCH(bool, keepsFn);
    QFETCH(bool, fromUser);
    const struct {
        ENUM_MenuIndex item;
        const char *value;
        bool kept;
    } items[] = {
        {MENU_CommunicationMode, "1", keepsNetwork},
        {MENU_Net_NetMode, "1", keepsNetwork},
        {MENU_Net_SubnetMask, "255.0.0.0", keepsNetwork},
        {MENU_HDCPMemory, "0", keepsNetwork},
        {MENU_FnMode, "3", keepsFn},
        {MENU_BootLogo, "0", true},
        {MENU_ScreenBrightness, "13", false},
        {MENU_MainLayer_InputSource, "1", false},
    };
    for (const auto &item : items)
        m_rig->set(item.item, item.value);
    set_pc_connect_priority(0);
    QSignalSpy told(m_rig->engine, &ParaProcess::signal_factory_reset);

    m_rig->engine->SetParaToXml("0", ENUM_MenuIndex(reset), fromUser ? SET_XML_USER : SET_XML_DEVICE);
    for (const auto &item : items)
        QVERIFY2(m_rig->value(item.item) == (item.kept ? QString(item.value) : factory(item.item)),
                 QByteArray::number(item.item));
    QCOMPARE(m_rig->value(MENU_RestoreDone), QString("1"));
    QCOMPARE(get_pc_connect_priority(), reset == MENU_ResetAll ? 1 : 0);
    // What the device did itself is told at home, and neither sent nor probed.
    QCOMPARE(told.count(), fromUser ? 0 : 1);
    QCOMPARE(m_rig->device->sent.take(), fromUser ? QStringList{itemnames::line(reset, "")} : QStringList());
    QCOMPARE(m_rig->messages, fromUser ? QStringList({"IsResting", "ResetSucceed"}) : QStringList());
}

void TestApplyReset::fnKeyIsMarkedAgain()
{
    m_rig->set(MENU_FnMode, "4");
    m_rig->fromUser(MENU_SaveUserData, "0");
    for (int function = 0; function < 5; ++function)
        QCOMPARE(m_rig->choice(ENUM_MenuIndex(MENU_Fn_Synchronization + function)) == SELECTED,
                 function == 4);
}

void TestApplyReset::sendingCardStaysOne_data()
{
    addColumns<int>({"reset"});
    addRow("save IP", MENU_SaveIP);
    addRow("save user data", MENU_SaveUserData);
}

void TestApplyReset::sendingCardStaysOne()
{
    QFETCH(int, reset);
    m_rig->set(MENU_WorkMode, "2");
    m_rig->store->changeItem(MENU_MainLayer_InputSource, [](ST_ItemInfo &source) {
        source.value = "1";
        source.params1["3"] = optionDisable;
    });
    m_rig->fromUser(ENUM_MenuIndex(reset), "0");
    QVERIFY(!m_rig->rowEnabled(MENU_MainLayer_InputSource, 3)); // the whole list is kept
    QCOMPARE(m_rig->value(MENU_MainLayer_InputSource), QString("1"));
    for (ENUM_MenuIndex item : {MENU_MainLayer_Status, MENU_MainLayer_ScalingMode, MENU_MainLayerTransition})
        QCOMPARE(m_rig->value(item), QString("1"));
    for (int item : {MENU_OutputFrameRate,
                     MENU_MainLayer_Status,
                     MENU_MainLayer_ScalingMode,
                     MENU_MainLayer_HorWidth,
                     MENU_MainLayer_VerHeight,
                     MENU_MainLayer_Priority,
                     MENU_MainLayer_InputCrop,
                     MENU_MainLayer_Opacity,
                     MENU_PIP1,
                     MENU_PIP2,
                     MENU_Layout,
                     MENU_MosaicInput,
                     MENU_PresetSettings,
                     MENU_ImageMosaic,
                     MENU_MainLayerTransition,
                     MENU_TransitionDuration,
                     MENU_Fn_HDMIOutput,
                     MENU_Sync_Source,
                     MENU_HDMIOutput,
                     MENU_Mode3D,
                     MENU_InputBackup_Mosaic})
        QVERIFY2(!m_rig->enabled(ENUM_MenuIndex(item)), QByteArray::number(item));
    QCOMPARE(m_rig->choice(MENU_VideoController) + m_rig->choice(MENU_FiberConverter) +
                 m_rig->choice(MENU_SendingCard),
             QString("001"));
    QCOMPARE(m_rig->value(MENU_WorkMode), QString("2"));
}

void TestApplyReset::resetAllEndsTheSendingCard()
{
    m_rig->set(MENU_WorkMode, "2");
    m_rig->store->UpdataItemEnable(MENU_PIP1, false);
    m_rig->fromUser(MENU_ResetAll, "0");
    QCOMPARE(m_rig->value(MENU_WorkMode), QString("0"));
    QCOMPARE(m_rig->value(MENU_MainLayer_InputSource), QString("2"));
    QVERIFY(m_rig->enabled(MENU_PIP1));
    QCOMPARE(m_rig->choice(MENU_VideoController) + m_rig->choice(MENU_SendingCard), QString("10"));
}

void TestApplyReset::clearsPictures_data()
{
    addColumns<int, bool>({"reset", "cleared"});
    addRow("save IP", MENU_SaveIP, true);
    addRow("save user data", MENU_SaveUserData, false);
    addRow("reset all", MENU_ResetAll, true);
    addRow("clear all", MENU_ClearAllParameters, true);
}

void TestApplyReset::clearsPictures()
{
    QFETCH(int, reset);
    QFETCH(bool, cleared);
    const QString name = m_rig->path("/usr/vask/etc/osd/one.bmp");
    QFile picture(name);
    QVERIFY(picture.open(QIODevice::WriteOnly));
    m_rig->fromUser(ENUM_MenuIndex(reset), "0");
    QCOMPARE(!QFile::exists(name), cleared);
}

void TestApplyReset::tellsTheOutcome_data()
{
    addColumns<QString, QString>({"script", "outcome"});
    addRow("no version", "echo FPGA version", "FPGACommunication");
    addRow("memory check failed", "case $1 in -v) echo 'FPGA version is V1';; r) echo 0x00;; esac",
           "FPGADDRCheckError");
}

void TestApplyReset::tellsTheOutcome()
{
    QFETCH(QString, script);
    QFETCH(QString, outcome);
    tool("fpga", qPrintable(script));
    m_rig->fromUser(MENU_SaveIP, "0");
    QCOMPARE(m_rig->messages, (QStringList{"IsResting", outcome}));
}

void TestApplyReset::runsOnce_data()
{
    addColumns<int, bool>({"reset", "fromUser"});
    for (int reset : {MENU_SaveIP, MENU_SaveUserData, MENU_ResetAll, MENU_ClearAllParameters})
        for (bool fromUser : {true, false})
            addRow(QString("%1, %2").arg(reset).arg(fromUser ? "user" : "device"), reset, fromUser);
}

void TestApplyReset::runsOnce()
{
    QFETCH(int, reset);
    QFETCH(bool, fromUser);
    m_rig->engine->SetParaToXml("0", ENUM_MenuIndex(reset), fromUser ? SET_XML_USER : SET_XML_DEVICE);
    m_rig->forget();
    m_rig->set(MENU_ScreenBrightness, "13");
    QSignalSpy told(m_rig->engine, &ParaProcess::signal_factory_reset);
    for (ENUM_MenuIndex next : {MENU_SaveIP, MENU_SaveUserData, MENU_ResetAll, MENU_ClearAllParameters}) {
        m_rig->fromUser(next, "0");
        m_rig->fromDevice(next, "0");
    }
    QCOMPARE(m_rig->value(MENU_ScreenBrightness), QString("13"));
    QCOMPARE(told.count(), 0);
    QCOMPARE(m_rig->device->sent.take() + m_rig->messages, QStringList());
}

void TestApplyReset::reportedClearAllIsTold()
{
    QSignalSpy told(m_rig->engine, &ParaProcess::signal_factory_reset);
    set_pc_connect_priority(0);
    m_rig->set(MENU_ScreenBrightness, "13");
    m_rig->engine->SetParaToXml("", MENU_ClearAllParameters, SET_XML_DEVICE);
    QCOMPARE(told.count(), 1);
    QCOMPARE(get_pc_connect_priority(), 1);
    QCOMPARE(m_rig->value(MENU_ScreenBrightness), factory(MENU_ScreenBrightness));
    QCOMPARE(m_rig->device->sent.take() + m_rig->messages, QStringList());
}

void TestApplyReset::clearAll()
{
    QFile standard(m_rig->path("/usr/vask/etc/logo/logo_vask.bmp"));
    QVERIFY(standard.open(QIODevice::WriteOnly));
    standard.write("standard");
    standard.close();
    set_pc_connect_priority(0);
    m_rig->set(MENU_ScreenBrightness, "13");
    m_rig->set(MENU_BootLogo, "0");
    m_rig->store->updateActivittyItem();
    // On a slow machine the store's own write would come before the look at the file.
    m_rig->store->findChild<QTimer *>()->stop();
    m_rig->fromUser(MENU_ClearAllParameters, "0");

    auto contents = [this](const char *name) {
        QFile file(m_rig->path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    };
    QCOMPARE(contents("/usr/vask/etc/logo/logo.bmp"), QByteArray("standard"));
    QCOMPARE(contents("/usr/vask/etc/fpd/config/config.xml"),
             contents("/usr/vask/etc/fpd/config/config_factory.xml"));
    m_rig->store->restartUpdateTimer();
    // A later write does not bring the old values back.
    m_rig->store->updateActivittyItem();
    MenuAnalysis next(ENUM_MENUANALYSIS);
    next.initlize();
    QString brightness;
    next.GetItemCurValue(MENU_ScreenBrightness, brightness);
    QCOMPARE(brightness, factory(MENU_ScreenBrightness));
    QCOMPARE(get_pc_connect_priority(), 1);
    QCOMPARE(m_rig->device->sent.take(), QStringList{"ResetAll="});
    QCOMPARE(m_rig->messages, (QStringList{"IsResting", "ResetSucceed"}));
}

FPD_TEST(TestApplyReset)

#include "tst_applyreset.moc"
