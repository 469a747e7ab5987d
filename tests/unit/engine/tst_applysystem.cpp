// Plain items, commands, network, colour, language, brand items, OSD slots, cabinet files, services and
// ports.

#include "enginerig.h"
#include "framework/engine/change.h"
#include "netstatus.h"

#include <QThread>
#include <QTranslator>

using namespace VASK;

class TestApplySystem : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { m_rig = new EngineRig; }
    void cleanupTestCase() { delete m_rig; }
    void init() { m_rig->reset(); }

    void noItemHasTwoCases();
    void plainItemsPassThrough();
    void storingAloneDoesNothingElse();
    void equalReportStillRuns();
    void unknownItemEndsInTheStore();
    void noTextBehindProcessData();
    void brightness();
    void commandsNeedALink_data();
    void commandsNeedALink();
    void selfTest();
    void communicationMode();
    void networkMode();
    void reportedAddress();
    void networkApply_data();
    void networkApply();
    void networkApplyWhileAutomatic();
    void wrongNetworkComesBackFromTheDevice();
    void networkReset();
    void colourTemperature_data();
    void colourTemperature();
    void customColour();
    void reportedColour();
    void colourReset();
    void pictureReset_data();
    void pictureReset();
    void languageSwitch();
    void bootLogo();
    void makerSign();
    void osdSlots();
    void softCalibration();
    void cabinetFile();
    void servicesStart();
    void syncIsCheckedAtStart_data();
    void syncIsCheckedAtStart();
    void sdiMenu();
    void sourceNames();
    void inputsOfEitherFamily();
    void messageOfTheTableOnly();
    void reportsFromAnotherThreadKeepTheirOrder();

private:
    void linkPort() { m_rig->process(PARA_PortLink, 1); }
    EngineRig *m_rig = nullptr;
};

void TestApplySystem::noItemHasTwoCases()
{
    QMap<int, int> seen;
    for (const ApplyFamily &family : applyFamilies())
        for (int i = 0; i < family.count; ++i) {
            QVERIFY(family.cases[i].first <= family.cases[i].last);
            for (int index = family.cases[i].first; index <= family.cases[i].last; ++index)
                QVERIFY2(++seen[index] == 1, QByteArray::number(index));
        }
}

void TestApplySystem::plainItemsPassThrough()
{
    static constexpr struct {
        int first, last;
    } ranges[] = {{1008, 1012}, {1019, 1020}, {1024, 1024}, {1045, 1046}, {1054, 1054}, {2013, 2013},
                  {2109, 2109}, {2119, 2119}, {2129, 2129}, {2302, 2302}, {2307, 2307}, {2312, 2312},
                  {2317, 2317}, {2331, 2333}, {2340, 2340}, {2354, 2354}, {2356, 2357}, {2361, 2361},
                  {2369, 2369}, {2376, 2377}, {2389, 2389}, {2391, 2393}, {3003, 3003}, {3009, 3009},
                  {3015, 3015}, {3025, 3028}, {3037, 3040}, {3049, 3052}, {3061, 3064}, {3066, 3069},
                  {3080, 3087}};
    for (const auto &range : ranges)
        for (int number = range.first; number <= range.last; ++number) {
            const auto index = ENUM_MenuIndex(number);
            const ApplyCase *found = findApplyCase(index);
            QVERIFY2(found, QByteArray::number(number));
            m_rig->fromUser(index, "1");
            m_rig->fromDevice(index, "0");
            const bool hasRow = !m_rig->device->sent.take().isEmpty();
            QCOMPARE(m_rig->reported.take().isEmpty(), !hasRow);
            QCOMPARE(m_rig->value(index), QString("0"));
            QCOMPARE(m_rig->reloaded.take(), QStringList());
        }
    QVERIFY(m_rig->messages.isEmpty());
}

void TestApplySystem::storingAloneDoesNothingElse()
{
    m_rig->engine->SetParaToXml("1", MENU_Freeze, SET_XML_STORE);
    m_rig->engine->SetParaToXml("7", PARA_PortLink, SET_XML_STORE);
    m_rig->engine->SetParaToXml("44", MENU_ScreenBrightness, SET_XML_STORE);
    QCOMPARE(m_rig->value(PARA_DisplayMode), QString("0"));
    QCOMPARE(m_rig->value(PARA_PortLink), QString("7"));
    QCOMPARE(m_rig->value(MENU_ScreenBrightness), QString("44"));
    QVERIFY(m_rig->shown("labBright") != "44%");
    QCOMPARE(m_rig->device->sent.take() + m_rig->reported.take() + m_rig->reloaded.take(), QStringList());
}

void TestApplySystem::equalReportStillRuns()
{
    m_rig->fromDevice(MENU_Audio_Volume, "50");
    m_rig->fromDevice(MENU_Audio_Volume, "50");
    QCOMPARE(m_rig->reported.take(), (QStringList{"2357=50", "2357=50"}));
}

void TestApplySystem::unknownItemEndsInTheStore()
{
    m_rig->fromDevice(MENU_ScreenConfigKind, "0");
    QCOMPARE(m_rig->value(MENU_ScreenConfigKind), QString("0"));
    QCOMPARE(m_rig->device->sent.take() + m_rig->reported.take(), QStringList());
}

void TestApplySystem::noTextBehindProcessData()
{
    QCOMPARE(m_rig->engine->GetParaFromIndex(ENUM_MenuIndex(3396)), QString("0"));
    for (int index : {3397, 3400, 3420})
        QCOMPARE(m_rig->engine->GetParaFromIndex(ENUM_MenuIndex(index)), QString());
}

void TestApplySystem::brightness()
{
    m_rig->fromUser(MENU_ScreenBrightness, "65");
    QCOMPARE(m_rig->shown("labBright"), QString("65%"));
    QCOMPARE(m_rig->device->sent.take(), QStringList{"1=65"});
    m_rig->fromDevice(MENU_ScreenBrightness, "66");
    QCOMPARE(m_rig->shown("labBright"), QString("66%"));
    QCOMPARE(m_rig->reported.take(), QStringList{"1=66"});
}

void TestApplySystem::commandsNeedALink_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("link"); ///< process data that tells of a link, 0 for none
    QTest::addColumn<QStringList>("messages");
    QTest::addColumn<QStringList>("sent");
    const QStringList saved{"SaveingHardwareInfomation", "SaveHardWareInformationSucceed"};
    QTest::newRow("save, no link") << 1002 << 0 << QStringList{"CheckReceiveCard"} << QStringList();
    QTest::newRow("save, port 10") << 1002 << PARA_PortLink + 9 << saved << QStringList{"1002="};
    QTest::newRow("save, OPT 1") << 1002 << int(PARA_OPT1PortLink) << saved << QStringList{"1002="};
    QTest::newRow("save, OPT 2") << 1002 << PARA_OPT2PortLink + 3 << saved << QStringList{"1002="};
    QTest::newRow("a backup is no link")
        << 1002 << int(PARA_PortBackup) << QStringList{"CheckReceiveCard"} << QStringList();
    QTest::newRow("load a file, no link") << 2004 << 0 << QStringList{"CheckReceiveCard"} << QStringList();
    QTest::newRow("advanced page, no link")
        << 2012 << 0 << QStringList{"ScreenConfigFailWaring"} << QStringList();
    QTest::newRow("advanced page") << 2012 << int(PARA_PortLink) << QStringList() << QStringList();
}

void TestApplySystem::commandsNeedALink()
{
    QFETCH(int, index);
    QFETCH(int, link);
    if (link)
        m_rig->process(ENUM_MenuIndex(link), 1);
    m_rig->fromUser(ENUM_MenuIndex(index), "");
    QTEST(m_rig->messages, "messages");
    QTEST(m_rig->device->sent.take(), "sent");
}

void TestApplySystem::selfTest()
{
    m_rig->fromUser(MENU_SelfTest, "1");
    QCOMPARE(m_rig->messages, QStringList{"SelfTesting"});
    m_rig->fromDevice(MENU_SelfTest, "1");
    QCOMPARE(m_rig->messages, QStringList{"SelfTesting"});
    QCOMPARE(m_rig->device->sent.take(), (QStringList{"1059=1", "1059=1"}));
}

void TestApplySystem::communicationMode()
{
    m_rig->fromUser(MENU_CommunicationMode, "0");
    QCOMPARE(get_pc_connect_priority(), 1);
    m_rig->fromUser(MENU_CommunicationMode, "1");
    QCOMPARE(get_pc_connect_priority(), 0);
    QCOMPARE(m_rig->device->sent.take(), QStringList());
}

void TestApplySystem::networkMode()
{
    m_rig->set(MENU_Net_IPAddress, "10.0.0.7");
    m_rig->set(MENU_DhcpDone, "1");
    m_rig->fromUser(MENU_Net_NetMode, "1");
    QCOMPARE(m_rig->shown("labIp"), QString("WaitIP"));
    QCOMPARE(m_rig->value(MENU_DhcpDone), QString("0"));
    for (int item = MENU_Net_IPAddress; item <= MENU_Net_Reset; ++item)
        QVERIFY(!m_rig->enabled(ENUM_MenuIndex(item)));
    m_rig->fromUser(MENU_Net_NetMode, "0");
    QCOMPARE(m_rig->shown("labIp"), QString("10.0.0.7"));
    for (int item = MENU_Net_IPAddress; item <= MENU_Net_Reset; ++item)
        QVERIFY(m_rig->enabled(ENUM_MenuIndex(item)));
    QCOMPARE(m_rig->device->sent.take(), (QStringList{"2374=1", "2374=0"}));
}

void TestApplySystem::reportedAddress()
{
    m_rig->fromUser(MENU_Net_IPAddress, "10.0.0.9");
    QCOMPARE(m_rig->value(MENU_DhcpDone), QString("0"));
    QVERIFY(m_rig->shown("labIp") != "10.0.0.9");
    m_rig->fromDevice(MENU_Net_IPAddress, "10.0.0.8");
    QCOMPARE(m_rig->shown("labIp"), QString("10.0.0.8"));
    QCOMPARE(m_rig->value(MENU_DhcpDone), QString("1"));
}

void TestApplySystem::networkApply_data()
{
    QTest::addColumn<QString>("ip");
    QTest::addColumn<QString>("mask");
    QTest::addColumn<QString>("gateway");
    QTest::addColumn<QStringList>("messages");
    QTest::addColumn<QStringList>("sent");
    const QStringList done{"Waiting", "NetParameSetSucceed"};
    auto row = [](const char *name, const char *ip, const char *mask, const char *gateway,
                  const QStringList &messages, const QStringList &sent) {
        QTest::newRow(name) << ip << mask << gateway << messages << sent;
    };
    row("right", "192.168.0.10", "255.255.255.0", "192.168.0.1", done, {"2378=0"});
    row("right, odd mask", "10.1.2.3", "255.255.252.0", "10.1.0.1", done, {"2378=0"});
    row("mask of ones", "10.1.2.3", "255.255.255.255", "10.1.2.3", done, {"2378=0"});
    row("mask of zeros", "10.1.2.3", "0.0.0.0", "172.16.0.1", done, {"2378=0"});
    row("loopback", "127.0.0.1", "255.0.0.0", "127.0.0.2", {"IpErr"}, {});
    row("loopback and mask", "127.0.0.1", "255.0.255.0", "127.0.0.2", {"IpMaskErr"}, {});
    row("mask with a hole, class A", "126.1.2.3", "255.0.255.0", "126.0.0.1", {"MaskErr"},
        {"2376=255.0.0.0"});
    row("mask with a hole, class B", "128.1.2.3", "255.255.0.1", "128.1.0.1", {"MaskErr"},
        {"2376=255.255.0.0"});
    row("mask with a hole, class C", "223.1.2.3", "1.255.255.0", "223.1.2.1", {"MaskErr"},
        {"2376=255.255.255.0"});
    row("gateway in another net", "192.168.0.10", "255.255.255.0", "192.168.1.1", {"GateWayErr"}, {});
    row("gateway just inside", "192.168.0.10", "255.255.254.0", "192.168.1.1", done, {"2378=0"});
}

void TestApplySystem::networkApply()
{
    QFETCH(QString, ip);
    QFETCH(QString, mask);
    QFETCH(QString, gateway);
    m_rig->set(MENU_Net_IPAddress, ip);
    m_rig->set(MENU_Net_SubnetMask, mask);
    m_rig->set(MENU_Net_Gateway, gateway);
    m_rig->fromUser(MENU_Net_Apply, "0");
    QTEST(m_rig->messages, "messages");
    QFETCH(QStringList, sent);
    QCOMPARE(m_rig->device->sent.take(), sent);
    if (sent.contains("2378=0"))
        QCOMPARE(m_rig->shown("labIp"), ip);
}

void TestApplySystem::networkApplyWhileAutomatic()
{
    m_rig->set(MENU_Net_NetMode, "1");
    m_rig->set(MENU_Net_SubnetMask, "255.0.255.0");
    m_rig->fromUser(MENU_Net_Apply, "0");
    QCOMPARE(m_rig->messages, QStringList());
    QCOMPARE(m_rig->device->sent.take(), QStringList{"2378=0"});
}

void TestApplySystem::wrongNetworkComesBackFromTheDevice()
{
    QByteArray image(0x3000, '\0');
    image.replace(0x2000 + 6, 20,
                  QByteArray::fromHex("0a00000005000900" // 10.0.5.9
                                      "ff00ff00ff000000"
                                      "0a000501"));
    QFile flash(m_rig->statePath(hostlink::flashFile));
    QVERIFY(flash.open(QIODevice::WriteOnly));
    flash.write(image);
    flash.close();
    m_rig->set(MENU_Net_IPAddress, "192.168.0.10");
    m_rig->set(MENU_Net_Gateway, "192.168.9.1");
    m_rig->fromUser(MENU_Net_Apply, "0");
    QCOMPARE(m_rig->messages, QStringList{"GateWayErr"});
    QCOMPARE(m_rig->value(MENU_Net_IPAddress), QString("10.0.5.9"));
    QCOMPARE(m_rig->value(MENU_Net_SubnetMask), QString("255.255.255.0"));
    QCOMPARE(m_rig->value(MENU_Net_Gateway), QString("10.0.5.1"));
    QVERIFY(m_rig->reloaded.take().contains("2375="));
}

void TestApplySystem::networkReset()
{
    m_rig->set(MENU_Net_IPAddress, "10.0.0.7");
    for (int notYes : {0, 2}) { // 2: a PC takes over while the question is open
        m_rig->answer = notYes;
        m_rig->fromUser(MENU_Net_Reset, "0");
        QCOMPARE(m_rig->value(MENU_Net_IPAddress), QString("10.0.0.7"));
        QCOMPARE(m_rig->device->sent.take(), QStringList());
    }
    m_rig->answer = 1;
    m_rig->fromUser(MENU_Net_Reset, "0");
    QCOMPARE(m_rig->messages, (QStringList{"NetParameReset", "NetParameReset", "NetParameReset"}));
    QCOMPARE(m_rig->value(MENU_Net_IPAddress), QString("192.168.0.10"));
    QCOMPARE(m_rig->value(MENU_Net_Gateway), QString("192.168.0.1"));
    QCOMPARE(m_rig->shown("labIp"), QString("192.168.0.10"));
    QCOMPARE(m_rig->device->sent.take(), QStringList{"2378="});
}

void TestApplySystem::colourTemperature_data()
{
    QTest::addColumn<QString>("temperature");
    QTest::addColumn<QStringList>("sent");
    QTest::newRow("standard") << "0" << QStringList{"2391=255", "2392=249", "2393=253"};
    QTest::newRow("cool") << "1" << QStringList{"2391=191", "2392=211", "2393=255"};
    QTest::newRow("warm") << "2" << QStringList{"2391=255", "2392=213", "2393=161"};
}

void TestApplySystem::colourTemperature()
{
    QFETCH(QString, temperature);
    m_rig->fromUser(MENU_Color_ColorTemp, temperature);
    const QStringList sent = m_rig->device->sent.take();
    QTEST(sent, "sent");
    for (ENUM_MenuIndex channel : {MENU_Color_R, MENU_Color_G, MENU_Color_B}) {
        QVERIFY(!m_rig->enabled(channel));
        QVERIFY(sent.contains(QString("%1=%2").arg(channel).arg(m_rig->value(channel))));
    }
}

void TestApplySystem::customColour()
{
    m_rig->fromUser(MENU_Color_ColorTemp, "3");
    for (ENUM_MenuIndex channel : {MENU_Color_R, MENU_Color_G, MENU_Color_B})
        QVERIFY(m_rig->enabled(channel));
    QCOMPARE(m_rig->device->sent.take(), QStringList());
}

void TestApplySystem::reportedColour()
{
    m_rig->set(MENU_Color_G, "17");
    m_rig->fromDevice(MENU_Color_ColorTemp, "3");
    QVERIFY(m_rig->enabled(MENU_Color_G));
    m_rig->fromDevice(MENU_Color_ColorTemp, "1");
    QVERIFY(!m_rig->enabled(MENU_Color_G));
    QCOMPARE(m_rig->value(MENU_Color_G), QString("17"));
    QCOMPARE(m_rig->reported.take(), (QStringList{"2390=3", "2390=1"}));
    QCOMPARE(m_rig->device->sent.take(), QStringList());
}

void TestApplySystem::colourReset()
{
    m_rig->set(MENU_Color_ColorTemp, "3");
    m_rig->fromUser(MENU_Color_Reset, "0");
    QCOMPARE(m_rig->value(MENU_Color_ColorTemp), QString("0"));
    QCOMPARE(m_rig->value(MENU_Color_Gamma), QString("2.8"));
    QVERIFY(!m_rig->enabled(MENU_Color_B));
    QCOMPARE(m_rig->device->sent.take(), (QStringList{"2389=2.8", "2391=255", "2392=249", "2393=253"}));
}

void TestApplySystem::pictureReset_data()
{
    QTest::addColumn<int>("reset");
    for (int reset : {3029, 3041, 3053, 3065, 3070})
        QTest::addRow("%d", reset) << reset;
}

void TestApplySystem::pictureReset()
{
    QFETCH(int, reset);
    for (int item = reset - 4; item < reset; ++item)
        m_rig->set(ENUM_MenuIndex(item), "9");
    m_rig->fromUser(ENUM_MenuIndex(reset), "0");
    QStringList values;
    for (int item = reset - 4; item < reset; ++item)
        values << m_rig->value(ENUM_MenuIndex(item));
    QCOMPARE(values, (QStringList{"50", "50", "50", "0"}));
    QCOMPARE(m_rig->device->sent.take(), QStringList{QString("%1=0").arg(reset)});
}

void TestApplySystem::languageSwitch()
{
    m_rig->store->UpdataItemCurChoice(MENU_LanguageEn, SELECTED);
    m_rig->store->UpdataItemCurChoice(MENU_LanguageZh, UNSELECTED);
    m_rig->fromUser(MENU_LanguageEn, "1");
    QCOMPARE(m_rig->reported.take(), QStringList());
    for (int round = 0; round < 3; ++round) {
        m_rig->fromUser(MENU_LanguageZh, "1");
        QCOMPARE(m_rig->choice(MENU_LanguageZh) + m_rig->choice(MENU_LanguageEn), SELECTED + UNSELECTED);
        m_rig->fromUser(MENU_LanguageEn, "1");
        QCOMPARE(m_rig->choice(MENU_LanguageZh) + m_rig->choice(MENU_LanguageEn), UNSELECTED + SELECTED);
    }
    // Every row has been told to translate itself again. There are no texts here: nothing stays behind of
    // them.
    QVERIFY(m_rig->reported.take().count("-1=") > 300);
    QCOMPARE(m_rig->engine->findChildren<QTranslator *>().size(), 0);
}

void TestApplySystem::bootLogo()
{
    for (const char *logo : {"logo_vask", "logo_hide"}) {
        QFile file(m_rig->path(QString("/usr/vask/etc/logo/%1.bmp").arg(logo)));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(logo);
    }
    auto logo = [this] {
        QFile file(m_rig->path("/usr/vask/etc/logo/logo.bmp"));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("none");
    };
    m_rig->set(MENU_BootLogo, "1");
    m_rig->fromUser(MENU_BootLogo, "1");
    QCOMPARE(logo(), QByteArray("none"));
    m_rig->fromUser(MENU_BootLogo, "0");
    QCOMPARE(logo(), QByteArray("logo_hide"));
    m_rig->fromUser(MENU_BootLogo, "1");
    QCOMPARE(logo(), QByteArray("logo_vask"));
}

void TestApplySystem::makerSign()
{
    const auto *sign = m_rig->home->findChild<QLabel *>("labDeviceName");
    m_rig->fromUser(MENU_MakerSign, "0");
    QVERIFY(sign->isHidden());
    m_rig->fromUser(MENU_MakerSign, "1");
    QVERIFY(!sign->isHidden());
}

void TestApplySystem::osdSlots()
{
    for (int slot = 0; slot < 8; ++slot)
        m_rig->fromDevice(ENUM_MenuIndex(EVENT_OSDPictureFirst + slot), slot % 3 ? "1" : "0");
    for (int slot = 0; slot < 8; ++slot)
        QCOMPARE(m_rig->rowEnabled(MENU_OSDChoice, slot), slot % 3 != 0);
    QCOMPARE(m_rig->reloaded.take().count("1009="), 8);
}

void TestApplySystem::softCalibration()
{
    QSignalSpy calibrates(m_rig->engine, &ParaProcess::signal_soft_calibrate);
    QSignalSpy returns(m_rig->engine, &ParaProcess::signal_return_main);
    m_rig->engine->SetParaToXml("1", EVENT_SoftCalibrate, SET_XML_DEVICE);
    QCOMPARE(calibrates.count() + returns.count(), 0);
    ParaProcess::init_20m_flg = true;
    disconnect(m_rig->engine, nullptr, m_rig->home, nullptr);
    m_rig->engine->SetParaToXml("1", EVENT_SoftCalibrate, SET_XML_DEVICE);
    m_rig->engine->SetParaToXml("0", EVENT_SoftCalibrate, SET_XML_DEVICE);
    QCOMPARE(returns.count(), 2);
    QCOMPARE(calibrates.takeFirst().first().toInt(), 1);
    QCOMPARE(calibrates.takeFirst().first().toInt(), 0);
}

void TestApplySystem::cabinetFile()
{
    linkPort();
    ST_ItemInfo file = m_rig->info(MENU_CabinetFile3);
    file.perBase = "2";
    file.value = "wall.rcfgx";
    m_rig->store->updataMenuItem(MENU_CabinetFile3, file);
    m_rig->fromUser(MENU_CabinetFile3, "wall.rcfgx");
    QCOMPARE(m_rig->messages, (QStringList{"Waiting", "LodeSucceed"}));
    QCOMPARE(m_rig->device->sent.take(), QStringList{"2006=2+wall.rcfgx"});
}

void TestApplySystem::servicesStart()
{
    QFile environment(m_rig->statePath(hostlink::environmentFile));
    QVERIFY(environment.open(QIODevice::WriteOnly));
    environment.write("ver_rootfs=V9.8.7\n");
    environment.close();
    m_rig->set(MENU_HDCPMemory, "0");
    m_rig->set(MENU_Net_NetMode, "1");
    MainWindow::m_deviceStartComplate = false;
    m_rig->fromDevice(EVENT_SenderServiceStarted, "2");
    QCOMPARE(m_rig->device->sent.take(), QStringList());
    // The sequence runs every time.
    for (int start = 0; start < 2; ++start) {
        m_rig->fromDevice(EVENT_VideoServiceStarted, "1");
        QCOMPARE(m_rig->device->sent.take(), (QStringList{"1054=0", "2374=1"}));
        QVERIFY(m_rig->reported.take().contains("2369=V9.8.7"));
    }
    QVERIFY(MainWindow::m_deviceStartComplate);
    QCOMPARE(m_rig->value(MENU_About_VersionValue), QString("V9.8.7"));
}

void TestApplySystem::syncIsCheckedAtStart_data()
{
    QTest::addColumn<QString>("sync");
    QTest::addColumn<int>("signalState");
    QTest::addColumn<int>("periodUs");
    QTest::addColumn<int>("problem"); ///< the signal state that is told, -1 for none
    QTest::newRow("runs free") << "0" << 0 << 0 << -1;
    QTest::newRow("agrees") << "1" << 3 << 16667 << -1;
    QTest::newRow("stable, another rate") << "1" << 3 << 20000 << 3;
    QTest::newRow("no signal") << "1" << 0 << 16667 << 0;
    QTest::newRow("no rate") << "1" << 1 << 0 << 1;
}

void TestApplySystem::syncIsCheckedAtStart()
{
    QFETCH(QString, sync);
    QFETCH(int, signalState);
    QFETCH(int, periodUs);
    QFETCH(int, problem);
    m_rig->process(PARA_OutputWidth, 1920);
    m_rig->process(PARA_OutputHeight, 1080);
    m_rig->input(1, 98, signalState, 1920, 1080, periodUs);
    m_rig->set(MENU_Sync_Status, sync);
    m_rig->set(MENU_Sync_Source, "1");
    QSignalSpy problems(m_rig->engine, SIGNAL(signal_sync_state(qint8, QString)));
    disconnect(m_rig->engine, nullptr, m_rig->home, nullptr);
    m_rig->engine->SetParaToXml("1", EVENT_VideoServiceStarted, SET_XML_DEVICE);
    QCOMPARE(problems.count(), problem < 0 ? 0 : 1);
    if (problem >= 0) {
        QCOMPARE(problems.first().first().value<qint8>(), qint8(problem));
        QCOMPARE(problems.first().last().toString(), QString("4"));
    }
}

void TestApplySystem::sdiMenu()
{
    for (bool has : {false, true}) {
        m_rig->engine->HideSdiMenu(has);
        QCOMPARE(bool(ParaProcess::bHaveSDI), has);
        QCOMPARE(m_rig->enabled(MENU_SDI), has);
        QCOMPARE(m_rig->enabled(MENU_AudioInput_SDI), has);
        for (ENUM_MenuIndex list :
             {MENU_MainLayer_InputSource, MENU_PIP1_InputSource, MENU_PIP2_InputSource, MENU_Sync_Source}) {
            QCOMPARE(m_rig->rowEnabled(list, 3), has);
            QVERIFY(m_rig->rowEnabled(list, 2));
        }
    }
}

void TestApplySystem::sourceNames()
{
    QCOMPARE(m_rig->engine->GetSourceNameByCode(0x61), QString("HDMI1.42"));
    QCOMPARE(m_rig->engine->GetSourceNameByCode(0x30), QString("SDI 1"));
    QCOMPARE(m_rig->engine->GetSourceNameByCode(0x34), QString("SDI 5"));
    QCOMPARE(m_rig->engine->GetSourceNameByCode(0xC0), QString());
    QCOMPARE(m_rig->engine->GetInputNameByIndex("2"), QString("DVI"));
    QCOMPARE(m_rig->engine->GetInputNameByIndex("4"), QString());
    m_rig->input(2, 48, 3, 1920, 1080, 16667);
    QCOMPARE(m_rig->engine->FindKeyByValue(48), 2);
    QCOMPARE(m_rig->engine->FindKeyByValue(49), 255);
}

void TestApplySystem::inputsOfEitherFamily()
{
    for (int code : {97, 17, 105, 0, 254})
        QCOMPARE(m_rig->engine->FindKeyByValue(code), 255); // nothing has been listed yet
    const int listed[] = {17, 18, 0, 48, 106, 233, 234, 224, 254};
    for (int number = 0; number < 9; ++number)
        m_rig->input(number, listed[number], 0, 0, 0, 0);
    const QMap<int, int> wanted = {{17, 0},  {97, 0}, {18, 1},  {98, 1},  {0, 2},
                                   {105, 2}, {48, 3}, {106, 4}, {254, 8}, {49, 255}};
    for (auto code = wanted.cbegin(); code != wanted.cend(); ++code)
        QCOMPARE(m_rig->engine->FindKeyByValue(code.key()), code.value());
    const int others[] = {97, 98, 105, 106};
    for (int number = 0; number < 4; ++number)
        m_rig->input(number, others[number], 0, 0, 0, 0);
    QCOMPARE(m_rig->engine->FindKeyByValue(17), 0);
    QCOMPARE(m_rig->engine->FindKeyByValue(0), 2);
    QCOMPARE(m_rig->engine->FindKeyByValue(106), 3);
}

void TestApplySystem::messageOfTheTableOnly()
{
    QCOMPARE(m_rig->engine->runMessage(MSG_SyncNeedsLowLatencyOff), 0);
}

void TestApplySystem::reportsFromAnotherThreadKeepTheirOrder()
{
    ParaProcess::init_20m_flg = true;
    std::unique_ptr<QThread> reports(QThread::create([engine = m_rig->engine] {
        for (int round = 1; round <= 200; ++round) {
            engine->SetParaToXml(QString::number(round % 100), MENU_ScreenBrightness, SET_XML_DEVICE);
            engine->SetParaToXml(QString("10.0.0.%1").arg(round), MENU_Net_IPAddress, SET_XML_DEVICE);
            engine->SetParaToXml("1", MENU_Freeze, SET_XML_DEVICE);
            engine->SetParaToXml("1", MENU_Normal, SET_XML_DEVICE);
            engine->HideSdiMenu(round % 2);
            engine->SetParaToXml("1", EVENT_VideoServiceStarted, SET_XML_DEVICE);
        }
        engine->SetParaToXml("77", MENU_ScreenBrightness, SET_XML_DEVICE);
    }));
    reports->start();
    // The user turns the knob meanwhile.
    int value = 0;
    while (!reports->isFinished()) {
        m_rig->fromUser(MENU_Audio_Volume, QString::number(++value % 100));
        m_rig->engine->CalParaLimit("9", MENU_OutputFrameRate);
    }
    m_rig->settle();
    QCOMPARE(m_rig->value(MENU_ScreenBrightness), QString("77"));
    QTRY_COMPARE(m_rig->shown("labBright"), QString("77%"));
    QCOMPARE(m_rig->shown("labIp"), QString("10.0.0.200"));
    QCOMPARE(m_rig->value(MENU_Audio_Volume).toInt(), value % 100);
    QStringList brightness;
    for (const QString &line : m_rig->reported.take())
        if (line.startsWith("1="))
            brightness << line.mid(2);
    QCOMPARE(brightness.size(), 201);
    QCOMPARE(brightness.mid(97, 3), (QStringList{"98", "99", "0"}));
}

QTEST_MAIN(TestApplySystem)
#include "tst_applysystem.moc"
