// The output, 3D, network and colour as the user and as the device bring their values: what is handed to the
// protocol, what the row is told, what is asked, what follows and what can be chosen then.

#include "tests/testprogram.h"
#include "tests/unit/rig/caseline.h"

using namespace VASK;

namespace
{
const CaseLines syncLines{
    {"output rate", "", "device OutputFrameRate=9", "tells OutputFrameRate=9"},
    {"source", "", "device Sync_Source=3", "tells Sync_Source=3; sync SDI"},
    {"source", "", "user Sync_Source=1", "sends Sync_Source=1; sync HDMI2"},
    {"sync on", "Sync_Source=1", "device Sync_Status=1",
     "tells Sync_Status=1; leaves OutputRate=5994; screen 1920x1080@59.94"},
    {"near enough", "Sync_Source=1 LowLatency=1", "user Sync_Status=1",
     "sends Sync_Status=1; leaves OutputRate=5994; screen 1920x1080@59.94"},
    {"no such input", "Sync_Source=5 LowLatency=1", "user Sync_Status=1",
     "sends Sync_Status=1; leaves OutputRate=6000; screen 1920x1080@60"},
    {"reference too far", "Sync_Source=0", "user Sync_Status=1",
     "sends Sync_Status=1; leaves OutputRate=6000; screen 1920x1080@60"},
    {"card follows", "Sync_Source=0 WorkMode=2", "user Sync_Status=1",
     "sends Sync_Status=1; leaves OutputRate=5000; screen 1920x1080@50"},
    {"none to follow", "Sync_Source=5 WorkMode=2", "user Sync_Status=1",
     "sends Sync_Status=1; leaves OutputRate=6000; screen 1920x1080@60"},
    {"3D doubles", "Sync_Source=1 Mode3D_Status=1 OutputWidth=1280", "user Sync_Status=1",
     "sends Sync_Status=1; leaves OutputRate=5994; screen 1280x1080@119.88"},
    {"no rate", "Sync_Source=2 OutputRate=0", "user Sync_Status=1",
     "sends Sync_Status=1; leaves OutputRate=6000; screen 1920x1080@60"},
    {"sync off", "Sync_Status=1 OutputFrameRate=8", "user Sync_Status=0",
     "sends Sync_Status=0 OutputFrameRate=59.94 Sync_Status=0; leaves OutputRate=5994; screen "
     "1920x1080@59.94"},
    {"the software's output", "Sync_Status=1 OutputMode=1 Output_{Resolution=0 FrameRate=6}",
     "user Sync_Status=0",
     "sends Sync_Status=0 Output_Apply=1024x768x50 Sync_Status=0; leaves OutputRate=5000; screen "
     "1920x1080@50"},
    {"sending card", "Sync_Status=1 WorkMode=2 MainLayer_InputSource=0 OutputFrameRate=8",
     "user Sync_Status=0", "sends Sync_{Status=0 Status=0}; leaves OutputRate=6000; screen 1920x1080@60"},
    {"sending card", "Sync_Status=1 WorkMode=2 MainLayer_InputSource=1", "device Sync_Status=0",
     "tells Sync_Status=0; leaves OutputRate=5994"},
    {"off already", "Sync_Status=0", "user Sync_Status=0", "sends Sync_Status=0"},
    {"3D doubles", "Sync_Status=1 Mode3D_Status=1 OutputFrameRate=4", "user Sync_Status=0",
     "sends Sync_Status=0 OutputFrameRate=30 Sync_Status=0; leaves OutputRate=3000; screen 1920x1080@60"},
    {"genlock of a card", "Sync_Status=1 WorkMode=2", "device GenlockState=2", "screen 1920x1080@50"},
    {"genlock, no rate", "Sync_{Status=1 Source=2} OutputRate=0", "device GenlockState=4",
     "asks SyncNoSignalTip; screen 1920x1080@60"},
};

const QString video = "Output_{Mode=1 Resolution=1 FrameRate=7} MainLayer_ScalingMode=0 PIP1_ScalingMode=2 "
                      "PIP2_ScalingMode=2 MainLayer_HorWidth=800";
const QString videoShown = "leaves OutputMode=1 OutputWidth=1280 OutputHeight=720 OutputRate=5994 "
                           "MainLayer_{HorWidth=1280 VerHeight=720} Mode3D-; screen 1280x720@59.94";
const QString withStereo =
    "Output_{Mode=1 Resolution=0 FrameRate=7} Mode3D_Status=1 MainLayer_ScalingMode=0 PIP1_ScalingMode=1 "
    "PIP2_ScalingMode=2 ImageMosaic_Status=1 PIP1_ScalingMode/0- PIP2_ScalingMode/0-";
const QString videoScales =
    "leaves MainLayer_{HorWidth=1024 VerHeight=768} PIP1_{HorWidth=800 ScalingMode/0+} PIP2_ScalingMode/0+ ";
const CaseLines outputLines{
    {"video", video, "user Output_Apply=",
     "asks Waiting; sends MainLayer_VerHeight=720 Output_{Mode=1 Apply=1280x720x59.94}; " + videoShown},
    {"video", video, "device Output_Apply=",
     "asks Waiting; sends MainLayer_VerHeight=720 Output_Mode=1; tells Output_Apply=1280x720x59.94; " +
         videoShown},
    // Without a row 3D is neither ended in the device nor here.
    {"video leaves 3D", withStereo, "user Output_Apply=",
     "asks Waiting; sends MainLayer_VerHeight=768 Output_{Mode=1 Apply=1024x768x59.94}; " + videoScales +
         "Mode3D_Status=1"},
    {"monitor", "OutputMode=1 Output_{Resolution=1 FrameRate=7}", "device Output_Apply=",
     "asks Waiting; sends Output_Mode=0; tells Output_Apply=1280x720x59.94; leaves OutputMode=0 "
     "OutputWidth=1920 Mode3D+"},
    {"monitor", "OutputMode=1 Output_{Resolution=0 FrameRate=8}",
     "user Output_Apply=", "asks Waiting; sends Output_{Mode=0 Apply=1024x768x60}; leaves OutputMode=0"},
};

const QString tip = "asks Open3DOnlyMainLayerEffectTip; ";
const CaseLines stereoLines{
    {"video ends 3D", withStereo, "user Output_Apply=",
     "asks Waiting; sends Mode3D_Status=0 MainLayer_VerHeight=768 Output_{Mode=1 Apply=1024x768x59.94}; " +
         videoScales + "Mode3D_Status=0"},
    {"3D off", "Mode3D_Status=1 MainLayerTransition=1", "device Mode3D_Status=0",
     "tells Mode3D_Status=0; leaves MainLayerTransition+ TransitionDuration+; screen 1920x1080@60"},
    {"3D off", "Mode3D_Status=1 MainLayerTransition- TransitionDuration- PIP1_Status=0 PIP2_Status=0",
     "user Mode3D_Status=0", "sends Mode3D_Status=0; leaves MainLayerTransition+ TransitionDuration+"},
    {"3D off beside PIP 2", "Mode3D_Status=1 MainLayerTransition- TransitionDuration- PIP2_Status=1",
     "user Mode3D_Status=0", "sends Mode3D_Status=0; leaves MainLayerTransition- TransitionDuration-"},
    {"3D off, mosaic shown", "Mode3D_Status=1 MainLayer_{InputSource/4- InputSource=4} MainLayerTransition-",
     "user Mode3D_Status=0", "sends Mode3D_Status=0; leaves MainLayerTransition-"},
    {"3D on", "PIP1_Status=1 Mode3D_Format=1", "device Mode3D_Status=1",
     "tells Mode3D_Status=1; leaves Mode3D_Status=1 PIP1_Status=1 MainLayerTransition=1 MainLayerTransition- "
     "TransitionDuration-; screen 1920x1080@120"},
    {"3D on, mosaic stays", "MainLayer_InputSource/4- Mode3D_Format=2", "device Mode3D_Status=1",
     "tells Mode3D_Status=1; leaves MainLayer_{InputSource/4- InputSource=2}"},
    {"3D on offers the mosaic", "MainLayer_InputSource/4- Mode3D_Format=2", "user Mode3D_Status=1",
     tip + "sends MainLayerTransition=1 Mode3D_Status=1; leaves MainLayer_{InputSource/4+ InputSource=2}"},
    {"3D on ends the PIPs", "Mode3D_Format=2 PIP1_Status=1 PIP2_Status=0", "user Mode3D_Status=1",
     tip + "sends MainLayerTransition=1 PIP1_Status=0 Mode3D_Status=1; leaves PIP1_Status=0 "
           "MainLayerTransition=1 MainLayerTransition- TransitionDuration-; screen 1920x1080@60"},
    {"3D on, too much", "Mode3D_Format=0", "user Mode3D_Status=1",
     "asks OverLoad; reloads Mode3D_Status=; leaves Mode3D_Status=0"},
    {"3D on, software's output fits", "OutputMode=1 Output_{Resolution=0 FrameRate=8}",
     "user Mode3D_Status=1",
     tip + "sends MainLayerTransition=1 Mode3D_Status=1; leaves Mode3D_Status=1 MainLayerTransition- "
           "TransitionDuration-; "
           "screen 1024x768@120"},
    {"3D on, software's output too much", "OutputMode=1 Output_{Resolution=8 FrameRate=8}",
     "user Mode3D_Status=1",
     "asks OverLoad; leaves Mode3D_Status=0 MainLayerTransition+ TransitionDuration+"},
    {"side by side", "Mode3D_{Status=1 Format=2}", "device Mode3D_Format=0",
     "tells Mode3D_Format=0; leaves Mode3D_RightEyeStart=960 Mode3D_RightEyeStart+; screen 1920x1080@120"},
    {"side by side", "RightEyeStartSide=961", "user Mode3D_Format=0",
     "sends Mode3D_{RightEyeStart=961 Format=0}; leaves Mode3D_RightEyeStart+"},
    {"top and bottom", "RightEyeStartTop=1125", "user Mode3D_Format=1",
     "sends Mode3D_{RightEyeStart=1125 Format=1}; leaves Mode3D_RightEyeStart+"},
    {"sequential", "Mode3D_Status=1", "device Mode3D_Format=2",
     "tells Mode3D_Format=2; leaves Mode3D_RightEyeStart-; screen 1920x1080@60"},
    {"sequential, 3D off", "", "user Mode3D_Format=2",
     "sends Mode3D_Format=2; leaves Mode3D_RightEyeStart-; screen 1920x1080@60"},
    {"format too much", "Mode3D_{Status=1 Format=2}", "user Mode3D_Format=1",
     "asks OverLoad; leaves Mode3D_Format=2"},
    {"right eye", "Mode3D_Format=1", "device Mode3D_RightEyeStart=1000",
     "tells Mode3D_RightEyeStart=1000; leaves RightEyeStartTop=1000"},
    {"right eye", "Mode3D_Format=0", "user Mode3D_RightEyeStart=1001",
     "sends Mode3D_RightEyeStart=1001; leaves RightEyeStartSide=1001"},
    {"right eye", "Mode3D_Format=2 RightEyeStartSide=1 RightEyeStartTop=2", "user Mode3D_RightEyeStart=1002",
     "sends Mode3D_RightEyeStart=1002; leaves RightEyeStartSide=1 RightEyeStartTop=2"},
    {"signal delay", "", "device Mode3D_SignalDelayTime=900",
     "sends Mode3D_SignalDelayTime=900; leaves Mode3D_SignalDelayTime=900"},
    {"emitter", "", "user Mode3D_ThirdPartyEmitter=1", "sends Mode3D_ThirdPartyEmitter=1"},
    {"emitter", "", "device Mode3D_ThirdPartyEmitter=1", "sends Mode3D_ThirdPartyEmitter=1"},
    {"picture reset, DVI 2", "DVI2_{Brightness=9 Contrast=9 Saturation=9 Hue=9}", "user DVI2_ColorReset=0",
     "sends DVI2_ColorReset=0; leaves DVI2_{Brightness=50 Contrast=50 Saturation=50 Hue=0}"},
};

const QString done = "asks Waiting NetParameSetSucceed; ";
const QString rowsOn = "Net_{IPAddress+ SubnetMask+ Gateway+ Apply+ Reset+}",
              rowsOff = "Net_{IPAddress- SubnetMask- Gateway- Apply- Reset-}";
const QString factory = "leaves Net_{IPAddress=192.168.0.10 SubnetMask=255.255.255.0 Gateway=192.168.0.1} ";
QString address(const QString &ip, const QString &mask, const QString &gateway)
{
    return QString("Net_{IPAddress=%1 SubnetMask=%2 Gateway=%3}").arg(ip, mask, gateway);
}
// What the device has instead of an address that is refused.
const QString inTheDevice = "flash 2006 0a00000005000900ff00ff00ff0000000a000501; ";
const QString comesBack = "; reloads Net_{IPAddress= SubnetMask= Gateway=}; leaves " +
                          address("10.0.5.9", "255.255.255.0", "10.0.5.1");
const CaseLines networkLines{
    {"wrong address", inTheDevice + address("127.0.0.1", "255.0.0.0", "127.0.0.2"), "user Net_Apply=0",
     "asks IpErr" + comesBack},
    {"wrong address and mask", inTheDevice + address("127.0.0.1", "255.0.255.0", "127.0.0.2"),
     "user Net_Apply=0", "asks IpMaskErr" + comesBack},
    {"wrong gateway", inTheDevice + address("192.168.0.10", "255.255.255.0", "192.168.1.1"),
     "user Net_Apply=0", "asks GateWayErr" + comesBack},
    {"gateway just outside", inTheDevice + address("192.168.0.10", "255.255.255.128", "192.168.0.129"),
     "user Net_Apply=0", "asks GateWayErr" + comesBack},
    {"automatic", "DhcpDone=1", "user Net_NetMode=1",
     "sends Net_NetMode=1; leaves DhcpDone=0 " + rowsOff + "; ip WaitIP"},
    {"manual", "Net_{IPAddress=10.0.0.7 Reset-}", "user Net_NetMode=0",
     "sends Net_NetMode=0; leaves " + rowsOn + "; ip 10.0.0.7"},
    {"address", "", "user Net_IPAddress=10.0.0.9", "sends Net_IPAddress=10.0.0.9; leaves DhcpDone=0"},
    {"applied", "", "device Net_Apply=0", done + "tells Net_Apply=0; ip 192.168.0.10"},
    {"automatic, applied", "Net_NetMode=1", "device Net_Apply=0", "tells Net_Apply=0"},
    {"automatic, applied", "Net_{NetMode=1 SubnetMask=255.0.255.0}", "user Net_Apply=0", "sends Net_Apply=0"},
    {"right", address("192.168.0.10", "255.255.255.0", "192.168.0.1"), "user Net_Apply=0",
     done + "sends Net_Apply=0; ip 192.168.0.10"},
    {"mask of ones", address("10.1.2.3", "255.255.255.255", "10.1.2.3"), "user Net_Apply=0",
     done + "sends Net_Apply=0"},
    {"mask of zeros", address("10.1.2.3", "0.0.0.0", "172.16.0.1"), "user Net_Apply=0",
     done + "sends Net_Apply=0"},
    {"gateway just inside", address("192.168.0.10", "255.255.254.0", "192.168.1.1"), "user Net_Apply=0",
     done + "sends Net_Apply=0"},
    {"hole, class A", address("126.1.2.3", "255.0.255.0", "126.0.0.1"), "user Net_Apply=0",
     "asks MaskErr; sends Net_SubnetMask=255.0.0.0"},
    {"hole, class B", address("128.1.2.3", "255.255.0.1", "128.1.0.1"), "user Net_Apply=0",
     "asks MaskErr; sends Net_SubnetMask=255.255.0.0"},
    {"hole, class C", address("223.1.2.3", "1.255.255.0", "223.1.2.1"), "user Net_Apply=0",
     "asks MaskErr; sends Net_SubnetMask=255.255.255.0"},
    // An address of no class has no mask of its own: what stands there goes on standing there.
    {"hole, no class", "Net_{IPAddress=224.0.0.1 SubnetMask=255.0.255.0}", "user Net_Apply=0",
     "asks MaskErr; sends Net_SubnetMask=; leaves Net_SubnetMask=255.0.255.0"},
    {"reset", "Net_{IPAddress=10.0.0.7 SubnetMask=255.0.0.0}", "device Net_Reset=0",
     "asks NetParameReset; sends Net_Apply=; " + factory +
         "Net_{IPAddress+ SubnetMask+} Net_Gateway+; ip 192.168.0.10"},
    {"reset", "Net_IPAddress=10.0.0.7", "user Net_Reset=0",
     "asks NetParameReset; sends Net_Apply=; " + factory + "; ip 192.168.0.10"},
    {"reset, refused", "Net_IPAddress=10.0.0.7", "user Net_Reset=0",
     "asks NetParameReset; answers 0; leaves Net_IPAddress=10.0.0.7"},
    {"reset, a PC takes over", "Net_IPAddress=10.0.0.7", "user Net_Reset=0",
     "asks NetParameReset; answers 2; leaves Net_IPAddress=10.0.0.7"},
};

const QString standard =
    "sends Color_{Gamma=2.8 R=255 G=249 B=253}; leaves Color_{ColorTemp=0 Gamma=2.8 G=249 R- B-}";
const QString saved = "asks SaveingHardwareInfomation SaveHardWareInformationSucceed; ";
const CaseLines otherLines{
    {"brightness", "", "user ScreenBrightness=65", "sends ScreenBrightness=65; bright 65%"},
    {"standard", "Color_ColorTemp=3", "user Color_ColorTemp=0",
     "sends Color_{R=255 G=249 B=253}; leaves Color_{G=249 R- G- B-}"},
    {"cool", "", "user Color_ColorTemp=1", "sends Color_{R=191 G=211 B=255}; leaves Color_{R=191 R- G- B-}"},
    {"warm", "", "user Color_ColorTemp=2", "sends Color_{R=255 G=213 B=161}; leaves Color_{B=161 R- G- B-}"},
    {"custom", "", "user Color_ColorTemp=3", "leaves Color_{R+ G+ B+}"},
    {"custom", "", "device Color_ColorTemp=3", "tells Color_ColorTemp=3; leaves Color_G+"},
    {"cool", "Color_{G=17 G+}", "device Color_ColorTemp=1",
     "tells Color_ColorTemp=1; leaves Color_{G=17 G-}"},
    {"colour reset", "Color_ColorTemp=3", "user Color_Reset=0", standard},
    {"colour reset", "Color_ColorTemp=3", "device Color_Reset=0", standard},
    {"picture reset", "HDMI2_{Contrast=9 Hue=9}", "device HDMI2_ColorReset=0",
     "tells HDMI2_ColorReset=0; leaves HDMI2_{Contrast=50 Hue=0}"},
    {"save", "PortLink=1", "device SavetoRVCard=1", "sends SavetoRVCard=1; " + saved},
    {"save, no link", "", "user SavetoRVCard=", "asks CheckReceiveCard"},
    {"save, port 10", "PortLink+9=1", "user SavetoRVCard=", saved + "sends SavetoRVCard="},
    {"save, OPT 1", "OPT1PortLink=1", "user SavetoRVCard=", saved + "sends SavetoRVCard="},
    {"save, OPT 2", "OPT2PortLink+3=1", "user SavetoRVCard=", saved + "sends SavetoRVCard="},
    {"save, a backup is no link", "PortBackup=1", "user SavetoRVCard=", "asks CheckReceiveCard"},
    {"load a file, no link", "", "user CabinetFile1=", "asks CheckReceiveCard"},
    {"self test", "", "user SelfTest=1", "asks SelfTesting; sends SelfTest=1"},
    {"self test", "", "device SelfTest=1", "sends SelfTest=1"},
    {"OSD picture that is there", "OSDChoice/4-", "device OSDPictureFirst+4=1",
     "reloads OSDChoice=; leaves OSDChoice/4+"},
    {"LAN first", "", "user CommunicationMode=0", "priority 1"},
    {"USB first", "", "user CommunicationMode=1", "priority 0"},
    {"no maker's sign", "", "user MakerSign=0", "hidden labDeviceName"},
    {"no maker's sign", "", "device MakerSign=0", "hidden labDeviceName"},
    {"maker's sign", "user MakerSign=0", "user MakerSign=1", "visible labDeviceName"},
    {"calibration", "", "user SoftCalibrate=1", ""},
    {"of no case", "", "device ScreenConfigKind=0", "leaves ScreenConfigKind=0"},
    {"no row, above", "", "device DVI2_Hue=181", "leaves DVI2_Hue=180"},
    {"no row, below", "", "device Mosaic_Width=63", "leaves Mosaic_Width=64 MosaicLayout0_Width=64"},
    {"no row, no option", "DVI2_LimitedtoFull=1", "device DVI2_LimitedtoFull=9",
     "leaves DVI2_LimitedtoFull=0"},
};
} // namespace

class TestApplyCases : public CaseTest
{
    Q_OBJECT
    CaseLines lines() const override
    {
        static const CaseLines all = syncLines + outputLines + networkLines + otherLines;
        return all;
    }

    void begin() override
    {
        m_rig->reset();
        for (ENUM_MenuIndex width : {PARA_OutputWidth, PARA_ReportedWidth})
            m_rig->process(width, 1920);
        for (ENUM_MenuIndex height : {PARA_OutputHeight, PARA_ReportedHeight})
            m_rig->process(height, 1080);
        m_rig->process(PARA_OutputRate, 6000);
        // The first input runs at 60 Hz, the second at 59.94 Hz, the third is silent, the reference at 50 Hz.
        m_rig->input(0, 97, 3, 1920, 1080, 16667);
        m_rig->input(1, 98, 3, 1920, 1080, 16683);
        m_rig->input(2, 105, 0, 0, 0, 0);
        m_rig->input(8, 254, 3, 1920, 1080, 20000);
    }

private slots:
    void otherModel_data() { addCaseLines(stereoLines); }

    /// One with the pages of 3D and of a second DVI input.
    void otherModel()
    {
        QFETCH(int, row);
        m_rig->addRows({CONFIG_Mode3D, CONFIG_Mode3DMore, CONFIG_DVI2_InputColor});
        runCaseLine(*m_rig, stereoLines.at(row));
    }
};

FPD_TEST(TestApplyCases)
#include "tst_applycases.moc"
