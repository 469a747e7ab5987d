// What the rows of the quick and the advanced screen configuration and of low latency send, and which of the
// two pages asks before it opens.
#include "tests/system/frames/framedrive.h"
#include "tests/testprogram.h"

using namespace VASK;
using frames::path;
using frames::twice;

namespace
{
using Path = QList<ENUM_MenuIndex>;

Path quick(ENUM_MenuIndex row)
{
    return {MENU_AdvancedSetting, MENU_ScreenSetting, MENU_QuickConfiguration, row};
}
Path advanced(ENUM_MenuIndex row)
{
    return {MENU_AdvancedSetting, MENU_ScreenSetting, MENU_MoreSettings, MENU_AdvancedCfg, row};
}

/// Rows, columns, their product, x and y of a port that was never touched.
const QString onePort = "0101010000000000";

/// The records and flow ways of the ten ports, with those of the second, and the command to take them over.
QStringList allPorts(const QString &second, int flowWay)
{
    constexpr quint32 record = 0x02810016, route = 0x02810011, stride = 64, ports = 10;
    QStringList list;
    for (quint32 port = 1; port <= ports; ++port)
        list << QString("%1 00 %2")
                    .arg(record + stride * port, 8, 16, QChar('0'))
                    .arg(port == 2 ? second : onePort)
             << QString("%1 00 %2")
                    .arg(route + stride * port, 8, 16, QChar('0'))
                    .arg(port == 2 ? flowWay : 0, 2, 16, QChar('0'));
    return list << "02810000 00 b9";
}
} // namespace

class TestFramesScreen : public FramesTest
{
    Q_OBJECT
    QVector<NamedFrames> table() const override
    {
        const Path latency{MENU_AdvancedSetting, MENU_LowLatency};
        const QString latencyOn = "02000074 00 78", latencyOff = "02000074 00 00";
        return {
            // Asked whether it may replace the other form, the user says yes; the flow way makes the device
            // do
            // it.
            {"quick page", path(MENU_AdvancedSetting, MENU_ScreenSetting, MENU_QuickConfiguration), "",
             "02810011 00 00"},
            {"rows", quick(MENU_Quick_CabinetRow), "R3 ok", twice("02810016 00 04")},
            // Sixteen cabinets on six ports are three on the first at least.
            {"columns", quick(MENU_Quick_CabinetCol), "R3 ok",
             "02810018 00 0300, 02810017 00 04, 02810017 00 04"},
            {"first port", quick(MENU_Quick_PortOneCab), "R1 ok", twice("02810018 00 0400")},
            // Five take two rows of four; the user is told with the step and with its end.
            {"first port, too many", quick(MENU_Quick_PortOneCab), "R1 closed ok closed",
             twice("02810018 00 0500")},
            {"first port, back", quick(MENU_Quick_PortOneCab), "L1 ok", twice("02810018 00 0400")},
            {"flow way", quick(MENU_Quick_FlowWay), "r1 ok", "02810011 00 01"},
            {"low latency", latency, "r1 ok closed", {latencyOn}},
            {"flow way ends low latency",
             quick(MENU_Quick_FlowWay),
             "r1 closed ok",
             {latencyOff, "02810011 00 02"}},
            {"low latency again", latency, "r1 ok closed", {latencyOn}},

            {"advanced on", advanced(MENU_Advanced_Status), "r1 ok", "02810000 00 a8"},
            // The ports are sent when they are applied.
            {"port", advanced(MENU_Advanced_EthernetPort), "R1 ok", ""},
            {"port rows", advanced(MENU_Advanced_CabinetRow), "R1 ok", ""},
            {"port columns, two are all it carries", advanced(MENU_Advanced_CabinetCol), "R2 ok", ""},
            {"port x", advanced(MENU_Advanced_HorOffset), "R9 ok", ""},
            {"port y ends low latency", advanced(MENU_Advanced_VerOffset), "R7 closed ok", {latencyOff}},
            {"port flow way", advanced(MENU_Advanced_FlowWay), "r2 ok", ""},
            {"applied", advanced(MENU_Advanced_Apply), "closed", allPorts("0202040009000700", 2)},
            {"reset, refused", advanced(MENU_Advanced_Reset), "no", ""},
            {"reset", advanced(MENU_Advanced_Reset), "yes", ""},
            {"reset applied", advanced(MENU_Advanced_Apply), "closed", allPorts(onePort, 0)},
            {"advanced off", advanced(MENU_Advanced_Status), "r1 ok", "02810000 00 b8"},
        };
    }

private slots:
    void theOtherFormAsks()
    {
        m_panel.ask({"writes", "--clear"});
        opensPage(MENU_QuickConfiguration, false);
        opensPage(MENU_AdvancedCfg, true);
        QVERIFY(m_walk.enter(MENU_AdvancedCfg) && m_walk.enter(MENU_Advanced_Status));
        QVERIFY(m_walk.turn(Right, 1) && m_walk.press(keys::Ok));
        QCOMPARE(m_drive.sent(1), QStringList{"02810000 00 a8"});
        m_panel.ask({"writes", "--clear"});

        opensPage(MENU_AdvancedCfg, false);
        opensPage(MENU_QuickConfiguration, true);
        QVERIFY(m_walk.enter(MENU_QuickConfiguration));
        QCOMPARE(m_drive.sent(1), QStringList{"02810011 00 02"});
        QTRY_COMPARE(m_panel.stored(MENU_Advanced_Status), QString("0"));
        m_panel.ask({"writes", "--clear"});
        opensPage(MENU_QuickConfiguration, false);
        opensPage(MENU_AdvancedCfg, true);
    }

private:
    /// OK on the row of a page: it opens, or asks and stays closed after a no.
    void opensPage(ENUM_MenuIndex page, bool afterQuestion)
    {
        QVERIFY(m_walk.home());
        QVERIFY(
            m_walk.go(page == MENU_QuickConfiguration ? quick(page).mid(0, 2) : advanced(page).mid(0, 3)));
        const ENUM_ConfigIndex before = m_walk.page();
        QVERIFY(m_walk.moveTo(page) && m_walk.press(keys::Ok));
        QCOMPARE(m_walk.asked(), afterQuestion);
        if (!afterQuestion)
            return;
        QVERIFY(m_walk.answer(false));
        QCOMPARE(m_walk.page(), before);
        QVERIFY(m_walk.showsTitle());
        QCOMPARE(m_drive.sent(0), QStringList());
    }
};

FPD_TEST(TestFramesScreen)
#include "tst_framesscreen.moc"
