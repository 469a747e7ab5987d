// An open page follows what the device reports, and a message comes and goes with it.
#include "client/homescreen.h"
#include "tests/system/pushes/pushes.h"
#include "tests/testprogram.h"

using namespace VASK;

using Path = QList<ENUM_MenuIndex>;

class TestPushesPages : public PushesTest
{
    Q_OBJECT
protected:
    void leave() override { QVERIFY(m_walk.home()); }

private slots:
    void openPageFollows_data()
    {
        const DataRows<Path, QString, QStringList> add{"path", "reports", "rows"};
        const QString gap(2 * 28, '0');
        add("brightness", {}, "02000001 4d", {"0:30"});
        add("picture", {MENU_InputSettings, MENU_HDMI1, MENU_HDMI1_InputColor}, "13050000 003d3e003fc0ff",
            {"0:61", "1:62", "2:63", "3:-64"});
        add("SDI picture", {MENU_InputSettings, MENU_SDI, MENU_SDI_InputColor}, "13050050 00131400154000",
            {"0:19", "1:20", "2:21", "3:64"});
        add("sampling", {MENU_InputSettings, MENU_DVI, MENU_DVI_Attributes},
            "13010041 000003000400031541000000000000000000000000000000000001", {"0:YCbCr 4:2:2"});
        add("OSD", {MENU_OSDSettings}, "13411000 01000005" + gap + "38ffffff2c010000",
            {"0:On", "2:-200", "3:300", "4:LOW"});
        add("audio", {MENU_AdvancedSetting, MENU_Audio}, "1300009e 0321", {"0:AudioOutputPIP2", "1:33"});
        add("volume", {MENU_AdvancedSetting, MENU_Audio}, "1300009f 0b", {"1:11"});
        add("synchronisation", {MENU_AdvancedSetting, MENU_Synchronization}, "1300002a 0102",
            {"0:On", "1:HDMI2"});
        add("video output", {MENU_AdvancedSetting, MENU_HDMIOutput}, "13042007 01", {"0:Video Output"});
        add("mapping", {MENU_AdvancedSetting, MENU_ScreenSetting, MENU_MoreSettings}, "01000088 05",
            {"1:On"});
        add("backup", {MENU_AdvancedSetting}, "02000018 80808080;02000098 80800000", {"0:SetasBackup"});
        add("main layer", {MENU_LayerSettings, MENU_MainLayer},
            "13020010 0100010000640000009cffffffe8030000bc020000" + QString(2 * 26, '0') + "50",
            {"1:HDMI2", "3:1000", "4:700", "5:100"});
        add("PIP 1", {MENU_LayerSettings, MENU_PIP1},
            "13020040 01000001000a000000140000008002000090010000" + QString(2 * 26, '0') + "50",
            {"0:On", "3:640", "4:400", "5:10"});
        add("crop", {MENU_LayerSettings, MENU_PIP2, MENU_PIP2_InputCrop}, "1302411c 11000114002800f0007800",
            {"0:On", "1:240", "2:120", "3:20", "4:40"});
        add("manual address", {MENU_CommunicationSettings, MENU_NetworkSettings},
            "13000006 c000a80005000700ff00ff00fe000000c0a80501;1300001a a8", {"0:Automatic"});
    }
    void openPageFollows()
    {
        const auto [path, reports, rows] = fetched<Path, QString, QStringList>({"path", "reports", "rows"});
        QVERIFY(m_walk.go(path));
        for (const QString &row : rows)
            QVERIFY2(!rowShows(row), qPrintable("shown already: " + row));
        QVERIFY(m_pushes.push(reports.split(';')));
        for (const QString &row : rows)
            QVERIFY2(m_panel.waitUntil([&] { return rowShows(row); }), qPrintable("not shown: " + row));
    }

    /// Any link of the ten ports, be it beyond those of the home screen, means that there is a receiving
    /// card.
    void anyLinkIsAReceivingCard()
    {
        const Path save{MENU_AdvancedSetting, MENU_ScreenSetting, MENU_SavetoRVCard};
        const QString saved = "01000011 01 00";
        QVERIFY(m_pushes.push({"0200001f 00", "0200009f 00", "02000126 00"}));
        QVERIFY(clearWrites());
        QVERIFY(m_walk.go(save));
        QVERIFY(m_walk.answer(true));
        QVERIFY(m_panel.waitFor(messageStart("CheckReceiveCard")));
        QVERIFY(!m_panel.writes().contains(saved));
        QVERIFY(m_walk.home());
        QVERIFY(m_pushes.push({"02000126 02"}));
        QVERIFY(m_walk.go(save));
        QVERIFY(m_walk.answer(true));
        QVERIFY(m_panel.waitUntil([&] { return m_panel.writes().contains(saved); }));
    }

    void lossOfSynchronisationIsTold()
    {
        const QString message = messageStart("SyncNoSignalTip");
        QVERIFY(m_pushes.push({"1300002a 0102", "1300009d 04"}));
        QVERIFY(m_panel.waitFor(message));
        QVERIFY(m_pushes.push({"1300009d 02"}));
        QVERIFY(homescreen::waitToSee(m_panel, "sync:HDMI2"));
        QVERIFY(!m_panel.shows(message));
    }

private:
    /// "ROW:TEXT", rows counted from 0 on the LCD, texts as the tables have them.
    bool rowShows(const QString &rowAndText)
    {
        constexpr int titleHeight = 24, rowHeight = 36, valuesFrom = 100;
        const int row = rowAndText.section(':', 0, 0).toInt();
        return m_panel.shows(m_walk.text(rowAndText.section(':', 1)),
                             QRect(valuesFrom, titleHeight + row * rowHeight, 320 - valuesFrom, rowHeight));
    }

    /// The beginning of a message that has several lines.
    QString messageStart(const char *key) const { return m_walk.text(key).section(QChar(0xff0c), 0, 0); }
};

FPD_TEST(TestPushesPages)
#include "tst_pushespages.moc"
