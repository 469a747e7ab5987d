// The quick screen configuration, the way to its page and to the advanced one's, and low latency, which not
// every screen allows.

#include "tests/testprogram.h"
#include "tests/unit/rig/caseline.h"

using namespace VASK;

namespace
{
/// Four columns of three, the first port with a whole number of columns of the full height.
const QString whole = "Quick_{CabinetRow=3 CabinetCol=4 PortOneCab=12 FlowWay=0} LowLatency=1 ";
const QString bySoftware = "SoftwareConfigured=1 OutputMode=1 ",
              byHand = "SoftwareConfigured=0 OutputMode=0 ";
const QString closes = "asks FlowWayCauseCloseLowLatency", noLink = "asks ScreenConfigFailWaring";
const QString formOff =
    "Advanced_{EthernetPort- CabinetRow- CabinetCol- HorOffset- VerOffset- FlowWay- Apply-} Mode3D+";

const QString advanced = "ScreenConfigKind=1 Advanced_Status=1 PortLink=1 Quick_FlowWay=1 ",
              quickAfter = "leaves ScreenConfigKind=0 Advanced_Status=0 " + byHand;
const QString unfitPage = advanced + "Quick_{CabinetRow=3 CabinetCol=4 PortOneCab=7 FlowWay=0} LowLatency=1 ";
const CaseLines pageLines{
    {"quick, from the other kind", advanced + bySoftware, "user QuickConfiguration=",
     "sends Quick_FlowWay=1; reloads Advanced_{Status=0 EthernetPort= CabinetRow= CabinetCol= HorOffset= "
     "VerOffset= FlowWay= Apply=}; " +
         quickAfter + formOff},
    {"quick, from the other kind", advanced,
     "device QuickConfiguration=", "sends Quick_FlowWay=1; " + quickAfter + formOff},
    {"quick, output of software", bySoftware + "ScreenConfigKind=0",
     "user QuickConfiguration=", "sends Quick_FlowWay=0; " + noLink + "; " + quickAfter},
    {"quick, already", "ScreenConfigKind=0 SoftwareConfigured=1",
     "user QuickConfiguration=", noLink + "; leaves SoftwareConfigured=1"},
    {"quick, already, linked", "ScreenConfigKind=0 OPT2PortLink=1", "user QuickConfiguration=", ""},
    {"quick, low latency does not suit", unfitPage,
     "user QuickConfiguration=", "sends Quick_FlowWay=0 LowLatency=0; " + closes + "; leaves LowLatency=0"},
    {"quick, low latency suits", advanced + whole,
     "user QuickConfiguration=", "sends Quick_FlowWay=0; leaves LowLatency=1"},
    {"quick, low latency of another kind", unfitPage + bySoftware + "ScreenConfigKind=0",
     "user QuickConfiguration=", "sends Quick_FlowWay=0; leaves LowLatency=1"},
    {"advanced, no link", "", "user AdvancedCfg=", noLink},
    {"advanced, linked", "PortLink=1", "user AdvancedCfg=", ""},
    {"advanced, linked", "PortLink=1", "device AdvancedCfg=", ""},
};

const QString software = whole + bySoftware, shortPort = software + "Quick_PortOneCab=8 ";
const QString kept = "leaves LowLatency=1 " + byHand, ends = closes + "; leaves LowLatency=0 " + byHand;
// 480 pixels of 270 lines: five of them are too many for a port at 60 Hz, ten at 30 Hz.
const QString heavy = "CabinetWidth=480 CabinetHeight=270 OutputRate=6000 Quick_{CabinetCol=5 CabinetRow=6} ";
const CaseLines formLines{
    {"rows", software, "user Quick_CabinetRow=3",
     "sends Quick_CabinetRow=3; reloads Quick_PortOneCab=12; " + kept + "Mode3D+"},
    {"rows, not the full height", software, "user Quick_CabinetRow=4",
     "sends LowLatency=0 Quick_CabinetRow=4; " + ends},
    {"rows, not the full height", software, "device Quick_CabinetRow=4",
     "tells Quick_CabinetRow=4; reloads; " + kept},
    {"columns", software, "user Quick_CabinetCol=5",
     "sends Quick_CabinetCol=5; reloads Quick_PortOneCab=12; " + kept},
    {"columns, not the full height", software, "user Quick_CabinetCol=6",
     "sends LowLatency=0 Quick_CabinetCol=6; " + ends},
    {"columns of a card", software + "WorkMode=2", "device Quick_CabinetCol=6",
     "tells Quick_CabinetCol=6; " + kept + "Mode3D-"},
    {"no columns", software + "Quick_PortOneCab=3", "user Quick_CabinetCol=0",
     "sends Quick_CabinetCol=0; " + kept},
    {"first port", software, "user Quick_PortOneCab=9", "sends Quick_PortOneCab=9; " + kept + "Mode3D+"},
    {"first port, not the full height", software, "user Quick_PortOneCab=8",
     "sends LowLatency=0 Quick_PortOneCab=8; " + ends},
    {"first port", software, "device Quick_PortOneCab=8", "tells Quick_PortOneCab=8; " + kept},
    {"flow way along the rows", shortPort, "user Quick_FlowWay=3",
     "sends Quick_FlowWay=3; " + kept + "Mode3D+"},
    {"flow way along the columns", shortPort, "user Quick_FlowWay=2",
     "sends LowLatency=0 Quick_FlowWay=2; " + ends},
    {"flow way", shortPort, "device Quick_FlowWay=2", "tells Quick_FlowWay=2; " + kept},
    // One cabinet counts as a whole column of five, along the rows as one of six.
    {"port at its load", heavy + "Quick_CabinetRow=5", "user Quick_FlowWay=1", "sends Quick_FlowWay=1"},
    {"port above its load", heavy, "user Quick_FlowWay=1",
     "sends Quick_FlowWay=1; asks OverLoad; leaves Quick_FlowWay=1"},
    {"port above its load", heavy + "Quick_PortOneCab=6", "device Quick_FlowWay=2",
     "tells Quick_FlowWay=2; asks OverLoad"},
    {"port above by 3D", heavy + "Quick_CabinetRow=4 Mode3D_Status=1", "user Quick_FlowWay=1",
     "sends Quick_FlowWay=1; asks OverLoad"},
    {"sequential 3D does not double", heavy + "Quick_CabinetRow=4 Mode3D_{Status=1 Format=2}",
     "user Quick_FlowWay=1", "sends Quick_FlowWay=1"},
};

const QString quick = whole + "ScreenConfigKind=1 LowLatency=0 ", unfit = quick + "Quick_PortOneCab=8 ",
              ports = unfit + "ScreenConfigKind=0 ";
const QString lastPort = ports + "AdvancedPort10_Y=8 "; // its Y
const QString opens = "sends LowLatency=1; asks OpenLowLatencyTip",
              refused = "asks CantOpenLowLatencyTip; leaves LowLatency=0";
const QString synchronised = whole +
                             "MainLayer_InputSource=0 OutputWidth=1920 OutputHeight=1080 Sync_Status=1 "
                             "WorkMode=2 OutputRate=";
const QString endsSync =
    "asks OpenLowLatencyNeedToCloseSyn OpenLowLatencyTip; sends Sync_Status=0 LowLatency=1; "
    "reloads Sync_Status=0; leaves Sync_Status=0 ";
const CaseLines latencyLines{
    {"off", unfit, "user LowLatency=0", "sends LowLatency=0"},
    {"off", "", "device LowLatency=0", "tells LowLatency=0"},
    {"on", unfit, "device LowLatency=1", "tells LowLatency=1; leaves LowLatency=1"},
    {"on, quick", quick, "user LowLatency=1", opens},
    {"on, quick does not suit", unfit, "user LowLatency=1", refused + "; reloads LowLatency="},
    {"on, advanced", ports, "user LowLatency=1", opens},
    {"on, advanced does not suit", lastPort, "user LowLatency=1", refused},
    {"on, software has configured", lastPort + "SoftwareConfigured=1", "user LowLatency=1", opens},
    {"on beside sync", quick + "Sync_Status=1", "user LowLatency=1", opens + "; leaves Sync_Status=1"},
    {"on ends sync, follows the input", "input 0 97 3 1920 1080 16683; " + synchronised + "6000",
     "user LowLatency=1", endsSync + "OutputRate=5994; screen 1920x1080@59.94"},
    {"on ends sync, no rate", "input 0 97 3 1920 1080 0; " + synchronised + "0", "user LowLatency=1",
     endsSync + "OutputRate=6000; screen 1920x1080@60"},
    // The message has gone by itself.
    {"on beside sync, sending card", quick + "Sync_Status=1 WorkMode=2", "user LowLatency=1",
     "asks OpenLowLatencyNeedToCloseSyn; answers 2; leaves LowLatency=0 Sync_Status=1"},
};
} // namespace

class TestApplyConfiguration : public CaseTest
{
    Q_OBJECT
    CaseLines lines() const override
    {
        static const CaseLines all = pageLines + formLines + latencyLines;
        return all;
    }

    void begin() override
    {
        m_rig->reset();
        m_rig->store->UpdataItemEnable(MENU_Mode3D, false);
        for (int row = MENU_Advanced_EthernetPort; row <= MENU_Advanced_Apply; ++row)
            m_rig->store->UpdataItemEnable(ENUM_MenuIndex(row), true);
    }

private slots:
    void onePageAsks()
    {
        const auto asking = [] {
            return QString("%1%2")
                .arg(g_dialogConfig[MENU_QuickConfiguration].enabled ? "quick" : "")
                .arg(g_dialogConfig[MENU_AdvancedCfg].enabled ? "advanced" : "");
        };
        m_rig->process(PARA_PortLink, 1);
        for (auto mode : {SET_XML_USER, SET_XML_DEVICE}) {
            m_rig->engine->SetParaToXml("1", MENU_Advanced_Status, mode);
            QCOMPARE(asking(), QString("quick"));
            m_rig->engine->SetParaToXml("0", MENU_Advanced_Status, mode);
            QCOMPARE(asking(), QString("advanced"));
            m_rig->engine->SetParaToXml("1", MENU_Advanced_Status, mode);
            m_rig->engine->SetParaToXml("", MENU_QuickConfiguration, mode);
            QCOMPARE(asking(), QString("advanced"));
            m_rig->engine->SetParaToXml("", MENU_AdvancedCfg, mode);
            QCOMPARE(asking(), QString("advanced"));
        }
    }
};

FPD_TEST(TestApplyConfiguration)
#include "tst_applyconfiguration.moc"
