// The quick screen configuration, the way to its page and to the advanced one's, and low latency, which not
// every screen allows.

#include "casetable.h"

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
const Values whole{{MENU_Quick_CabinetRow, "3"},
                   {MENU_Quick_CabinetCol, "4"},
                   {MENU_Quick_PortOneCab, "12"},
                   {MENU_Quick_FlowWay, "0"},
                   {MENU_LowLatency, "1"}};

Values with(Values values, const Values &more)
{
    for (auto item = more.cbegin(); item != more.cend(); ++item)
        values[item.key()] = item.value();
    return values;
}

const QString closes = "FlowWayCauseCloseLowLatency", noLink = "ScreenConfigFailWaring";
const Values byHand{{MENU_SoftwareConfigured, "0"}, {MENU_OutputMode, "0"}};
const Values bySoftware{{MENU_SoftwareConfigured, "1"}, {MENU_OutputMode, "1"}};
const Values offByHand = with(byHand, {{MENU_LowLatency, "0"}});
const Values onByHand = with(byHand, {{MENU_LowLatency, "1"}});
const QString formOff = "2381- 2382- 2383- 2384- 2385- 2386- 2387- 1056+";

Cases pageCases()
{
    const Values advanced{{MENU_ScreenConfigKind, "1"},
                          {MENU_Advanced_Status, "1"},
                          {PARA_PortLink, "1"},
                          {MENU_Quick_FlowWay, "1"}};
    const Values after = with(byHand, {{MENU_ScreenConfigKind, "0"}, {MENU_Advanced_Status, "0"}});
    const Values unfit = with(with(advanced, whole), {{MENU_Quick_PortOneCab, "7"}});
    return {
        Case("quick page, from the other kind", with(advanced, bySoftware))
            .byUser(MENU_QuickConfiguration, "")
            .sends({"2003=1"})
            .refreshes({"2380=0", "2381=", "2382=", "2383=", "2384=", "2385=", "2386=", "2387="})
            .leaves(after, formOff),
        Case("quick page, from the other kind", advanced)
            .byDevice(MENU_QuickConfiguration, "")
            .sends({"2003=1"})
            .leaves(after, formOff),
        Case("quick page, output of software", with(bySoftware, {{MENU_ScreenConfigKind, "0"}}))
            .byUser(MENU_QuickConfiguration, "")
            .sends({"2003=0"})
            .asks({noLink})
            .leaves(after),
        Case("quick page, already", {{MENU_ScreenConfigKind, "0"}, {MENU_SoftwareConfigured, "1"}})
            .byUser(MENU_QuickConfiguration, "")
            .asks({noLink})
            .leaves({{MENU_SoftwareConfigured, "1"}}),
        Case("quick page, already", {{MENU_ScreenConfigKind, "0"}, {PARA_OPT2PortLink, "1"}})
            .byUser(MENU_QuickConfiguration, ""),
        Case("quick page, low latency does not suit", unfit)
            .byUser(MENU_QuickConfiguration, "")
            .sends({"2003=0", "1055=0"})
            .asks({closes})
            .leaves({{MENU_LowLatency, "0"}}),
        Case("quick page, low latency suits", with(advanced, whole))
            .byUser(MENU_QuickConfiguration, "")
            .sends({"2003=0"})
            .leaves({{MENU_LowLatency, "1"}}),
        Case("quick page, low latency of another kind",
             with(with(unfit, bySoftware), {{MENU_ScreenConfigKind, "0"}}))
            .byUser(MENU_QuickConfiguration, "")
            .sends({"2003=0"})
            .leaves({{MENU_LowLatency, "1"}}),
        Case("advanced page").byUser(MENU_AdvancedCfg, "").asks({noLink}),
        Case("advanced page", {{PARA_PortLink, "1"}}).byDevice(MENU_AdvancedCfg, ""),
    };
}

Cases formCases()
{
    const Values software = with(whole, bySoftware);
    // 480 pixels of 270 lines: five of them are too many for a port at 60 Hz, ten at 30 Hz.
    const Values cabinets{{PARA_CabinetWidth, "480"}, {PARA_CabinetHeight, "270"}, {PARA_OutputRate, "6000"}};
    const Values heavy = with(cabinets, {{MENU_Quick_CabinetCol, "5"}, {MENU_Quick_CabinetRow, "6"}});
    return {
        Case("rows", software)
            .byUser(MENU_Quick_CabinetRow, "3")
            .sends({"2000=3"})
            .refreshes({"2002=12"})
            .leaves(onByHand, "1056+"),
        Case("rows, not the full height", software)
            .byUser(MENU_Quick_CabinetRow, "4")
            .sends({"1055=0", "2000=4"})
            .asks({closes})
            .leaves(offByHand),
        Case("rows, not the full height", software)
            .byDevice(MENU_Quick_CabinetRow, "4")
            .tells({"2000=4"})
            .refreshes({})
            .leaves(onByHand),
        Case("columns", software)
            .byUser(MENU_Quick_CabinetCol, "5")
            .sends({"2001=5"})
            .refreshes({"2002=12"})
            .leaves(onByHand),
        Case("columns, not the full height", software)
            .byUser(MENU_Quick_CabinetCol, "6")
            .sends({"1055=0", "2001=6"})
            .asks({closes})
            .leaves(offByHand),
        Case("columns", with(software, {{MENU_WorkMode, "2"}}))
            .byDevice(MENU_Quick_CabinetCol, "6")
            .tells({"2001=6"})
            .leaves(onByHand, "1056-"),
        Case("no columns", with(software, {{MENU_Quick_PortOneCab, "3"}}))
            .byUser(MENU_Quick_CabinetCol, "0")
            .sends({"2001=0"})
            .leaves(onByHand),
        Case("first port", software)
            .byUser(MENU_Quick_PortOneCab, "9")
            .sends({"2002=9"})
            .leaves(onByHand, "1056+"),
        Case("first port, not the full height", software)
            .byUser(MENU_Quick_PortOneCab, "8")
            .sends({"1055=0", "2002=8"})
            .asks({closes})
            .leaves(offByHand),
        Case("first port", software).byDevice(MENU_Quick_PortOneCab, "8").tells({"2002=8"}).leaves(onByHand),
        Case("flow way along the rows", with(software, {{MENU_Quick_PortOneCab, "8"}}))
            .byUser(MENU_Quick_FlowWay, "3")
            .sends({"2003=3"})
            .leaves(onByHand, "1056+"),
        Case("flow way along the columns", with(software, {{MENU_Quick_PortOneCab, "8"}}))
            .byUser(MENU_Quick_FlowWay, "2")
            .sends({"1055=0", "2003=2"})
            .asks({closes})
            .leaves(offByHand),
        Case("flow way", with(software, {{MENU_Quick_PortOneCab, "8"}}))
            .byDevice(MENU_Quick_FlowWay, "2")
            .tells({"2003=2"})
            .leaves(onByHand),
        // One cabinet counts as a whole column of five, along the rows as one of six.
        Case("port at its load", with(heavy, {{MENU_Quick_CabinetRow, "5"}}))
            .byUser(MENU_Quick_FlowWay, "1")
            .sends({"2003=1"}),
        Case("port above its load", heavy)
            .byUser(MENU_Quick_FlowWay, "1")
            .sends({"2003=1"})
            .asks({"OverLoad"})
            .leaves({{MENU_Quick_FlowWay, "1"}}),
        Case("port above its load", with(heavy, {{MENU_Quick_PortOneCab, "6"}}))
            .byDevice(MENU_Quick_FlowWay, "2")
            .tells({"2003=2"})
            .asks({"OverLoad"}),
        Case("port above its load by 3D",
             with(heavy, {{MENU_Quick_CabinetRow, "4"}, {MENU_Mode3D_Status, "1"}}))
            .byUser(MENU_Quick_FlowWay, "1")
            .sends({"2003=1"})
            .asks({"OverLoad"}),
        Case(
            "frame sequential 3D does not double",
            with(heavy, {{MENU_Quick_CabinetRow, "4"}, {MENU_Mode3D_Status, "1"}, {MENU_Mode3D_Format, "2"}}))
            .byUser(MENU_Quick_FlowWay, "1")
            .sends({"2003=1"}),
    };
}

Cases latencyCases()
{
    const Values quick = with(whole, {{MENU_ScreenConfigKind, "1"}, {MENU_LowLatency, "0"}});
    const Values unfit = with(quick, {{MENU_Quick_PortOneCab, "8"}});
    const Values advanced = with(unfit, {{MENU_ScreenConfigKind, "0"}});
    const Values lastPort = with(advanced, {{MENU_AdvancedPort10_Y, "8"}});
    const QString opens = "OpenLowLatencyTip", refused = "CantOpenLowLatencyTip";
    return {
        Case("off", unfit).byUser(MENU_LowLatency, "0").sends({"1055=0"}),
        Case("off").byDevice(MENU_LowLatency, "0").tells({"1055=0"}),
        Case("on", unfit).byDevice(MENU_LowLatency, "1").tells({"1055=1"}).leaves({{MENU_LowLatency, "1"}}),
        Case("on, quick", quick).byUser(MENU_LowLatency, "1").sends({"1055=1"}).asks({opens}),
        Case("on, quick does not suit", unfit)
            .byUser(MENU_LowLatency, "1")
            .asks({refused})
            .refreshes({"1055="})
            .leaves({{MENU_LowLatency, "0"}}),
        Case("on, advanced", advanced).byUser(MENU_LowLatency, "1").sends({"1055=1"}).asks({opens}),
        Case("on, advanced does not suit", lastPort)
            .byUser(MENU_LowLatency, "1")
            .asks({refused})
            .leaves({{MENU_LowLatency, "0"}}),
        Case("on, software has configured", with(lastPort, {{MENU_SoftwareConfigured, "1"}}))
            .byUser(MENU_LowLatency, "1")
            .sends({"1055=1"})
            .asks({opens}),
        Case("on beside sync", with(quick, {{MENU_Sync_Status, "1"}}))
            .byUser(MENU_LowLatency, "1")
            .sends({"1055=1"})
            .asks({opens})
            .leaves({{MENU_Sync_Status, "1"}}),
        Case("on beside sync, sending card", with(quick, {{MENU_Sync_Status, "1"}, {MENU_WorkMode, "2"}}))
            .byUser(MENU_LowLatency, "1")
            .answers(2) // the message has gone by itself
            .asks({"OpenLowLatencyNeedToCloseSyn"})
            .leaves({{MENU_LowLatency, "0"}, {MENU_Sync_Status, "1"}}),
    };
}

const Cases &allCases()
{
    static const Cases cases = pageCases() + formCases() + latencyCases();
    return cases;
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
    addCaseRows(allCases());
}

void TestApplyConfiguration::valueIsApplied()
{
    QFETCH(int, row);
    runCase(*m_rig, allCases().at(row));
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
        m_rig->engine->SetParaToXml("", MENU_QuickConfiguration, mode);
        m_rig->engine->SetParaToXml("", MENU_AdvancedCfg, mode);
        QCOMPARE(asking(), QString("advanced"));
    }
}

void TestApplyConfiguration::lowLatencyEndsSync_data()
{
    QTest::addColumn<int>("periodUs");
    QTest::addColumn<QString>("rate");
    QTest::addColumn<QString>("text");
    QTest::newRow("follows the input") << 16683 << "5994"
                                       << "1920x1080@59.94";
    QTest::newRow("no rate") << 0 << "6000"
                             << "1920x1080@60";
}

void TestApplyConfiguration::lowLatencyEndsSync()
{
    QFETCH(int, periodUs);
    QFETCH(QString, rate);
    QFETCH(QString, text);
    m_rig->set(MENU_MainLayer_InputSource, "0");
    m_rig->input(0, 97, 3, 1920, 1080, periodUs);
    m_rig->process(PARA_OutputWidth, 1920);
    m_rig->process(PARA_OutputHeight, 1080);
    m_rig->process(PARA_OutputRate, periodUs ? 6000 : 0);
    for (auto item = whole.cbegin(); item != whole.cend(); ++item)
        m_rig->set(ENUM_MenuIndex(item.key()), item.value());
    m_rig->set(MENU_Sync_Status, "1");
    m_rig->set(MENU_WorkMode, "2");
    m_rig->fromUser(MENU_LowLatency, "1");
    QCOMPARE(m_rig->messages, (QStringList{"OpenLowLatencyNeedToCloseSyn", "OpenLowLatencyTip"}));
    QCOMPARE(m_rig->device->sent.take(), (QStringList{"2350=0", "1055=1"}));
    QCOMPARE(m_rig->reloaded.take(), QStringList{"2350=0"});
    QCOMPARE(m_rig->value(MENU_Sync_Status), QString("0"));
    QCOMPARE(m_rig->value(PARA_OutputRate), rate);
    QCOMPARE(m_rig->shown("labScreenRes"), text);
}

QTEST_MAIN(TestApplyConfiguration)
#include "tst_applyconfiguration.moc"
