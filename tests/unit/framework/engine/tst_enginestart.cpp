// What the engine does at its start before the flash is read: what the last run left is put back, what it
// kept is taken over; and the parts of the home screen that no other test looks at.

#include "tests/testprogram.h"
#include "tests/unit/rig/caseline.h"

#include <QSignalSpy>

using namespace VASK;

class TestEngineStart : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { m_rig = new EngineRig; }
    void cleanupTestCase() { delete m_rig; }
    void init() { m_rig->reset(); }

    void displayItemsStartAnew()
    {
        const QString values = "HDMI1_EDIDChoice=0 HDMI2_EDIDChoice=0 DVI_EDIDChoice=0 DVI2_EDIDChoice=0 "
                               "Test_{Type=0 PureColor=5 Gradient=0 Grid=0 Brightness=3 Spacing=5 Speed=3}";
        const ENUM_MenuIndex samplings[] = {MENU_HDMI1_ColorSample, MENU_HDMI2_ColorSample,
                                            MENU_DVI_ColorSample, MENU_DVI2_ColorSample,
                                            MENU_SDI_ColorSample};
        caseline::prepare(*m_rig, QString(values).replace(QRegularExpression("=\\d"), "=1"));
        for (ENUM_MenuIndex sampling : samplings)
            m_rig->set(sampling, "1");
        caseline::prepare(
            *m_rig,
            "MainLayer_InputCrop+ PIP1_InputCrop+ PIP2_InputCrop+ Freeze- FTB- TestPattern- Audio_Volume=7");
        for (ENUM_MenuIndex mode : {MENU_Normal, MENU_Freeze, MENU_FTB})
            m_rig->store->UpdataItemCurChoice(mode, mode == MENU_Normal ? UNSELECTED : SELECTED);
        m_rig->engine->Initialize();
        for (ENUM_MenuIndex sampling : samplings)
            QCOMPARE(m_rig->value(sampling),
                     QString(sampling == MENU_SDI_ColorSample ? "YCbCr 4:2:2" : "RGB 4:4:4"));
        caseline::compareStates(
            *m_rig, values + " Audio_Volume=7 MainLayer_InputCrop- PIP1_InputCrop- PIP2_InputCrop- "
                             "Freeze+ FTB+ TestPattern+ Normal! Freeze? FTB?");
    }

    void processDataStartEmpty()
    {
        for (int index = PARA_CabinetWidth; index < PARA_END; ++index)
            m_rig->process(ENUM_MenuIndex(index), 1);
        QCOMPARE(m_rig->value(PARA_GenlockState), QString("1"));
        m_rig->engine->Initialize();
        for (int index = PARA_CabinetWidth; index < PARA_END; ++index)
            QVERIFY2(m_rig->value(ENUM_MenuIndex(index)) == "0", QByteArray::number(index));
    }

    void hdcpThatIsNotKeptIsOff()
    {
        for (const char *memory : {"0", "1"}) { // not kept over a power cut, kept
            m_rig->set(MENU_HDCPMemory, memory);
            m_rig->set(MENU_HDCP, "1");
            m_rig->engine->Initialize();
            QCOMPARE(m_rig->value(MENU_HDCP), QString(memory));
        }
    }

    void fnFunctionIsMarked()
    {
        for (int function = 0; function < 5; ++function) {
            const auto item = ENUM_MenuIndex(MENU_Fn_Synchronization + function);
            m_rig->store->UpdataItemCurChoice(item, UNSELECTED);
            m_rig->set(MENU_FnMode, QString::number(function));
            m_rig->engine->Initialize();
            QCOMPARE(m_rig->choice(item), SELECTED);
        }
    }

    void otherConfigurationIsAskedFor()
    {
        for (bool quickAsks : {false, true}) {
            m_rig->set(MENU_ScreenConfigKind, quickAsks ? "1" : "0");
            m_rig->engine->Initialize();
            QCOMPARE(bool(g_dialogConfig[MENU_QuickConfiguration].enabled), quickAsks);
            QCOMPARE(bool(g_dialogConfig[MENU_AdvancedCfg].enabled), !quickAsks);
        }
    }

    void versionOfTheEnvironment()
    {
        const QMap<QByteArray, QString> versions{
            {"ver_rootfs=V3.2.1\n", "V3.2.1"}, {"ver_rootfs=\n", "V0"}, {"other=V3.2.1\n", "V0"}};
        for (auto version = versions.cbegin(); version != versions.cend(); ++version) {
            QFile file(m_rig->statePath(hostlink::environmentFile));
            QVERIFY(file.open(QIODevice::WriteOnly) && file.write(version.key()) > 0);
            file.close();
            m_rig->set(MENU_About_VersionValue, "V0");
            m_rig->engine->Initialize();
            QCOMPARE(m_rig->value(MENU_About_VersionValue), version.value());
            file.remove();
        }
    }

    void syncStateOfTheHomeScreen_data()
    {
        const DataRows<QString, int, int, QString> row{"sync", "periodUs", "state", "picture"};
        row("runs free", "0", 20000, SYN_OFF, "syn_off.png");
        row("agrees", "1", 16667, SYN_OFF, "syn_off.png");
        row("another rate", "1", 20000, SYN_FAILED, "syn_fail.png");
        row("no rate", "1", 0, SYN_FAILED, "syn_fail.png");
    }
    void syncStateOfTheHomeScreen()
    {
        const auto [sync, periodUs] = fetched<QString, int>({"sync", "periodUs"});
        m_rig->set(MENU_Sync_Status, sync);
        m_rig->set(MENU_Sync_Source, "1");
        m_rig->set(MENU_OutputFrameRate, "9");
        m_rig->input(1, 98, 3, 1920, 1080, periodUs);
        QSignalSpy states(m_rig->engine, SIGNAL(signal_sync_state(qint32)));
        m_rig->engine->InitializeMainWindow();
        QCOMPARE(states.count(), 0); // the home screen itself, at the first time
        QFETCH(QString, picture);
        QVERIFY(shows("SyncState", picture));
        QVERIFY(ParaProcess::init_20m_flg);
        m_rig->engine->InitializeMainWindow();
        QCOMPARE(states.count(), 1);
        QTEST(states.first().first().toInt(), "state");
    }

    void sendingCardLeavesPipsAlone()
    {
        m_rig->set(MENU_PIP1_Status, "1");
        m_rig->set(MENU_PIP1_InputSource, "2");
        m_rig->home->SetLayerName(LAYER_PIP1, "as it was");
        m_rig->set(MENU_WorkMode, "2");
        m_rig->engine->InitializeMainWindow();
        QCOMPARE(m_rig->shown("labLayerSrc2_Name"), QString("as it was"));
        m_rig->set(MENU_WorkMode, "0");
        m_rig->engine->InitializeMainWindow();
        QCOMPARE(m_rig->shown("labLayerSrc2_Name"), QString("DVI"));
    }

    void lowestLayerIsFound()
    {
        m_rig->set(MENU_PIP1_Status, "1");
        m_rig->set(MENU_PIP1_Priority, "0");
        m_rig->set(MENU_MainLayer_Priority, "1");
        m_rig->engine->InitializeMainWindow();
        QCOMPARE(m_rig->value(PARA_LowestLayer), QString("1"));
    }

private:
    bool shows(const char *label, const QString &picture) const
    {
        const auto *found = m_rig->home->findChild<QLabel *>(label);
        const QPixmap wanted(":/resource/image/mainWindow/" + picture);
        return found && !wanted.isNull() && found->pixmap(Qt::ReturnByValue).toImage() == wanted.toImage();
    }
    EngineRig *m_rig = nullptr;
};

FPD_TEST(TestEngineStart)
#include "tst_enginestart.moc"
