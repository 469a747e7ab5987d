// What the engine does at its start before the flash is read: what the last run left is put back, what it
// kept is taken over; and the parts of the home screen that no other test looks at.

#include "tests/testprogram.h"
#include "tests/unit/rig/caseline.h"

#include <QSignalSpy>

using namespace VASK;

namespace
{
const QString values = "HDMI1_EDIDChoice=0 HDMI2_EDIDChoice=0 DVI_EDIDChoice=0 DVI2_EDIDChoice=0 "
                       "Test_{Type=0 PureColor=5 Gradient=0 Grid=0 Brightness=3 Spacing=5 Speed=3} ";
const QString otherValues = QString(values).replace(QRegularExpression("=\\d"), "=1") +
                            "HDMI1_ColorSample=1 HDMI2_ColorSample=1 DVI_ColorSample=1 DVI2_ColorSample=1 "
                            "SDI_ColorSample=1 ";
const QString hears = "of Layout:; leaves ";
const QString shownPip = "PIP1_{Status=1 InputSource=2} WorkMode=";

CaseLines table()
{
    CaseLines lines{
        {"display items start anew",
         otherValues +
             "MainLayer_InputCrop+ PIP1_InputCrop+ PIP2_InputCrop+ Freeze- FTB- TestPattern- Normal? "
             "Freeze! FTB! Audio_Volume=7",
         "initialize",
         "text HDMI1_ColorSample=RGB 4:4:4, HDMI2_ColorSample=RGB 4:4:4, DVI_ColorSample=RGB 4:4:4, "
         "DVI2_ColorSample=RGB 4:4:4, SDI_ColorSample=YCbCr 4:2:2; " +
             hears + values +
             "Audio_Volume=7 MainLayer_InputCrop- PIP1_InputCrop- PIP2_InputCrop- Freeze+ FTB+ TestPattern+ "
             "Normal! Freeze? FTB?"},
        {"HDCP is not kept over a power cut", "HDCPMemory=0 HDCP=1", "initialize", hears + "HDCP=0"},
        {"HDCP is kept", "HDCPMemory=1 HDCP=1", "initialize", hears + "HDCP=1"},
        {"a sending card leaves the PIPs alone", shownPip + "2", "home", "of Layout:; name2 untouched"},
        {"a controller does not", shownPip + "0", "home", "of Layout:; name2 DVI"},
        {"lowest layer", "PIP1_{Status=1 Priority=0} MainLayer_Priority=1", "home", hears + "LowestLayer=1"},
    };
    const QStringList functions{"Synchronization", "HDMIOutput", "FTB", "Freeze", "TestPattern"};
    for (const QString &function : functions)
        lines << CaseLine{"Fn is marked",
                          QString("Fn_%1? FnMode=%2").arg(function).arg(functions.indexOf(function)),
                          "initialize", hears + "Fn_" + function + '!'};
    return lines;
}
} // namespace

class TestEngineStart : public CaseTest
{
    Q_OBJECT
    CaseLines lines() const override { return table(); }
    void begin() override
    {
        m_rig->reset();
        m_rig->home->SetLayerName(LAYER_PIP1, "untouched");
    }

private slots:
    void processDataStartEmpty()
    {
        for (int index = PARA_CabinetWidth; index < PARA_END; ++index)
            m_rig->process(ENUM_MenuIndex(index), 1);
        QCOMPARE(m_rig->value(PARA_GenlockState), QString("1"));
        m_rig->engine->Initialize();
        for (int index = PARA_CabinetWidth; index < PARA_END; ++index)
            QVERIFY2(m_rig->value(ENUM_MenuIndex(index)) == "0", qPrintable(itemnames::name(index)));
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

private:
    bool shows(const char *label, const QString &picture) const
    {
        const auto *found = m_rig->home->findChild<QLabel *>(label);
        const QPixmap wanted(":/resource/image/mainWindow/" + picture);
        return found && !wanted.isNull() && found->pixmap(Qt::ReturnByValue).toImage() == wanted.toImage();
    }
};

FPD_TEST(TestEngineStart)
#include "tst_enginestart.moc"
