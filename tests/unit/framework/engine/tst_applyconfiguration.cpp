// The quick screen configuration, the way to its page and to the advanced one's, and low latency, which not
// every screen allows.

#include "caseline.h"
#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "tests/testprogram.h"

using namespace VASK;

class TestApplyConfiguration : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { m_rig = new EngineRig; }
    void cleanupTestCase() { delete m_rig; }
    void init();

    void valueIsApplied_data();
    void valueIsApplied();
    void onePageAsks();
    void lowLatencyEndsSync_data();
    void lowLatencyEndsSync();

private:
    EngineRig *m_rig = nullptr;
};

namespace
{
/// Four columns of three, the first port with a whole number of columns of the full height.
const QString whole = "2000=3 2001=4 2002=12 2003=0 1055=1 ";
const QString bySoftware = "3211=1 3209=1 ", byHand = "3211=0 3209=0 ";
const QString closes = "asks FlowWayCauseCloseLowLatency", noLink = "asks ScreenConfigFailWaring";
const QString formOff = "2381- 2382- 2383- 2384- 2385- 2386- 2387- 1056+";

const QString advanced = "3138=1 2380=1 link=1 2003=1 ", quickAfter = "leaves 3138=0 2380=0 " + byHand;
const QString unfitPage = advanced + "2000=3 2001=4 2002=7 2003=0 1055=1 ";
const CaseLines pageLines{
    {"quick, from the other kind", advanced + bySoftware, "user 1000=",
     "sends 2003=1; reloads 2380=0 2381= 2382= 2383= 2384= 2385= 2386= 2387=; " + quickAfter + formOff},
    {"quick, from the other kind", advanced, "device 1000=", "sends 2003=1; " + quickAfter + formOff},
    {"quick, output of software", bySoftware + "3138=0",
     "user 1000=", "sends 2003=0; " + noLink + "; " + quickAfter},
    {"quick, already", "3138=0 3211=1", "user 1000=", noLink + "; leaves 3211=1"},
    {"quick, already, linked", "3138=0 3380=1", "user 1000=", ""},
    {"quick, low latency does not suit", unfitPage,
     "user 1000=", "sends 2003=0 1055=0; " + closes + "; leaves 1055=0"},
    {"quick, low latency suits", advanced + whole, "user 1000=", "sends 2003=0; leaves 1055=1"},
    {"quick, low latency of another kind", unfitPage + bySoftware + "3138=0",
     "user 1000=", "sends 2003=0; leaves 1055=1"},
    {"advanced, no link", "", "user 2012=", noLink},
    {"advanced, linked", "link=1", "user 2012=", ""},
    {"advanced, linked", "link=1", "device 2012=", ""},
};

const QString software = whole + bySoftware, shortPort = software + "2002=8 ";
const QString kept = "leaves 1055=1 " + byHand, ends = closes + "; leaves 1055=0 " + byHand;
// 480 pixels of 270 lines: five of them are too many for a port at 60 Hz, ten at 30 Hz.
const QString heavy = "cabinetWidth=480 cabinetHeight=270 rate=6000 2001=5 2000=6 ";
const CaseLines formLines{
    {"rows", software, "user 2000=3", "sends 2000=3; reloads 2002=12; " + kept + "1056+"},
    {"rows, not the full height", software, "user 2000=4", "sends 1055=0 2000=4; " + ends},
    {"rows, not the full height", software, "device 2000=4", "tells 2000=4; reloads; " + kept},
    {"columns", software, "user 2001=5", "sends 2001=5; reloads 2002=12; " + kept},
    {"columns, not the full height", software, "user 2001=6", "sends 1055=0 2001=6; " + ends},
    {"columns of a card", software + "3210=2", "device 2001=6", "tells 2001=6; " + kept + "1056-"},
    {"no columns", software + "2002=3", "user 2001=0", "sends 2001=0; " + kept},
    {"first port", software, "user 2002=9", "sends 2002=9; " + kept + "1056+"},
    {"first port, not the full height", software, "user 2002=8", "sends 1055=0 2002=8; " + ends},
    {"first port", software, "device 2002=8", "tells 2002=8; " + kept},
    {"flow way along the rows", shortPort, "user 2003=3", "sends 2003=3; " + kept + "1056+"},
    {"flow way along the columns", shortPort, "user 2003=2", "sends 1055=0 2003=2; " + ends},
    {"flow way", shortPort, "device 2003=2", "tells 2003=2; " + kept},
    // One cabinet counts as a whole column of five, along the rows as one of six.
    {"port at its load", heavy + "2000=5", "user 2003=1", "sends 2003=1"},
    {"port above its load", heavy, "user 2003=1", "sends 2003=1; asks OverLoad; leaves 2003=1"},
    {"port above its load", heavy + "2002=6", "device 2003=2", "tells 2003=2; asks OverLoad"},
    {"port above by 3D", heavy + "2000=4 2359=1", "user 2003=1", "sends 2003=1; asks OverLoad"},
    {"sequential 3D does not double", heavy + "2000=4 2359=1 2360=2", "user 2003=1", "sends 2003=1"},
};

const QString quick = whole + "3138=1 1055=0 ", unfit = quick + "2002=8 ", ports = unfit + "3138=0 ";
const QString lastPort = ports + "3199=8 "; // its Y
const QString opens = "sends 1055=1; asks OpenLowLatencyTip",
              refused = "asks CantOpenLowLatencyTip; leaves 1055=0";
const CaseLines latencyLines{
    {"off", unfit, "user 1055=0", "sends 1055=0"},
    {"off", "", "device 1055=0", "tells 1055=0"},
    {"on", unfit, "device 1055=1", "tells 1055=1; leaves 1055=1"},
    {"on, quick", quick, "user 1055=1", opens},
    {"on, quick does not suit", unfit, "user 1055=1", refused + "; reloads 1055="},
    {"on, advanced", ports, "user 1055=1", opens},
    {"on, advanced does not suit", lastPort, "user 1055=1", refused},
    {"on, software has configured", lastPort + "3211=1", "user 1055=1", opens},
    {"on beside sync", quick + "2350=1", "user 1055=1", opens + "; leaves 2350=1"},
    // The message has gone by itself.
    {"on beside sync, sending card", quick + "2350=1 3210=2", "user 1055=1",
     "asks OpenLowLatencyNeedToCloseSyn; answers 2; leaves 1055=0 2350=1"},
};

const CaseLines &allLines()
{
    static const CaseLines lines = pageLines + formLines + latencyLines;
    return lines;
}
} // namespace

void TestApplyConfiguration::init()
{
    m_rig->reset();
    m_rig->store->UpdataItemEnable(MENU_Mode3D, false);
    for (int row = MENU_Advanced_EthernetPort; row <= MENU_Advanced_Apply; ++row)
        m_rig->store->UpdataItemEnable(ENUM_MenuIndex(row), true);
}

void TestApplyConfiguration::valueIsApplied_data()
{
    addCaseLines(allLines());
}

void TestApplyConfiguration::valueIsApplied()
{
    QFETCH(int, row);
    runCaseLine(*m_rig, allLines().at(row));
}

void TestApplyConfiguration::onePageAsks()
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

void TestApplyConfiguration::lowLatencyEndsSync_data()
{
    QTest::addColumn<int>("periodUs");
    QTest::addColumn<QString>("after");
    QTest::newRow("follows the input") << 16683 << "leaves 2350=0 rate=5994; screen 1920x1080@59.94";
    QTest::newRow("no rate") << 0 << "leaves 2350=0 rate=6000; screen 1920x1080@60";
}

void TestApplyConfiguration::lowLatencyEndsSync()
{
    QFETCH(int, periodUs);
    QFETCH(QString, after);
    m_rig->input(0, 97, 3, 1920, 1080, periodUs);
    const QString before = whole + "2101=0 width=1920 height=1080 2350=1 3210=2 rate=";
    runCaseLine(*m_rig, {"", before + (periodUs ? "6000" : "0"), "user 1055=1",
                         "asks OpenLowLatencyNeedToCloseSyn OpenLowLatencyTip; "
                         "sends 2350=0 1055=1; reloads 2350=0; " +
                             after});
}

FPD_TEST(TestApplyConfiguration)

#include "tst_applyconfiguration.moc"
