// What leaves for the device when an item changes, where no row of a page shows it: values at the limits,
// items and inputs without a page; and what is refused.

#include "datarows.h"
#include "sendbench.h"

#include "menu/menutypes.h"
#include "sysconf.h"
#include "tests/testprogram.h"

using namespace VASK;

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

    void frames_data();
    void frames();
    void refused_data();
    void refused();
    void busFull_data();
    void busFull();
    void noFrame();
    void splicingSwitchIsKept();
    void presetLoadIsTheSameFrame();
    void networkResetReadsTheEnvironment();
    void networkResetWithoutEnvironment();
    void serialNumbersFollowEachOther();
    void everyItemOfTheMenuThatIsSentHasARow();

private:
    void seed();
    std::unique_ptr<SendBench> bench;
};

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
    addRow(QString("%1:%2").arg(item).arg(value), item, value,
           Frames{{type, address, QByteArray::fromHex(payload)}});
}
} // namespace

void TestProto3rdSend::seed()
{
    // Windows: input, then width, height, x, y of the main layer.
    bench->set(2101, "2");
    bench->set(2103, {"1920", "1080", "-5", "70000"});
    bench->set(2121, "3");
    // Crops: switch, width, height, x, y.
    bench->set(3000, {"1", "800", "600", "10", "20"});
    bench->set(3012, {"1", "256", "257", "258", "259"});
    // Splicing window: width, height, x, y.
    bench->set(1043, {"1280", "720", "-1", "300"});
    // Pictures of the inputs: brightness, contrast, saturation, hue.
    bench->set(3025, {"51", "52", "53", "-180"});
    bench->set(3061, {"21", "22", "23", "1"});
    // Mosaic of two inputs, one above the other.
    bench->set(3071, {"0", "1920", "1080"});
    bench->set(3074, "1", "3");
    bench->set(3213, {"960", "540"});
    // Port p has p rows, p + 1 columns, starts at 256 p, 257 p and is wired in way (p - 1) of 8.
    for (int p = 1; p <= 10; ++p)
        bench->set(3151 + 5 * (p - 1), {QString::number(p), QString::number(p + 1), QString::number(256 * p),
                                        QString::number(257 * p), QString::number((p - 1) % 8)});
}

void TestProto3rdSend::frames_data()
{
    addColumns<int, QString, Frames>({"item", "value", "frames"});
    row(1, "0", card, 0x02000001, "00");
    row(1, "1", card, 0x02000001, "02");
    row(1, "50", card, 0x02000001, "7f");
    row(1, "100", card, 0x02000001, "ff");
    row(2002, "65535", board, 0x02810018, "ffff");
    row(2003, ":/resource/image/041_ScreenTracesWay7.png", board, 0x02810011, "07");
    row(2007, "255+a", board, 0x0FF001FF, "01");
    row(2011, "12+111.rcfgx+x", board, 0x0FF0010C, "01");
    row(2015, "23.98", board, 0x13040007, "5e09");
    row(2015, "119.88", board, 0x13040007, "d42e");
    row(2015, "120", board, 0x13040007, "e02e");
    row(1020, "0.5", board, 0x13000002, "3200");
    row(1020, "2.0", board, 0x13000002, "c800");
    row(2340, "1", board, 0x13120000, "5b");
    row(2340, "0", board, 0x13120000, "ff");
    row(2341, "1", board, 0x13120010, "11001201");
    row(2341, "0", board, 0x13120010, "1100ff01");
    row(2342, "1", board, 0x13120014, "69006a01");
    row(2342, "0", board, 0x13120014, "6900ff01");
    row(2343, "1", board, 0x13120018, "e000e001");
    row(2343, "0", board, 0x13120018, "e000ff01");
    row(3083, "0", board, 0x13019035, "00");
    row(3085, "0", board, 0x13019055, "00");
    row(3086, "1", board, 0x13019065, "02");
    row(3087, "1", board, 0x13019075, "02");
    row(2359, "0", board, 0x02000039, "28");
    row(2359, "1", board, 0x02000039, "a8");
    row(2360, "0", board, 0x02000042, "28");
    row(2360, "1", board, 0x02000042, "08");
    row(2360, "2", board, 0x02000042, "18");
    row(2361, "0", board, 0x02000041, "64");
    row(2361, "1", board, 0x02000041, "32");
    row(3077, "960", board, 0x02000089, "c0031c02");
    row(3078, "7000", stereo, 0x02000002, "f8590d");
    row(3078, "65535", stereo, 0x02000002, "83ff7c");
    row(3079, "0", stereo, 0x02000001, "00");
    row(3079, "2", stereo, 0x02000001, "01");
    row(1057, "0", board, 0x020001DA, "00");
    row(1057, "1", board, 0x020001DA, "04");
    row(1065, "USBPreferred", board, 0x022000C0, "00");
    row(1065, "LANPreferred", board, 0x022000C0, "01");
    row(1068, "1", board, 0x020001DF, "01");
    row(1068, "0", board, 0x020001DF, "00");
    row(1069, "1", board, 0x1300002C, "10");
    row(1069, "0", board, 0x1300002C, "00");
    row(1040, "1", board, 0x13000053, "a8");
    row(1040, "0", board, 0x13000053, "00");
    for (int item = 1043; item <= 1046; ++item)
        row(item, "1", board, 0x13030010, "ffffffff 2c010000 0005 d002");

    // Layers: what a record does not list, four bytes of a place, crops of DVI (number 2) and SDI.
    row(2121, "9", board, 0x13020072, "000000");
    row(2103, "1", board, 0x13020015, "fbffffff 70110100 80070000 38040000");
    row(3000, "0", board, 0x13024034, "00 02 00 0a00 1400 2003 5802");
    row(3004, "", board, 0x13024034, "00 02 01 0a00 1400 2003 5802");
    row(3012, "1", board, 0x1302414C, "30 03 01 0201 0301 0001 0101");

    // Inputs; second DVI is the fifth input that this device lists
    row(3061, "1", board, 0x13050051, "01");
    row(3062, "6", board, 0x13050052, "06");
    row(3063, "11", board, 0x13050054, "0b");
    row(3064, "0", board, 0x13050055, "0000");
    row(3029, "", board, 0x13050000, "11 33 34 00 35 0c 0f 00000000000000000000000000");
    row(3065, "", board, 0x1305003C, "6a 15 16 00 17 01 00 00000000000000000000000000");
    row(2302, "2", board, 0x13050013, "00");
    row(2317, "1", board, 0x1305004F, "01");
    row(3057, "3840x2160x30", board, 0x13014200, "3003 000f 7008 b80b");
    row(3075, "", board, 0x13060000,
        "0201 0201 0101 00000000000000000000 12 01 0000 0000 8007 3804 000000000000"
        "30 03 0000 3804 8007 3804 000000000000");

    // Items that take several frames
    const auto hex = [](const char *text) { return QByteArray::fromHex(text); };
    addRow("device backup, copied", 1048, "2",
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
    addRow("advanced screen configuration", 2387, "", ports);
}

void TestProto3rdSend::frames()
{
    QFETCH(int, item);
    QFETCH(QString, value);
    QFETCH(Frames, frames);
    QCOMPARE(bench->change(item, value), 0);
    QCOMPARE(bench->client.frames.size(), frames.size());
    for (int i = 0; i < frames.size(); ++i)
        QVERIFY(bench->isFrame(i, frames[i].type, frames[i].address, frames[i].payload));
}

void TestProto3rdSend::refused_data()
{
    addColumns<int, QString, int, QString>({"item", "value", "result", "logged"});
    auto refused = [](int item, const char *value, int result, const char *logged) {
        QTest::addRow("%d:%s", item, value) << item << QString(value) << result << QString(logged);
    };
    refused(2003, "8", 2, "");
    refused(2003, ":/resource/image/041_ScreenTracesWay12.png", 2, "");
    refused(2003, "-1", 2, "");
    refused(2352, "2", 3, "strCurValue is invalid: \"2\"");
    refused(1019, "", 3, "strCurValue is invalid!: \"\"");
    refused(2355, "1920x1080", 2, "Invalid Value: \"1920x1080\"");
    refused(2355, "1920x1080x60x1", 2, "Invalid Value: \"1920x1080x60x1\"");
    refused(3045, "1920*1080*60", 2, "Invalid EDID Value: \"1920*1080*60\"");
    refused(2326, "-1", 2, "Invalid color name");
    refused(2327, "-1", 2, "Invalid color name");
    refused(2328, "-1", 2, "Invalid color name");
    refused(2381, "Port0", 2, "");
    refused(2381, "Port11", 2, "");
    refused(2381, "", 2, "");
    refused(1039, "3", 2, "");
    refused(1026, "1", 1, "No Hander! enMenuIndex: 1026");
    refused(2102, "1", 1, "No Hander! enMenuIndex: 2102");
    refused(3005, "1", 1, "No Hander! enMenuIndex: 3005");
    refused(3088, "1", 1, "No Hander! enMenuIndex: 3088");
    refused(-1, "", 1, "No Hander! enMenuIndex: -1");
}

void TestProto3rdSend::refused()
{
    QFETCH(int, item);
    QFETCH(QString, value);
    QFETCH(int, result);
    QFETCH(QString, logged);
    bench->change(1021, ""); // the object speaks up when it is made: not part of what is expected here
    bench->client.clear();

    if (!logged.isEmpty())
        QTest::ignoreMessage(QtDebugMsg, qPrintable(logged));
    QCOMPARE(bench->change(item, value), result);
    QCOMPARE(bench->client.attempts, 0);
}

void TestProto3rdSend::busFull_data()
{
    addColumns<int, QString, int, QString>({"item", "value", "accepted", "logged"});
    addRow("plain", 1, "50", 0, "SendMsg Faild!");
    addRow("OSD", 1010, "0", 0, "SendMsg Fail");
    addRow("OSD priority", 1012, "0", 0, "SendMsg fail");
    addRow("HDMI output mode", 2352, "0", 0, "SendMsg fail");
    addRow("sending card", 3397, "1", 0, "SendMsg fail");
    addRow("window", 2105, "0", 0, "SendMsg Faild!");
    addRow("picture", 3025, "0", 0, "SendMsg Faild!");
    addRow("third of four HDCP registers", 1054, "0", 2, "SendMsg Faild!");
    addRow("last of the backup registers", 1048, "1", 4, "SendMsg Faild!");
    addRow("second port", 2387, "", 3, "SendMsg Faild!");
    addRow("gamma register", 2389, "2.8", 0, "SendMsg Faild!");
    addRow("gamma table", 2389, "2.8", 1, "SendMsg Faild!");
}

/// A series ends at the first frame that the bus does not take.
void TestProto3rdSend::busFull()
{
    QFETCH(int, item);
    QFETCH(QString, value);
    QFETCH(int, accepted);
    QFETCH(QString, logged);
    bench->client.acceptOnly = accepted;

    QTest::ignoreMessage(QtDebugMsg, "CommunicationClientInterface SendMsg fail");
    QTest::ignoreMessage(QtDebugMsg, qPrintable(logged));
    QCOMPARE(bench->change(item, value), 3);
    QCOMPARE(bench->client.attempts, accepted + 1);
}

void TestProto3rdSend::noFrame()
{
    QCOMPARE(bench->change(1047, ""), 0);
    QCOMPARE(bench->change(2381, "Port10"), 0);
    QCOMPARE(int(Proto3rdSend::m_usNetPortIndex), 10);
    QCOMPARE(bench->change(2381, "3"), 0);
    QCOMPARE(int(Proto3rdSend::m_usNetPortIndex), 3);
    QCOMPARE(bench->client.attempts, 0);
}

void TestProto3rdSend::splicingSwitchIsKept()
{
    bench->change(1040, "1");
    QCOMPARE(Proto3rdSend::GetOpenMosaicFlag(), MOSAIC_On);
    bench->change(1040, "0");
    QCOMPARE(Proto3rdSend::GetOpenMosaicFlag(), MOSAIC_Off);
}

void TestProto3rdSend::presetLoadIsTheSameFrame()
{
    QCOMPARE(Proto3rdSend::PresetLoad(7), 0);
    QVERIFY(bench->isFrame(0, board, 0x13510100, QByteArray(1, '\x07')));
}

void TestProto3rdSend::networkResetReadsTheEnvironment()
{
    QCOMPARE(sysconf_openenv(), 0);
    sysconf_setenv("defaultIp", "10.1.2.3");
    sysconf_setenv("defaultMask", "255.0.255.128");
    sysconf_setenv("defaultGw", "10.1.2.254");
    sysconf_closeenv();

    QCOMPARE(bench->change(2379, ""), 0);
    QVERIFY(bench->isFrame(0, board, 0x13000006,
                           QByteArray::fromHex("0a00 0100 0200 0300 ff00 0000 ff00 8000 0a 01 02 fe")));
}

void TestProto3rdSend::networkResetWithoutEnvironment()
{
    QCOMPARE(sysconf_openenv(), 0);
    sysconf_setenv("defaultGw", "");
    sysconf_closeenv();

    QCOMPARE(bench->change(2379, ""), 2);
    QCOMPARE(bench->client.attempts, 0);
}

void TestProto3rdSend::serialNumbersFollowEachOther()
{
    for (int i = 0; i < 300; ++i)
        bench->change(2357, "1");
    for (int i = 1; i < 300; ++i)
        QCOMPARE(quint8(bench->client.frames[i][3]), quint8(bench->client.frames[i - 1][3] + 1));
}

/// Rows of pages that the device must hear about: a number row or a choice that has no row in the send path
/// is listed here with the reason, or it was forgotten.
void TestProto3rdSend::everyItemOfTheMenuThatIsSentHasARow()
{
    const QSet<int> handledOnThePanel{
        2102, 2112, 2122,       // scaling: the window is sent
        3018, 3030, 3042, 3054, // EDID choice, sizes and rates: sent by the apply row
        3019, 3031, 3043, 3055, 3020, 3032, 3044, 3056, 3022, 3034, 3046, 3058, 3023, 3035, 3047, 3059, 3024,
        3036, 3048, 3060, 2353, 2354, // output resolution and rate: sent by the
                                      // apply row
        1041, 1042,                   // size of the spliced picture: the window on it is sent
        2382, 2383, 2384, 2385, 2386, // one port's configuration: sent by the apply row
        2390,                         // colour temperature: its three channels are sent
        3071, 3072, 3073,             // mosaic: sent by the apply row
        1058,                         // return to home: the panel's own
        2325, 2329,                   // kind of test pattern: the pattern is sent
        3088, 3090, 3091,             // kept by the panel
    };
    QStringList missing;
    for (const ST_MenuConfig &page : g_config)
        for (const st_MenuItemInfo &row : page.rowsMap)
            if ((row.controlType == TYPE_INTADJUST || row.controlType == TYPE_STRINGCOMBOX) &&
                !handledOnThePanel.contains(row.menuIndex) && bench->change(row.menuIndex, "1") == 1)
                missing << QString::number(row.menuIndex);
    QCOMPARE(missing, QStringList());
}

FPD_TEST(TestProto3rdSend)

#include "tst_proto3rdsend.moc"
