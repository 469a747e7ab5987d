// The output, 3D, network and colour as the user and as the device bring their values: what is handed to the
// protocol, what the row is told, what is asked, what follows and what can be chosen then.

#include "caseline.h"
#include "menu/itemindex.h"
#include "tests/testprogram.h"

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
    void otherModel_data();
    void otherModel();
    void refusedAddressComesBackFromTheDevice_data();
    void refusedAddressComesBackFromTheDevice();
    void brandIsShown();

private:
    EngineRig *m_rig = nullptr;
};

namespace
{
const CaseLines syncLines{
    {"output rate", "", "device 2015=9", "tells 2015=9"},
    {"source", "", "device 2351=3", "tells 2351=3; sync SDI"},
    {"source", "", "user 2351=1", "sends 2351=1; sync HDMI2"},
    {"sync on", "2351=1", "device 2350=1", "tells 2350=1; leaves rate=5994; screen 1920x1080@59.94"},
    {"near enough", "2351=1 1055=1", "user 2350=1", "sends 2350=1; leaves rate=5994; screen 1920x1080@59.94"},
    {"no such input", "2351=5 1055=1", "user 2350=1", "sends 2350=1; leaves rate=6000; screen 1920x1080@60"},
    {"reference too far", "2351=0", "user 2350=1", "sends 2350=1; leaves rate=6000; screen 1920x1080@60"},
    {"card follows", "2351=0 3210=2", "user 2350=1", "sends 2350=1; leaves rate=5000; screen 1920x1080@50"},
    {"none to follow", "2351=5 3210=2", "user 2350=1", "sends 2350=1; leaves rate=6000; screen 1920x1080@60"},
    {"3D doubles", "2351=1 2359=1 width=1280", "user 2350=1",
     "sends 2350=1; leaves rate=5994; screen 1280x1080@119.88"},
    {"no rate", "2351=2 rate=0", "user 2350=1", "sends 2350=1; leaves rate=6000; screen 1920x1080@60"},
    {"sync off", "2350=1 2015=8", "user 2350=0",
     "sends 2350=0 2015=59.94 2350=0; leaves rate=5994; screen 1920x1080@59.94"},
    {"the software's output", "2350=1 3209=1 2353=0 2354=6", "user 2350=0",
     "sends 2350=0 2355=1024x768x50 2350=0; leaves rate=5000; screen 1920x1080@50"},
    {"sending card", "2350=1 3210=2 2101=0 2015=8", "user 2350=0",
     "sends 2350=0 2350=0; leaves rate=6000; screen 1920x1080@60"},
    {"sending card", "2350=1 3210=2 2101=1", "device 2350=0", "tells 2350=0; leaves rate=5994"},
    {"off already", "2350=0", "user 2350=0", "sends 2350=0"},
    {"3D doubles", "2350=1 2359=1 2015=4", "user 2350=0",
     "sends 2350=0 2015=30 2350=0; leaves rate=3000; screen 1920x1080@60"},
    {"genlock of a card", "2350=1 3210=2", "device 3393=2", "screen 1920x1080@50"},
    {"genlock, no rate", "2350=1 2351=2 rate=0", "device 3393=4",
     "asks SyncNoSignalTip; screen 1920x1080@60"},
};

const QString video = "2352=1 2353=1 2354=7 2102=0 2112=2 2122=2 2103=800";
const QString videoShown =
    "leaves 3209=1 width=1280 height=720 rate=5994 2103=1280 2104=720 1056-; screen 1280x720@59.94";
const QString withStereo = "2352=1 2353=0 2354=7 2359=1 2102=0 2112=1 2122=2 1040=1 2112/0- 2122/0-";
const QString videoScales = "leaves 2103=1024 2104=768 2113=800 2112/0+ 2122/0+ ";
const CaseLines outputLines{
    {"video", video, "user 2355=", "asks Waiting; sends 2104=720 2352=1 2355=1280x720x59.94; " + videoShown},
    {"video", video,
     "device 2355=", "asks Waiting; sends 2104=720 2352=1; tells 2355=1280x720x59.94; " + videoShown},
    // Without a row 3D is neither ended in the device nor here.
    {"video leaves 3D", withStereo,
     "user 2355=", "asks Waiting; sends 2104=768 2352=1 2355=1024x768x59.94; " + videoScales + "2359=1"},
    {"monitor", "3209=1 2353=1 2354=7",
     "device 2355=", "asks Waiting; sends 2352=0; tells 2355=1280x720x59.94; leaves 3209=0 width=1920 1056+"},
    {"monitor", "3209=1 2353=0 2354=8",
     "user 2355=", "asks Waiting; sends 2352=0 2355=1024x768x60; leaves 3209=0"},
};

const QString tip = "asks Open3DOnlyMainLayerEffectTip; ";
const CaseLines stereoLines{
    {"video ends 3D", withStereo, "user 2355=",
     "asks Waiting; sends 2359=0 2104=768 2352=1 2355=1024x768x59.94; " + videoScales + "2359=0"},
    {"3D off", "2359=1 1019=1", "device 2359=0", "tells 2359=0; leaves 1019+ 1020+; screen 1920x1080@60"},
    {"3D off", "2359=1 1019- 1020- 2110=0 2120=0", "user 2359=0", "sends 2359=0; leaves 1019+ 1020+"},
    {"3D off beside PIP 2", "2359=1 1019- 1020- 2120=1", "user 2359=0", "sends 2359=0; leaves 1019- 1020-"},
    {"3D off, mosaic shown", "2359=1 2101/4- 2101=4 1019-", "user 2359=0", "sends 2359=0; leaves 1019-"},
    {"3D on", "2110=1 2360=1", "device 2359=1",
     "tells 2359=1; leaves 2359=1 2110=1 1019=1 1019- 1020-; screen 1920x1080@120"},
    {"3D on, mosaic stays", "2101/4- 2360=2", "device 2359=1", "tells 2359=1; leaves 2101/4- 2101=2"},
    {"3D on offers the mosaic", "2101/4- 2360=2", "user 2359=1",
     tip + "sends 1019=1 2359=1; leaves 2101/4+ 2101=2"},
    {"3D on ends the PIPs", "2360=2 2110=1 2120=0", "user 2359=1",
     tip + "sends 1019=1 2110=0 2359=1; leaves 2110=0 1019=1 1019- 1020-; screen 1920x1080@60"},
    {"3D on, too much", "2360=0", "user 2359=1", "asks OverLoad; reloads 2359=; leaves 2359=0"},
    {"3D on, software's output fits", "3209=1 2353=0 2354=8", "user 2359=1",
     tip + "sends 1019=1 2359=1; leaves 2359=1 1019- 1020-; screen 1024x768@120"},
    {"3D on, software's output too much", "3209=1 2353=8 2354=8", "user 2359=1",
     "asks OverLoad; leaves 2359=0 1019+ 1020+"},
    {"side by side", "2359=1 2360=2", "device 2360=0",
     "tells 2360=0; leaves 3077=960 3077+; screen 1920x1080@120"},
    {"side by side", "3213=961", "user 2360=0", "sends 3077=961 2360=0; leaves 3077+"},
    {"top and bottom", "3214=1125", "user 2360=1", "sends 3077=1125 2360=1; leaves 3077+"},
    {"sequential", "2359=1", "device 2360=2", "tells 2360=2; leaves 3077-; screen 1920x1080@60"},
    {"sequential, 3D off", "", "user 2360=2", "sends 2360=2; leaves 3077-; screen 1920x1080@60"},
    {"format too much", "2359=1 2360=2", "user 2360=1", "asks OverLoad; leaves 2360=2"},
    {"right eye", "2360=1", "device 3077=1000", "tells 3077=1000; leaves 3214=1000"},
    {"right eye", "2360=0", "user 3077=1001", "sends 3077=1001; leaves 3213=1001"},
    {"right eye", "2360=2 3213=1 3214=2", "user 3077=1002", "sends 3077=1002; leaves 3213=1 3214=2"},
    {"signal delay", "", "device 3078=900", "sends 3078=900; leaves 3078=900"},
    {"emitter", "", "user 3079=1", "sends 3079=1"},
    {"emitter", "", "device 3079=1", "sends 3079=1"},
    {"picture reset, DVI 2", "3061=9 3062=9 3063=9 3064=9", "user 3065=0",
     "sends 3065=0; leaves 3061=50 3062=50 3063=50 3064=0"},
};

const QString done = "asks Waiting NetParameSetSucceed; ";
const QString rowsOn = "2375+ 2376+ 2377+ 2378+ 2379+", rowsOff = "2375- 2376- 2377- 2378- 2379-";
const QString factory = "leaves 2375=192.168.0.10 2376=255.255.255.0 2377=192.168.0.1 ";
QString address(const QString &ip, const QString &mask, const QString &gateway)
{
    return QString("2375=%1 2376=%2 2377=%3").arg(ip, mask, gateway);
}
const CaseLines networkLines{
    {"automatic", "3212=1", "device 2374=1", "tells 2374=1; leaves 3212=0 " + rowsOff + "; ip WaitIP"},
    {"automatic", "3212=1", "user 2374=1", "sends 2374=1; leaves 3212=0 " + rowsOff + "; ip WaitIP"},
    {"manual", "2375=10.0.0.7", "device 2374=0", "tells 2374=0; leaves " + rowsOn + "; ip 10.0.0.7"},
    {"manual", "2375=10.0.0.7 2379-", "user 2374=0", "sends 2374=0; leaves " + rowsOn + "; ip 10.0.0.7"},
    {"address", "", "device 2375=10.0.0.8", "tells 2375=10.0.0.8; leaves 3212=1; ip 10.0.0.8"},
    {"address", "", "user 2375=10.0.0.9", "sends 2375=10.0.0.9; leaves 3212=0"},
    {"applied", "", "device 2378=0", done + "tells 2378=0; ip 192.168.0.10"},
    {"automatic, applied", "2374=1", "device 2378=0", "tells 2378=0"},
    {"automatic, applied", "2374=1 2376=255.0.255.0", "user 2378=0", "sends 2378=0"},
    {"right", address("192.168.0.10", "255.255.255.0", "192.168.0.1"), "user 2378=0",
     done + "sends 2378=0; ip 192.168.0.10"},
    {"mask of ones", address("10.1.2.3", "255.255.255.255", "10.1.2.3"), "user 2378=0",
     done + "sends 2378=0"},
    {"mask of zeros", address("10.1.2.3", "0.0.0.0", "172.16.0.1"), "user 2378=0", done + "sends 2378=0"},
    {"gateway just inside", address("192.168.0.10", "255.255.254.0", "192.168.1.1"), "user 2378=0",
     done + "sends 2378=0"},
    {"hole, class A", address("126.1.2.3", "255.0.255.0", "126.0.0.1"), "user 2378=0",
     "asks MaskErr; sends 2376=255.0.0.0"},
    {"hole, class B", address("128.1.2.3", "255.255.0.1", "128.1.0.1"), "user 2378=0",
     "asks MaskErr; sends 2376=255.255.0.0"},
    {"hole, class C", address("223.1.2.3", "1.255.255.0", "223.1.2.1"), "user 2378=0",
     "asks MaskErr; sends 2376=255.255.255.0"},
    // An address of no class has no mask of its own: what stands there goes on standing there.
    {"hole, no class", "2375=224.0.0.1 2376=255.0.255.0", "user 2378=0",
     "asks MaskErr; sends 2376=; leaves 2376=255.0.255.0"},
    {"reset", "2375=10.0.0.7 2376=255.0.0.0", "device 2379=0",
     "asks NetParameReset; sends 2378=; " + factory + "2375+ 2376+ 2377+; ip 192.168.0.10"},
    {"reset", "2375=10.0.0.7", "user 2379=0",
     "asks NetParameReset; sends 2378=; " + factory + "; ip 192.168.0.10"},
    {"reset, refused", "2375=10.0.0.7", "user 2379=0",
     "asks NetParameReset; answers 0; leaves 2375=10.0.0.7"},
    {"reset, a PC takes over", "2375=10.0.0.7", "user 2379=0",
     "asks NetParameReset; answers 2; leaves 2375=10.0.0.7"},
};

const QString standard =
    "sends 2389=2.8 2391=255 2392=249 2393=253; leaves 2390=0 2389=2.8 2392=249 2391- 2393-";
const QString saved = "asks SaveingHardwareInfomation SaveHardWareInformationSucceed; ";
const CaseLines otherLines{
    {"brightness", "", "user 1=65", "sends 1=65; bright 65%"},
    {"standard", "2390=3", "user 2390=0",
     "sends 2391=255 2392=249 2393=253; leaves 2392=249 2391- 2392- 2393-"},
    {"cool", "", "user 2390=1", "sends 2391=191 2392=211 2393=255; leaves 2391=191 2391- 2392- 2393-"},
    {"warm", "", "user 2390=2", "sends 2391=255 2392=213 2393=161; leaves 2393=161 2391- 2392- 2393-"},
    {"custom", "", "user 2390=3", "leaves 2391+ 2392+ 2393+"},
    {"custom", "", "device 2390=3", "tells 2390=3; leaves 2392+"},
    {"cool", "2392=17 2392+", "device 2390=1", "tells 2390=1; leaves 2392=17 2392-"},
    {"colour reset", "2390=3", "user 2394=0", standard},
    {"colour reset", "2390=3", "device 2394=0", standard},
    {"picture reset", "3038=9 3040=9", "device 3041=0", "tells 3041=0; leaves 3038=50 3040=0"},
    {"save", "link=1", "device 1002=1", "sends 1002=1; " + saved},
    {"save, no link", "", "user 1002=", "asks CheckReceiveCard"},
    {"save, port 10", "3319=1", "user 1002=", saved + "sends 1002="},
    {"save, OPT 1", "3370=1", "user 1002=", saved + "sends 1002="},
    {"save, OPT 2", "3383=1", "user 1002=", saved + "sends 1002="},
    {"save, a backup is no link", "3320=1", "user 1002=", "asks CheckReceiveCard"},
    {"load a file, no link", "", "user 2004=", "asks CheckReceiveCard"},
    {"self test", "", "user 1059=1", "asks SelfTesting; sends 1059=1"},
    {"self test", "", "device 1059=1", "sends 1059=1"},
    {"OSD picture that is there", "1009/4-", "device 3416=1", "reloads 1009=; leaves 1009/4+"},
    {"calibration", "", "user 3408=1", ""},
    {"of no case", "", "device 3138=0", "leaves 3138=0"},
};

const CaseLines &allLines()
{
    static const CaseLines lines = syncLines + outputLines + networkLines + otherLines;
    return lines;
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
    addCaseLines(allLines());
}

void TestApplyCases::valueIsApplied()
{
    QFETCH(int, row);
    runCaseLine(*m_rig, allLines().at(row));
}

void TestApplyCases::otherModel_data()
{
    addCaseLines(stereoLines);
}

/// One with the pages of 3D and of a second DVI input.
void TestApplyCases::otherModel()
{
    QFETCH(int, row);
    m_rig->addRows({CONFIG_Mode3D, CONFIG_Mode3DMore, CONFIG_DVI2_InputColor});
    runCaseLine(*m_rig, stereoLines.at(row));
}

void TestApplyCases::refusedAddressComesBackFromTheDevice_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("message");
    QTest::newRow("address") << address("127.0.0.1", "255.0.0.0", "127.0.0.2") << "IpErr";
    QTest::newRow("address and mask") << address("127.0.0.1", "255.0.255.0", "127.0.0.2") << "IpMaskErr";
    QTest::newRow("gateway") << address("192.168.0.10", "255.255.255.0", "192.168.1.1") << "GateWayErr";
}

void TestApplyCases::refusedAddressComesBackFromTheDevice()
{
    QFETCH(QString, before);
    QFETCH(QString, message);
    QByteArray image(0x3000, '\0');
    image.replace(0x2000 + 6, 20, QByteArray::fromHex("0a00000005000900ff00ff00ff0000000a000501"));
    QFile flash(m_rig->statePath(hostlink::flashFile));
    QVERIFY(flash.open(QIODevice::WriteOnly) && flash.write(image) > 0);
    flash.close();
    const QString left = "leaves 2375=10.0.5.9 2376=255.255.255.0 2377=10.0.5.1";
    runCaseLine(*m_rig,
                {"", before, "user 2378=0", "asks " + message + "; reloads 2375= 2376= 2377=; " + left});
    flash.remove();
}

void TestApplyCases::brandIsShown()
{
    const auto *sign = m_rig->home->findChild<QLabel *>("labDeviceName");
    m_rig->fromUser(MENU_MakerSign, "0");
    QVERIFY(sign->isHidden());
    m_rig->fromUser(MENU_MakerSign, "1");
    QVERIFY(!sign->isHidden());
    m_rig->fromDevice(MENU_MakerSign, "0");
    QVERIFY(sign->isHidden());
    m_rig->home->SetDevNameState(COMMON_ON);
    m_rig->forget();
    m_rig->fromDevice(MENU_MakerSign, "0"); // no change
    QVERIFY(!sign->isHidden());
    QCOMPARE(m_rig->device->sent.take() + m_rig->reported.take(), QStringList());
}

FPD_TEST(TestApplyCases)

#include "tst_applycases.moc"
