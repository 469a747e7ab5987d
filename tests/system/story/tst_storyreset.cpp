// A user resets the panel: what survives, what comes back from the factory copy, and what the three messages
// say by the answers of the board's tools. Each reset has a run of its own, since its last message stays.
#include "tests/system/systemtest.h"
#include "tests/testprogram.h"

#include <QRegularExpression>

using namespace VASK;

namespace
{
struct Own {
    ENUM_MenuIndex item;
    const char *value;
    const char *field;
};

constexpr Own own[] = {
    {MENU_CommunicationMode, "1", "Value"},
    {MENU_Net_IPAddress, "10.1.2.200", "Value"},
    {MENU_Net_SubnetMask, "255.255.0.0", "Value"},
    {MENU_Net_Gateway, "10.1.2.3", "Value"},
    {MENU_HDCPMemory, "0", "Value"},
    {MENU_BootLogo, "0", "Value"},
    {MENU_MakerSign, "0", "Value"},
    {MENU_FnMode, "3", "Value"},
    {MENU_Fn_Freeze, "1", "Choice"},
    {MENU_ScreenBrightness, "13", "Value"},
    {MENU_ReturntoHome, "99", "Value"},
    {MENU_PIP1_HorWidth, "123", "Value"},
    {MENU_Advanced_Status, "1", "Value"},
    {MENU_Color_R, "true", "Enable"},
};

QString factory(const Own &row)
{
    const ST_ItemInfo item = g_MenuXmlConfig.value(row.item);
    if (row.field == QLatin1String("Choice"))
        return item.choice;
    return row.field == QLatin1String("Enable") ? QString(item.enable ? "true" : "false") : item.value;
}
} // namespace

class TestStoryReset : public SystemTest
{
    Q_OBJECT
protected:
    void begin() override
    {
        QVERIFY(m_panel.powerDevice());
        QVERIFY(m_panel.ask({"reports", "off"}).ok);
        QVERIFY(m_panel.start());
        QVERIFY(m_panel.ask({"panel", "stop"}).ok);
        QVERIFY(m_walk.speak("fpd_ZH"));
    }

    void leave() override
    {
        m_panel.ask({"panel", "stop"});
        m_walk.assume({});
    }

private slots:
    void resetKeepsAndTells_data()
    {
        using Items = QList<ENUM_MenuIndex>;
        const DataRows<ENUM_MenuIndex, Items, QStringList, QString, QString> row{"reset", "kept", "tool",
                                                                                 "outcome", "frame"};
        const QList<ENUM_MenuIndex> brand{MENU_BootLogo, MENU_MakerSign};
        const QList<ENUM_MenuIndex> address =
            brand + QList<ENUM_MenuIndex>{MENU_CommunicationMode, MENU_Net_IPAddress, MENU_Net_SubnetMask,
                                          MENU_Net_Gateway, MENU_HDCPMemory};
        const QList<ENUM_MenuIndex> userData = address + QList<ENUM_MenuIndex>{MENU_FnMode, MENU_Fn_Freeze};
        row("address kept, FPGA silent", MENU_SaveIP, address, QStringList{"fpga", ""}, "FPGACommunication",
            "01000002 00 00");
        // The same answer to both questions: a version, and no mark of a memory that is well.
        row("user data kept, memory fails", MENU_SaveUserData, userData,
            QStringList{"fpga", "FPGA version is V1"}, "FPGADDRCheckError", "01000002 00 02");
        row("everything, all well", MENU_ResetAll, brand, QStringList{"fpga"}, "ResetSucceed",
            "01000002 00 01");
    }
    void resetKeepsAndTells()
    {
        const auto [reset, kept, tool, outcome, frame] =
            fetched<ENUM_MenuIndex, QList<ENUM_MenuIndex>, QStringList, QString, QString>(
                {"reset", "kept", "tool", "outcome", "frame"});
        QVERIFY(makeOwn());
        QVERIFY(m_panel.ask(QStringList{"fault", "tool"} + tool).ok);
        QVERIFY(startAgain());
        QVERIFY(m_walk.go({MENU_FactoryReset}));
        QVERIFY(waitUntilStored(MENU_ScreenBrightness, "13"));

        // No keeps everything.
        QVERIFY(clearWrites());
        QVERIFY(m_walk.enter(reset));
        QVERIFY(m_walk.asked());
        QVERIFY(m_walk.answer(false));
        QVERIFY(m_walk.enter(reset));
        QVERIFY(m_walk.answer(true));
        QVERIFY(tells("IsResting"));
        QVERIFY(tells(outcome));
        QCOMPARE(m_panel.writes(), QStringList{frame});
        QCOMPARE(wrongItems(kept), QStringList());
        QCOMPARE(m_panel.stored(MENU_RestoreDone), QString("1"));

        // And so it is on the next day.
        QVERIFY(restart());
        QVERIFY(m_walk.openMenu() && m_walk.home());
        QCOMPARE(wrongItems(kept), QStringList());
        QVERIFY(!m_panel.shows("K2860", QRect(25, 0, 118, 24))); // the maker's sign
        const bool addressKept = kept.contains(MENU_Net_IPAddress);
        QVERIFY(m_panel.waitFor(addressKept ? "10.1.2.200" : "192.168.0.10", QRect(160, 0, 160, 26)));
    }

private:
    /// The items as the user had made them, put into the store while the panel is off.
    bool makeOwn()
    {
        bool done = m_panel.ask({"flash", "write", "2006", "0A0001000200C800FF00FF00000000000A010203"}).ok;
        for (const Own &row : own)
            done = done && m_panel.setStored(row.item, row.value, row.field);
        return done;
    }

    QStringList wrongItems(const QList<ENUM_MenuIndex> &kept) const
    {
        QStringList wrong;
        for (const Own &row : own) {
            const QString wanted = kept.contains(row.item) ? QString(row.value) : factory(row);
            const QString stored = m_panel.stored(row.item, row.field);
            if (stored != wanted)
                wrong << QString("%1: %2, not %3").arg(row.item).arg(stored, wanted);
        }
        return wrong;
    }

    /// Waits for the first line of a message.
    bool tells(const QString &message)
    {
        const QString line = m_walk.text(message).section(QRegularExpression("\\\\r|\r|\n"), 0, 0);
        return m_panel.waitToDraw(line, 18);
    }
};

FPD_TEST(TestStoryReset)
#include "tst_storyreset.moc"
