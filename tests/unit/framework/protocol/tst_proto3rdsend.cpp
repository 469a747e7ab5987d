// What leaves for the device when an item changes, where no row of a page shows it: values at the limits,
// items and inputs without a page; and what is refused.

#include "tests/unit/rig/sendbench.h"

#include "menu/menutypes.h"
#include "sysconf.h"
#include "tests/testprogram.h"

using namespace VASK;

struct Frame {
    int type;
    quint32 address;
    QByteArray payload;
};
using Frames = QVector<Frame>;
Q_DECLARE_METATYPE(Frames)

namespace
{
constexpr int board = 0;
constexpr int card = 1;
constexpr int stereo = 4;

void row(int item, const QString &value, int type, quint32 address, const char *payload)
{
    addRow(itemnames::line(item, value), item, value, Frames{{type, address, QByteArray::fromHex(payload)}});
}
} // namespace

class TestProto3rdSend : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        bench = std::make_unique<SendBench>();
        seed();
    }
    void cleanup() { bench.reset(); }

    void frames_data()
    {
        addColumns<int, QString, Frames>({"item", "value", "frames"});
        row(MENU_ScreenBrightness, "0", card, 0x02000001, "00");
        row(MENU_ScreenBrightness, "1", card, 0x02000001, "02");
        row(MENU_ScreenBrightness, "50", card, 0x02000001, "7f");
        row(MENU_ScreenBrightness, "100", card, 0x02000001, "ff");
        row(MENU_Quick_PortOneCab, "65535", board, 0x02810018, "ffff");
        row(MENU_Quick_FlowWay, ":/resource/image/041_ScreenTracesWay7.png", board, 0x02810011, "07");
        row(MENU_CabinetFile4, "255+a", board, 0x0FF001FF, "01");
        row(MENU_CabinetFile8, "12+111.rcfgx+x", board, 0x0FF0010C, "01");
        row(MENU_OutputFrameRate, "23.98", board, 0x13040007, "5e09");
        row(MENU_OutputFrameRate, "119.88", board, 0x13040007, "d42e");
        row(MENU_OutputFrameRate, "120", board, 0x13040007, "e02e");
        row(MENU_TransitionDuration, "0.5", board, 0x13000002, "3200");
        row(MENU_TransitionDuration, "2.0", board, 0x13000002, "c800");
        row(MENU_InputBackup_Status, "1", board, 0x13120000, "5b");
        row(MENU_InputBackup_Status, "0", board, 0x13120000, "ff");
        row(MENU_InputBackup_HDMI1, "1", board, 0x13120010, "11001201");
        row(MENU_InputBackup_HDMI1, "0", board, 0x13120010, "1100ff01");
        row(MENU_InputBackup_DVI1, "1", board, 0x13120014, "69006a01");
        row(MENU_InputBackup_DVI1, "0", board, 0x13120014, "6900ff01");
        row(MENU_InputBackup_Mosaic, "1", board, 0x13120018, "e000e001");
        row(MENU_InputBackup_Mosaic, "0", board, 0x13120018, "e000ff01");
        row(MENU_AudioInput_DVI2, "0", board, 0x13019035, "00");
        row(MENU_AudioInput_OPT1_1, "0", board, 0x13019055, "00");
        row(MENU_AudioInput_OPT1_2, "1", board, 0x13019065, "02");
        row(MENU_AudioInput_Mosaic, "1", board, 0x13019075, "02");
        row(MENU_Mode3D_Status, "0", board, 0x02000039, "28");
        row(MENU_Mode3D_Status, "1", board, 0x02000039, "a8");
        row(MENU_Mode3D_Format, "0", board, 0x02000042, "28");
        row(MENU_Mode3D_Format, "1", board, 0x02000042, "08");
        row(MENU_Mode3D_Format, "2", board, 0x02000042, "18");
        row(MENU_Mode3D_EyePriority, "0", board, 0x02000041, "64");
        row(MENU_Mode3D_EyePriority, "1", board, 0x02000041, "32");
        row(MENU_Mode3D_RightEyeStart, "960", board, 0x02000089, "c0031c02");
        row(MENU_Mode3D_SignalDelayTime, "7000", stereo, 0x02000002, "f8590d");
        row(MENU_Mode3D_SignalDelayTime, "65535", stereo, 0x02000002, "83ff7c");
        row(MENU_Mode3D_ThirdPartyEmitter, "0", stereo, 0x02000001, "00");
        row(MENU_Mode3D_ThirdPartyEmitter, "2", stereo, 0x02000001, "01");
        row(MENU_OPT2Mode, "0", board, 0x020001DA, "00");
        row(MENU_OPT2Mode, "1", board, 0x020001DA, "04");
        row(MENU_CommunicationMode, "USBPreferred", board, 0x022000C0, "00");
        row(MENU_CommunicationMode, "LANPreferred", board, 0x022000C0, "01");
        row(MENU_FiberConverter, "1", board, 0x020001DF, "01");
        row(MENU_FiberConverter, "0", board, 0x020001DF, "00");
        row(MENU_SendingCard, "1", board, 0x1300002C, "10");
        row(MENU_SendingCard, "0", board, 0x1300002C, "00");
        row(MENU_ImageMosaic_Status, "1", board, 0x13000053, "a8");
        row(MENU_ImageMosaic_Status, "0", board, 0x13000053, "00");
        for (int item = MENU_ImageMosaic_LoadAreaWidth; item <= MENU_ImageMosaic_LoadAreaInitialY; ++item)
            row(item, "1", board, 0x13030010, "ffffffff 2c010000 0005 d002");

        // Layers: what a record does not list, four bytes of a place, crops of DVI (number 2) and SDI.
        row(MENU_PIP2_InputSource, "9", board, 0x13020072, "000000");
        row(MENU_MainLayer_HorWidth, "1", board, 0x13020015, "fbffffff 70110100 80070000 38040000");
        row(MENU_MainLayerCrop_Status, "0", board, 0x13024034, "00 02 00 0a00 1400 2003 5802");
        row(MENU_MainLayerCrop_InitialY, "", board, 0x13024034, "00 02 01 0a00 1400 2003 5802");
        row(MENU_PIP2Crop_Status, "1", board, 0x1302414C, "30 03 01 0201 0301 0001 0101");

        // Inputs; second DVI is the fifth input that this device lists
        row(MENU_DVI2_Brightness, "1", board, 0x13050051, "01");
        row(MENU_DVI2_Contrast, "6", board, 0x13050052, "06");
        row(MENU_DVI2_Saturation, "11", board, 0x13050054, "0b");
        row(MENU_DVI2_Hue, "0", board, 0x13050055, "0000");
        row(MENU_HDMI1_ColorReset, "", board, 0x13050000, "11 33 34 00 35 0c 0f 00000000000000000000000000");
        row(MENU_DVI2_ColorReset, "", board, 0x1305003C, "6a 15 16 00 17 01 00 00000000000000000000000000");
        row(MENU_HDMI1_LimitedtoFull, "2", board, 0x13050013, "00");
        row(MENU_DVI2_LimitedtoFull, "1", board, 0x1305004F, "01");
        row(MENU_DVI2_EDIDApply, "3840x2160x30", board, 0x13014200, "3003 000f 7008 b80b");
        row(MENU_Mosaic_Apply, "", board, 0x13060000,
            "0201 0201 0101 00000000000000000000 12 01 0000 0000 8007 3804 000000000000"
            "30 03 0000 3804 8007 3804 000000000000");

        // Items that take several frames
        const auto hex = [](const char *text) { return QByteArray::fromHex(text); };
        addRow("device backup, copied", MENU_DeviceBackup, "2",
               Frames{{board, 0x02000018, hex("80808080")},
                      {board, 0x02000098, hex("80808080")},
                      {board, 0x02000100, hex("80808080")},
                      {board, 0x02000104, hex("80808080")},
                      {board, 0x0200009D, hex("5a")}});
        Frames ports;
        for (quint32 p = 1; p <= 10; ++p) {
            const quint32 parts[] = {p, p + 1, p * (p + 1), 0, 0, p, p, p};
            QByteArray position;
            for (quint32 part : parts)
                position += char(part);
            ports.append({board, 0x02810016 + 64 * p, position});
            ports.append({board, 0x02810011 + 64 * p, QByteArray(1, char((p - 1) % 8))});
        }
        ports.append({board, 0x02810000, hex("b9")});
        addRow("advanced screen configuration", MENU_Advanced_Apply, "", ports);
    }
    void frames()
    {
        const auto [item, value, frames] = fetched<int, QString, Frames>({"item", "value", "frames"});
        QCOMPARE(bench->change(item, value), 0);
        QCOMPARE(bench->client.frames.size(), frames.size());
        for (int i = 0; i < frames.size(); ++i)
            QVERIFY(bench->isFrame(i, frames[i].type, frames[i].address, frames[i].payload));
    }

    void refused_data()
    {
        addColumns<int, QString, int, QString>({"item", "value", "result", "logged"});
        auto refused = [](int item, const char *value, int result, const char *logged) {
            QTest::newRow(qPrintable(itemnames::line(item, value)))
                << item << QString(value) << result << QString(logged).replace("%1", QString::number(item));
        };
        refused(MENU_Quick_FlowWay, "8", 2, "");
        refused(MENU_Quick_FlowWay, ":/resource/image/041_ScreenTracesWay12.png", 2, "");
        refused(MENU_Quick_FlowWay, "-1", 2, "");
        refused(MENU_Output_Mode, "2", 3, "strCurValue is invalid: \"2\"");
        refused(MENU_MainLayerTransition, "", 3, "strCurValue is invalid!: \"\"");
        refused(MENU_Output_Apply, "1920x1080", 2, "Invalid Value: \"1920x1080\"");
        refused(MENU_Output_Apply, "1920x1080x60x1", 2, "Invalid Value: \"1920x1080x60x1\"");
        refused(MENU_DVI_EDIDApply, "1920*1080*60", 2, "Invalid EDID Value: \"1920*1080*60\"");
        refused(MENU_Test_PureColor, "-1", 2, "Invalid color name");
        refused(MENU_Test_Gradient, "-1", 2, "Invalid color name");
        refused(MENU_Test_Grid, "-1", 2, "Invalid color name");
        refused(MENU_Advanced_EthernetPort, "Port0", 2, "");
        refused(MENU_Advanced_EthernetPort, "Port11", 2, "");
        refused(MENU_Advanced_EthernetPort, "", 2, "");
        refused(EVENT_PresetCopy, "3", 2, "");
        refused(MENU_Preset1, "1", 1, "No Hander! enMenuIndex: %1");
        refused(MENU_MainLayer_ScalingMode, "1", 1, "No Hander! enMenuIndex: %1");
        refused(MENU_MainLayerCrop_Reset, "1", 1, "No Hander! enMenuIndex: %1");
        refused(MENU_HDCPMemory, "1", 1, "No Hander! enMenuIndex: %1");
        refused(-1, "", 1, "No Hander! enMenuIndex: %1");
    }
    void refused()
    {
        const auto [item, value, result, logged] =
            fetched<int, QString, int, QString>({"item", "value", "result", "logged"});
        bench->change(MENU_Normal,
                      ""); // the object speaks up when it is made: not part of what is expected here
        bench->client.clear();

        if (!logged.isEmpty())
            QTest::ignoreMessage(QtDebugMsg, qPrintable(logged));
        QCOMPARE(bench->change(item, value), result);
        QCOMPARE(bench->client.attempts, 0);
    }

    void busFull_data()
    {
        addColumns<int, QString, int, QString>({"item", "value", "accepted", "logged"});
        addRow("plain", 1, "50", 0, "SendMsg Faild!");
        addRow("OSD", MENU_OSDInitialX, "0", 0, "SendMsg Fail");
        addRow("OSD priority", MENU_OSDPriority, "0", 0, "SendMsg fail");
        addRow("HDMI output mode", MENU_Output_Mode, "0", 0, "SendMsg fail");
        addRow("sending card", EVENT_SendingCardMode, "1", 0, "SendMsg fail");
        addRow("window", MENU_MainLayer_InitialX, "0", 0, "SendMsg Faild!");
        addRow("picture", MENU_HDMI1_Brightness, "0", 0, "SendMsg Faild!");
        addRow("third of four HDCP registers", MENU_HDCP, "0", 2, "SendMsg Faild!");
        addRow("last of the backup registers", MENU_DeviceBackup, "1", 4, "SendMsg Faild!");
        addRow("second port", MENU_Advanced_Apply, "", 3, "SendMsg Faild!");
        addRow("gamma register", MENU_Color_Gamma, "2.8", 0, "SendMsg Faild!");
        addRow("gamma table", MENU_Color_Gamma, "2.8", 1, "SendMsg Faild!");
    }

    /// A series ends at the first frame that the bus does not take.
    void busFull()
    {
        const auto [item, value, accepted, logged] =
            fetched<int, QString, int, QString>({"item", "value", "accepted", "logged"});
        bench->client.acceptOnly = accepted;

        QTest::ignoreMessage(QtDebugMsg, "CommunicationClientInterface SendMsg fail");
        QTest::ignoreMessage(QtDebugMsg, qPrintable(logged));
        QCOMPARE(bench->change(item, value), 3);
        QCOMPARE(bench->client.attempts, accepted + 1);
    }

    void noFrame()
    {
        QCOMPARE(bench->change(MENU_ImageMosaic_Reset, ""), 0);
        QCOMPARE(bench->change(MENU_Advanced_EthernetPort, "Port10"), 0);
        QCOMPARE(int(Proto3rdSend::m_usNetPortIndex), 10);
        QCOMPARE(bench->change(MENU_Advanced_EthernetPort, "3"), 0);
        QCOMPARE(int(Proto3rdSend::m_usNetPortIndex), 3);
        QCOMPARE(bench->client.attempts, 0);
    }

    void splicingSwitchIsKept()
    {
        bench->change(MENU_ImageMosaic_Status, "1");
        QCOMPARE(Proto3rdSend::GetOpenMosaicFlag(), MOSAIC_On);
        bench->change(MENU_ImageMosaic_Status, "0");
        QCOMPARE(Proto3rdSend::GetOpenMosaicFlag(), MOSAIC_Off);
    }

    void presetLoadIsTheSameFrame()
    {
        QCOMPARE(Proto3rdSend::PresetLoad(7), 0);
        QVERIFY(bench->isFrame(0, board, 0x13510100, QByteArray(1, '\x07')));
    }

    void networkResetReadsTheEnvironment()
    {
        QCOMPARE(sysconf_openenv(), 0);
        sysconf_setenv("defaultIp", "10.1.2.3");
        sysconf_setenv("defaultMask", "255.0.255.128");
        sysconf_setenv("defaultGw", "10.1.2.254");
        sysconf_closeenv();

        QCOMPARE(bench->change(MENU_Net_Reset, ""), 0);
        QVERIFY(bench->isFrame(0, board, 0x13000006,
                               QByteArray::fromHex("0a00 0100 0200 0300 ff00 0000 ff00 8000 0a 01 02 fe")));
    }

    void networkResetWithoutEnvironment()
    {
        QCOMPARE(sysconf_openenv(), 0);
        sysconf_setenv("defaultGw", "");
        sysconf_closeenv();

        QCOMPARE(bench->change(MENU_Net_Reset, ""), 2);
        QCOMPARE(bench->client.attempts, 0);
    }

    void serialNumbersFollowEachOther()
    {
        for (int i = 0; i < 300; ++i)
            bench->change(MENU_Audio_Volume, "1");
        for (int i = 1; i < 300; ++i)
            QCOMPARE(quint8(bench->client.frames[i][3]), quint8(bench->client.frames[i - 1][3] + 1));
    }

    /// Rows of pages that the device must hear about: a number row or a choice that has no row in the send
    /// path is listed here with the reason, or it was forgotten.
    void everyItemOfTheMenuThatIsSentHasARow()
    {
        QString handled =
            "MainLayer_ScalingMode PIP1_ScalingMode PIP2_ScalingMode " // the window is sent
            "Output_{Resolution FrameRate} "                           // sent by the apply row
            "ImageMosaic_{TotalHPixels TotalVPixels} " // of the spliced picture the window is sent
            "Advanced_{CabinetRow CabinetCol HorOffset VerOffset FlowWay} " // by the apply row
            "Color_ColorTemp "                                              // its three channels are sent
            "Mosaic_{Layout Width Height} "                                 // by the apply row
            "Test_{Type VaskImage} "                                        // the pattern is sent
            "ReturntoHome HDCPMemory BootLogo MakerSign ";                  // the panel's own
        for (const char *input : {"HDMI1", "HDMI2", "DVI", "DVI2"})         // by the apply row
            handled +=
                QString("%1_{EDIDChoice EDIDResolution EDIDFrameRate EDIDWidth EDIDHeight EDIDCustomRate} ")
                    .arg(input);
        const QStringList handledOnThePanel = itemnames::expanded(handled).split(' ');
        QStringList missing;
        for (const ST_MenuConfig &page : g_config)
            for (const st_MenuItemInfo &row : page.rowsMap)
                if ((row.controlType == TYPE_INTADJUST || row.controlType == TYPE_STRINGCOMBOX) &&
                    !handledOnThePanel.contains(itemnames::name(row.menuIndex)) &&
                    bench->change(row.menuIndex, "1") == 1)
                    missing << itemnames::name(row.menuIndex);
        QCOMPARE(missing, QStringList());
    }

private:
    void seed()
    {
        // Windows: input, then width, height, x, y of the main layer.
        bench->set(MENU_MainLayer_InputSource, "2");
        bench->set(MENU_MainLayer_HorWidth, {"1920", "1080", "-5", "70000"});
        bench->set(MENU_PIP2_InputSource, "3");
        // Crops: switch, width, height, x, y.
        bench->set(MENU_MainLayerCrop_Status, {"1", "800", "600", "10", "20"});
        bench->set(MENU_PIP2Crop_Status, {"1", "256", "257", "258", "259"});
        // Splicing window: width, height, x, y.
        bench->set(MENU_ImageMosaic_LoadAreaWidth, {"1280", "720", "-1", "300"});
        // Pictures of the inputs: brightness, contrast, saturation, hue.
        bench->set(MENU_HDMI1_Brightness, {"51", "52", "53", "-180"});
        bench->set(MENU_DVI2_Brightness, {"21", "22", "23", "1"});
        // Mosaic of two inputs, one above the other.
        bench->set(MENU_Mosaic_Layout, {"0", "1920", "1080"});
        bench->set(MENU_Mosaic_Arrangement, "1", "3");
        bench->set(MENU_RightEyeStartSide, {"960", "540"});
        // Port p has p rows, p + 1 columns, starts at 256 p, 257 p and is wired in way (p - 1) of 8.
        for (int p = 1; p <= 10; ++p)
            bench->set(MENU_AdvancedPort1_Rows + STRIDE_AdvancedPort * (p - 1),
                       {QString::number(p), QString::number(p + 1), QString::number(256 * p),
                        QString::number(257 * p), QString::number((p - 1) % 8)});
    }

    std::unique_ptr<SendBench> bench;
};

FPD_TEST(TestProto3rdSend)
#include "tst_proto3rdsend.moc"
