// What follows from the reports of inputs, ports and output, where no report alone shows it: layers, output
// rate, LEDs, colour sampling, the backup of the ports.

#include "framework/productiontest/productiontest.h"
#include "tests/testprogram.h"
#include "tests/unit/rig/caseline.h"

using namespace VASK;

namespace
{
const CaseLines layerLines{
    {"near a whole rate", "MainLayer_InputCrop-", "input 0 97 3 1280 720 16640",
     "picture 1280x720@60; leaves MainLayer_InputCrop+; reloading MainLayer_InputCrop="},
    {"interlaced", "", "input 0 97 3 1280 720 20000 1",
     "picture 1280x720i@50; picture2 untouched; picture3 untouched"},
    {"unstable", "MainLayer_InputCrop+", "input 0 97 2 1280 720 16667",
     "picture No Signal; leaves MainLayer_InputCrop-"},
    {"main layer, cropped", "MainLayerCrop_Status=1 MainLayer_ScalingMode=1", "input 0 97 3 2000 1080 16667",
     "picture 2000x1080@60; leaves MainLayer_HorWidth=800"},
    {"PIP 1, cropped", "PIP1Crop_Status=1 PIP1_ScalingMode=1", "input 1 97 3 2000 1080 16667",
     "picture2 2000x1080@60; leaves PIP1_HorWidth=800"},
    {"full screen", "MainLayer_ScalingMode=0", "input 0 97 3 2000 1080 16667",
     "leaves MainLayer_HorWidth=800"},
    // As large as a PIP may be, and larger.
    {"PIP 1", "PIP1_{ScalingMode=1 ScalingMode/1- InputCrop-} PIP2_InputCrop-",
     "input 1 98 3 2000 1625 20000",
     "sends PIP1_VerHeight=1625; picture2 2000x1625@50; "
     "leaves PIP1_{HorWidth=2000 ScalingMode/1- InputCrop+} PIP2_InputCrop-"},
    {"PIP 2", "PIP2_ScalingMode=1", "input 2 98 3 2000 1625 20000",
     "sends PIP2_VerHeight=1625; picture3 2000x1625@50; leaves PIP2_{HorWidth=2000 InputCrop+}"},
    {"PIP 2, larger", "PIP2_ScalingMode=1", "input 2 98 3 2000 1626 20000",
     "picture3 2000x1626@50; leaves PIP2_HorWidth=800"},
    // Where it does not take the size the option comes back with what fits, unless pictures are spliced.
    {"option comes back", "PIP1_{ScalingMode=2 ScalingMode/1-}", "input 1 98 3 2000 1625 20000",
     "leaves PIP1_ScalingMode/1+"},
    {"not with a larger one", "PIP1_{ScalingMode=2 ScalingMode/1-}", "input 1 98 3 2000 1626 20000",
     "leaves PIP1_ScalingMode/1-"},
    {"nor while splicing", "PIP1_{ScalingMode=2 ScalingMode/1-} ImageMosaic_Status=1",
     "input 1 98 3 2000 1080 20000", "leaves PIP1_ScalingMode/1-"},
    {"sending card", "WorkMode=2 MainLayer_InputCrop- PIP1_InputSource=0", "input 0 97 3 1920 1080 20000",
     "picture2 1920x1080@50; leaves MainLayer_InputCrop-"},
    {"sending card, PIP stays", "WorkMode=2 PIP1_InputSource=0; input 0 97 3 1920 1080 20000",
     "input 0 97 0 0 0 0", "picture No Signal; picture2 1920x1080@50"},
    {"of no layer", "OutputRate=6000", "input 7 48 3 1920 1080 20000",
     "reloads ; picture untouched; picture2 untouched; screen untouched; leaves OutputRate=6000"},
    {"LED", "", "input 5 106 3 1920 1080 20000", "lit IN6"},
    {"LED", "input 5 106 3 1920 1080 20000", "input 5 106 0 0 0 0", "dark IN6"},
};

// Input 0 is the main layer's, 1 the source of synchronisation, 8 the reference.
const QString controller = "WorkMode=0 Sync_Status=1 Sync_Source=1 OutputRate=6000";
const QString card = "WorkMode=2 Sync_Source=1 OutputRate=6000 ";
const CaseLines rateLines{
    {"controller", controller, "input 1 98 3 1920 1080 16683",
     "screen 1920x1200@59.94; leaves OutputRate=5994"},
    {"controller, out of reach", controller, "input 1 98 3 1920 1080 20000",
     "screen 1920x1200@60; leaves OutputRate=6000"},
    {"controller, other input", controller, "input 0 97 3 1920 1080 16683",
     "screen untouched; leaves OutputRate=6000"},
    {"controller, no period", controller, "input 1 98 0 1920 1080 0",
     "screen untouched; leaves OutputRate=6000"},
    {"card, signal lost", card + "OutputRate=5000", "input 0 97 0 1920 1080 20000",
     "screen 1920x1200@60; leaves OutputRate=5000"},
    {"card, other input", card, "input 1 98 3 1920 1080 20000", "screen untouched; leaves OutputRate=6000"},
    {"card, reference lost", card + "Sync_Status=1", "input 8 254 0 1920 1080 20000",
     "screen untouched; leaves OutputRate=6000"},
    {"card, main input with sync", card + "Sync_Status=1", "input 0 97 3 1920 1080 20000",
     "screen untouched; leaves OutputRate=6000"},
};

/// Both families of codes, on the second input.
QString ofCode(int code)
{
    return QString("input 1 %1 3 1920 1080 16667").arg(code);
}
const QString sampled = "device InputRecordFirst+13=2";
const CaseLines samplingLines{
    {"96", ofCode(96), sampled, "text HDMI1_ColorSample=YCbCr 4:4:4"},
    {"17", ofCode(17), sampled, "text HDMI1_ColorSample=YCbCr 4:4:4"},
    {"18", ofCode(18), sampled, "text HDMI2_ColorSample=YCbCr 4:4:4"},
    {"104", ofCode(104), sampled, "text DVI_ColorSample=YCbCr 4:4:4"},
    {"1", ofCode(1), sampled, "text DVI_ColorSample=YCbCr 4:4:4"},
    {"2", ofCode(2), sampled, "text DVI2_ColorSample=YCbCr 4:4:4"},
    {"unknown", ofCode(97), "device InputRecordFirst+13=3", "text HDMI1_ColorSample=RGB 4:4:4"},
    {"sixth input", "input 5 97 3 1920 1080 16667", "device InputRecordFirst+41=1",
     "text HDMI1_ColorSample=RGB 4:4:4"},
};

const QString noPort = "device PortLink=0; device PortLink+1=0; device PortLink+2=0; device PortLink+3=0; "
                       "device PortLink+4=0; device PortLink+5=0; ";
const QString backups = "PortBackup=1 PortBackup+1=1 OPT2Mode=";
QString engaged(const char *states)
{
    QString text = "leaves";
    for (int port = 0; port < 6; ++port)
        text += QString(" OPT2BackupEngaged+%1=%2").arg(port).arg(states[port]);
    return text;
}
const QString allBackup = "PortBackup+1=1 PortBackup+2=1 PortBackup+3=1 PortBackup+4=1 PortBackup+5=1";
const CaseLines portLines{
    {"no link, though backup", noPort, "device PortBackup+4=1", "ports ...dd"},
    {"backup engaged", noPort + "PortLink+4=1", "device PortBackupEngaged+4=1", "ports ...db"},
    {"optical backup", noPort + "PortBackup+4=1", "device OPT1PortLink+4=1", "ports ...db"},
    {"own link gone", noPort + "OPT1PortLink+4=1 PortLink+4=1", "device PortLink+4=0", "ports ...dd"},
    {"a resting fiber hides no port", noPort + "device PortLink+2=1; device OPT1PortLink+2=0",
     "device OPT1BackupEngaged+2=0", "ports .dedd"},
    // While the fiber brings a picture only own links count.
    {"fiber with a picture", noPort + "OPT1PortLink=1 PortLink+1=1; input 4 233 3 1920 1080 16667",
     "device OPT1Link=1", "ports dedddd"},
    {"fiber known already",
     noPort + "OPT1PortLink=1; input 4 233 3 1920 1080 16667; device OPT1Link=1; "
              "input 4 233 0 0 0 0",
     "device OPT1Link=1", "ports dddddd"},
    {"fiber gone", noPort + "OPT1PortLink=1 PortLink+1=1; device OPT1Link=1", "device OPT1Link=0",
     "ports eedddd"},
    {"all are backups", allBackup, "device PortBackup=1", "leaves DeviceBackup=1 DeviceBackup!"},
    {"one differs", allBackup + "; device PortBackup=1", "device PortBackup=0", "leaves DeviceBackup=1"},
    {"by the user", allBackup, "user PortBackup=1", "leaves DeviceBackup=0"},
    {"backup mode", backups + "0", "device DeviceBackup=1", "tells DeviceBackup=1; " + engaged("001111")},
    {"copy mode", backups + "1", "user DeviceBackup=1", "sends DeviceBackup=1; " + engaged("110000")},
    {"mode changes", backups + "0", "device OPT2Mode=1", engaged("110000")},
    {"fiber's port, backup mode", backups + "0", "device OPT2PortLink+2=1", engaged("001000")},
    {"fiber's port, copy mode", backups + "1", "device OPT2PortLink+1=1", engaged("010000")},
};

const QString report1280 = "device OutputRate=6000; device ReportedWidth=1280; device ReportedHeight=720";
const QString report1920 = "device OutputRate=6000; device ReportedWidth=1920; device ReportedHeight=1200";
QString ofCard(const char *rest)
{
    return QString("MainLayer_InputSource=2 WorkMode=") + rest;
}
const QString alias =
    "device ReportedRate=5994; device ReportedWidthAlias=1600; device ReportedHeightAlias=900";
const CaseLines outputLines{
    {"3D doubles", "Mode3D_{Status=1 Format=1}", report1920, "screen 1920x1200@120"},
    {"3D by frames", "Mode3D_{Status=1 Format=2}", report1920, "screen 1920x1200@60"},
    {"sending card", "WorkMode=0; " + report1280 + "; WorkMode=2", report1920, "screen 1280x720@60"},
    {"columns that do not fit end", "Layout=0",
     "device OutputRate=6000; device ReportedWidth=191; device ReportedHeight=100", "leaves Layout=2"},
    {"full screen", "MainLayer_{Status=1 Priority=2 ScalingMode=0} PIP2_{Status=1 Priority=0 ScalingMode=0}",
     report1280,
     "sends MainLayer_VerHeight=720 PIP2_VerHeight=720; leaves MainLayer_{HorWidth=1280 VerHeight=720} "
     "PIP2_{HorWidth=1280 VerHeight=720} PIP1_HorWidth=800 LowestLayer=2"},
    {"full screen comes back", "MainLayer_ScalingMode/0- PIP1_ScalingMode/0- PIP2_ScalingMode/0-", report1280,
     "leaves PIP1_ScalingMode/0+ PIP2_ScalingMode/0+ MainLayer_ScalingMode/0-"},
    {"not while splicing", "ImageMosaic_Status=1 PIP1_ScalingMode/0- PIP2_ScalingMode/0-", report1280,
     "leaves PIP1_ScalingMode/0- PIP2_ScalingMode/0-"},
    {"other registers, controller", report1280 + "; " + ofCard("0"), alias, "screen 1280x720@60"},
    {"other registers, card with 3D", ofCard("2 Mode3D_Status=1; input 2 105 0 1920 1080 0"), alias,
     "screen 1600x900@119.88"},
    {"other registers, input without a period", ofCard("2; input 2 105 3 1920 1080 0"), alias,
     "screen 1600x900@59.94; leaves OutputHeight=1200"},

    // The rates of a size, and the one that is chosen: the third of those before.
    {"rates of a size", "Output_FrameRate=2", "user Output_Resolution=0",
     "sends Output_Resolution=0; options Output_FrameRate=48 50 59.94 60 75 85; reloading Output_FrameRate=; "
     "leaves Output_FrameRate=2"},
    {"the rate is gone", "Output_FrameRate=2", "user Output_Resolution=15",
     "sends Output_Resolution=15; options Output_FrameRate=30; leaves Output_FrameRate=0"},
    {"rates of DVI 2", "DVI2_EDIDFrameRate=2", "user DVI2_EDIDResolution=0",
     "sends DVI2_EDIDResolution=0; options DVI2_EDIDFrameRate=48 50 59.94 60 75 85; leaves "
     "DVI2_EDIDFrameRate=2"},
    {"rates of HDMI 2, on two pages", "HDMI2_EDIDFrameRate=2", "device HDMI2_EDIDResolution=6",
     "tells HDMI2_EDIDResolution=6 HDMI2_EDIDResolution=6; options HDMI2_EDIDFrameRate=60; "
     "leaves HDMI2_EDIDFrameRate=0"},
    {"mode before the start is over", "", "device Output_Mode=1", ""},
    {"mode", "started", "device Output_Mode=0", "tells Output_Mode=0"},
    {"mode goes out with its apply row", "", "user Output_Mode=1", ""},
    {"applied by somebody else before the service is up", "started; Output_Mode=0",
     "device Output_Apply=", "of Layout:"},
    {"applied by somebody else", "Output_Mode=0; device VideoServiceStarted=1",
     "device Output_Apply=", "of Layout:; asks Waiting"},
    {"3D shows the PIPs off", "Mode3D_Format=2; user PIP1_Status=1", "user Mode3D_Status=1",
     "of Layout:; asks Open3DOnlyMainLayerEffectTip; visible labWindowOffDisplay_2"},
};
} // namespace

class TestApplyInputs : public CaseTest
{
    Q_OBJECT
    /// On a model with the pages of DVI 2, the page of the standard modes of HDMI 2 being open.
    EngineRig *makeRig() const override
    {
        auto *rig = new EngineRig;
        rig->addRows({CONFIG_DVI2_Attributes, CONFIG_DVI2_EDID, CONFIG_HDMI2_EDIDStandard});
        return rig;
    }
    void begin() override
    {
        m_rig->reset();
        caseline::prepare(*m_rig, "MainLayer_InputSource=0 PIP1_InputSource=1 PIP2_InputSource=2 "
                                  "OutputWidth=1920 OutputHeight=1200 OutputRate=6000");
        for (int layer = 0; layer < 3; ++layer)
            m_rig->home->SetLayerRes(ENUM_MainWindowLayerIndex(layer), "untouched");
        m_rig->home->SetScreenRes("untouched");
    }
    CaseLines lines() const override
    {
        static const CaseLines all = layerLines + rateLines + samplingLines + portLines + outputLines;
        return all;
    }

private slots:
    /// The input under test has to lose a signal to fail, a port must have a link to pass, and only at that
    /// step.
    void productionTest()
    {
        QStringList told;
        QObject listener;
        connect(m_rig->engine, &ParaProcess::signal_Source_Stable, &listener, [&told] { told << "stable"; });
        connect(m_rig->engine, &ParaProcess::signal_update_menuitem, &listener,
                [&told](en_inout_test_index index, en_item_state state) {
                    told << QString("%1:%2").arg(index).arg(state);
                });
        const auto play = [this, &told](int step, const QString &reports) {
            told.clear();
            ProductionTest::m_cur_step = step;
            ProductionTest::InputTestNumCur = INOUT_HDMI2;
            runCaseLine(*m_rig, {"", "", reports, "of Layout:"});
            ProductionTest::m_cur_step = FACTORY_STEP_NONE;
            return told.join(' ');
        };
        const QString comes = "input 1 98 3 1920 1080 16667", goes = "input 1 98 0 0 0 0";
        QCOMPARE(play(FACTORY_STEP_NONE, goes + "; " + comes), QString());
        QCOMPARE(play(FACTORY_STEP_KEYS, goes + "; device PortLink+5=1"), QString());
        QCOMPARE(play(FACTORY_STEP_IN_OUT, goes), QString());
        // Another one between must not hide the loss, which is told once.
        QCOMPARE(play(FACTORY_STEP_IN_OUT, comes + "; input 0 97 0 0 0 0; " + goes + "; " + goes),
                 QString("stable %1:%2").arg(INOUT_HDMI2).arg(ITEM_FAILED));
        QCOMPARE(play(FACTORY_STEP_IN_OUT, "device PortLink+5=0"), QString());
        QCOMPARE(play(FACTORY_STEP_IN_OUT, "device PortLink+5=1"),
                 QString("%1:%2").arg(INOUT_NET1 + 5).arg(ITEM_PASSED));
    }
};

FPD_TEST(TestApplyInputs)
#include "tst_applyinputs.moc"
