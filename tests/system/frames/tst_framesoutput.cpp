// What the rows of output, synchronisation, backup and network send.
#include "tests/system/frames/framedrive.h"
#include "tests/testprogram.h"

using namespace VASK;
using frames::path;
using frames::twice;

namespace
{
using Path = QList<ENUM_MenuIndex>;

Path sync(ENUM_MenuIndex row)
{
    return {MENU_AdvancedSetting, MENU_Synchronization, row};
}
Path output(ENUM_MenuIndex row)
{
    return {MENU_AdvancedSetting, MENU_HDMIOutput, row};
}
Path network(ENUM_MenuIndex row)
{
    return {MENU_CommunicationSettings, MENU_NetworkSettings, row};
}

const QString syncOn = "1300002a 00 01", syncOff = "1300002a 00 00";
const QString rate60 = "13040007 00 7017";
// 1920 x 1200 at 60.00 Hz
const QString wuxga = "13041401 00 8007b0047017";
// 255.255.255.0 with a byte between the numbers, 192.168.0.1 without
const QString maskAndGateway = "ff00ff00ff000000c0a80001";
} // namespace

class TestFramesOutput : public FramesTest
{
    Q_OBJECT
    QVector<NamedFrames> table() const override
    {
        return {
            {"sync on", sync(MENU_Sync_Status), "r1 ok", {syncOn}},
            // Nothing is plugged in there.
            {"sync to HDMI 2", sync(MENU_Sync_Source), "r1 ok message ok", "1300002b 00 02"},
            {"sync to HDMI 1", sync(MENU_Sync_Source), "l1 ok", "1300002b 00 01"},
            // The output goes back to its own rate.
            {"sync off", sync(MENU_Sync_Status), "r1 ok", {syncOff, rate60, syncOff}},

            // Mode, size and rate only count when they are applied.
            {"output of video", output(MENU_Output_Mode), "r1 ok", ""},
            {"output size", output(MENU_Output_Resolution), "r1 ok", ""},
            {"output rate", output(MENU_Output_FrameRate), "r1 ok", ""},
            {"output rate, back", output(MENU_Output_FrameRate), "l1 ok", ""},
            {"output applied", output(MENU_Output_Apply), "closed", {"13042007 00 01", wuxga}},
            {"sync on, video", sync(MENU_Sync_Status), "r1 ok", {syncOn}},
            {"sync off, video", sync(MENU_Sync_Status), "r1 ok", {syncOff, wuxga, syncOff}},
            {"output of the monitor", output(MENU_Output_Mode), "r1 ok", ""},
            {"monitor applied", output(MENU_Output_Apply), "closed", {"13042007 00 00", wuxga}},

            {"backup", path(MENU_AdvancedSetting, MENU_DeviceBackup), "r1 ok",
             "02000018 00 80808080, 02000098 00 80808080, 02000100 00 80808080, 02000104 00 80808080, "
             "0200009d "
             "00 a5"},
            {"primary", path(MENU_AdvancedSetting, MENU_DeviceBackup), "r1 ok",
             "02000018 00 00000000, 02000098 00 00000000, 02000100 00 00000000, 02000104 00 00000000, "
             "0200009d "
             "00 5a"},

            // The board is asked for it, not the device.
            {"USB preferred", path(MENU_CommunicationSettings, MENU_CommunicationMode), "r1 ok", ""},
            {"LAN preferred", path(MENU_CommunicationSettings, MENU_CommunicationMode), "r1 ok", ""},

            // An address is sent as a whole, when it is applied and right.
            {"address", network(MENU_Net_IPAddress), "ok ok ok r3 esc", ""},
            {"address applied",
             network(MENU_Net_Apply),
             "closed2",
             {"13000006 00 c000a80000000d00" + maskAndGateway}},
            {"address beside the gateway", network(MENU_Net_IPAddress), "l1 esc", ""},
            {"refused", network(MENU_Net_Apply), "closed", ""},
            {"network reset, refused", network(MENU_Net_Reset), "no", ""},
            {"network reset",
             network(MENU_Net_Reset),
             "yes",
             {"13000006 00 c000a80000000a00" + maskAndGateway}},
            {"address of a server", network(MENU_Net_NetMode), "r1 ok", "1300001a 00 a8"},
            {"address by hand", network(MENU_Net_NetMode), "r1 ok", "1300001a 00 00"},
        };
    }
private slots:
    void aSendingCardHasAStartOfItsOwn()
    {
        // No page leads into this work mode; the device is in it when the panel starts.
        QVERIFY(m_panel.ask({"panel", "stop"}).ok);
        QVERIFY(m_panel.setStored(MENU_WorkMode, "2"));
        QVERIFY(m_drive.startPanel());
        const QString x7 = "07000000", ym9 = "f7ffffff", zero = "00000000", size = "8007000038040000";
        const auto window = [&size](const QString &start) { return "13020015 00 " + start + size; };
        const auto card = [](const QString &start) { return "020001f0 00 " + start; };
        QCOMPARE(m_drive.drive({{MENU_LayerSettings, MENU_MainLayer, MENU_MainLayer_InitialX},
                                "R7 still ok",
                                twice({card(x7 + zero), window(x7 + zero)})}),
                 QString());
        QCOMPARE(m_drive.drive({{MENU_LayerSettings, MENU_MainLayer, MENU_MainLayer_InitialY},
                                "L9 still ok",
                                twice({card(x7 + ym9), window(x7 + ym9)})}),
                 QString());
    }
};

FPD_TEST(TestFramesOutput)
#include "tst_framesoutput.moc"
