// Cases of the output, 3D, network and colour in one table, as the user and as the device bring them: what is
// handed to the protocol, what the row is told, what is asked, what follows and what can be chosen then.

#include "casetable.h"

using namespace VASK;

class TestApplyCases : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { m_rig = new EngineRig; }
    void cleanupTestCase() { delete m_rig; }
    void init();

    void valueIsApplied_data();
    void valueIsApplied();
    void reportedRateListFollows();
    void mosaicHoldsTheTransition();
    void stereoOffersTheMosaic();
    void refusedAddressComesBackFromTheDevice_data();
    void refusedAddressComesBackFromTheDevice();
    void brandIsReported();

private:
    /// The source list gets an option for the mosaic, which cannot be chosen.
    void addMosaic();
    EngineRig *m_rig = nullptr;
};

namespace
{
Cases syncCases()
{
    const char *resolution = "labScreenRes";
    return {
        Case("source").byDevice(MENU_Sync_Source, "3").tells({"2351=3"}).shows("labSynName", "SDI"),
        Case("sync on", {{MENU_Sync_Source, "1"}})
            .byDevice(MENU_Sync_Status, "1")
            .tells({"2350=1"})
            .leaves({{PARA_OutputRate, "5994"}})
            .shows(resolution, "1920x1080@59.94"),
        Case("sync on, 3D doubles",
             {{MENU_Sync_Source, "1"}, {MENU_Mode3D_Status, "1"}, {PARA_OutputWidth, "1280"}})
            .byUser(MENU_Sync_Status, "1")
            .sends({"2350=1"})
            .leaves({{PARA_OutputRate, "5994"}})
            .shows(resolution, "1280x1080@119.88"),
        Case("sync on, the source has no rate", {{MENU_Sync_Source, "2"}, {PARA_OutputRate, "0"}})
            .byUser(MENU_Sync_Status, "1")
            .sends({"2350=1"})
            .leaves({{PARA_OutputRate, "6000"}})
            .shows(resolution, "1920x1080@60"),
        Case("sync off, a sending card's",
             {{MENU_WorkMode, "2"}, {MENU_Sync_Status, "1"}, {MENU_MainLayer_InputSource, "1"}})
            .byDevice(MENU_Sync_Status, "0")
            .tells({"2350=0"})
            .leaves({{PARA_OutputRate, "5994"}}),
        Case("sync off, 3D doubles",
             {{MENU_Sync_Status, "1"}, {MENU_Mode3D_Status, "1"}, {MENU_OutputFrameRate, "4"}})
            .byUser(MENU_Sync_Status, "0")
            .sends({"2350=0", "2015=30", "2350=0"})
            .leaves({{PARA_OutputRate, "3000"}})
            .shows(resolution, "1920x1080@60"),
        Case("genlock of a sending card", {{MENU_Sync_Status, "1"}, {MENU_WorkMode, "2"}})
            .byDevice(PARA_GenlockState, "2")
            .shows(resolution, "1920x1080@50"),
        Case("genlock, the source has no rate",
             {{MENU_Sync_Status, "1"}, {MENU_Sync_Source, "2"}, {PARA_OutputRate, "0"}})
            .byDevice(PARA_GenlockState, "4")
            .asks({"SyncNoSignalTip"})
            .shows(resolution, "1920x1080@60"),
    };
}

Cases outputCases()
{
    const Values video{{MENU_Output_Mode, "1"},         {MENU_Output_Resolution, "1"},
                       {MENU_Output_FrameRate, "7"},    {MENU_MainLayer_ScalingMode, "0"},
                       {MENU_PIP1_ScalingMode, "2"},    {MENU_PIP2_ScalingMode, "2"},
                       {MENU_MainLayer_HorWidth, "800"}};
    const Values done{
        {MENU_OutputMode, "1"},    {PARA_OutputWidth, "1280"},        {PARA_OutputHeight, "720"},
        {PARA_OutputRate, "5994"}, {MENU_MainLayer_HorWidth, "1280"}, {MENU_MainLayer_VerHeight, "720"}};
    return {
        Case("applied as video output", video)
            .byUser(MENU_Output_Apply, "")
            .asks({"Waiting"})
            .sends({"2104=720", "2352=1", "2355=1280x720x59.94"})
            .leaves(done, "1056-")
            .shows("labScreenRes", "1280x720@59.94"),
        Case("applied as video output", video)
            .byDevice(MENU_Output_Apply, "")
            .asks({"Waiting"})
            .sends({"2104=720", "2352=1"})
            .tells({"2355=1280x720x59.94"})
            .leaves(done, "1056-")
            .shows("labScreenRes", "1280x720@59.94"),
        Case("applied as monitor",
             {{MENU_Output_Resolution, "1"}, {MENU_Output_FrameRate, "7"}, {MENU_OutputMode, "1"}})
            .byDevice(MENU_Output_Apply, "")
            .asks({"Waiting"})
            .sends({"2352=0"})
            .tells({"2355=1280x720x59.94"})
            .leaves({{MENU_OutputMode, "0"}, {PARA_OutputWidth, "1920"}}, "1056+"),
    };
}

Cases stereoCases()
{
    const char *resolution = "labScreenRes";
    const Values big{{MENU_OutputMode, "1"}, {MENU_Output_Resolution, "8"}, {MENU_Output_FrameRate, "8"}};
    const Values small{{MENU_OutputMode, "1"}, {MENU_Output_Resolution, "0"}, {MENU_Output_FrameRate, "8"}};
    return {
        Case("3D off", {{MENU_Mode3D_Status, "1"}, {MENU_MainLayerTransition, "1"}})
            .byDevice(MENU_Mode3D_Status, "0")
            .tells({"2359=0"})
            .leaves({}, "1019+ 1020+")
            .shows(resolution, "1920x1080@60"),
        Case("3D on")
            .byDevice(MENU_Mode3D_Status, "1")
            .tells({"2359=1"})
            .leaves({{MENU_MainLayerTransition, "1"}}, "1019- 1020-")
            .shows(resolution, "1920x1080@120"),
        Case("3D on, the software's output fits", small)
            .byUser(MENU_Mode3D_Status, "1")
            .asks({"Open3DOnlyMainLayerEffectTip"})
            .sends({"1019=1", "2359=1"})
            .leaves({{MENU_Mode3D_Status, "1"}}, "1019- 1020-")
            .shows(resolution, "1024x768@120"),
        Case("3D on, the software's output is too much", big)
            .byUser(MENU_Mode3D_Status, "1")
            .asks({"OverLoad"})
            .leaves({{MENU_Mode3D_Status, "0"}}, "1019+ 1020+"),
        Case("format side by side", {{MENU_Mode3D_Status, "1"}, {MENU_Mode3D_Format, "2"}})
            .byDevice(MENU_Mode3D_Format, "0")
            .tells({"2360=0"})
            .leaves({{MENU_Mode3D_RightEyeStart, "960"}}, "3077+")
            .shows(resolution, "1920x1080@120"),
        Case("format frame sequential", {{MENU_Mode3D_Status, "1"}})
            .byDevice(MENU_Mode3D_Format, "2")
            .tells({"2360=2"})
            .leaves({}, "3077-")
            .shows(resolution, "1920x1080@60"),
        Case("format with 3D off")
            .byUser(MENU_Mode3D_Format, "2")
            .sends({"2360=2"})
            .leaves({}, "3077-")
            .shows(resolution, "1920x1080@60"),
        Case("right eye's start", {{MENU_Mode3D_Format, "1"}})
            .byDevice(MENU_Mode3D_RightEyeStart, "1000")
            .tells({"3077=1000"})
            .leaves({{MENU_RightEyeStartTop, "1000"}}),
        Case("right eye's start", {{MENU_Mode3D_Format, "0"}})
            .byUser(MENU_Mode3D_RightEyeStart, "1001")
            .sends({"3077=1001"})
            .leaves({{MENU_RightEyeStartSide, "1001"}}),
        Case("signal delay")
            .byDevice(MENU_Mode3D_SignalDelayTime, "900")
            .sends({"3078=900"})
            .leaves({{MENU_Mode3D_SignalDelayTime, "900"}}),
        Case("emitter").byUser(MENU_Mode3D_ThirdPartyEmitter, "1").sends({"3079=1"}),
    };
}

Cases networkCases()
{
    const Values factory{{MENU_Net_IPAddress, "192.168.0.10"},
                         {MENU_Net_SubnetMask, "255.255.255.0"},
                         {MENU_Net_Gateway, "192.168.0.1"}};
    return {
        Case("automatic", {{MENU_DhcpDone, "1"}})
            .byDevice(MENU_Net_NetMode, "1")
            .tells({"2374=1"})
            .leaves({{MENU_DhcpDone, "0"}}, "2375- 2376- 2377- 2378- 2379-")
            .shows("labIp", "WaitIP"),
        Case("manual", {{MENU_Net_IPAddress, "10.0.0.7"}})
            .byDevice(MENU_Net_NetMode, "0")
            .tells({"2374=0"})
            .leaves({}, "2375+ 2376+ 2377+ 2378+ 2379+")
            .shows("labIp", "10.0.0.7"),
        Case("address")
            .byDevice(MENU_Net_IPAddress, "10.0.0.8")
            .tells({"2375=10.0.0.8"})
            .leaves({{MENU_DhcpDone, "1"}})
            .shows("labIp", "10.0.0.8"),
        Case("address")
            .byUser(MENU_Net_IPAddress, "10.0.0.9")
            .sends({"2375=10.0.0.9"})
            .leaves({{MENU_DhcpDone, "0"}}),
        Case("applied")
            .byDevice(MENU_Net_Apply, "0")
            .asks({"Waiting", "NetParameSetSucceed"})
            .tells({"2378=0"})
            .shows("labIp", "192.168.0.10"),
        Case("applied while automatic", {{MENU_Net_NetMode, "1"}})
            .byDevice(MENU_Net_Apply, "0")
            .tells({"2378=0"}),
        // An address of no class has no mask of its own: what stands there goes on standing there.
        Case("mask with a hole, no class",
             {{MENU_Net_IPAddress, "224.0.0.1"}, {MENU_Net_SubnetMask, "255.0.255.0"}})
            .byUser(MENU_Net_Apply, "0")
            .asks({"MaskErr"})
            .sends({"2376="})
            .leaves({{MENU_Net_SubnetMask, "255.0.255.0"}}),
        Case("reset", {{MENU_Net_IPAddress, "10.0.0.7"}, {MENU_Net_SubnetMask, "255.0.0.0"}})
            .byDevice(MENU_Net_Reset, "0")
            .asks({"NetParameReset"})
            .sends({"2378="})
            .leaves(factory, "2375+ 2376+ 2377+")
            .shows("labIp", "192.168.0.10"),
    };
}

Cases otherCases()
{
    return {
        Case("colour reset", {{MENU_Color_ColorTemp, "3"}})
            .byDevice(MENU_Color_Reset, "0")
            .sends({"2389=2.8", "2391=255", "2392=249", "2393=253"})
            .leaves({{MENU_Color_ColorTemp, "0"}, {MENU_Color_G, "249"}}, "2391- 2392- 2393-"),
        Case("picture reset", {{MENU_HDMI2_Contrast, "9"}, {MENU_HDMI2_Hue, "9"}})
            .byDevice(MENU_HDMI2_ColorReset, "0")
            .tells({"3041=0"})
            .leaves({{MENU_HDMI2_Contrast, "50"}, {MENU_HDMI2_Hue, "0"}}),
        Case("save to the cards", {{PARA_PortLink, "1"}})
            .byDevice(MENU_SavetoRVCard, "1")
            .sends({"1002=1"})
            .asks({"SaveingHardwareInfomation", "SaveHardWareInformationSucceed"}),
        Case("calibration").byUser(EVENT_SoftCalibrate, "1"),
    };
}

const Cases &allCases()
{
    static const Cases cases = syncCases() + outputCases() + stereoCases() + networkCases() + otherCases();
    return cases;
}
} // namespace

void TestApplyCases::init()
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

void TestApplyCases::valueIsApplied_data()
{
    addCaseRows(allCases());
}

void TestApplyCases::valueIsApplied()
{
    QFETCH(int, row);
    runCase(*m_rig, allCases().at(row));
}

void TestApplyCases::reportedRateListFollows()
{
    m_rig->fromDevice(MENU_HDMI2_EDIDResolution, "6"); // 1680*1050
    QCOMPARE(m_rig->info(MENU_HDMI2_EDIDFrameRate).params.values(), QStringList{"60"});
    const QString told = QString("%1=6").arg(MENU_HDMI2_EDIDResolution);
    QCOMPARE(m_rig->reported.take(), (QStringList{told, told})); // two pages have the row
    QCOMPARE(m_rig->device->sent.take(), QStringList());
}

void TestApplyCases::addMosaic()
{
    ST_ItemInfo sources = m_rig->info(MENU_MainLayer_InputSource);
    sources.params["4"] = "MOSAIC";
    sources.params1["4"] = optionDisable;
    m_rig->store->updataMenuItem(MENU_MainLayer_InputSource, sources);
}

void TestApplyCases::mosaicHoldsTheTransition()
{
    addMosaic();
    m_rig->set(MENU_Mode3D_Status, "1");
    m_rig->set(MENU_MainLayer_InputSource, "4");
    m_rig->store->UpdataItemEnable(MENU_MainLayerTransition, false);
    m_rig->fromUser(MENU_Mode3D_Status, "0");
    QVERIFY(!m_rig->enabled(MENU_MainLayerTransition));
    QCOMPARE(m_rig->device->sent.take(), QStringList{"2359=0"});
}

void TestApplyCases::stereoOffersTheMosaic()
{
    for (auto mode : {SET_XML_DEVICE, SET_XML_USER}) {
        init();
        addMosaic();
        m_rig->set(MENU_Mode3D_Format, "2");
        m_rig->engine->SetParaToXml("1", MENU_Mode3D_Status, mode);
        QCOMPARE(m_rig->rowEnabled(MENU_MainLayer_InputSource, 4), mode == SET_XML_USER);
        QCOMPARE(m_rig->value(MENU_MainLayer_InputSource), QString("2"));
    }
}

void TestApplyCases::refusedAddressComesBackFromTheDevice_data()
{
    QTest::addColumn<QString>("mask");
    QTest::addColumn<QString>("message");
    QTest::newRow("address") << "255.0.0.0"
                             << "IpErr";
    QTest::newRow("address and mask") << "255.0.255.0"
                                      << "IpMaskErr";
}

void TestApplyCases::refusedAddressComesBackFromTheDevice()
{
    QFETCH(QString, mask);
    QFETCH(QString, message);
    QByteArray image(0x3000, '\0');
    image.replace(0x2000 + 6, 20, QByteArray::fromHex("0a00000005000900ff00ff00ff0000000a000501"));
    QFile flash(m_rig->statePath(hostlink::flashFile));
    QVERIFY(flash.open(QIODevice::WriteOnly));
    flash.write(image);
    flash.close();
    m_rig->set(MENU_Net_IPAddress, "127.0.0.1");
    m_rig->set(MENU_Net_SubnetMask, mask);
    m_rig->fromUser(MENU_Net_Apply, "0");
    QCOMPARE(m_rig->messages, QStringList{message});
    QCOMPARE(m_rig->value(MENU_Net_IPAddress), QString("10.0.5.9"));
    QCOMPARE(m_rig->value(MENU_Net_SubnetMask), QString("255.255.255.0"));
    QCOMPARE(m_rig->value(MENU_Net_Gateway), QString("10.0.5.1"));
    QCOMPARE(m_rig->device->sent.take(), QStringList());
}

void TestApplyCases::brandIsReported()
{
    const auto *sign = m_rig->home->findChild<QLabel *>("labDeviceName");
    m_rig->fromDevice(MENU_MakerSign, "0");
    QVERIFY(sign->isHidden());
    m_rig->home->SetDevNameState(COMMON_ON);
    m_rig->fromDevice(MENU_MakerSign, "0"); // no change
    QVERIFY(!sign->isHidden());
    QCOMPARE(m_rig->device->sent.take() + m_rig->reported.take(), QStringList());
}

QTEST_MAIN(TestApplyCases)
#include "tst_applycases.moc"
